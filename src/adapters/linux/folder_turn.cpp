#include "adapters/linux/folder_turn.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <thread>

#include "adapters/linux/native_path.h"
#include "common/failure.h"

namespace vigrel {
namespace {

cFileHandle OpenLocked(const std::string& folder) {
    cFileHandle opened;
    SkipFailure(
        [&] { opened = cFileHandle(open(NativePath(folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)); });
    return opened;
}

}  // namespace

cFolderTurn::cFolderTurn(const std::string& folder, std::chrono::milliseconds longestWait)
    : m_Folder(OpenLocked(folder)) {
    constexpr std::chrono::milliseconds kAgain{10};
    const auto end = std::chrono::steady_clock::now() + longestWait;
    while (m_Folder && flock(m_Folder.Get(), LOCK_EX | LOCK_NB) != 0) {
        const bool another = errno == EWOULDBLOCK || errno == EINTR;
        if (!another || std::chrono::steady_clock::now() >= end) return;
        std::this_thread::sleep_for(kAgain);
    }
}

}  // namespace vigrel
