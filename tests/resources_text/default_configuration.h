#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "categories/category_specific_setting.h"
#include "common/ini.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "resources_text/share_files.h"
#include "support/fake_files.h"

namespace vigrel::testing {

inline const std::string kPath = "C:\\App\\VigrelReceiver.INI";

// A line "key=value", or ";key=value", with the section above it.
struct cLine {
    std::string section, key, value;
    bool commented;
};

inline std::optional<cLine> KeyLine(const std::string& line, const std::string& section) {
    const bool commented = line.starts_with(";");
    const std::string entry = commented ? line.substr(1) : line;
    const std::size_t equals = entry.find('=');
    // A remark has a blank behind its ";".
    if (equals == std::string::npos || entry.starts_with(" ")) return std::nullopt;
    return cLine{section, entry.substr(0, equals), entry.substr(equals + 1), commented};
}

// The delivered languages: the numbers of text files and templates.
inline constexpr std::array<const char*, 6> kDeliveredLanguages{"044", "045", "046", "047", "049", "358"};

// The delivered template of a language in place of a station's configuration.
class DefaultConfiguration : public ::testing::Test {
  protected:
    virtual std::string Language() const { return "044"; }
    void SetUp() override {
        m_Content = ReadShareFile("Templates/VigrelReceiver." + Language());
        m_Files.Put(kPath, m_Content);
        m_Categories.ReadDefault(m_Ini);
        m_Categories.ReadCategories(m_Files, m_Ini);
        ReadLines();
    }
    void ReadLines() {
        std::string section;
        for (const std::string& line : SplitLines(m_Content)) {
            if (line.starts_with("[")) {
                section = line.substr(1, line.find(']') - 1);
            } else if (const auto entry = KeyLine(line, section)) {
                m_Lines.push_back(*entry);
            } else if (line.starts_with("; ")) {
                m_Remarks[section] += line.substr(1);
            }
        }
    }
    std::vector<const cCategorySpecificSetting*> AllSettings() const {
        std::vector<const cCategorySpecificSetting*> all{&m_Categories.m_DefaultCategorySetting};
        for (const auto& setting : m_Categories.m_CategorySettings) all.push_back(&setting);
        return all;
    }
    bool HasLine(const std::string& section, const std::string& key) const {
        return std::any_of(m_Lines.begin(), m_Lines.end(),
                           [&](const cLine& line) { return line.section == section && line.key == key; });
    }
    // The key as a line of this kind of section would name it.
    static const cSettingKey* Known(const cLine& line) {
        const cSettingKey* key = FindSettingKey(line.section, line.key);
        // Texts for people are held to the exact spelling.
        return key != nullptr && key->name == line.key ? key : nullptr;
    }

    std::string m_Content;
    vigrel::testing::cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cCategorySettings m_Categories;
    std::vector<cLine> m_Lines;
    std::map<std::string, std::string> m_Remarks;  // by section
};

// The same for each language in turn.
class EveryTemplate : public DefaultConfiguration, public ::testing::WithParamInterface<const char*> {
  protected:
    std::string Language() const override { return GetParam(); }
};

}  // namespace vigrel::testing
