#include "adapters/linux/application_folder.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/native_path.h"
#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/ini.h"
#include "common/missing_file.h"
#include "common/path_text.h"
#include "common/texts.h"

namespace vigrel {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> Variable(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') return std::nullopt;
    return PathText(value);
}

std::string WithBackslash(std::string folder) {
    while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
    if (folder.empty() || folder.back() != '\\') folder += '\\';
    return folder;
}

bool IsFolder(const std::string& path) {
    std::error_code error;
    return fs::is_directory(NativePath(path), error);
}

bool IsPortable(const std::string& folder) {
    return IsFolder(folder + "\\Templates") ||
           cLinuxFiles().FileExists(folder + "\\" + std::string(kIniFile));
}

bool IsWritable(const std::string& folder) {
    return access(NativePath(folder).c_str(), W_OK) == 0;
}

bool IsApplicationFolder(const cFiles& files, const std::string& applicationPath) {
    return files.FileExists(applicationPath + std::string(kIniFile)) ||
           IsFolder(applicationPath + "Templates") ||
           !files.ListFiles(applicationPath, std::string(kTextFile) + "*").empty();
}

[[noreturn]] void RefuseFolder(const std::string& applicationPath, const char* what,
                               const std::error_code& reason) {
    throw cFailure(eFailure::PathAccess, "The application folder " + PathText(NativePath(applicationPath)) +
                                             " can't be " + what + ": " + Utf8ToCodePage(reason.message()));
}

// What is copied of an installation: never the programs, which can lie there too.
struct cFileGroup {
    std::string_view folder, mask;
};
constexpr std::array<cFileGroup, 4> kDelivered{
    {{"", "Vigrel_Texts.*"}, {"", "ReceiverType*"}, {"Templates\\", "*"}, {"Sounds\\", "*"}}};
// What somebody has set up in a folder, besides.
constexpr std::array<cFileGroup, 7> kConfiguration{{{"", kIniFile},
                                                    {"", "ColourRules.txt"},
                                                    {"", "*.cal"},
                                                    {"", "*.sch"},
                                                    {"", "*.wav"},
                                                    {"Receivers\\", "*.dat"},
                                                    {"Profiles\\", "*.dat"}}};

// Stands in the folder while it is being filled: whoever finds it goes on where an end in between left off.
constexpr std::string_view kFilling = "VigrelReceiver.filling";

// What is there already, or may be, stays; what can't be copied is left out.
void CopyGroup(cFiles& files, const cFileGroup& group, const std::string& source,
               const std::string& applicationPath) {
    const std::string from = source + std::string(group.folder);
    const std::string to = applicationPath + std::string(group.folder);
    const std::vector<std::string> names = files.ListFiles(from, group.mask);
    std::error_code error;
    if (!names.empty()) fs::create_directories(NativePath(to), error);
    for (const std::string& name : names) {
        if (!IsMissing(files, to + name)) continue;
        SkipFailure([&] { ReplaceFile(files, to + name, files.ReadFile(from + name)); });
    }
}

}  // namespace

cFolderHints ReadFolderHints() {
    cFolderHints hints;
    hints.variable = Variable("VIGREL_APPLICATION_PATH");
    std::error_code error;
    hints.programFolder = PathText(fs::read_symlink("/proc/self/exe", error).parent_path().string());
    hints.userDataFolder =
        Variable("XDG_DATA_HOME").value_or(Variable("HOME").value_or("") + "/.local/share");
    return hints;
}

std::string FindApplicationFolder(const cFolderHints& hints) {
    if (hints.variable) {
        std::error_code error;
        const fs::path absolute = fs::absolute(PathBytes(*hints.variable), error);
        return WithBackslash(error ? *hints.variable : PathText(absolute.lexically_normal().string()));
    }
    if (IsPortable(hints.programFolder) && IsWritable(hints.programFolder))
        return WithBackslash(hints.programFolder);
    return WithBackslash(hints.userDataFolder + "/VigrelReceiver");
}

std::string FormerFolder(const cFolderHints& hints) {
    const bool left = !hints.variable && IsPortable(hints.programFolder) && !IsWritable(hints.programFolder);
    return left ? hints.programFolder : "";
}

std::optional<std::string> WhyElsewhere(const cFolderHints& hints) {
    if (FormerFolder(hints).empty()) return std::nullopt;
    return hints.programFolder + " can't be written. The station keeps its files in " +
           PathText(NativePath(FindApplicationFolder(hints)));
}

std::string FindInstalledFolder(const std::string& programFolder) {
    const fs::path program = PathBytes(programFolder);
    for (const fs::path& candidate : {program.parent_path() / "share/vigrel-receiver", program}) {
        std::error_code error;
        if (fs::is_directory(candidate / "Templates", error)) return PathText(candidate.string());
    }
    return {};
}

std::optional<std::string> WhyNoConfiguration(const cFiles& files, const std::string& applicationPath) {
    const std::string path = files.Spelling(applicationPath + std::string(kIniFile));
    std::error_code error;
    const fs::file_status found = fs::symlink_status(PathBytes(path), error);
    if (error || !fs::exists(found)) return std::nullopt;
    const auto failure = CatchFailure([&] { files.ReadFile(path); });
    if (!failure) return std::nullopt;
    return "The configuration can't be read: " + std::string(failure->what());
}

void MakeApplicationFolder(const std::string& applicationPath) {
    const std::string native = NativePath(applicationPath);
    std::error_code error;
    fs::create_directories(native, error);
    if (error) RefuseFolder(applicationPath, "made", error);
    if (access(native.c_str(), R_OK | X_OK) == 0) return;
    RefuseFolder(applicationPath, "read", std::error_code(errno, std::generic_category()));
}

bool FillApplicationFolder(cFiles& files, const std::string& applicationPath,
                           const std::string& installedFolder, const std::string& formerFolder) {
    MakeApplicationFolder(applicationPath);
    const std::string filling = applicationPath + std::string(kFilling);
    if (IsApplicationFolder(files, applicationPath) && !files.FileExists(filling)) return false;
    SkipFailure([&] { files.WriteFile(filling, "", true); });
    const auto copy = [&](const std::string& source, const auto& groups) {
        if (source.empty()) return;
        for (const cFileGroup& group : groups)
            CopyGroup(files, group, WithBackslash(source), applicationPath);
    };
    // First the texts and sounds as somebody may have changed them.
    copy(formerFolder, kConfiguration);
    copy(formerFolder, kDelivered);
    copy(installedFolder, kDelivered);
    SkipFailure([&] { files.RemoveFile(filling); });
    return true;
}

}  // namespace vigrel
