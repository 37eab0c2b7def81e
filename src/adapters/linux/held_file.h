#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>

#include "adapters/linux/file_handle.h"

namespace vigrel {

// Whether other machines may have the file system too: they see what was written when the file is closed.
bool IsShared(int descriptor);

// A file or a folder that is used over and over, kept open in between. It counts as long as its path leads to
// it: whoever moves it away, or puts another in its place, has the next use there.
class cHeldFile {
  public:
    // Whether the path, no link at its end, leads to what is held. Within a millisecond it isn't looked at
    // again: what is done for one alarm is done in one place.
    bool IsAt(const std::string& native);
    // The program itself has changed what names lead to.
    void LookAgain() { m_Looked = {}; }
    // Holds what was opened by the path, by a descriptor of its own.
    void Hold(const std::string& native, int descriptor);
    // Below 0 for none.
    int Descriptor() const { return m_File.Get(); }

  private:
    cFileHandle m_File;
    std::string m_Path;
    dev_t m_Device = 0;
    ino_t m_Inode = 0;
    std::chrono::steady_clock::time_point m_Looked;
};

}  // namespace vigrel
