// The table of keys is held to those who read them: it names what they ask for, no more and no less.

#include "common/setting_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "common/code_page.h"
#include "common/language_selection.h"
#include "common/numbers.h"
#include "core/form_geometry.h"
#include "core/read_settings.h"
#include "events/alarm_list_view.h"
#include "support/fake_locale.h"
#include "support/fake_popups.h"
#include "support/fake_report_list.h"
#include "support/popup_station.h"

namespace vigrel::testing {
namespace {

// Key by section, with the default that the reader gave.
using Asked = std::map<std::pair<std::string, std::string>, std::string>;

class cListeningIni : public cIni {
  public:
    using cIni::cIni;
    std::string GetIniString(std::string_view section, std::string_view key, std::string_view defaultValue,
                             std::string_view fileName) const override {
        m_Asked[{std::string(section), std::string(key)}] = defaultValue;
        return cIni::GetIniString(section, key, defaultValue, fileName);
    }
    mutable Asked m_Asked;
};

std::string AllColumns() {
    std::string columns;
    for (const std::string_view keyword : kColumnKeywords) {
        columns += (columns.empty() ? "" : ",") + std::string(keyword);
    }
    return columns;
}

// Everything that reads the configuration of a receiver, over one file.
class SettingKeyTable : public ::testing::Test, protected cPopupStation {
  protected:
    void Configure(const std::string& content) { m_Files.Put("C:\\App\\VigrelReceiver.INI", content); }

    void ReadAll() {
        ReadSettings(m_Listening, m_Settings, [] {});
        m_Port = ReadPort(m_Listening);
        m_Address = ReadAddress(m_Listening);
        m_Categories.ReadDefault(m_Listening);
        m_Categories.ReadCategories(m_Files, m_Listening);
        ReadColumns();
        ReadLanguage();
        OpenPopups();
        testing::cFakeWindow main;
        RestoreFormGeometry(main, m_Listening, m_Screen);
    }
    void ReadColumns() {
        testing::cFakeReportList list;
        testing::cFakeClipboard clipboard;
        const cLocaleForms forms;
        cAlarmListView view({list, m_Listening, m_Texts, m_Settings, m_State, forms, m_Screen, clipboard});
        view.SetUpColumns(m_Settings);
    }
    void ReadLanguage() {
        cTexts(m_Files, m_Listening).LoadTexts();
        testing::cFakeLocale locale;
        m_Files.Put("C:\\App\\Vigrel_Texts.002", "0=Other\n");
        cLanguageSelection selection(m_Files, m_Listening, locale);
        selection.Load();
        selection.Select(0);
        selection.Confirm();
    }
    void OpenPopups() {
        testing::cFakeWindowList windows;
        testing::cFakePopupMaker maker(m_Transcript, windows);
        const cPopupServices services = Services(windows, maker);
        cPopups popups({services.settings, services.state, m_Listening, services.texts, services.log,
                        services.clock, services.screen, services.windows, services.maker,
                        services.expandEventText, services.ackAlarm});
        popups.ShowPopup(Alarm("Fire"));
        popups.ShowPopup(Alarm("Fire"));
    }

    cListeningIni m_Listening{m_Files, "C:\\App\\"};
    cCategorySettings m_Categories;
    std::int32_t m_Port = 0;
    std::string m_Address;
};

// What makes every reader ask for everything: a back colour in each state, popups that move.
std::string AskingContent() {
    std::string content = "[General]\nLanguage=001\nColumns=" + AllColumns() + "\n";
    std::string colours;
    for (const std::string_view state : kStateSuffixes) {
        colours += "BackColor_" + std::string(state) + "=1,2,3\n";
    }
    return content + colours + "[CategorySpecificSetting_Fire]\n" + colours +
           "[PopupForm]\nWindowPosition=MOVING\nX_Stop=1000\nY_Stop=1000\n";
}

using Names = std::set<std::string>;

TEST_F(SettingKeyTable, TheTableHasEveryKeyThatSomebodyReadsAndNoOther) {
    Configure(AskingContent());
    ReadAll();
    Names asked;
    for (const auto& [place, defaultValue] : m_Listening.m_Asked) {
        if (!IsCategorySection(place.first)) asked.insert(place.first + "/" + place.second);
    }
    Names known;
    for (const cSettingKey& key : SettingKeys()) {
        // Printer ports are read by the machine's side.
        if (key.section != "PrinterPorts") known.insert(key.section + "/" + key.name);
    }
    EXPECT_EQ(asked, known);
}

TEST_F(SettingKeyTable, ACategorySectionIsAskedForEveryCategoryKeyAndNoOther) {
    Configure(AskingContent());
    ReadAll();
    Names asked, known;
    for (const auto& [place, defaultValue] : m_Listening.m_Asked) {
        if (place.first == "CategorySpecificSetting_Fire") asked.insert(place.second);
    }
    for (const cSettingKey& key : CategoryKeys()) known.insert(key.name);
    EXPECT_EQ(asked, known);
    EXPECT_EQ(known.size(), 52u);
}

TEST_F(SettingKeyTable, ReadersGiveTheDefaultsOfTheTable) {
    Configure(AskingContent());
    ReadAll();
    for (const cSettingKey& key : SettingKeys()) {
        // Pictures and colours come from an empty object, not from a text: tested below.
        if (key.section == "PrinterPorts" || key.kind == eValueKind::Icons || key.kind == eValueKind::Rgb)
            continue;
        EXPECT_EQ((m_Listening.m_Asked[{key.section, key.name}]), key.defaultValue)
            << "[" << key.section << "] " << key.name;
    }
}

std::string Look(const cCategorySpecificSetting& setting) {
    std::string look;
    for (int status = 0; status < 4; ++status) {
        look += std::to_string(setting.GetIcon(status, false)) + "," +
                std::to_string(setting.GetIcon(status, true)) + "," +
                std::to_string(setting.GetBackColor(status)) + "," +
                std::to_string(setting.GetForeColor(status)) + ";";
    }
    return look;
}

TEST_F(SettingKeyTable, PicturesAndColoursOfTheTableAreThoseOfAnEmptyFile) {
    Configure("");
    m_Categories.ReadDefault(m_Listening);
    const std::string empty = Look(m_Categories.m_DefaultCategorySetting);
    std::string content = "[General]\n";
    for (const cSettingKey& key : CategoryKeys()) {
        if (key.kind == eValueKind::Icons || key.kind == eValueKind::Rgb)
            content += key.name + "=" + key.defaultValue + "\n";
    }
    Configure(content);
    m_Categories.ReadDefault(m_Listening);
    EXPECT_EQ(Look(m_Categories.m_DefaultCategorySetting), empty);
}

// A value of the kind that is not the default.
std::string OtherValue(const cSettingKey& key) {
    switch (key.kind) {
        case eValueKind::Flag:
            return key.defaultValue == "1" ? "0" : "1";
        case eValueKind::Text:
            return "other";
        default:
            return NumberText(Val(key.defaultValue) + 1);
    }
}

TEST_F(SettingKeyTable, EachKeyThatTheReceiverReadsAtStartChangesItsSettings) {
    const Names elsewhere{"Columns",
                          "ColumnResizable",
                          "ColumnSortable",
                          "ColumnWidthStore",
                          "Object",
                          "Language",
                          "CountryFilter",
                          "Vigrel_Receiver_Main.Top",
                          "Vigrel_Receiver_Main.Left",
                          "Vigrel_Receiver_Main.Height",
                          "Vigrel_Receiver_Main.Width"};
    int keys = 0;
    for (const cSettingKey& key : SettingKeys()) {
        const bool category = FindSettingKey("CategorySpecificSetting_X", key.name) != nullptr;
        if ((key.section != "General" && key.section != "Printer") || category ||
            elsewhere.contains(key.name))
            continue;
        // ISOLatConv is on at any number but 0.
        const std::string value = key.name == "ISOLatConv" ? "0" : OtherValue(key);
        Configure("[" + key.section + "]\n" + key.name + "=" + value + "\n");
        cSettings settings;
        ReadSettings(m_Listening, settings, [] {});
        EXPECT_NE(settings, cSettings()) << key.name;
        Configure("[" + key.section + "]\n" + key.name + "=" + key.defaultValue + "\n");
        settings = {};
        ReadSettings(m_Listening, settings, [] {});
        EXPECT_EQ(settings, cSettings()) << key.name;
        ++keys;
    }
    EXPECT_EQ(keys, 28);
}

TEST_F(SettingKeyTable, AFlagIsZeroOrOne) {
    int flags = 0;
    for (const cSettingKey& key : SettingKeys()) {
        if (key.kind != eValueKind::Flag) continue;
        ++flags;
        EXPECT_EQ(key.low, 0) << key.name;
        EXPECT_EQ(key.high, 1) << key.name;
    }
    EXPECT_GT(flags, 10);
}

TEST_F(SettingKeyTable, KeysAreFoundInAnyCaseAndCategoryKeysInEverySectionOfACategory) {
    const cSettingKey* key = FindSettingKey("GENERAL", "maxevents");
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->name, "MaxEvents");
    EXPECT_NE(FindSettingKey("categoryspecificsetting_Fire", "ICON_ACTIVE"), nullptr);
    EXPECT_NE(FindSettingKey("General", "Icon_Active"), nullptr);
    EXPECT_EQ(FindSettingKey("CategorySpecificSetting_Fire", "MaxEvents"), nullptr);
    EXPECT_EQ(FindSettingKey("TCPIP", "MaxEvents"), nullptr);
    EXPECT_NE(FindSettingKey("t2", "ColumnWidth"), nullptr);
}

TEST_F(SettingKeyTable, DefaultsLieInTheRangeOfTheirKeys) {
    for (const cSettingKey& key : SettingKeys()) {
        if (key.kind == eValueKind::Text || key.kind == eValueKind::Leds || key.kind == eValueKind::LedPairs)
            continue;
        EXPECT_GE(Val(key.defaultValue), key.low) << key.name;
        EXPECT_LE(Val(key.defaultValue), key.high) << key.name;
    }
}

}  // namespace
}  // namespace vigrel::testing
