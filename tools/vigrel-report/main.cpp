// vigrel-report: what the alarms of a plant's stations tell, as a page, tables, JSON or text.

#include <unistd.h>

#include <cstdio>

#include "adapters/linux/application_folder.h"
#include "adapters/linux/linux_files.h"
#include "adapters/linux/system_clock.h"
#include "common/failure.h"
#include "common/standard_error.h"
#include "tool_support/print.h"
#include "tool_support/progress.h"
#include "vigrel-report/machine_zone.h"
#include "vigrel-report/run.h"

namespace vigrel::report {
namespace {

const std::string kProgram = "vigrel-report";
constexpr int kDone = 0, kFailed = 1, kWrongUse = 2;

void HandOut(const cOptions& options, const cOutput& output) {
    cLinuxFiles files;
    if (options.page == "-") {
        PrintOutput(output.page);
    } else if (!options.page.empty()) {
        files.WriteFile(options.page, output.page, false);
    }
    for (const auto& [name, content] : output.tables) {
        files.WriteFile(options.csvFolder + "/" + name, content, false);
    }
    if (!output.json.empty()) PrintOutput(output.json);
    if (!output.text.empty()) PrintOutput(output.text);
}

std::vector<cLogPhrases> InstalledPhrases(const cFileReader& files) {
    const std::string folder = FindInstalledFolder(ReadFolderHints().programFolder);
    return folder.empty() ? std::vector<cLogPhrases>() : ReadPhrases(files, folder + "/");
}

void Report(const cOptions& options) {
    const cLinuxFiles files;
    const cSystemClock clock;
    const cTimeZone zone = MachineZone();
    cProgress progress(clock, isatty(STDERR_FILENO) != 0, [](const std::string& text) {
        std::fputs(text.c_str(), stderr);
        std::fflush(stderr);
    });
    const auto show = [&](std::size_t done, std::size_t all) {
        if (!options.quiet) progress.Show(done, all, "files read");
    };
    const Moment now = zone.ToMoments(WallTimeOf(clock.Now())).first;
    const cOutput output = MakeReport(options, {files, zone, InstalledPhrases(files), now, show});
    if (!options.quiet) progress.End();
    HandOut(options, output);
}

int Run(const std::vector<std::string>& words) {
    cOptions options;
    if (const auto failure = CatchFailure([&] { options = ReadReportOptions(words); })) {
        PrintError(kProgram, failure->what());
        std::fputs("Try vigrel-report --help\n", stderr);
        return kWrongUse;
    }
    const auto failure = CatchFailure([&] {
        if (options.help) PrintOutput(ReportHelpText());
        if (options.version) PrintOutput(kProgram + " " VIGREL_VERSION "\n");
        if (!options.help && !options.version) Report(options);
    });
    if (!failure) return kDone;
    PrintError(kProgram, failure->what());
    return failure->Number() == eFailure::InvalidCall ? kWrongUse : kFailed;
}

}  // namespace
}  // namespace vigrel::report

int main(int argc, char** argv) {
    return vigrel::report::Run({argv + 1, argv + argc});
}
