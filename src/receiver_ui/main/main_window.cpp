#include "receiver_ui/main/main_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "windows/shown_desktop.h"

namespace vigrel {
namespace {

// The design of the window, which shows only when start-up fails before texts and geometry are there.
constexpr std::string_view kTitle = "Vigrel - Larmmottagare";
constexpr double kWidth = 8000, kHeight = 5000;  // twips

// A window manager can refuse the focus; after this time the window asks for attention in the taskbar.
constexpr int kRefusedMilliseconds = 400;
// Shortest time between two ways to the front.
constexpr int kFrontMilliseconds = 50;

}  // namespace

cMainWindow::cMainWindow(cOpenWindows& windows)
    : cWidgetWindow("Vigrel_Receiver_Main", windows), m_List(this, m_Icons) {
    SetCaption(kTitle);
    setWindowIcon(QIcon(":/icons/vigrel-receiver.svg"));
    resize(ToPixels(kWidth), ToPixels(kHeight));
    m_List.View().setObjectName("ListView_Alarms");
    m_List.View().setAccessibleName("Alarms");
    setCentralWidget(&m_List.View());
    setFocusProxy(&m_List.View());

    m_FrontTimer.setSingleShot(true);
    m_FrontTimer.setInterval(kFrontMilliseconds);
    QObject::connect(&m_FrontTimer, &QTimer::timeout, this, [this] {
        if (m_FrontWished && isVisible() && !isMinimized()) ComeToFront();
    });
    m_RefusedTimer.setSingleShot(true);
    m_RefusedTimer.setInterval(kRefusedMilliseconds);
    QObject::connect(&m_RefusedTimer, &QTimer::timeout, this, [this] {
        if (isVisible() && !isActiveWindow()) QApplication::alert(this);
    });

    QMenu* file = AddMenu("Menu_File", "&Arkiv");
    AddEntry(*file, "Menu_StopSound", "&St\xE4ng av ljudsignal", OnMenuStopSound);
    AddEntry(*file, "Menu_StopLight", "&St\xE4ng av ljussignal", OnMenuStopLight);
    AddEntry(*file, "Menu_AckAll", "&Kvittera alla", OnMenuAckAll);
    // Told here, acted on by the list.
    Entry("Menu_AckAll").setShortcut(Qt::Key_F9);
    Entry("Menu_AckAll").setShortcutContext(Qt::WidgetShortcut);
    AddEntry(*file, "Menu_AckAll_AndClosePopups", "Kvittera alla och st\xE4ng alla &popupf\xF6nster",
             OnMenuAckAllAndClosePopups);
    file->addSeparator()->setObjectName("Menu_Del1");
    AddEntry(*file, "Menu_Exit", "&Avsluta", OnMenuExit);
    QObject::connect(file, &QMenu::aboutToShow, this, [this] {
        if (OnMenuFileOpens) OnMenuFileOpens();
    });
    QMenu* simulate = AddMenu("Menu_Simulate", "&Simulera");
    AddEntry(*simulate, "Menu_SimAlarm", "&Larm...", OnMenuSimAlarm);
}

QMenu* cMainWindow::AddMenu(const char* name, std::string_view caption) {
    QMenu* menu = menuBar()->addMenu(ToQString(caption));
    menu->menuAction()->setObjectName(name);
    return menu;
}

void cMainWindow::AddEntry(QMenu& menu, const char* name, std::string_view caption,
                           std::function<void()>& chosen) {
    QAction* entry = menu.addAction(ToQString(caption));
    entry->setObjectName(name);
    QObject::connect(entry, &QAction::triggered, this, [&chosen] {
        if (chosen) chosen();
    });
}

// --- window

double cMainWindow::InnerWidth() const {
    return ToTwips(width());
}
double cMainWindow::InnerHeight() const {
    return ToTwips(height() - menuBar()->sizeHint().height());
}

void cMainWindow::Show() {
    cWidgetWindow::Show();
    if (State() != eWindowState::Minimised) ComeToFront();
}

void cMainWindow::SetFocus() {
    const bool shows = isVisible() && !isMinimized();
    if (!shows || !m_FrontTimer.isActive()) cWidgetWindow::SetFocus();
    ComeToFront();
}

// Every alarm asks for it, and it costs several messages to the display; in a flood one answer serves all
// that ask shortly behind it.
void cMainWindow::ComeToFront() {
    m_FrontWished = m_FrontTimer.isActive();
    if (m_FrontWished) return;
    LeaveShownDesktop();
    raise();
    activateWindow();
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        Windows().KeepOver(eLayer::Main);
    } else {
        KeepBoxInFront();
    }
    FlushToScreen();
    m_FrontTimer.start();
    m_RefusedTimer.start();
}

void cMainWindow::Closed() {
    // Other windows may still be open; quit() would ask them all.
    QCoreApplication::exit(0);
}

void cMainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1 && OnHelp) return OnHelp();
    // For window managers that leave the key to the window.
    const bool closes = event->key() == Qt::Key_F4 && event->modifiers() == Qt::AltModifier;
    if (!closes) return cWidgetWindow::keyPressEvent(event);
    CloseFor(eCloseReason::Control);
}

// --- menus

QAction& cMainWindow::Entry(std::string_view name) const {
    auto* entry = menuBar()->findChild<QAction*>(ToQString(name));
    if (entry == nullptr) throw cFailure(eFailure::ObjectMissing, "No menu entry " + std::string(name));
    return *entry;
}

void cMainWindow::SetCaption(std::string_view entry, std::string_view caption) {
    Entry(entry).setText(ToQString(caption));
}
void cMainWindow::SetEnabled(std::string_view entry, bool enabled) {
    Entry(entry).setEnabled(enabled);
}
void cMainWindow::SetVisible(std::string_view entry, bool visible) {
    Entry(entry).setVisible(visible);
}

}  // namespace vigrel
