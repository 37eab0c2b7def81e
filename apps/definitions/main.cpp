// The definitions editor: builds the machine's side of what the window needs, and the window.

#include <QCommandLineParser>
#include <QSettings>
#include <QTimer>
#include <csignal>

#include "adapters/linux/application_folder.h"
#include "adapters/linux/file_rights.h"
#include "adapters/linux/folder_turn.h"
#include "adapters/linux/linux_files.h"
#include "adapters/linux/native_path.h"
#include "adapters/linux/standard_error_box.h"
#include "adapters/linux/standard_random.h"
#include "adapters/linux/standard_streams.h"
#include "adapters/linux/system_clock.h"
#include "adapters/qt/qt_setting_store.h"
#include "common/exit_codes.h"
#include "common/ini.h"
#include "common/setting_keys.h"
#include "common/standard_error.h"
#include "common/texts.h"
#include "definitions/station_definitions.h"
#include "editor_ui/window/definitions_window.h"
#include "editor_ui/window/editor_words.h"
#include "windows/application.h"
#include "windows/built_in_texts.h"
#include "windows/qt_message_box.h"
#include "windows/toolkit_words.h"

namespace vigrel {
namespace {

constexpr int kPlacingTime = 100;  // milliseconds

QStringList ReadCommandLine(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Edits time schedules, calendars, receivers, profiles and colour rules of the alarm receiver.");
    parser.addPositionalArgument("files", "Schedules, calendars and colour rules to open.", "[files...]");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);
    return parser.positionalArguments();
}

// Without a language the headings of the calendar are the desktop's.
std::function<std::string(std::int32_t)> TextSource(cTexts& texts, const cLocaleForms& forms) {
    bool loaded = false;
    SkipFailure([&] { loaded = texts.LoadTexts(); });
    return [&texts, &forms, loaded](std::int32_t id) {
        if (loaded || id < TextMonday || id > TextSunday) return texts.GetText(id);
        return forms.dayNames[static_cast<std::size_t>(id - TextMonday + 1) % 7];
    };
}

// The station's; before its first start, and with one that isn't delivered, the desktop's.
std::string LanguageOf(const cIni& ini) {
    std::string language = cSettingReader(ini, "General").Text("Language");
    return ToolkitLanguage(language).isEmpty() ? LanguageOfDesktop(QLocale()) : language;
}

void Introduce() {
    cApplication::setApplicationName("vigrel-definitions");
    cApplication::setApplicationDisplayName("Vigrel Definitions");
    cApplication::setApplicationVersion(VIGREL_VERSION);
    cApplication::setDesktopFileName("vigrel-definitions");
}

// What is wrong with it is told.
bool HasConfiguration(const cLinuxFiles& files, const std::string& applicationPath) {
    const auto why = WhyNoConfiguration(files, applicationPath);
    if (!why) return true;
    cQtMessageBox windowBox("Vigrel Definitions");
    cStandardErrorBox unseenBox("vigrel-definitions", NativePath(applicationPath));
    cMessageBox& box = cApplication::HasDisplay() ? static_cast<cMessageBox&>(windowBox) : unseenBox;
    box.Show(*why, eMessageIcon::Stop, eMessageButtons::Ok);
    return false;
}

int ShowUntilClosed(cApplication& application, cEditorServices& services, const QStringList& paths) {
    cDefinitionsWindow window(services);
    QObject::connect(&window, &cDefinitionsWindow::Closed, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    application.MaySessionEnd = [&window] { return window.MayEnd(); };
    window.show();
    // Once the window manager has placed the window, so that a message about a file lies over it.
    QTimer::singleShot(kPlacingTime, &window, [&] {
        if (paths.isEmpty()) window.ShowLastPage();
        for (const QString& path : paths) window.OpenFile(path);
    });
    return cApplication::exec();
}

int RunEditor(cApplication& application, cLinuxFiles& files, const std::string& applicationPath,
              const QStringList& paths) {
    const cSystemClock clock;
    cIni ini(files, applicationPath);
    const std::string language = LanguageOf(ini);
    const cLocaleForms forms = FormsIn(language);
    application.SpeakLanguage(language);
    cEditorWords words(language);
    cApplication::installTranslator(&words);
    cApplication::setApplicationDisplayName(cDefinitionsWindow::tr("Vigrel Definitions"));
    const cDeliveredTexts deliveredTexts = BuiltInTexts();
    cTexts texts(files, ini, &deliveredTexts);
    cDialogPrompts prompts;
    QSettings settings(SettingsFile("VigrelDefinitions"), QSettings::IniFormat);
    cStandardRandom random;
    random.Seed(clock.Now());
    cStationDefinitions station(files, clock, random, texts, ini);
    cEditorServices services{files,
                             clock,
                             ini,
                             forms,
                             TextSource(texts, forms),
                             prompts,
                             settings,
                             cDayTypeNames(ini, forms),
                             cDayTypeImages(ini),
                             station};
    int result = 0;
    application.Guard([&] { result = ShowUntilClosed(application, services, paths); });
    return result;
}

int Run(int argc, char** argv) {
    OpenStandardStreams();
    // A file that is larger than the machine lets one become is told like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    KeepFilesPrivate();
    cApplication::ChoosePlatform();
    cApplication application(argc, argv);
    Introduce();
    const QStringList paths = ReadCommandLine(application);
    const cFolderHints hints = ReadFolderHints();
    const std::string applicationPath = FindApplicationFolder(hints);
    application.SetFolder(NativePath(applicationPath));
    cLinuxFiles files;
    if (!HasConfiguration(files, applicationPath)) return kExitRefused;
    application.Guard([&] {
        MakeApplicationFolder(applicationPath);
        const cFolderTurn turn(applicationPath);
        FillApplicationFolder(files, applicationPath, FindInstalledFolder(hints.programFolder),
                              FormerFolder(hints));
    });
    if (const auto why = WhyElsewhere(hints)) PrintError("vigrel-definitions", *why);
    return RunEditor(application, files, applicationPath, paths);
}

}  // namespace
}  // namespace vigrel

int main(int argc, char** argv) {
    return vigrel::Run(argc, argv);
}
