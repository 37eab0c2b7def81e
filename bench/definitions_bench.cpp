// How long a folder of 2,000 profiles takes to open in the definitions editor.

#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/standard_random.h"
#include "adapters/linux/system_clock.h"
#include "adapters/qt/qt_locale.h"
#include "definitions/station_definitions.h"
#include "editor_ui/window/definitions_window.h"
#include "support/temporary_folder.h"

namespace vigrel {
namespace {

constexpr int kProfiles = 2000, kRounds = 5;

// A station's folder as the program sees it at a start of its own.
struct cStation {
    explicit cStation(const std::string& folder) : ini(files, folder) {}

    cLinuxFiles files;
    cSystemClock clock;
    cStandardRandom random;
    cIni ini;
    cTexts texts{files, ini};
    cStationDefinitions definitions{files, clock, random, texts, ini};
};

bool WriteProfiles(const std::string& folder) {
    cStation station(folder);
    station.definitions.OpenProfiles();
    cProfileFolder& profiles = station.definitions.Profiles();
    for (int i = 0; i < kProfiles; ++i) {
        const std::size_t position = profiles.Add("Profile " + std::to_string(i));
        profiles.At(position).SetCondition(0, "CARE.WARD" + std::to_string(i % 40) + "*");
        if (!profiles.At(position).SaveToDisk()) return false;
    }
    return true;
}

bool Report(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("%-40s median %4.0f ms, worst %4.0f ms\n", what, times[times.size() / 2], times.back());
    return times.back() < 1000;
}

// The milliseconds that reading the folder takes; negative when a profile is missing.
double TimeToRead(const std::string& folder) {
    cStation station(folder);
    QElapsedTimer timer;
    timer.start();
    station.definitions.OpenProfiles();
    const double took = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    return station.definitions.Profiles().Count() == kProfiles ? took : -1;
}

// The milliseconds from the command to the painted page.
double TimeToShow(const std::string& folder, const std::string& settingsPath) {
    cStation station(folder);
    const cLocaleForms forms = cQtLocale().Forms();
    cDialogPrompts prompts;
    QSettings settings(QString::fromStdString(settingsPath), QSettings::IniFormat);
    cEditorServices services{station.files,
                             station.clock,
                             station.ini,
                             forms,
                             [](std::int32_t id) { return std::to_string(id); },
                             prompts,
                             settings,
                             cDayTypeNames(station.ini, forms),
                             cDayTypeImages(station.ini),
                             station.definitions};
    cDefinitionsWindow window(services);
    window.show();
    QApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    window.ShowProfiles();
    QApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

int Run(int argc, char** argv) {
    const QApplication application(argc, argv);
    const testing::cTemporaryFolder folder;
    if (!WriteProfiles(folder.Folder())) return 1;
    std::vector<double> read, shown;
    for (int i = 0; i < kRounds; ++i) {
        read.push_back(TimeToRead(folder.Folder()));
        shown.push_back(TimeToShow(folder.Folder(), (folder.Path() / "settings.ini").string()));
    }
    if (*std::min_element(read.begin(), read.end()) < 0) return 1;
    std::printf("%d profiles, %d rounds\n", kProfiles, kRounds);
    const bool fastRead = Report("the folder read", read);
    const bool fastShown = Report("from the command to the page on screen", shown);
    return fastRead && fastShown ? 0 : 1;
}

}  // namespace
}  // namespace vigrel

int main(int argc, char** argv) {
    return vigrel::Run(argc, argv);
}
