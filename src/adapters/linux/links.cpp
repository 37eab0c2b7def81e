#include "adapters/linux/links.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <optional>

#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

constexpr int kMostLinks = 40;

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
        throw cFailure(
            eFailure::PermissionDenied,
            {Pattern("Reasons", "%1: a link that another user made is not followed"), {PathText(path)}});
    }
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
    if (length <= 0) return std::nullopt;
    const std::string target(buffer.data(), static_cast<std::size_t>(length));
    return target[0] == '/' ? target : path.substr(0, path.rfind('/') + 1) + target;
}

}  // namespace

std::string FolderOf(const std::string& native) {
    std::size_t end = native.rfind('/');
    if (end == std::string::npos) return "";
    while (end > 0 && native[end - 1] == '/') --end;
    return native.substr(0, end > 0 ? end : 1);
}

std::string FollowLinks(std::string native) {
    std::optional<std::string> next = NextLink(native);
    for (int links = 1; next; ++links) {
        if (links > kMostLinks)
            throw cFailure(eFailure::PathAccess,
                           {Pattern("Reasons", "%1: leads in a circle"), {PathText(native)}});
        native = *next;
        next = NextLink(native);
    }
    return native;
}

void RequireOwnFolder(const std::string& native) {
    const std::string folder = FolderOf(native);
    if (!folder.empty()) FollowLinks(folder);
}

}  // namespace vigrel
