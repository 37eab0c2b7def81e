#include "adapters/linux/kept_file.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstring>
#include <string_view>

namespace vigrel {
namespace {

constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr mode_t kGroup = S_IRWXG;
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr std::string_view kUsers = "user.";

// False when the other file has the attribute and it could not be taken over.
bool GiveAttribute(int descriptor, const std::string& like, const char* name) {
    const ssize_t size = lgetxattr(like.c_str(), name, nullptr, 0);
    if (size < 0) return true;
    std::string value(static_cast<std::size_t>(size), '\0');
    return lgetxattr(like.c_str(), name, value.data(), value.size()) == size &&
           fsetxattr(descriptor, name, value.data(), value.size(), 0) == 0;
}

void GiveUsersAttributes(int descriptor, const std::string& like) {
    const ssize_t size = llistxattr(like.c_str(), nullptr, 0);
    if (size <= 0) return;
    std::string names(static_cast<std::size_t>(size), '\0');
    if (llistxattr(like.c_str(), names.data(), names.size()) != size) return;
    for (const char* name = names.data(); name < names.data() + size; name += std::strlen(name) + 1) {
        if (std::string_view(name).starts_with(kUsers)) GiveAttribute(descriptor, like, name);
    }
}

}  // namespace

void GiveAttributes(int descriptor, const std::string& like) {
    struct stat status {};
    if (lstat(like.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
    mode_t mode = status.st_mode & kRights;
    // What it grants to its group must not come to another one; and the rights of the group bound those of an
    // access list.
    if (fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) != 0 ||
        !GiveAttribute(descriptor, like, kAccessList)) {
        mode &= ~kGroup;
    }
    if (fchown(descriptor, status.st_uid, static_cast<gid_t>(-1)) != 0) mode |= S_IRUSR | S_IWUSR;
    GiveUsersAttributes(descriptor, like);
    fchmod(descriptor, mode);
}

}  // namespace vigrel
