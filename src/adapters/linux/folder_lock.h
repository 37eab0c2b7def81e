#pragma once

#include <string>

#include "platform/single_instance.h"

namespace vigrel {

// One program per application folder, by a lock on the folder itself: it leaves nothing behind, and the
// operating system takes it back however the program ends. A folder on a file system without locks counts as
// free.
class cFolderLock : public cSingleInstance {
  public:
    explicit cFolderLock(std::string folder) : m_Folder(std::move(folder)) {}
    ~cFolderLock() override;
    cFolderLock(const cFolderLock&) = delete;
    cFolderLock& operator=(const cFolderLock&) = delete;
    bool AnotherIsRunning() override;

  private:
    std::string m_Folder;
    int m_Descriptor = -1;
};

}  // namespace vigrel
