#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "categories/cCategorySpecificSetting.h"
#include "common/dates.h"
#include "common/ini.h"
#include "common/numbers.h"
#include "common/text.h"
#include "common/texts.h"
#include "core/read_settings.h"
#include "events/alarm_list_view.h"
#include "resources_text/known_keys.h"
#include "resources_text/share_files.h"
#include "signals/event_text.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"

namespace vigrel {
namespace {

using vigrel::testing::cKnownKey;
using vigrel::testing::eValueKind;
using vigrel::testing::KnownKeys;

constexpr std::string_view kCategoryPrefix = "CategorySpecificSetting_";
constexpr int kIconsOfStrip = 48;
const std::string kPath = "C:\\App\\VigrelReceiver.INI";

// A line "key=value", or ";key=value", with the section above it.
struct cLine {
    std::string section, key, value;
    bool commented;
};

std::optional<cLine> KeyLine(const std::string& line, const std::string& section) {
    const bool commented = line.starts_with(";");
    const std::string entry = commented ? line.substr(1) : line;
    const std::size_t equals = entry.find('=');
    // A remark has a blank behind its ";".
    if (equals == std::string::npos || entry.starts_with(" ")) return std::nullopt;
    return cLine{section, entry.substr(0, equals), entry.substr(equals + 1), commented};
}

class DefaultConfiguration : public ::testing::Test {
  protected:
    void SetUp() override {
        m_Content = vigrel::testing::ReadShareFile("Templates/VigrelReceiver.oni");
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
    static const cKnownKey* Known(const cLine& line) {
        const bool category = line.section.starts_with(kCategoryPrefix);
        const auto& keys = category ? vigrel::testing::CategoryKeys() : KnownKeys();
        const auto found = std::find_if(keys.begin(), keys.end(), [&](const cKnownKey& key) {
            return key.name == line.key && (category || key.section == line.section);
        });
        return found == keys.end() ? nullptr : &*found;
    }

    std::string m_Content;
    vigrel::testing::cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cCategorySettings m_Categories;
    std::vector<cLine> m_Lines;
    std::map<std::string, std::string> m_Remarks;  // by section
};

bool IsWholeNumber(const std::string& text, double low, double high) {
    return IsNumeric(text) && Val(text) == std::floor(Val(text)) && Val(text) >= low && Val(text) <= high;
}

bool AreNumbers(const std::string& text, std::int16_t count, double high) {
    for (std::int16_t i = 0; i < count; ++i) {
        if (!IsWholeNumber(GetField(text, i, ","), 0, high)) return false;
    }
    return GetField(text, count, ",").empty();
}

bool Parses(const std::string& value, eValueKind kind) {
    using int16 = std::numeric_limits<std::int16_t>;
    using int32 = std::numeric_limits<std::int32_t>;
    switch (kind) {
        case eValueKind::Flag:
            return value == "0" || value == "1";
        case eValueKind::Int16:
            return IsWholeNumber(value, int16::min(), int16::max());
        case eValueKind::Int32:
            return IsWholeNumber(value, int32::min(), int32::max());
        case eValueKind::Decimal:
            return IsNumeric(value);
        case eValueKind::Colour:
            return AreNumbers(value, 3, 255);
        case eValueKind::Icons:
            return AreNumbers(value, 2, kIconsOfStrip - 1);
        case eValueKind::Text:
            return true;
    }
    return false;
}

// --- contrast, as the accessibility guidelines for web content compute it

double Luminance(Colour colour) {
    const auto part = [&](int shift) {
        const double value = ((colour >> shift) & 0xFF) / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

double Contrast(Colour a, Colour b) {
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(Contrast, BlackOnWhiteIs21) {
    EXPECT_NEAR(Contrast(0, 0xFFFFFF), 21, 0.001);
}

TEST(Contrast, GreyOnWhiteIsAsPublished) {
    EXPECT_NEAR(Contrast(0x767676, 0xFFFFFF), 4.54, 0.01);
}

// --- the file

TEST_F(DefaultConfiguration, HasEveryKeySetOrCommentedOut) {
    for (const cKnownKey& key : KnownKeys()) {
        EXPECT_TRUE(HasLine(key.section, key.name)) << "[" << key.section << "] " << key.name;
    }
}

TEST_F(DefaultConfiguration, HasNoKeyThatNobodyReads) {
    const std::set<std::string> free{"Senders", "CategoryTranslations", "PrinterPorts"};
    for (const cLine& line : m_Lines) {
        if (free.contains(line.section)) continue;
        EXPECT_NE(Known(line), nullptr) << "[" << line.section << "] " << line.key;
    }
}

// Remarks tell "Key (default VALUE)" or, for keys with the same default, "Key, Key (default VALUE)".
TEST_F(DefaultConfiguration, TellsTheDefaultOfEveryKey) {
    const std::string columns = m_Content.substr(m_Content.find("; Columns. Each has"));
    for (const cKnownKey& key : KnownKeys()) {
        const bool column = key.name.starts_with("Column") && key.section != "General";
        const std::string& remarks = column ? columns : m_Remarks[key.section];
        std::size_t place = remarks.find(" " + key.name + " (default ");
        if (place == std::string::npos) place = remarks.find(" " + key.name + ",");
        ASSERT_NE(place, std::string::npos) << "[" << key.section << "] " << key.name;
        const std::size_t told = remarks.find("(default ", place);
        EXPECT_EQ(remarks.substr(told + 9, key.defaultValue.size() + 1), key.defaultValue + ")") << key.name;
    }
}

TEST_F(DefaultConfiguration, EveryValueParsesAlsoTheOnesCommentedOut) {
    for (const cLine& line : m_Lines) {
        const cKnownKey* key = Known(line);
        if (key != nullptr) {
            EXPECT_TRUE(Parses(line.value, key->kind)) << line.key << "=" << line.value;
        }
    }
}

TEST_F(DefaultConfiguration, NoValueIsLongerThanCanBeRead) {
    for (const cLine& line : m_Lines) EXPECT_LT(line.value.size(), 2048u) << line.key;
}

TEST_F(DefaultConfiguration, NoSectionOrKeyStandsTwice) {
    std::set<std::string> seen;
    for (const cLine& line : m_Lines) {
        if (!line.commented) {
            EXPECT_TRUE(seen.insert(line.section + "/" + line.key).second) << line.key;
        }
    }
    const auto sections = ReadIniEntries(m_Files, "", 8192, kPath).entries;
    EXPECT_EQ(std::set<std::string>(sections.begin(), sections.end()).size(), sections.size());
}

TEST_F(DefaultConfiguration, OnlyCommentsSectionsKeysAndEmptyLines) {
    for (const std::string& line : SplitLines(m_Content)) {
        const bool fits = line.empty() || line[0] == ';' || (line[0] == '[' && line.ends_with("]")) ||
                          (line[0] != ' ' && line.find('=') != std::string::npos);
        EXPECT_TRUE(fits) << line;
    }
}

TEST_F(DefaultConfiguration, EverySectionNameFitsTheBufferTheyAreReadInto) {
    const cIniEntries small = ReadIniEntries(m_Files, "", 8192, kPath);
    const cIniEntries large = ReadIniEntries(m_Files, "", 1u << 20, kPath);
    EXPECT_EQ(small.entries, large.entries);
    EXPECT_LT(large.characters, 8192 / 4) << "leave room for the installer's own categories";
}

TEST_F(DefaultConfiguration, NoSenderIsSetAndTheExamplesAreReadWhenUncommented) {
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

TEST_F(DefaultConfiguration, ColumnsAreKnownAndBeginWithTheIcon) {
    const std::string columns = m_Ini.GetIniString("General", "Columns", "");
    std::vector<std::string> shown;
    for (std::int16_t i = 0; !GetField(columns, i, ",").empty(); ++i) {
        shown.push_back(GetField(columns, i, ","));
    }
    ASSERT_GT(shown.size(), 4u);
    EXPECT_EQ(shown.front(), "StateIcon");
    for (const std::string& keyword : shown) {
        EXPECT_NE(std::find(kColumnKeywords.begin(), kColumnKeywords.end(), keyword), kColumnKeywords.end())
            << keyword;
    }
}

TEST_F(DefaultConfiguration, TheColumnsShownFitTheWindow) {
    const std::string columns = m_Ini.GetIniString("General", "Columns", "");
    double width = 0;
    for (std::int16_t i = 0; !GetField(columns, i, ",").empty(); ++i) {
        width += Val(m_Ini.GetIniString(GetField(columns, i, ","), "ColumnWidth", "100"));
    }
    constexpr double kTwipsPerPixel = 15, kScrollBar = 20;
    EXPECT_LE(width + kScrollBar,
              Val(m_Ini.GetIniString("General", "Vigrel_Receiver_Main.Width", "")) / kTwipsPerPixel);
}

TEST_F(DefaultConfiguration, TextIsReadableInEveryStateOfEveryCategory) {
    for (const auto* setting : AllSettings()) {
        for (int status = 0; status < 4; ++status) {
            EXPECT_GE(Contrast(setting->GetBackColor(status), setting->GetForeColor(status)), 4.5)
                << "category \"" << setting->m_Category << "\", state " << status;
        }
    }
}

TEST_F(DefaultConfiguration, StatesDifferInTheirColours) {
    std::set<Colour> grounds;
    for (int status = 0; status < 4; ++status) {
        grounds.insert(m_Categories.m_DefaultCategorySetting.GetBackColor(status));
    }
    EXPECT_EQ(grounds.size(), 4u);
}

// A ground without its own text colour would turn the inherited one into something nobody chose.
TEST_F(DefaultConfiguration, GroundAndTextAreSetTogether) {
    for (const cLine& line : m_Lines) {
        if (line.key.starts_with("BackColor_")) {
            EXPECT_TRUE(HasLine(line.section, "ForeColor_" + line.key.substr(10))) << line.section;
        }
        if (line.key.starts_with("ForeColor_")) {
            EXPECT_TRUE(HasLine(line.section, "BackColor_" + line.key.substr(10))) << line.section;
        }
    }
}

TEST_F(DefaultConfiguration, AcknowledgementShowsInEveryIcon) {
    for (const auto* setting : AllSettings()) {
        for (int status = 0; status < 4; ++status) {
            EXPECT_NE(setting->GetIcon(status, false), setting->GetIcon(status, true));
        }
    }
}

TEST_F(DefaultConfiguration, EveryCategoryHasAnIconOfItsOwnWhenActive) {
    std::set<std::int16_t> icons;
    for (const auto* setting : AllSettings()) icons.insert(setting->GetIcon(1, false));
    EXPECT_EQ(icons.size(), AllSettings().size());
}

TEST_F(DefaultConfiguration, SignalsNameASoundOfTheApplicationFolder) {
    const std::set<std::string> sounds{"C:\\App\\Sounds\\alarm.wav", "C:\\App\\Sounds\\warning.wav",
                                       "C:\\App\\Sounds\\notice.wav"};
    for (const auto* setting : AllSettings()) {
        EXPECT_TRUE(setting->m_EventSignal == 2 || setting->m_EventSignal == 3) << setting->m_Category;
        EXPECT_TRUE(sounds.contains(setting->m_EventSoundFile)) << setting->m_EventSoundFile;
    }
}

TEST_F(DefaultConfiguration, TheCategoryOfLostSendersHasASection) {
    const std::string category = m_Ini.GetIniString("General", "SystemErrorCategory", "");
    EXPECT_EQ(m_Categories.Find(category).m_Category, category);
}

TEST_F(DefaultConfiguration, TheImportantCategoriesOfPopupsHaveSections) {
    const std::string list = m_Ini.GetIniString("General", "PopupFormTopMostCategory", "");
    ASSERT_FALSE(list.empty());
    for (std::int16_t i = 0; !GetField(list, i, ",").empty(); ++i) {
        const std::string category = GetField(list, i, ",");
        EXPECT_EQ(m_Categories.Find(category).m_Category, category);
    }
}

TEST_F(DefaultConfiguration, SettingsAreReadWithoutAFailure) {
    cSettings settings;
    EXPECT_NO_THROW(ReadSettings(m_Ini, settings, [] {}));
    EXPECT_GE(settings.m_EventFontSize, 10);
    EXPECT_GT(settings.m_MaxEvents, 0);
    EXPECT_GT(settings.m_MaxDays, 0);
    EXPECT_GT(settings.m_KeepForDays, 0);
}

// What the delivered templates make of an event, in English.
class DefaultTemplates : public DefaultConfiguration {
  protected:
    void SetUp() override {
        DefaultConfiguration::SetUp();
        m_Files.Put("C:\\App\\Vigrel_Texts.044", vigrel::testing::ReadShareFile("Vigrel_Texts.044"));
        ReadSettings(m_Ini, m_Settings, [] {});
        m_Ini.PutIniString("General", "Language", "044");
        ASSERT_TRUE(m_Texts.LoadTexts());
    }
    std::string Expand(std::int16_t status, const std::string& text, const std::string& extraText) {
        cVigrelRecieverAlarm alarm(m_Clock);
        alarm.m_Sender = "PLC1";
        alarm.m_Alarm.m_Status = status;
        alarm.m_Alarm.m_TimeStampFromSCADA = DateSerial(2024, 3, 5) + TimeSerial(13, 45, 10);
        alarm.m_Alarm.SetCondition(0, "Smoke in room 12");
        alarm.m_Alarm.SetCondition(1, "Building A");
        alarm.m_Alarm.SetCondition(2, "Fire");
        return m_EventText.ExpandEventText(alarm, text, extraText);
    }

    vigrel::testing::cFakeClock m_Clock;
    cSettings m_Settings;
    cTexts m_Texts{m_Files, m_Ini};
    cLocaleForms m_Forms;
    cEventText m_EventText{m_Settings, m_Texts, m_Ini, m_Forms};
};

TEST_F(DefaultTemplates, APopupTellsStateCategoryTimeSenderTextsAndInstruction) {
    const std::string& format = m_Categories.m_DefaultCategorySetting.m_EventPopupFormat;
    EXPECT_EQ(Expand(1, format, "Call 112"),
              "ALARM: Fire   2024-03-05 13:45:10   PLC1\r\nSmoke in room 12\r\nBuilding A  \r\nCall 112");
    EXPECT_TRUE(Expand(0, format, "").starts_with("No longer active: Fire"));
    EXPECT_TRUE(Expand(2, format, "").starts_with("Acknowledged: Fire"));
}

TEST_F(DefaultTemplates, TheExampleOfAPrintedLineFitsALine) {
    const auto example = std::find_if(m_Lines.begin(), m_Lines.end(), [](const cLine& line) {
        return line.section == "Printer" && line.key == "Format" && line.commented;
    });
    ASSERT_NE(example, m_Lines.end());
    EXPECT_EQ(Expand(1, example->value, ""),
              "ALARM 2024-03-05 13:45:10 PLC1         Fire         Smoke in room 12");
}

TEST_F(DefaultConfiguration, PrintsNothingAndDrivesNoLight) {
    EXPECT_EQ(m_Ini.GetIniString("Printer", "Format", "missing"), "");
    for (const auto* setting : AllSettings()) EXPECT_FALSE(setting->USBLED_Enabled);
}

TEST_F(DefaultConfiguration, AsksForTheLanguageAtTheFirstStart) {
    EXPECT_EQ(m_Ini.GetIniString("General", "Language", "missing"), "");
}

TEST_F(DefaultConfiguration, MovingPopupsStepThroughSeveralPlaces) {
    const auto number = [&](std::string_view key) { return Val(m_Ini.GetIniString("PopupForm", key, "")); };
    for (const std::string axis : {"X_", "Y_"}) {
        EXPECT_GE((number(axis + "Stop") - number(axis + "Start")) / number(axis + "Step"), 5) << axis;
    }
}

TEST_F(DefaultConfiguration, WhatTheProgramWritesReplacesALineInPlace) {
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
}  // namespace vigrel
