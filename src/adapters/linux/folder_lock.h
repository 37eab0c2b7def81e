#pragma once

#include <string>

#include "adapters/linux/file_handle.h"
#include "platform/single_instance.h"

namespace vigrel {

// One program per application folder, by a lock on a file in it that only who may write it can hold. The
// operating system takes the lock back however the program ends; the file stays. A file that can't be opened
// or locked, as in a folder that can't be written and on a file system without locks, counts as free, with a
// problem: a station that runs is worth more than the certainty that it is alone.
class cFolderLock : public cSingleInstance {
  public:
    static constexpr const char* kFile = "VigrelReceiver.lock";

    explicit cFolderLock(std::string folder) : m_Folder(std::move(folder)) {}
    bool AnotherIsRunning() override;
    std::string Problem() const override { return m_Problem; }

  private:
    std::string m_Folder, m_Problem;
    cFileHandle m_File;
};

}  // namespace vigrel
