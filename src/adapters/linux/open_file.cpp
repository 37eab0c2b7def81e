#include "adapters/linux/open_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "adapters/linux/file_failure.h"
#include "adapters/linux/kept_file.h"

namespace vigrel {

void WriteAll(int descriptor, std::string_view bytes, std::string_view path) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) FailByErrno(path);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

cOpenFile::cOpenFile(std::string_view path, int descriptor) : m_Path(path), m_File(descriptor) {
    if (!m_File) FailByErrno(path);
}

void cOpenFile::Write(std::string_view bytes) {
    WriteAll(m_File.Get(), bytes, m_Path);
}

// Asks for a byte more than there should be, so that one call meets the end too. Files that the machine makes
// up say that they are empty, and needn't have an end: of these no more is read than what fits at once.
std::string cOpenFile::ReadAll() {
    struct stat status {};
    if (fstat(m_File.Get(), &status) != 0) FailByErrno(m_Path);
    if (const char* reason = WhyNoFile(status)) FailAsNoFile(m_Path, reason);
    constexpr std::size_t kUnknownSize = 65536;
    const auto told = static_cast<std::size_t>(status.st_size);
    std::string content(told > 0 ? told + 1 : kUnknownSize, '\0');
    std::size_t size = 0;
    while (true) {
        const ssize_t count = read(m_File.Get(), content.data() + size, content.size() - size);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) FailByErrno(m_Path);
        size += static_cast<std::size_t>(count);
        if (count == 0 || size < content.size()) break;
        if (fstat(m_File.Get(), &status) != 0) FailByErrno(m_Path);
        if (status.st_size == 0) FailAsNoFile(m_Path, NoOrdinaryFile());
        // Somebody can make it grow after it was looked at.
        if (content.size() > kLargestFile) FailAsNoFile(m_Path, "larger than 64 MB");
        content.resize(2 * content.size());
    }
    content.resize(size);
    return content;
}

void cOpenFile::TakeAttributes(const std::string& like) {
    GiveAttributes(m_File.Get(), like);
}

void cOpenFile::Sync() {
    if (fsync(m_File.Get()) != 0) FailByErrno(m_Path);
}

void cOpenFile::Close() {
    if (close(m_File.Release()) != 0 && errno != EINTR) FailByErrno(m_Path);
}

}  // namespace vigrel
