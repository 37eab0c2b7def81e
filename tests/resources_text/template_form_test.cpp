// The form of the delivered configuration: complete, readable, explained.

#include <cmath>
#include <set>

#include "common/numbers.h"
#include "events/alarm_list_view.h"
#include "resources_text/default_configuration.h"
#include "resources_text/doc_pages.h"

namespace vigrel::testing {
namespace {

using namespace vigrel::testing;

bool IsWholeNumber(const std::string& text, double low, double high) {
    return IsNumeric(text) && Val(text) == std::floor(Val(text)) && Val(text) >= low && Val(text) <= high;
}

bool AreNumbers(const std::string& text, std::int16_t count, const std::string& separator,
                const cSettingKey& key) {
    for (std::int16_t i = 0; i < count; ++i) {
        if (!IsWholeNumber(GetField(text, i, std::string(separator)), key.low, key.high)) return false;
    }
    return GetField(text, count, std::string(separator)).empty();
}

bool ArePairs(const std::string& text, const cSettingKey& key) {
    for (std::int16_t i = 0; i < 4; ++i) {
        if (!AreNumbers(GetField(text, i, "/"), 2, ",", key)) return false;
    }
    return GetField(text, 4, "/").empty();
}

bool Parses(const std::string& value, const cSettingKey& key) {
    switch (key.kind) {
        case eValueKind::Flag:
        case eValueKind::Int16:
        case eValueKind::Int32:
            return IsWholeNumber(value, key.low, key.high);
        case eValueKind::Decimal:
            return IsNumeric(value) && Val(value) >= key.low && Val(value) <= key.high;
        case eValueKind::Rgb:
            return AreNumbers(value, 3, ",", key);
        case eValueKind::Icons:
            return AreNumbers(value, 2, ",", key);
        case eValueKind::Leds:
            return AreNumbers(value, 4, "/", key);
        case eValueKind::LedPairs:
            return ArePairs(value, key);
        case eValueKind::Text:
            return true;
    }
    return false;
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryTemplate, ::testing::ValuesIn(kDeliveredLanguages));

TEST_P(EveryTemplate, HasEveryKeySetOrCommentedOut) {
    for (const cSettingKey& key : SettingKeys()) {
        EXPECT_TRUE(HasLine(key.section, key.name)) << "[" << key.section << "] " << key.name;
    }
}

TEST_P(EveryTemplate, HasNoKeyThatNobodyReads) {
    const std::set<std::string> free{"Senders", "CategoryTranslations", "PrinterPorts"};
    for (const cLine& line : m_Lines) {
        if (free.contains(line.section)) continue;
        EXPECT_NE(Known(line), nullptr) << "[" << line.section << "] " << line.key;
    }
}

// Remarks tell "Key (default VALUE)" or, for keys with the same default, "Key, Key (default VALUE)".
TEST_P(EveryTemplate, TellsTheDefaultOfEveryKey) {
    const std::string columns = m_Content.substr(m_Content.find("; Columns. Each has"));
    for (const cSettingKey& key : SettingKeys()) {
        const bool column = key.name.starts_with("Column") && key.section != "General";
        const std::string& remarks = column ? columns : m_Remarks[key.section];
        std::size_t place = remarks.find(" " + key.name + " (default ");
        if (place == std::string::npos) place = remarks.find(" " + key.name + ",");
        ASSERT_NE(place, std::string::npos) << "[" << key.section << "] " << key.name;
        const std::size_t told = remarks.find("(default ", place);
        const std::string words = DefaultInWords(key);
        EXPECT_EQ(remarks.substr(told + 9, words.size() + 1), words + ")") << key.name;
    }
}

TEST_P(EveryTemplate, EveryValueParsesAlsoTheOnesCommentedOut) {
    for (const cLine& line : m_Lines) {
        const cSettingKey* key = Known(line);
        if (key != nullptr) {
            EXPECT_TRUE(Parses(line.value, *key)) << line.key << "=" << line.value;
        }
    }
}

TEST_P(EveryTemplate, NoValueIsLongerThanCanBeRead) {
    for (const cLine& line : m_Lines) EXPECT_LT(line.value.size(), 2048u) << line.key;
}

TEST_P(EveryTemplate, NoSectionOrKeyStandsTwice) {
    std::set<std::string> seen;
    for (const cLine& line : m_Lines) {
        if (!line.commented) {
            EXPECT_TRUE(seen.insert(line.section + "/" + line.key).second) << line.key;
        }
    }
    const auto sections = ReadIniEntries(m_Files, "", 8192, kPath).entries;
    EXPECT_EQ(std::set<std::string>(sections.begin(), sections.end()).size(), sections.size());
}

TEST_P(EveryTemplate, OnlyCommentsSectionsKeysAndEmptyLines) {
    for (const std::string& line : SplitLines(m_Content)) {
        const bool fits = line.empty() || line[0] == ';' || (line[0] == '[' && line.ends_with("]")) ||
                          (line[0] != ' ' && line.find('=') != std::string::npos);
        EXPECT_TRUE(fits) << line;
    }
}

TEST_P(EveryTemplate, EverySectionNameFitsTheBufferTheyAreReadInto) {
    const cIniEntries small = ReadIniEntries(m_Files, "", 8192, kPath);
    const cIniEntries large = ReadIniEntries(m_Files, "", 1u << 20, kPath);
    EXPECT_EQ(small.entries, large.entries);
    EXPECT_LT(large.characters, 8192 / 4) << "leave room for the installer's own categories";
}

TEST_P(EveryTemplate, NoSenderIsSetAndTheExamplesAreReadWhenUncommented) {
    EXPECT_TRUE(ReadIniEntries(m_Files, "Senders", 4096, kPath).entries.empty());
    std::vector<std::string> examples;
    for (const cLine& line : m_Lines) {
        if (line.section != "Senders") continue;
        EXPECT_TRUE(IsWholeNumber(line.value, 0, 32767)) << line.key;
        examples.push_back(line.key + "=" + line.value);
    }
    std::string uncommented;
    for (const std::string& line : SplitLines(m_Content)) {
        const auto entry = KeyLine(line, "");
        uncommented += (entry && entry->commented ? line.substr(1) : line) + "\r\n";
    }
    m_Files.Put(kPath, uncommented);
    EXPECT_EQ(ReadIniEntries(m_Files, "Senders", 4096, kPath).entries, examples);
    EXPECT_FALSE(examples.empty());
}

TEST_P(EveryTemplate, AsksForTheLanguageAtTheFirstStart) {
    EXPECT_EQ(m_Ini.GetIniString("General", "Language", "missing"), "");
}

TEST_P(EveryTemplate, WhatTheProgramWritesReplacesALineInPlace) {
    const std::size_t lines = SplitLines(m_Content).size();
    for (const std::string key :
         {"Language", "CountryFilter", "Vigrel_Receiver_Main.Top", "Vigrel_Receiver_Main.Left",
          "Vigrel_Receiver_Main.Height", "Vigrel_Receiver_Main.Width"}) {
        m_Ini.PutIniString("General", key, "046");
    }
    for (const std::string_view column : kColumnKeywords) m_Ini.PutIniString(column, "ColumnWidth", "77");
    EXPECT_EQ(SplitLines(m_Files.ReadFile(kPath)).size(), lines);
}

}  // namespace
}  // namespace vigrel::testing
