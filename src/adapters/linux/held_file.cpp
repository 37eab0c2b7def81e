#include "adapters/linux/held_file.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace vigrel {
namespace {

// File systems of a network, or of a program that may have one behind it.
constexpr std::array<std::uint32_t, 8> kShared = {NFS_SUPER_MAGIC,  SMB_SUPER_MAGIC, CIFS_SUPER_MAGIC,
                                                  SMB2_SUPER_MAGIC, AFS_SUPER_MAGIC, CEPH_SUPER_MAGIC,
                                                  FUSE_SUPER_MAGIC, V9FS_MAGIC};

}  // namespace

bool IsShared(int descriptor) {
    struct statfs system {};
    return fstatfs(descriptor, &system) != 0 ||
           std::find(kShared.begin(), kShared.end(), static_cast<std::uint32_t>(system.f_type)) !=
               kShared.end();
}

bool cHeldFile::IsAt(const std::string& native) {
    constexpr std::chrono::milliseconds kJustNow{1};
    if (!m_File || native != m_Path) return false;
    const auto now = std::chrono::steady_clock::now();
    if (now - m_Looked < kJustNow) return true;
    struct stat status {};
    if (lstat(native.c_str(), &status) != 0 || status.st_dev != m_Device || status.st_ino != m_Inode)
        return false;
    m_Looked = now;
    return true;
}

void cHeldFile::Hold(const std::string& native, int descriptor) {
    m_File.Reset();
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return;
    m_File = cFileHandle(fcntl(descriptor, F_DUPFD_CLOEXEC, 0));
    m_Path = native;
    LookAgain();
    m_Device = status.st_dev;
    m_Inode = status.st_ino;
}

}  // namespace vigrel
