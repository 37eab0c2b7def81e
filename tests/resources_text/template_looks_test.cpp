// What the delivered configuration makes of a station: columns, colours, icons, sounds, popups.

#include <filesystem>
#include <fstream>
#include <set>

#include "common/numbers.h"
#include "core/read_settings.h"
#include "events/alarm_list_view.h"
#include "resources_text/default_configuration.h"

namespace vigrel {
namespace {

using namespace vigrel::testing;

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
            EXPECT_GE(Contrast(setting->GetBackColor(status), setting->GetForeColor(status)),
                      kReadableContrast)
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

TEST_F(DefaultConfiguration, EveryIconIsAPictureOfTheStrip) {
    for (const auto* setting : AllSettings()) {
        for (int status = 0; status < 4; ++status) {
            for (const bool observed : {false, true}) {
                const int icon = setting->GetIcon(status, observed);
                const std::string picture =
                    std::string(VIGREL_RESOURCES_DIR) + "/icons/strip/" + Digits(icon, 2) + ".svg";
                EXPECT_TRUE(std::ifstream(picture).good()) << setting->m_Category << ": " << icon;
            }
        }
    }
}

TEST_F(DefaultConfiguration, EverySoundIsDelivered) {
    const std::string folder = "C:\\App\\Sounds\\";
    for (const auto* setting : AllSettings()) {
        EXPECT_TRUE(setting->m_EventSignal == 2 || setting->m_EventSignal == 3) << setting->m_Category;
        ASSERT_TRUE(setting->m_EventSoundFile.starts_with(folder)) << setting->m_EventSoundFile;
        const std::string name = setting->m_EventSoundFile.substr(folder.size());
        EXPECT_TRUE(ReadShareFile("Sounds/" + name).starts_with("RIFF")) << name;
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

TEST_F(DefaultConfiguration, PrintsNothingAndDrivesNoLight) {
    EXPECT_EQ(m_Ini.GetIniString("Printer", "Format", "missing"), "");
    for (const auto* setting : AllSettings()) EXPECT_FALSE(setting->USBLED_Enabled);
}

TEST_F(DefaultConfiguration, MovingPopupsStepThroughSeveralPlaces) {
    const auto number = [&](std::string_view key) { return Val(m_Ini.GetIniString("PopupForm", key, "")); };
    for (const std::string axis : {"X_", "Y_"}) {
        EXPECT_GE((number(axis + "Stop") - number(axis + "Start")) / number(axis + "Step"), 5) << axis;
    }
}

TEST(ImageStrip, HasAPictureForEachNumberUpToTheLast) {
    const std::filesystem::path strip = std::string(VIGREL_RESOURCES_DIR) + "/icons/strip";
    for (int icon = 0; icon <= kLastIcon; ++icon) {
        EXPECT_TRUE(std::filesystem::exists(strip / (Digits(icon, 2) + ".svg"))) << icon;
    }
    EXPECT_FALSE(std::filesystem::exists(strip / (Digits(kLastIcon + 1, 2) + ".svg")));
}

}  // namespace
}  // namespace vigrel
