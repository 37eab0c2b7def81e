#pragma once

#include <fcntl.h>

#include <string>
#include <string_view>

#include "adapters/linux/file_handle.h"

namespace vigrel {

// Nothing that is opened may make the program wait.
constexpr int kNeverWait = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

// Writes all bytes; throws cFailure with the path.
void WriteAll(int descriptor, std::string_view bytes, std::string_view path);

// An open file, and its path for what fails with it: everything throws cFailure.
class cOpenFile {
  public:
    // Takes over a descriptor as open gave it, below 0 with errno for a failure.
    cOpenFile(std::string_view path, int descriptor);

    void Write(std::string_view bytes);
    // Stays the file's own.
    int Descriptor() const { return m_File.Get(); }
    // Refuses what must not be read (WhyNoFile).
    std::string ReadAll();
    // Those of another file, whose path is the machine's.
    void TakeAttributes(const std::string& like);
    void Sync();
    // Some file systems report a full disk only here.
    void Close();

  private:
    std::string m_Path;
    cFileHandle m_File;
};

}  // namespace vigrel
