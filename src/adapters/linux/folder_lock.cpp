#include "adapters/linux/folder_lock.h"

#include <fcntl.h>

#include <cerrno>

#include "adapters/linux/native_path.h"
#include "adapters/linux/system_error_text.h"
#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel {

bool cFolderLock::AnotherIsRunning() {
    constexpr int kFlags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    constexpr mode_t kMode = 0666;  // as the umask allows
    std::string path;
    if (const auto failure = CatchFailure([&] { path = NativePath(m_Folder + kFile); })) {
        m_Problem = failure->what();
        return false;
    }
    const auto problem = [&] {
        m_Problem = PathText(path) + ": " + SystemErrorText(errno);
        return false;
    };
    if (!m_File) m_File = cFileHandle(open(path.c_str(), kFlags, kMode));
    if (!m_File) return problem();
    // A write lock asks for a file that is open for writing; one of the open file, since one of the process
    // would go with any other opening of it.
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    m_Problem.clear();
    if (fcntl(m_File.Get(), F_OFD_SETLK, &lock) == 0) return false;
    return errno == EAGAIN || errno == EACCES || problem();
}

}  // namespace vigrel
