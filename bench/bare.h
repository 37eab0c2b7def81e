#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

#include "support/temporary_folder.h"

namespace vigrel::bench {

// Bare loops: what the operating system alone takes for the work that the station promises. They live in the
// folder of TMPDIR, as the stations do.

// Receives, writes, syncs, renames, syncs the folder and replies, and nothing else; a process of its own.
class cBareStation {
  public:
    cBareStation();
    ~cBareStation();
    cBareStation(const cBareStation&) = delete;
    cBareStation& operator=(const cBareStation&) = delete;
    int m_Port = 0;

  private:
    testing::cTemporaryFolder m_Folder;
    pid_t m_Process;
};

// Lists a folder, and opens, reads and closes each of its files; how many bytes they had.
std::size_t ReadAllFiles(const std::filesystem::path& folder);
// Replaces every file of a folder by one of the same content, without syncing.
void ReplaceAllFiles(const std::filesystem::path& folder);

}  // namespace vigrel::bench
