// vigrel-receiver-check: tells an installer what is wrong in the application folder of a receiver.

#include <cstdio>
#include <filesystem>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/native_path.h"
#include "adapters/linux/system_clock.h"
#include "common/code_page.h"
#include "common/failure.h"
#include "common/path_text.h"
#include "common/standard_error.h"
#include "receiver-check/check.h"
#include "receiver-check/options.h"
#include "receiver-check/posix_machine.h"
#include "receiver-check/print.h"
#include "receiver-check/sample_texts.h"
#include "tool_support/print.h"

namespace vigrel {
namespace {

const std::string kProgram = "vigrel-receiver-check";
constexpr int kNothing = 0, kSmaller = 1, kErrors = 2, kNotChecked = 3;

// The whole path, as the receiver has it: what a category inherits is told by whole paths from relative ones.
std::string ApplicationPath(const std::string& folder) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(NativePath(folder), error);
    const std::string path = error ? folder : PathText(absolute.lexically_normal().string());
    return path.ends_with('/') || path.ends_with('\\') ? path : path + "\\";
}

int Check(const cCheckOptions& options) {
    const cPosixMachine machine;
    const std::string path = ApplicationPath(options.folder);
    if (!machine.FolderExists(path))
        throw cFailure(eFailure::PathAccess, options.folder + ": no such folder");
    if (const auto reason = machine.WhyNotReadable(path)) {
        throw cFailure(eFailure::PathAccess, options.folder + ": " + *reason);
    }
    const cLinuxFiles files;
    if (options.showTexts) {
        PrintOutput(CodePageToUtf8(
            SampleTexts(cInstallation(files, path), options.filesOnly ? nullptr : &machine, cSystemClock())));
        return kNothing;
    }
    const cFindings findings = CheckInstallation(files, path, options.filesOnly ? nullptr : &machine);
    PrintOutput(options.json ? ReportJson(options.folder, findings) : ReportText(findings));
    if (findings.m_All.empty()) return kNothing;
    return findings.Count(eSeverity::Error) > 0 ? kErrors : kSmaller;
}

int Run(const std::vector<std::string>& words) {
    cCheckOptions options;
    if (const auto failure = CatchFailure([&] { options = ReadCheckOptions(words); })) {
        PrintError(kProgram, failure->what());
        std::fputs("Try vigrel-receiver-check --help\n", stderr);
        return kNotChecked;
    }
    int result = kNotChecked;
    const auto failure = CatchFailure([&] {
        if (options.help) PrintOutput(CheckHelpText());
        if (options.version) PrintOutput("vigrel-receiver-check " VIGREL_VERSION "\n");
        result = options.help || options.version ? kNothing : Check(options);
    });
    if (failure) PrintError(kProgram, failure->what());
    return result;
}

}  // namespace
}  // namespace vigrel

int main(int argc, char** argv) {
    return vigrel::Run({argv + 1, argv + argc});
}
