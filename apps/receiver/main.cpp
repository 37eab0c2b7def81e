// The alarm receiver: builds the machine's side of every port, and the receiver over them.

#include <QIcon>
#include <QScreen>
#include <csignal>
#include <cstdio>
#include <string>
#include <string_view>

#include "adapters/linux/application_folder.h"
#include "adapters/linux/file_rights.h"
#include "adapters/linux/folder_turn.h"
#include "adapters/linux/linux_files.h"
#include "adapters/linux/native_path.h"
#include "adapters/linux/notify_socket.h"
#include "adapters/linux/standard_error_box.h"
#include "adapters/linux/standard_streams.h"
#include "adapters/qt/qt_locale.h"
#include "adapters/qt/stop_signals.h"
#include "common/exit_codes.h"
#include "common/setting_keys.h"
#include "common/settings.h"
#include "common/standard_error.h"
#include "core/first_start.h"
#include "core/vigrel_receiver_main.h"
#include "receiver/station_machine.h"
#include "receiver_ui/dialogs/operator_page.h"
#include "windows/application.h"
#include "windows/qt_message_box.h"

namespace vigrel {
namespace {

constexpr const char* kProgramName = "vigrel-receiver";

constexpr const char* kHelp = R"(vigrel-receiver [/SWITCH]...

Starts the station.

Switches, anywhere on the command line, in any case:
  /TOPMOST    the main window stays above all others
  /DEBUG      a window shows every byte that crosses the link
  /MAXIMIZE   starts maximised
  /MINIMIZE   starts minimised
  /SIMULATE   shows the menu Simulate; its entry does nothing

Environment:
  VIGREL_APPLICATION_PATH   the folder of the station's files; without it the program's own folder, when that
                            holds Templates or VigrelReceiver.INI and can be written, and else
                            VigrelReceiver in XDG_DATA_HOME or ~/.local/share
  VIGREL_LANGUAGE           the language of a first start, which then asks for none: three digits such as 046,
                            or "locale" (English where the locale names none that there is)
  QT_QPA_PLATFORM           "offscreen" runs the station without windows although there is a display
)";

// What stands behind the program's own name, as one text.
std::string CommandLine(int argc, char** argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) line += (i > 1 ? " " : "") + std::string(argv[i]);
    return line;
}

cFirstStartHints FirstStartHints() {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    return {qEnvironmentVariable("VIGREL_LANGUAGE").toStdString(),
            cApplication::HasDisplay(),
            screen.left(),
            screen.top(),
            screen.width(),
            screen.height()};
}

// True when it was no application folder before.
bool PrepareFolder(cFiles& files, const cFolderHints& hints, cFirstStart& firstStart) {
    const std::string applicationPath = FindApplicationFolder(hints);
    MakeApplicationFolder(applicationPath);
    const cFolderTurn turn(applicationPath);
    const bool isNew = FillApplicationFolder(files, applicationPath, FindInstalledFolder(hints.programFolder),
                                             FormerFolder(hints));
    firstStart.Prepare();
    return isNew;
}

// Why the station's files lie elsewhere than by the program, when they do.
void TellElsewhere(const cFolderHints& hints, bool isNew, cMessageBox& box) {
    const auto why = WhyElsewhere(hints);
    if (!why) return;
    PrintError(kProgramName, *why);
    // Once: later starts find the folder in use.
    if (isNew && cApplication::HasDisplay()) box.Show(*why, eMessageIcon::Warning, eMessageButtons::Ok);
}

int RunStation(cApplication& application, cServiceManager& serviceManager, const std::string& commandLine) {
    const cFolderHints hints = ReadFolderHints();
    const std::string applicationPath = FindApplicationFolder(hints);
    application.SetFolder(NativePath(applicationPath));
    cLinuxFiles files;
    cQtMessageBox windowBox(kProductName);
    cStandardErrorBox unseenBox(kProgramName, NativePath(applicationPath));
    cMessageBox& messageBox = cApplication::HasDisplay() ? static_cast<cMessageBox&>(windowBox) : unseenBox;
    if (const auto why = WhyNoConfiguration(files, applicationPath)) {
        messageBox.Show(*why, eMessageIcon::Stop, eMessageButtons::Ok);
        return kExitRefused;
    }
    const cQtLocale locale;
    cIni ini(files, applicationPath);
    cFirstStart firstStart(files, ini, locale, FirstStartHints());
    const bool isNew = PrepareFolder(files, hints, firstStart);
    const auto speakLanguage = [&] {
        application.SpeakLanguage(cSettingReader(ini, "General").Text("Language"));
    };
    speakLanguage();

    cStationMachine machine(
        {application, files, ini, locale, messageBox, serviceManager, kProgramName, applicationPath});
    TellElsewhere(hints, isNew, windowBox);
    machine.mainWindow.OnHelp = [&] {
        const std::string language = cSettingReader(ini, "General").Text("Language");
        cOperatorPage::Show(FindOperatorPage(NativePath(hints.programFolder), language), machine.mainWindow);
    };
    machine.otherWindows.OnLanguageChosen = [&] {
        firstStart.FollowChoice();
        speakLanguage();
    };

    cVigrelReceiverMain receiver(machine.Ports(), applicationPath, commandLine);
    cStopSignals stopSignals;
    stopSignals.OnStop = [&](eCloseReason reason) { receiver.Stop(reason); };
    application.OnSessionEnds = [&] { receiver.Stop(eCloseReason::SessionEnd); };
    application.OnDisplayLost = [&] { receiver.DisplayIsLost(); };

    eStartUp started = eStartUp::NoLanguage;
    // While what the station consists of is still there for the message of a failure to be shown over.
    application.Guard([&] { started = receiver.Start(); });
    if (started == eStartUp::Running) return cApplication::exec();
    if (started == eStartUp::AddressMissing) return kExitNotYet;
    return started == eStartUp::Stopped ? kExitInOrder : kExitRefused;
}

int Run(int argc, char** argv) {
    OpenStandardStreams();
    // A reader of standard error that has gone must not end the station, nor a log that is as large as the
    // machine lets a file become.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    KeepFilesPrivate();
    cApplication::ChoosePlatform();
    cApplication application(argc, argv);
    application.SetMessageTitle(kProductName);
    // Of every window, message boxes included.
    cApplication::setWindowIcon(QIcon(":/icons/vigrel-receiver.svg"));
    // Outlives the station: it is told that the event loop turns while a failure's message stands too.
    cNotifySocket serviceManager;
    application.Repeat(serviceManager.AliveInterval(), [&] { serviceManager.Alive(); });
    int code = kExitFailure;
    application.Guard([&] { code = RunStation(application, serviceManager, CommandLine(argc, argv)); });
    return code;
}

void PrintHelp() {
    std::fputs(kHelp, stdout);
    std::fputs("\nExit codes:\n", stdout);
    for (const auto& [code, meaning] : kExitCodes) std::printf("  %2d  %s\n", code, meaning);
    std::fputs("\nMore is told by the manual page vigrel-receiver(1). --version prints the version.\n",
               stdout);
}

}  // namespace
}  // namespace vigrel

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--help") {
        vigrel::PrintHelp();
        return vigrel::kExitInOrder;
    }
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::puts("vigrel-receiver " VIGREL_VERSION);
        return 0;
    }
    return vigrel::Run(argc, argv);
}
