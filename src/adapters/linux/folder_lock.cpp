#include "adapters/linux/folder_lock.h"

#include <fcntl.h>

#include <cerrno>

#include "adapters/linux/linux_files.h"

namespace vigrel {

bool cFolderLock::AnotherIsRunning() {
    constexpr int kFlags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    constexpr mode_t kMode = 0666;  // as the umask allows
    if (!m_File) m_File = cFileHandle(open(NativePath(m_Folder + kFile).c_str(), kFlags, kMode));
    if (!m_File) return false;
    // A write lock asks for a file that is open for writing; one of the open file, since one of the process
    // would go with any other opening of it.
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(m_File.Get(), F_OFD_SETLK, &lock) != 0 && (errno == EAGAIN || errno == EACCES);
}

}  // namespace vigrel
