#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/failure.h"
#include "platform/files.h"

namespace vigrel {

// Files that can only be read: what the receiver's own procedures get in a tool, so that the tool can't
// change anything. Every other call throws cFailure (PermissionDenied).
class cReadOnlyFiles : public cFiles {
  public:
    explicit cReadOnlyFiles(const cFileReader& files) : m_Files(files) {}

    bool FileExists(std::string_view path) const override { return m_Files.FileExists(path); }
    std::string ReadFile(std::string_view path) const override { return m_Files.ReadFile(path); }
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override {
        return m_Files.ListFiles(folder, mask);
    }
    cListing List(std::string_view folder, std::string_view mask) const override {
        return m_Files.List(folder, mask);
    }
    std::string Spelling(std::string_view path) const override { return m_Files.Spelling(path); }
    cStamp Stamp(std::string_view path) const override { return m_Files.Stamp(path); }
    void WriteFile(std::string_view path, std::string_view, bool) override { Refuse(path); }
    void WriteFileLike(std::string_view path, std::string_view, std::string_view) override { Refuse(path); }
    void AppendFile(std::string_view path, std::string_view) override { Refuse(path); }
    void RemoveFile(std::string_view path) override { Refuse(path); }
    void RenameFile(std::string_view from, std::string_view) override { Refuse(from); }
    void SyncFolder(std::string_view folder) override { Refuse(folder); }
    std::unique_ptr<cPendingSync> StartSync(std::string_view folder) override { Refuse(folder); }
    void MakeFolder(std::string_view path) override { Refuse(path); }
    void SetNormalAttributes(std::string_view path) override { Refuse(path); }
    std::string LinkTarget(std::string_view path) const override { Refuse(path); }

  private:
    [[noreturn]] static void Refuse(std::string_view path) {
        throw cFailure(eFailure::PermissionDenied, std::string(path) + ": nothing is changed here");
    }
    const cFileReader& m_Files;
};

}  // namespace vigrel
