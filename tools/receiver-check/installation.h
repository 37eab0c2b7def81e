#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "categories/category_specific_setting.h"
#include "common/failure.h"
#include "common/ini.h"
#include "receiver-check/finding.h"
#include "receiver-check/ini_document.h"

namespace vigrel {

// Files that can only be read: what the receiver's own procedures get here, so that a check can't change
// anything. Every other call throws cFailure (PermissionDenied).
class cReadOnlyFiles : public cFiles {
  public:
    explicit cReadOnlyFiles(const cFileReader& files) : m_Files(files) {}

    bool FileExists(std::string_view path) const override { return m_Files.FileExists(path); }
    std::string ReadFile(std::string_view path) const override { return m_Files.ReadFile(path); }
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override {
        return m_Files.ListFiles(folder, mask);
    }
    std::vector<cUnreadable> ListUnreadable(std::string_view folder, std::string_view mask) const override {
        return m_Files.ListUnreadable(folder, mask);
    }
    std::string Spelling(std::string_view path) const override { return m_Files.Spelling(path); }
    cStamp Stamp(std::string_view path) const override { return m_Files.Stamp(path); }
    void WriteFile(std::string_view path, std::string_view, bool) override { Refuse(path); }
    void AppendFile(std::string_view path, std::string_view) override { Refuse(path); }
    void RemoveFile(std::string_view path) override { Refuse(path); }
    void RenameFile(std::string_view from, std::string_view) override { Refuse(from); }
    void SyncFolder(std::string_view folder) override { Refuse(folder); }
    std::unique_ptr<cPendingSync> StartSync(std::string_view folder) override { Refuse(folder); }
    void MakeFolder(std::string_view path) override { Refuse(path); }
    void SetNormalAttributes(std::string_view path) override { Refuse(path); }
    std::string LinkTarget(std::string_view path) const override { Refuse(path); }
    void CopyAttributes(std::string_view, std::string_view to) override { Refuse(to); }

  private:
    [[noreturn]] static void Refuse(std::string_view path) {
        throw cFailure(eFailure::PermissionDenied, std::string(path) + ": nothing is changed here");
    }
    const cFileReader& m_Files;
};

// An application folder as the receiver would read it at its start.
class cInstallation {
  public:
    // applicationPath ends in a backslash.
    cInstallation(const cFileReader& files, std::string applicationPath);

    const cFileReader& Files() const { return m_Files; }
    const cIni& Ini() const { return m_Ini; }
    const std::string& Path() const { return m_Ini.ApplicationPath(); }
    std::string IniPath() const { return m_Ini.FullPath(kIniFile); }
    const cCategorySettings& Categories() const { return m_Categories; }
    // Whether there is a configuration file that can be read.
    bool IsConfigured() const { return m_Configured; }
    // The configuration file; empty when it is missing or can't be read.
    const std::string& Content() const { return m_Content; }
    const cIniDocument& Document() const { return m_Document; }
    // Why the configuration file can't be read, though it is there.
    const std::optional<std::string>& Unreadable() const { return m_Unreadable; }

    // A value as the receiver gets it; the default is that of the table of keys.
    std::string Value(std::string_view section, std::string_view key) const;
    double Number(std::string_view section, std::string_view key) const;
    bool Flag(std::string_view section, std::string_view key) const { return Number(section, key) == 1; }
    // Where the key stands that counts; for one that is not there the file and its name.
    cPlace PlaceOf(std::string_view section, std::string_view key) const;
    static cPlace PlaceOf(const cIniDocument::cSection& section, const cIniDocument::cKey& key);
    static cPlace PlaceOf(const cIniDocument::cSection& section);
    static cPlace WholeFile() { return {std::string(kIniFile), 0, "", "", ""}; }

  private:
    cReadOnlyFiles m_Files;
    cIni m_Ini;
    cCategorySettings m_Categories;
    bool m_Configured = false;
    std::string m_Content;
    std::optional<std::string> m_Unreadable;
    cIniDocument m_Document;
};

}  // namespace vigrel
