#include "adapters/linux/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "adapters/linux/linux_files.h"

namespace vigrel {

cFolderLock::~cFolderLock() {
    if (m_Descriptor >= 0) close(m_Descriptor);
}

bool cFolderLock::AnotherIsRunning() {
    if (m_Descriptor < 0) {
        m_Descriptor = open(NativePath(m_Folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    }
    if (m_Descriptor < 0) return false;
    return flock(m_Descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace vigrel
