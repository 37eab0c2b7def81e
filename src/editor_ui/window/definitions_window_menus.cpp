#include <QActionGroup>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/editor_action.h"
#include "editor_ui/window/definitions_window.h"
#include "windows/plain_text.h"
#include "windows/short_text.h"

namespace vigrel {
namespace {

constexpr int kZooms[] = {100, 150, 200, 300};  // percent
constexpr qsizetype kMostLetters = 120;         // of an entry

QString EntryText(const QString& text) {
    return ShortLine(text, kMostLetters).replace('&', "&&");
}

}  // namespace

QAction* cDefinitionsWindow::AddEntry(QMenu& menu, const char* name, const QString& text,
                                      const QKeySequence& keys, const std::function<void()>& chosen) {
    auto* action = new QAction(text, this);
    action->setObjectName(QString("Menu_") + name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, chosen);
    menu.addAction(action);
    return action;
}

void cDefinitionsWindow::MakeFileMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&File"));
    AddEntry(menu, "NewSchedule", tr("&New schedule"), QKeySequence::New, [this] { NewSchedule(); });
    AddEntry(menu, "NewCalendar", tr("New &calendar"), QKeySequence("Ctrl+Shift+N"),
             [this] { NewCalendar(); });
    AddEntry(menu, "Open", tr("&Open..."), QKeySequence::Open, [this] { Open(); });
    m_RecentMenu = menu.addMenu(tr("Open &recent"));
    m_RecentMenu->setObjectName("Menu_Recent");
    connect(m_RecentMenu, &QMenu::aboutToShow, this, &cDefinitionsWindow::FillRecentMenu);
    menu.addSeparator();
    m_Save = AddEntry(menu, "Save", tr("&Save"), QKeySequence::Save, [this] {
        CurrentPage()->FinishInput();
        CurrentPage()->Save();
    });
    m_SaveAs = AddEntry(menu, "SaveAs", tr("Save &as..."), QKeySequence("Ctrl+Shift+S"), [this] {
        CurrentPage()->FinishInput();
        CurrentPage()->SaveAs();
    });
    m_Print = AddEntry(menu, "Print", tr("&Print..."), {}, [this] { Print(); });
    m_Pdf = AddEntry(menu, "Pdf", tr("Save as P&DF..."), {}, [this] { SaveAsPdf(); });
    m_Close = AddEntry(menu, "Close", tr("C&lose"), QKeySequence("Ctrl+W"),
                       [this] { ClosePage(m_Tabs.currentIndex()); });
    menu.addSeparator();
    AddEntry(menu, "Exit", tr("E&xit"), QKeySequence("Ctrl+Q"), [this] { close(); });
}

void cDefinitionsWindow::FillRecentMenu() {
    m_RecentMenu->clear();
    for (const QString& path : m_Recent.Paths()) {
        m_RecentMenu->addAction(EntryText(path), this, [this, path] { OpenRecent(path); });
    }
    if (m_RecentMenu->isEmpty()) m_RecentMenu->addAction(tr("None yet"))->setEnabled(false);
}

void cDefinitionsWindow::MakeEditMenu() {
    m_EditMenu = menuBar()->addMenu(tr("&Edit"));
    // What is still being typed becomes a step first: a step that is undone must find nothing half done.
    m_Undo = AddEntry(*m_EditMenu, "Undo", tr("&Undo"), QKeySequence::Undo, [this] {
        CurrentPage()->FinishInput();
        m_UndoGroup.undo();
    });
    m_Redo = AddEntry(*m_EditMenu, "Redo", tr("&Redo"), {}, [this] {
        CurrentPage()->FinishInput();
        m_UndoGroup.redo();
    });
    m_Redo->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
    m_Undo->setEnabled(false);
    m_Redo->setEnabled(false);
    connect(&m_UndoGroup, &QUndoGroup::canUndoChanged, m_Undo, &QAction::setEnabled);
    connect(&m_UndoGroup, &QUndoGroup::canRedoChanged, m_Redo, &QAction::setEnabled);
    // Languages differ in where the step stands, so that the toolkit's own way, a word in front, doesn't do.
    connect(&m_UndoGroup, &QUndoGroup::undoTextChanged, m_Undo, [this](const QString& step) {
        m_Undo->setText(step.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(EntryText(step)));
    });
    connect(&m_UndoGroup, &QUndoGroup::redoTextChanged, m_Redo, [this](const QString& step) {
        m_Redo->setText(step.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(EntryText(step)));
    });
    FillEditMenu();
}

// The page in front brings its own entries.
void cDefinitionsWindow::FillEditMenu() {
    for (QAction* action : m_EditMenu->actions()) m_EditMenu->removeAction(action);
    m_EditMenu->addActions({m_Undo, m_Redo});
    m_EditMenu->addSeparator();
    const cEditorPage* page = CurrentPage();
    if (page != nullptr) AddEntries(*m_EditMenu, page->EditActions());
}

void cDefinitionsWindow::MakeViewMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&View"));
    MakeZooms(menu);
    menu.addSeparator();
    AddEntry(menu, "NextPage", tr("&Next page"), QKeySequence::NextChild, [this] { TurnPage(1); });
    AddEntry(menu, "PreviousPage", tr("&Previous page"), QKeySequence::PreviousChild,
             [this] { TurnPage(-1); });
}

// As large as the window, unless a size was chosen.
void cDefinitionsWindow::MakeZooms(QMenu& menu) {
    auto* group = new QActionGroup(this);
    m_Zoom = m_Services.m_Settings.value("Zoom", m_Zoom).toDouble();
    const auto add = [&](const QString& name, const QString& text, int key, double zoom) {
        QAction* action = AddEntry(menu, "", text, QKeySequence(QString("Ctrl+%1").arg(key)),
                                   [this, zoom] { SetZoom(zoom); });
        action->setObjectName("Menu_Zoom_" + name);
        action->setCheckable(true);
        action->setChecked(qFuzzyCompare(1 + m_Zoom, 1 + zoom));
        group->addAction(action);
    };
    add("Fit", tr("&As large as the window"), 0, kFitZoom);
    int number = 0;
    for (const int percent : kZooms) {
        add(QString::number(percent), tr("%1 %").arg(percent), ++number, percent / 100.0);
    }
    // A stored value that is none of them would leave the drawing unusable.
    if (group->checkedAction() != nullptr) return;
    m_Zoom = kFitZoom;
    group->actions().first()->setChecked(true);
}

void cDefinitionsWindow::MakeStationMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&Station"));
    AddEntry(menu, "Receivers", tr("&Receivers"), QKeySequence("Ctrl+R"), [this] { ShowReceivers(); });
    AddEntry(menu, "Profiles", tr("&Profiles"), QKeySequence("Ctrl+P"), [this] { ShowProfiles(); });
    AddEntry(menu, "ColourRules", tr("&Colour rules"), QKeySequence("Ctrl+L"), [this] { ShowColourRules(); });
    AddEntry(menu, "OwnHolidays", tr("Own &holidays"), {}, [this] { ShowOwnHolidays(); });
}

void cDefinitionsWindow::MakeHelpMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&Help"));
    AddEntry(menu, "About", tr("&About"), {}, [this] { ShowAbout(); });
}

void cDefinitionsWindow::ShowAbout() {
    cPlainMessageBox box(
        QMessageBox::NoIcon, tr("About"),
        tr("%1 %2\n\nSchedules, calendars, receivers, profiles and colour rules of the alarm "
           "receiver.\nApplication folder: %3")
            .arg(QGuiApplication::applicationDisplayName(), QGuiApplication::applicationVersion(),
                 PathToQString(m_Services.m_Ini.ApplicationPath())),
        QMessageBox::Ok, this);
    constexpr int kIconSize = 64;
    box.setIconPixmap(QGuiApplication::windowIcon().pixmap(kIconSize));
    box.exec();
}

// What stands in the window while nothing is open.
QWidget* cDefinitionsWindow::MakeStartPage() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addStretch(1);
    auto* title = new cPlainLabel(tr("What do you want to edit?"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    title->setFont(font);
    layout->addWidget(title, 0, Qt::AlignHCenter);
    const auto add = [this, layout](const char* name, const QString& text,
                                    void (cDefinitionsWindow::*chosen)()) {
        auto* button = new QPushButton(text);
        button->setObjectName(name);
        button->setMinimumWidth(240);
        connect(button, &QPushButton::clicked, this, chosen);
        layout->addWidget(button, 0, Qt::AlignHCenter);
    };
    add("Button_NewSchedule", tr("Ne&w schedule"), &cDefinitionsWindow::NewSchedule);
    add("Button_NewCalendar", tr("New c&alendar"), &cDefinitionsWindow::NewCalendar);
    add("Button_Open", tr("&Open..."), &cDefinitionsWindow::Open);
    layout->addSpacing(12);
    add("Button_Receivers", tr("&Receivers of the station"), &cDefinitionsWindow::ShowReceivers);
    add("Button_Profiles", tr("&Profiles of the station"), &cDefinitionsWindow::ShowProfiles);
    add("Button_ColourRules", tr("&Colour rules of the station"), &cDefinitionsWindow::ShowColourRules);
    add("Button_OwnHolidays", tr("Own holi&days of the station"), &cDefinitionsWindow::ShowOwnHolidays);
    layout->addStretch(2);
    return page;
}

void cDefinitionsWindow::RestoreWindow() {
    resize(QSize(1200, 760).boundedTo(screen()->availableSize()));
    restoreGeometry(m_Services.m_Settings.value("Geometry").toByteArray());
}

}  // namespace vigrel
