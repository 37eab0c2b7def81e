#pragma once

#include <chrono>
#include <string>

#include "adapters/linux/file_handle.h"

namespace vigrel {

// While it lives it is its program's turn to make the files of a new folder. Programs that are started at the
// same moment, as by two double clicks, have theirs one after the other: together they would take each
// other's files away half made.
//
// By a lock on the folder itself, which the operating system takes back however the program ends. Where the
// folder has no locks, or another program's turn doesn't end, it goes on without: a station that starts is
// worth more.
class cFolderTurn {
  public:
    static constexpr std::chrono::seconds kLongestWait{10};

    // The folder is there.
    explicit cFolderTurn(const std::string& folder, std::chrono::milliseconds longestWait = kLongestWait);

  private:
    cFileHandle m_Folder;
};

}  // namespace vigrel
