// vigrel-inspect: prints the binary files of an alarm receiver, and exports its stored alarms as a table.

#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/native_path.h"
#include "adapters/linux/system_clock.h"
#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/standard_error.h"
#include "tool_support/print.h"
#include "tool_support/progress.h"
#include "tool_support/stored_alarms.h"
#include "vigrel-inspect/active_report.h"
#include "vigrel-inspect/alarm_export.h"
#include "vigrel-inspect/options.h"
#include "vigrel-inspect/print.h"

namespace vigrel {
namespace {

const std::string kProgram = "vigrel-inspect";
constexpr int kFits = 0, kDoesNotFit = 1, kWrongUse = 2;
// Far above every file of the system; nothing larger is taken into memory.
constexpr std::int64_t kLargestFile = 64 << 20;

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string ResultText(const cExportResult& result) {
    return Counted(result.files, "file", "files") + " read, " + Counted(result.alarms, "alarm", "alarms") +
           " exported, " + Counted(result.damaged, "file", "files") + " damaged";
}

int Export(const cInspectOptions& options) {
    const cLinuxFiles files;
    const cSystemClock clock;
    cProgress progress(clock, isatty(STDERR_FILENO) != 0, [](const std::string& text) {
        std::fputs(text.c_str(), stderr);
        std::fflush(stderr);
    });
    const auto show = [&](std::size_t done, std::size_t all) {
        if (!options.quiet) progress.Show(done, all, "files read");
    };
    const cAlarmFolder folder = FindAlarmFolder(files, options.paths[0]);
    const cExportResult result =
        ExportAlarms(files, folder, {options.filter, options.exact, isatty(STDOUT_FILENO) != 0}, show);
    PrintOutput((options.mark ? "\xEF\xBB\xBF" : "") + result.table);
    if (!options.quiet) progress.Finish(ResultText(result));
    return result.damaged == 0 ? kFits : kDoesNotFit;
}

void RefuseFolder(const cFileReader& files, const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_directory(NativePath(path), error)) return;
    std::string advice = path + " is a folder; to print files, name them";
    SkipFailure([&] {
        const std::string alarms = FindAlarmFolder(files, path).path;
        advice = path + " is a folder: \"vigrel-inspect " + path +
                 " --alarms --csv\" makes a table of its alarms; to print files, name them, such as " +
                 alarms + "*.alm";
    });
    throw cFailure(eFailure::PathAccess, advice);
}

cNamedContent ReadNamed(const cFileReader& files, const std::string& path) {
    RefuseFolder(files, path);
    if (files.Stamp(path).size > kLargestFile) {
        throw cFailure(eFailure::InputOutput, path + ": the file is too large for a file of the system");
    }
    return {SplitPath(path).name, files.ReadFile(path)};
}

cInspection InspectFile(const cFileReader& files, const std::string& path, std::optional<eFileKind> kind) {
    const cNamedContent file = ReadNamed(files, path);
    if (!kind) kind = KindOfFile(file.name, file.content);
    return kind ? Inspect(*kind, file.name, file.content) : InspectUnknown(file.content);
}

int InspectFiles(const cInspectOptions& options) {
    const cLinuxFiles files;
    int result = kFits;
    std::string separator = options.json ? "[\n" : "";
    for (const std::string& path : options.paths) {
        cInspection inspection;
        if (const auto failure = CatchFailure([&] { inspection = InspectFile(files, path, options.kind); })) {
            PrintError(kProgram, failure->what());
            result = kDoesNotFit;
            continue;
        }
        if (!inspection.problems.empty()) result = kDoesNotFit;
        PrintOutput(separator +
                    (options.json ? InspectionJson(path, inspection) : InspectionText(path, inspection)));
        separator = options.json ? ",\n" : "\n";
    }
    // With no object printed the list is still to be opened.
    if (options.json) PrintOutput(separator == "[\n" ? "[]\n" : "\n]\n");
    return result;
}

int TellWhatIsActive(const cInspectOptions& options) {
    const cLinuxFiles files;
    std::optional<cNamedContent> calendar;
    if (!options.calendar.empty()) calendar = ReadNamed(files, options.calendar);
    int result = kFits;
    std::string separator;
    for (const std::string& path : options.paths) {
        std::string report;
        if (const auto failure =
                CatchFailure([&] { report = ActiveReport(ReadNamed(files, path), calendar, *options.at); })) {
            PrintError(kProgram, failure->what());
            result = kDoesNotFit;
            continue;
        }
        PrintOutput(separator + report);
        separator = "\n";
    }
    return result;
}

int Run(const std::vector<std::string>& words) {
    cInspectOptions options;
    if (const auto failure = CatchFailure([&] { options = ReadOptions(words); })) {
        PrintError(kProgram, failure->what());
        std::fputs("Try vigrel-inspect --help\n", stderr);
        return kWrongUse;
    }
    int result = kDoesNotFit;
    const auto failure = CatchFailure([&] {
        if (options.help) PrintOutput(HelpText());
        if (options.version) PrintOutput("vigrel-inspect " VIGREL_VERSION "\n");
        result = options.help || options.version ? kFits
                 : options.at                    ? TellWhatIsActive(options)
                 : options.alarms                ? Export(options)
                                                 : InspectFiles(options);
    });
    if (failure) PrintError(kProgram, failure->what());
    return result;
}

}  // namespace
}  // namespace vigrel

int main(int argc, char** argv) {
    return vigrel::Run({argv + 1, argv + argc});
}
