#include "adapters/linux/folder_entries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <utility>

#include "adapters/linux/file_failure.h"
#include "adapters/linux/file_handle.h"
#include "adapters/linux/links.h"
#include "adapters/linux/open_file.h"
#include "adapters/linux/system_error_text.h"
#include "common/code_page.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

// Whether a name fits a mask of "?" and "*" in upper case. "*" tries the shortest run first and comes
// back.
bool FitsMask(std::string_view name, std::string_view mask) {
    std::size_t n = 0;
    std::size_t m = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (m < mask.size() && mask[m] == '*') {
            star = m++;
            resume = n;
        } else if (m < mask.size() && (mask[m] == '?' || mask[m] == ToUpper(name[n]))) {
            ++n;
            ++m;
        } else if (star != std::string_view::npos) {
            m = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of('*', m) == std::string_view::npos;
}

// Though its size is 0, and still is.
bool HoldsSomething(int folder, const char* name) {
    const cFileHandle file(openat(folder, name, O_RDONLY | kNeverWait));
    std::array<char, 64> bytes{};  // some of them give whole entries only
    struct stat status {};
    return file && read(file.Get(), bytes.data(), bytes.size()) > 0 && fstat(file.Get(), &status) == 0 &&
           status.st_size == 0;
}

bool IsThere(const std::string& native) {
    struct stat status {};
    return lstat(native.substr(0, native.find_last_not_of('/') + 1).c_str(), &status) == 0;
}

}  // namespace

bool IsRegular(int folder, const dirent& entry) {
    if (entry.d_type == DT_REG) return true;
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return false;
    struct stat status {};
    return fstatat(folder, entry.d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
}

std::string WhyUnreadable(int folder, const char* name) {
    struct stat status {};
    if (fstatat(folder, name, &status, 0) != 0) return SystemErrorText(errno);
    if (const char* reason = WhyNoFile(status)) return reason;
    if (status.st_size == 0 && HoldsSomething(folder, name)) return NoOrdinaryFile();
    // Nearly all are our own, and tell by their mode.
    if (status.st_uid == geteuid() && (status.st_mode & S_IRUSR) != 0) return "";
    return faccessat(folder, name, R_OK, AT_EACCESS) == 0 ? "" : SystemErrorText(errno);
}

void ForEachEntry(const std::string& native, std::string_view mask, const TakeEntry& take) {
    RequireOwnFolder(native);
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(native.empty() ? "." : native.c_str()),
                                                     closedir);
    // A link that leads nowhere is no missing folder: a disk that is not there can have what it leads to.
    if (!stream && errno == ENOENT && !IsThere(native)) return;
    if (!stream) FailByErrno(PathText(native));
    const std::string wanted = ToUpper(mask);
    while (true) {
        errno = 0;
        const dirent* entry = readdir(stream.get());
        if (entry == nullptr && errno != 0) FailByErrno(PathText(native));
        if (entry == nullptr) return;
        if (entry->d_name[0] == '.') continue;
        std::string name = PathText(entry->d_name);
        if (FitsMask(name, wanted)) take(dirfd(stream.get()), *entry, std::move(name));
    }
}

}  // namespace vigrel
