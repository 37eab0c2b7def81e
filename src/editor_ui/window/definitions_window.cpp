#include "editor_ui/window/definitions_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPrinter>
#include <QStatusBar>
#include <QTabBar>
#include <algorithm>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "editor_ui/calendar/own_holidays_page.h"
#include "editor_ui/colours/colour_rules_page.h"
#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/reasons.h"
#include "editor_ui/records/profiles_page.h"
#include "editor_ui/records/receivers_page.h"
#include "schedule/definition_files.h"
#include "windows/short_text.h"

namespace vigrel {
namespace {

constexpr const char* kLastPageKey = "LastPage";

}  // namespace

cDefinitionsWindow::cDefinitionsWindow(cEditorServices& services)
    : m_Services(services), m_Recent(services.m_Settings) {
    setObjectName("Vigrel_Definitions");
    setWindowIcon(QIcon(":/icons/vigrel-definitions.svg"));
    m_Tabs.setObjectName("Tabs_Pages");
    m_Tabs.setAccessibleName(tr("Open pages"));
    m_Tabs.setTabsClosable(true);
    m_Tabs.setMovable(true);
    m_Tabs.setDocumentMode(true);
    connect(&m_Tabs, &QTabWidget::currentChanged, this, &cDefinitionsWindow::CurrentPageChanged);
    connect(&m_Tabs, &QTabWidget::tabCloseRequested, this, [this](int index) { ClosePage(index); });
    MakeFileMenu();
    MakeEditMenu();
    MakeViewMenu();
    MakeStationMenu();
    MakeHelpMenu();
    m_Centre.addWidget(MakeStartPage());
    m_Centre.addWidget(&m_Tabs);
    setCentralWidget(&m_Centre);
    statusBar();
    RestoreWindow();
    CurrentPageChanged();
}

// The pages go first: they speak of the window's undo group and of each other.
cDefinitionsWindow::~cDefinitionsWindow() {
    m_Tabs.disconnect(this);
    for (cEditorPage* page : Pages()) {
        if (auto* calendar = qobject_cast<cCalendarPage*>(page)) calendar->Editor().SetSchedules({});
    }
    qDeleteAll(Pages());
}

cEditorPage* cDefinitionsWindow::CurrentPage() const {
    return qobject_cast<cEditorPage*>(m_Tabs.currentWidget());
}

QList<cEditorPage*> cDefinitionsWindow::Pages() const {
    QList<cEditorPage*> pages;
    // While a page is added or taken out, a tab can have none.
    for (int i = 0; i < m_Tabs.count(); ++i) {
        if (auto* page = qobject_cast<cEditorPage*>(m_Tabs.widget(i))) pages.append(page);
    }
    return pages;
}

void cDefinitionsWindow::AddPage(cEditorPage* page) {
    page->SetZoom(m_Zoom);
    if (page->UndoStack() != nullptr) m_UndoGroup.addStack(page->UndoStack());
    connect(page, &cEditorPage::StateChanged, this, &cDefinitionsWindow::PageStateChanged);
    ListenTo(page);
    m_Tabs.setCurrentIndex(m_Tabs.addTab(page, QString()));
    // A page that says where its keys work has the keyboard at once.
    if (page->focusProxy() != nullptr) page->setFocus();
    PageStateChanged();
}

void cDefinitionsWindow::ListenTo(cEditorPage* page) {
    connect(page, &cEditorPage::Message, this,
            [this](const QString& text) { statusBar()->showMessage(text, 10000); });
    connect(page, &cEditorPage::ContentChanged, this, [this] {
        for (cEditorPage* each : Pages()) {
            if (auto* calendar = qobject_cast<cCalendarPage*>(each)) calendar->Editor().RefreshSchedules();
        }
    });
    connect(page, &cEditorPage::FileUsed, this, [this](const QString& path) { m_Recent.Add(path); });
    connect(page, &cEditorPage::BothWanted, this, &cDefinitionsWindow::ShowBoth);
    connect(page, &cEditorPage::Ended, this, [this, page] { RemovePage(*page); });
    connect(page, &cEditorPage::DayTypesChanged, this, [this] {
        for (cEditorPage* each : Pages()) each->RefreshDayTypes();
    });
}

void cDefinitionsWindow::NewSchedule() {
    AddPage(new cSchedulePage(m_Services, tr("Schedule %1").arg(++m_NewSchedules)));
}

void cDefinitionsWindow::NewCalendar() {
    AddPage(new cCalendarPage(m_Services, tr("Calendar %1").arg(++m_NewCalendars)));
}

void cDefinitionsWindow::Open() {
    const QString path = m_Services.m_Prompts.AskOpenPath(
        this, PathToQString(m_Services.m_Ini.ApplicationPath()),
        tr("Schedules, calendars, lists of the station (*.sch *.cal ColourRules.txt OwnHolidays.txt);;All "
           "files (*)"));
    if (!path.isEmpty()) OpenFile(path);
}

template <class Page>
void cDefinitionsWindow::ShowPage() {
    for (cEditorPage* page : Pages()) {
        if (qobject_cast<Page*>(page) == nullptr) continue;
        m_Tabs.setCurrentWidget(page);
        return;
    }
    AddPage(new Page(m_Services));
}

void cDefinitionsWindow::ShowReceivers() {
    ShowPage<cReceiversPage>();
}

void cDefinitionsWindow::ShowProfiles() {
    ShowPage<cProfilesPage>();
}

void cDefinitionsWindow::ShowColourRules() {
    OpenFile(PathToQString(m_Services.m_Ini.FullPath(kColourRulesFile)));
}

void cDefinitionsWindow::ShowOwnHolidays() {
    OpenFile(PathToQString(m_Services.m_Ini.FullPath(kOwnHolidaysFile)));
}

// The station's pages by name, since the next start may be at another station.
void cDefinitionsWindow::KeepLastPage() {
    const cEditorPage* page = CurrentPage();
    const bool isFile = qobject_cast<const cSchedulePage*>(page) || qobject_cast<const cCalendarPage*>(page);
    const QString name = page == nullptr ? QString() : isFile ? page->Path() : page->objectName();
    m_Services.m_Settings.setValue(kLastPageKey, name);
}

void cDefinitionsWindow::ShowLastPage() {
    const QString name = m_Services.m_Settings.value(kLastPageKey).toString();
    if (name == "Page_Receivers") return ShowReceivers();
    if (name == "Page_Profiles") return ShowProfiles();
    if (name == "Page_ColourRules") return ShowColourRules();
    if (name == "Page_OwnHolidays") return ShowOwnHolidays();
    // A file that was taken away since is no failure to be told.
    if (m_Services.m_Files.FileExists(PathFromQString(name))) OpenFile(name);
}

// The kind of a file's page, by the file's name and size.
cFilePage* cDefinitionsWindow::MakeFilePage(const QString& path) {
    const auto isNamed = [&path](std::string_view name) {
        return QFileInfo(path).fileName().compare(ToQString(name), Qt::CaseInsensitive) == 0;
    };
    if (isNamed(kColourRulesFile)) return new cColourRulesPage(m_Services);
    if (isNamed(kOwnHolidaysFile)) return new cOwnHolidaysPage(m_Services);
    const auto size = static_cast<std::size_t>(
        std::max<std::int64_t>(m_Services.m_Files.Stamp(PathFromQString(path)).size, 0));
    if (KindOfDefinition(size) == eDefinitionKind::Calendar || path.endsWith(".cal", Qt::CaseInsensitive)) {
        return new cCalendarPage(m_Services, {});
    }
    return new cSchedulePage(m_Services, {});
}

bool cDefinitionsWindow::OpenFile(const QString& path) {
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (cEditorPage* page : Pages()) {
        if (page->Path() != absolute) continue;
        m_Tabs.setCurrentWidget(page);
        return true;
    }
    const std::string name = PathFromQString(absolute);
    cFilePage* page = MakeFilePage(absolute);
    // What it has to tell while it opens is told over this window.
    page->setParent(this);
    if (!page->Open(name)) {
        delete page;
        return false;
    }
    m_Recent.Add(page->Path());
    AddPage(page);
    return true;
}

// What the file holds becomes a page of its own that has no file yet.
void cDefinitionsWindow::ShowBoth(const QString& path) {
    cFilePage* page = MakeFilePage(path);
    page->setParent(this);
    if (page->OpenCopy(PathFromQString(path))) return AddPage(page);
    delete page;
}

void cDefinitionsWindow::OpenRecent(const QString& path) {
    if (!OpenFile(path)) m_Recent.Remove(path);
}

bool cDefinitionsWindow::MayClose(cEditorPage& page) {
    page.FinishInput();
    if (!page.IsDirty()) return true;
    m_Tabs.setCurrentWidget(&page);
    switch (m_Services.m_Prompts.AskToSave(this, page.Title())) {
        case cPrompts::eSave::Save:
            // Where what others saved was taken, or the file let go, nothing is left to be saved, either.
            return page.Save() || !Pages().contains(&page) || !page.IsDirty();
        case cPrompts::eSave::Discard:
            return true;
        default:
            return false;
    }
}

bool cDefinitionsWindow::ClosePage(int index) {
    auto* page = qobject_cast<cEditorPage*>(m_Tabs.widget(index));
    if (page == nullptr || !MayClose(*page)) return false;
    RemovePage(*page);
    return true;
}

void cDefinitionsWindow::RemovePage(cEditorPage& page) {
    page.GiveUp();
    m_Tabs.removeTab(m_Tabs.indexOf(&page));
    // The calendars let go of a schedule before it ends.
    SchedulesChanged();
    page.deleteLater();
}

bool cDefinitionsWindow::MayEnd() {
    KeepLastPage();
    for (cEditorPage* page : Pages()) {
        if (!MayClose(*page)) return false;
    }
    m_Services.m_Settings.setValue("Geometry", saveGeometry());
    return true;
}

void cDefinitionsWindow::closeEvent(QCloseEvent* event) {
    if (!MayEnd()) return event->ignore();
    event->accept();
    emit Closed();
}

void cDefinitionsWindow::CurrentPageChanged() {
    m_Centre.setCurrentIndex(m_Tabs.count() == 0 ? 0 : 1);
    cEditorPage* page = CurrentPage();
    m_UndoGroup.setActiveStack(page == nullptr ? nullptr : page->UndoStack());
    FillEditMenu();
    PageStateChanged();
}

// Of two files with one name each tells its folder.
QString cDefinitionsWindow::TitleOf(const cEditorPage& page) const {
    const QList<cEditorPage*> pages = Pages();
    const auto isSame = [&page](const cEditorPage* other) { return other->Title() == page.Title(); };
    if (page.Path().isEmpty() || std::count_if(pages.begin(), pages.end(), isSame) < 2) return page.Title();
    return QFileInfo(page.Path()).dir().dirName() + "/" + page.Title();
}

void cDefinitionsWindow::PageStateChanged() {
    for (cEditorPage* each : Pages()) {
        const int tab = m_Tabs.indexOf(each);
        m_Tabs.setTabText(tab, TitleOf(*each).replace('&', "&&") + (each->IsDirty() ? " *" : ""));
        m_Tabs.setTabToolTip(tab, each->Path());
    }
    const cEditorPage* page = CurrentPage();
    m_Save->setEnabled(page != nullptr);
    m_SaveAs->setEnabled(page != nullptr && page->HasSaveAs());
    const bool prints = page != nullptr && page->CanPrint();
    m_Print->setEnabled(prints);
    m_Pdf->setEnabled(prints);
    m_Close->setEnabled(page != nullptr);
    const QString program = tr("Vigrel Definitions");
    setWindowTitle(page == nullptr ? program : QString("%1[*] - %2").arg(TitleOf(*page), program));
    setWindowModified(page != nullptr && page->IsDirty());
    SchedulesChanged();
}

void cDefinitionsWindow::SchedulesChanged() {
    QList<cNamedSchedule> schedules;
    for (cEditorPage* page : Pages()) {
        if (auto* schedule = qobject_cast<cSchedulePage*>(page)) {
            schedules.append({schedule->Title(), &schedule->Schedule()});
        }
    }
    for (cEditorPage* page : Pages()) {
        if (auto* calendar = qobject_cast<cCalendarPage*>(page)) calendar->Editor().SetSchedules(schedules);
    }
}

// Of what is still being typed, too: a sheet without it would not be what was on the screen.
std::optional<cPrintout> cDefinitionsWindow::FinishedPrintout() {
    cEditorPage& page = *CurrentPage();
    page.FinishInput();
    std::optional<cPrintout> printout = page.Printout();
    if (!printout) return printout;
    cContentEditor& editor = *page.PrintedEditor();
    const QString problem = editor.Problem();
    if (problem.isEmpty()) return printout;
    const QString text = tr("%1 can't be printed.\n\n%2").arg(printout->title, problem);
    m_Services.m_Prompts.ShowFailure(this, text);
    page.BringIntoSight(editor);
    editor.FocusProblem();
    return std::nullopt;
}

void cDefinitionsWindow::Print() {
    const std::optional<cPrintout> printout = FinishedPrintout();
    if (!printout) return;
    QPrinter printer;
    printer.setDocName(ShortName(printout->title));
    SetUpSheet(printer);
    if (!m_Services.m_Prompts.AskPrinter(this, printer)) return;
    if (!PrintOn(printer, *printout) || !IsPrintedWhole(printer.outputFileName()))
        m_Services.m_Prompts.ShowFailure(this, tr("%1 was not printed.").arg(printout->title));
}

void cDefinitionsWindow::SaveAsPdf() {
    const std::optional<cPrintout> printout = FinishedPrintout();
    if (!printout) return;
    const QString folder = PathToQString(m_Services.m_Ini.ApplicationPath());
    // A profile may be called "East/West".
    const QString name = ShortName(printout->title).replace('/', '-');
    const QString chosen = m_Services.m_Prompts.AskSavePath(this, folder + name + ".pdf",
                                                            tr("PDF files (*.pdf);;All files (*)"), "pdf");
    if (chosen.isEmpty()) return;
    const auto failure =
        CatchFailure([&] { ReplaceFile(m_Services.m_Files, PathFromQString(chosen), PdfOf(*printout)); });
    if (failure) {
        return m_Services.m_Prompts.ShowFailure(this,
                                                tr("The file was not saved.\n%1").arg(ToldReason(*failure)));
    }
    statusBar()->showMessage(tr("Saved %1").arg(chosen), 10000);
}

void cDefinitionsWindow::TurnPage(int step) {
    const int pages = m_Tabs.count();
    if (pages > 0) m_Tabs.setCurrentIndex((m_Tabs.currentIndex() + step + pages) % pages);
}

void cDefinitionsWindow::SetZoom(double zoom) {
    m_Zoom = zoom;
    m_Services.m_Settings.setValue("Zoom", zoom);
    for (cEditorPage* page : Pages()) page->SetZoom(zoom);
}

}  // namespace vigrel
