#pragma once

#include "platform/files.h"

namespace vigrel {

// cFiles over the operating system. Paths are those of common/path_text.h. A path without a leading separator
// is relative to the working folder.
class cLinuxFiles : public cFiles {
  public:
    bool FileExists(std::string_view path) const override;
    std::string ReadFile(std::string_view path) const override;
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override;
    std::vector<cUnreadable> ListUnreadable(std::string_view folder, std::string_view mask) const override;
    cStamp Stamp(std::string_view path) const override;
    void WriteFile(std::string_view path, std::string_view bytes, bool sync) override;
    void AppendFile(std::string_view path, std::string_view bytes) override;
    void RemoveFile(std::string_view path) override;
    void RenameFile(std::string_view from, std::string_view to) override;
    void SyncFolder(std::string_view folder) override;
    void SyncFileSystem(std::string_view folder) override;
    void MakeFolder(std::string_view path) override;
    void SetNormalAttributes(std::string_view path) override;
    std::string LinkTarget(std::string_view path) const override;
    void CopyAttributes(std::string_view from, std::string_view to) override;
};

// The path as the operating system knows it, byte by byte: separators mapped, and every part that exists
// under another case spelled as it stands on disk.
std::string NativePath(std::string_view path);

}  // namespace vigrel
