#include "windows/application.h"

#include <QDialog>
#include <QLibraryInfo>
#include <QPalette>
#include <QSessionManager>
#include <QThread>
#include <QTimer>
#include <QTimerEvent>
#include <QWindow>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "common/code_page.h"
#include "common/exit_codes.h"
#include "common/path_text.h"
#include "common/standard_error.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

// Without a display the toolkit complains of every window that is shown, sized or raised, at each alarm.
void HearNothingOfWindows() {
    // A message handler can reach nothing but statics.
    static QtMessageHandler before = nullptr;
    if (before != nullptr) return;
    before =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (text.startsWith("This plugin does not support ")) return;
            before(type, context, text);
        });
}

bool IsSet(const char* variable) {
    return !qEnvironmentVariableIsEmpty(variable);
}

}  // namespace

void cApplication::ChoosePlatform() {
    if (IsSet("QT_QPA_PLATFORM")) return;
    if (IsSet("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    } else if (!IsSet("WAYLAND_DISPLAY")) {
        std::fputs("No display (DISPLAY, WAYLAND_DISPLAY): the program runs without windows.\n", stderr);
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

cApplication::cApplication(int& argc, char** argv, cDisplayGuard&& guard) : QApplication(argc, argv) {
    guard.Release();
    std::atexit(HandleExit);
    if (!HasDisplay()) HearNothingOfWindows();
    // The main window can be hidden while the last popup is closed.
    setQuitOnLastWindowClosed(false);
    LoadToolkitTexts(QLocale());
    MakeHintsReadable();
    // The session must not start the program again at the next login; whoever wants that sets it up.
    const auto neverRestart = [](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
    };
    connect(this, &QGuiApplication::saveStateRequest, this, neverRestart, Qt::DirectConnection);
    connect(
        this, &QGuiApplication::commitDataRequest, this,
        [this, neverRestart](QSessionManager& session) {
            neverRestart(session);
            if (MaySessionEnd) AskBeforeSessionEnds(session);
        },
        Qt::DirectConnection);
}

// Now or never: when the programs are told to end, the display goes, whatever is still asked on it.
void cApplication::AskBeforeSessionEnds(QSessionManager& session) {
    m_EndsWithSession = false;
    if (!session.allowsInteraction()) return;
    m_EndsWithSession = MaySessionEnd();
    if (m_EndsWithSession) return session.release();
    session.cancel();
}

void cApplication::LoadToolkitTexts(const QLocale& locale) {
    removeTranslator(&m_Translator);
    if (m_Translator.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&m_Translator);
    }
}

void cApplication::SpeakLanguage(const std::string& language) {
    const QString toolkit = ToolkitLanguage(language);
    if (toolkit.isEmpty()) return;
    LoadToolkitTexts(QLocale(toolkit));
    removeTranslator(&m_Words);
    m_Words.SetLanguage(language);
    // The one that is installed last is asked first.
    installTranslator(&m_Words);
}

bool cApplication::HasDisplay() {
    return platformName() != "offscreen" && platformName() != "minimal";
}

// Nobody but the toolkit leaves the event loop by exit(): its way out when the display is gone.
void cApplication::HandleExit() {
    auto* application = static_cast<cApplication*>(instance());
    if (application == nullptr || application->thread()->loopLevel() == 0) return;
    if (application->OnDisplayLost) application->OnDisplayLost();
    std::fflush(nullptr);
    std::_Exit(kExitDisplayLost);
}

// One dialog can follow another.
void cApplication::RefuseDialogs() {
    constexpr int kAgainMilliseconds = 50;
    const auto refuse = [] {
        if (auto* dialog = qobject_cast<QDialog*>(activeModalWidget())) dialog->reject();
    };
    refuse();
    m_RefuseTimer.callOnTimeout(refuse);
    m_RefuseTimer.start(kAgainMilliseconds);
}

// Desktops with dark colours that don't say how hints look leave them black.
void cApplication::MakeHintsReadable() {
    constexpr int kHintAlpha = 160;
    QColor hint = palette().color(QPalette::Active, QPalette::Text);
    hint.setAlpha(kHintAlpha);
    if (palette().color(QPalette::Active, QPalette::PlaceholderText) == hint) return;
    // This role and what was set before: the others go on following the desktop.
    QPalette hints = palette();
    hints.setColor(QPalette::PlaceholderText, hint);
    setPalette(hints);
}

bool cApplication::event(QEvent* event) {
    if (event->type() == QEvent::Quit && m_EndsWithSession) {
        exit();
        return true;
    }
    if (event->type() == QEvent::Quit && OnSessionEnds && !m_Failed) {
        OnSessionEnds();
        return true;
    }
    const bool handled = QApplication::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) MakeHintsReadable();
    return handled;
}

void cApplication::Repeat(int milliseconds, std::function<void()> step) {
    m_RepeatTimer.stop();
    m_RepeatedStep = std::move(step);
    if (milliseconds > 0) m_RepeatTimer.start(milliseconds, this);
}

void cApplication::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_RepeatTimer.timerId()) return QApplication::timerEvent(event);
    m_RepeatedStep();
}

void cApplication::Guard(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& failure) {
        End(failure.what());
    }
}

bool cApplication::notify(QObject* receiver, QEvent* event) {
    if (m_Failed && !ServesFailureBox(receiver, *event)) return true;
    KeepPlain(receiver, *event);
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        End(failure.what());
    }
}

void cApplication::SetFolder(const std::string& folder) {
    m_Origin = PathText(folder) + ": ";
}

void cApplication::End(const std::string& failure) {
    PrintError(PathText(program_invocation_short_name), m_Origin + "Failure: " + failure);
    // A failure while one is shown leaves it at that.
    if (!m_Failed) ShowFailure(failure);
    std::fflush(nullptr);
    // Nothing of the program may run any more, destructors included: its state is not to be trusted.
    std::_Exit(kExitFailure);
}

void cApplication::ShowFailure(const std::string& failure) {
    if (!HasDisplay()) return;
    const QString title = m_MessageTitle.empty() ? applicationDisplayName() : ToQString(m_MessageTitle);
    cPlainMessageBox box(QMessageBox::Critical, title, WithPathsToQString(failure), QMessageBox::Ok);
    box.setObjectName("Vigrel_FailureBox");
    box.setInformativeText("The program ends.");
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    auto* closer = new QTimer(&box);
    connect(closer, &QTimer::timeout, &box, &QDialog::reject);
    closer->start(m_FailureBoxMilliseconds);
    m_FailureBox = &box;
    m_Failed = true;
    // The box begins by closing open menus, and these wait in vain for an event to do so.
    while (QWidget* menu = activePopupWidget()) menu->hide();
    box.exec();
}

// Whether an event may still be delivered: what concerns the box, and the toolkit's own affairs. Nothing of
// the program runs while its failure is shown.
bool cApplication::ServesFailureBox(QObject* receiver, const QEvent& event) const {
    for (const QObject* object = receiver; object != nullptr; object = object->parent()) {
        if (object == m_FailureBox || object == m_FailureBox->windowHandle()) return true;
    }
    const QByteArray kind = receiver->metaObject()->className();
    const bool wakes = event.type() == QEvent::Timer || event.type() == QEvent::SockAct;
    const bool ours =
        receiver->isWidgetType() || receiver->isWindowType() || kind.startsWith("vigrel::") ||
        (wakes && (kind == "QTimer" || kind == "QSingleShotTimer" || kind == "QSocketNotifier"));
    return !ours || receiver == this;
}

}  // namespace vigrel
