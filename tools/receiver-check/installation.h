#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "categories/category_specific_setting.h"
#include "common/ini.h"
#include "receiver-check/finding.h"
#include "receiver-check/ini_document.h"

namespace vigrel {

// An application folder as the receiver would read it at its start.
class cInstallation {
  public:
    // applicationPath ends in a backslash.
    cInstallation(const cFileReader& files, std::string applicationPath);

    const cFileReader& Files() const { return m_Files; }
    const cIniReader& Ini() const { return m_Ini; }
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
    const cFileReader& m_Files;
    cIniReader m_Ini;
    cCategorySettings m_Categories;
    bool m_Configured = false;
    std::string m_Content;
    std::optional<std::string> m_Unreadable;
    cIniDocument m_Document;
};

}  // namespace vigrel
