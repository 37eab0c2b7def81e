// What a file keeps while its content is replaced: the place that a link gave it, its mode and its owner.

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <optional>

#include "adapters/linux/linux_files.h"
#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr int kMostLinks = 40;

// With its separator; empty for a name in the working folder.
std::string FolderOf(const std::string& native) {
    return native.substr(0, native.rfind('/') + 1);
}

// A link counts when it is ours, root's, or of whoever owns the folder that it lies in: these could have put
// the file itself there. Nobody else decides where we write.
bool IsTrusted(const struct stat& link, const std::string& path) {
    if (link.st_uid == geteuid() || link.st_uid == 0) return true;
    struct stat folder {};
    const std::string parent = FolderOf(path);
    return stat(parent.empty() ? "." : parent.c_str(), &folder) == 0 && link.st_uid == folder.st_uid;
}

// Where a link leads in one step; nothing when the path is no link.
std::optional<std::string> NextLink(const std::string& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return std::nullopt;
    if (!IsTrusted(status, path)) {
        throw cFailure(eFailure::PermissionDenied,
                       PathText(path) + ": a link that another user made is not followed");
    }
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
    if (length <= 0) return std::nullopt;
    const std::string target(buffer.data(), static_cast<std::size_t>(length));
    return target[0] == '/' ? target : FolderOf(path) + target;
}

}  // namespace

std::string cLinuxFiles::LinkTarget(std::string_view path) const {
    std::string native = NativePath(path);
    std::optional<std::string> next = NextLink(native);
    if (!next) return std::string(path);
    for (int links = 1; next; ++links) {
        if (links > kMostLinks)
            throw cFailure(eFailure::PathAccess, std::string(path) + ": leads in a circle");
        native = *next;
        next = NextLink(native);
    }
    return PathText(native);
}

void cLinuxFiles::CopyAttributes(std::string_view from, std::string_view to) {
    struct stat status {};
    if (stat(NativePath(from).c_str(), &status) != 0) return;
    const std::string native = NativePath(to);
    mode_t mode = status.st_mode & kRights;
    // What it grants to its group must not come to another one.
    if (chown(native.c_str(), static_cast<uid_t>(-1), status.st_gid) != 0)
        mode &= ~static_cast<mode_t>(S_IRWXG);
    if (chown(native.c_str(), status.st_uid, static_cast<gid_t>(-1)) != 0) mode |= S_IRUSR | S_IWUSR;
    chmod(native.c_str(), mode);
}

}  // namespace vigrel
