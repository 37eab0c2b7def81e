// vigrel-receiver-check: tells an installer what is wrong in the application folder of a receiver.

#include <cstdio>

#include "adapters/linux/linux_files.h"
#include "common/failure.h"
#include "receiver-check/check.h"
#include "receiver-check/options.h"
#include "receiver-check/posix_machine.h"
#include "receiver-check/print.h"
#include "vigrel-inspect/print.h"

namespace vigrel {
namespace {

constexpr int kNothing = 0, kSmaller = 1, kErrors = 2, kNotChecked = 3;

void PrintError(const std::string& text) {
    std::fprintf(stderr, "vigrel-receiver-check: %s\n", PrintablePath(text).c_str());
}

// Throws cFailure when standard output takes no more.
void Print(const std::string& utf8) {
    if (std::fwrite(utf8.data(), 1, utf8.size(), stdout) != utf8.size() || std::fflush(stdout) != 0) {
        throw cFailure(eFailure::DiskFull, "standard output can't be written");
    }
}

std::string WithBackslash(const std::string& folder) {
    return folder.ends_with('/') || folder.ends_with('\\') ? folder : folder + "\\";
}

int Check(const cCheckOptions& options) {
    const cPosixMachine machine;
    const std::string path = WithBackslash(options.folder);
    if (!machine.FolderExists(path))
        throw cFailure(eFailure::PathAccess, options.folder + ": no such folder");
    if (const auto reason = machine.WhyNotReadable(path)) {
        throw cFailure(eFailure::PathAccess, options.folder + ": " + *reason);
    }
    const cLinuxFiles files;
    const cFindings findings = CheckInstallation(files, path, options.filesOnly ? nullptr : &machine);
    Print(options.json ? ReportJson(options.folder, findings) : ReportText(findings));
    if (findings.m_All.empty()) return kNothing;
    return findings.Count(eSeverity::Error) > 0 ? kErrors : kSmaller;
}

int Run(const std::vector<std::string>& words) {
    cCheckOptions options;
    if (const auto failure = CatchFailure([&] { options = ReadCheckOptions(words); })) {
        PrintError(failure->what());
        std::fputs("Try vigrel-receiver-check --help\n", stderr);
        return kNotChecked;
    }
    int result = kNotChecked;
    const auto failure = CatchFailure([&] {
        if (options.help) Print(CheckHelpText());
        result = options.help ? kNothing : Check(options);
    });
    if (failure) PrintError(failure->what());
    return result;
}

}  // namespace
}  // namespace vigrel

int main(int argc, char** argv) {
    return vigrel::Run({argv + 1, argv + argc});
}
