// What the delivered configuration makes of a station: columns, colours, icons, sounds, popups.

#include <filesystem>
#include <fstream>
#include <set>

#include "common/numbers.h"
#include "core/first_start.h"
#include "core/read_settings.h"
#include "events/alarm_list_view.h"
#include "resources_text/default_configuration.h"

namespace vigrel::testing {
namespace {

using namespace vigrel::testing;

TEST_P(EveryTemplate, ColumnsAreKnownAndBeginWithTheIcon) {
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

// In pixels.
constexpr double kSmallestScreenWidth = 800, kSmallestScreenHeight = 500, kTwipsPerPixel = 15;

TEST_P(EveryTemplate, TheWindowFitsTheSmallestScreen) {
    const auto pixels = [&](const std::string& key) {
        return Val(m_Ini.GetIniString("General", "Vigrel_Receiver_Main." + key, "")) / kTwipsPerPixel;
    };
    EXPECT_GT(pixels("Width"), 600);
    EXPECT_GT(pixels("Height"), 400);
    EXPECT_LE(pixels("Left") + pixels("Width"), kSmallestScreenWidth);
    EXPECT_LE(pixels("Top") + pixels("Height"), kSmallestScreenHeight);
}

// What lies to the right of it is reached by the scroll bar there.
TEST_P(EveryTemplate, TheAlarmsOwnTextIsInViewOnTheSmallestScreen) {
    const std::string columns = m_Ini.GetIniString("General", "Columns", "");
    double width = kBesideColumns;
    std::string column;
    for (std::int16_t i = 0; column != "t0" && !GetField(columns, i, ",").empty(); ++i) {
        column = GetField(columns, i, ",");
        width += Val(m_Ini.GetIniString(column, "ColumnWidth", "100"));
    }
    EXPECT_EQ(column, "t0");
    EXPECT_LE(width, kSmallestScreenWidth);
}

TEST_P(EveryTemplate, AllColumnsFitAnOfficeScreen) {
    const std::string columns = m_Ini.GetIniString("General", "Columns", "");
    double width = kBesideColumns;
    for (std::int16_t i = 0; !GetField(columns, i, ",").empty(); ++i) {
        width += Val(m_Ini.GetIniString(GetField(columns, i, ","), "ColumnWidth", "100"));
    }
    EXPECT_LE(width, 1280);
}

TEST_P(EveryTemplate, TextIsReadableInEveryStateOfEveryCategory) {
    for (const auto* setting : AllSettings()) {
        for (int status = 0; status < 4; ++status) {
            EXPECT_GE(Contrast(setting->GetBackColor(status), setting->GetForeColor(status)),
                      kReadableContrast)
                << "category \"" << setting->m_Category << "\", state " << status;
        }
    }
}

TEST_P(EveryTemplate, StatesDifferInTheirColours) {
    std::set<Colour> grounds;
    for (int status = 0; status < 4; ++status) {
        grounds.insert(m_Categories.m_DefaultCategorySetting.GetBackColor(status));
    }
    EXPECT_EQ(grounds.size(), 4u);
}

// A ground without its own text colour would turn the inherited one into something nobody chose.
TEST_P(EveryTemplate, GroundAndTextAreSetTogether) {
    for (const cLine& line : m_Lines) {
        if (line.key.starts_with("BackColor_")) {
            EXPECT_TRUE(HasLine(line.section, "ForeColor_" + line.key.substr(10))) << line.section;
        }
        if (line.key.starts_with("ForeColor_")) {
            EXPECT_TRUE(HasLine(line.section, "BackColor_" + line.key.substr(10))) << line.section;
        }
    }
}

TEST_P(EveryTemplate, AcknowledgementShowsInEveryIcon) {
    for (const auto* setting : AllSettings()) {
        for (int status = 0; status < 4; ++status) {
            EXPECT_NE(setting->GetIcon(status, false), setting->GetIcon(status, true));
        }
    }
}

TEST_P(EveryTemplate, EveryCategoryHasAnIconOfItsOwnWhenActive) {
    std::set<std::int16_t> icons;
    for (const auto* setting : AllSettings()) icons.insert(setting->GetIcon(1, false));
    EXPECT_EQ(icons.size(), AllSettings().size());
}

TEST_P(EveryTemplate, EveryIconIsAPictureOfTheStrip) {
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

TEST_P(EveryTemplate, EverySoundIsDelivered) {
    const std::string folder = "C:\\App\\Sounds\\";
    for (const auto* setting : AllSettings()) {
        EXPECT_TRUE(setting->m_EventSignal == 2 || setting->m_EventSignal == 3) << setting->m_Category;
        ASSERT_TRUE(setting->m_EventSoundFile.starts_with(folder)) << setting->m_EventSoundFile;
        const std::string name = setting->m_EventSoundFile.substr(folder.size());
        EXPECT_TRUE(ReadShareFile("Sounds/" + name).starts_with("RIFF")) << name;
    }
}

TEST_P(EveryTemplate, TheCategoryOfLostSendersHasASection) {
    const std::string category = m_Ini.GetIniString("General", "SystemErrorCategory", "");
    EXPECT_EQ(m_Categories.Find(category).m_Category, category);
}

TEST_P(EveryTemplate, TheImportantCategoriesOfPopupsHaveSections) {
    const std::string list = m_Ini.GetIniString("General", "PopupFormTopMostCategory", "");
    ASSERT_FALSE(list.empty());
    for (std::int16_t i = 0; !GetField(list, i, ",").empty(); ++i) {
        const std::string category = GetField(list, i, ",");
        EXPECT_EQ(m_Categories.Find(category).m_Category, category);
    }
}

TEST_P(EveryTemplate, SettingsAreReadWithoutAFailure) {
    cSettings settings;
    EXPECT_NO_THROW(ReadSettings(m_Ini, settings, [] {}));
    EXPECT_GE(settings.m_EventFontSize, 10);
    EXPECT_GT(settings.m_MaxEvents, 0);
    EXPECT_GT(settings.m_MaxDays, 0);
    EXPECT_GT(settings.m_KeepForDays, 0);
}

TEST_P(EveryTemplate, PrintsNothingAndDrivesNoLight) {
    EXPECT_EQ(m_Ini.GetIniString("Printer", "Format", "missing"), "");
    for (const auto* setting : AllSettings()) EXPECT_FALSE(setting->USBLED_Enabled);
}

TEST_P(EveryTemplate, MovingPopupsStepThroughSeveralPlacesOfTheSmallestScreen) {
    const auto number = [&](std::string_view key) { return Val(m_Ini.GetIniString("PopupForm", key, "")); };
    for (const std::string axis : {"X_", "Y_"}) {
        EXPECT_GE((number(axis + "Stop") - number(axis + "Start")) / number(axis + "Step"), 5) << axis;
    }
    EXPECT_LE(number("X_Stop") + number("X_Size"), kSmallestScreenWidth);
    EXPECT_LE(number("Y_Stop") + number("Y_Size"), kSmallestScreenHeight);
}

// Five rows and what stands above them, of a window at the top of the screen whose newest row is the first.
TEST_P(EveryTemplate, PopupsLeaveTheNewestRowsInView) {
    constexpr double kAboveRows = 80, kRows = 5;  // pixels; rows
    const double row = Val(m_Ini.GetIniString("General", "EventFontSize", "")) / 72 * 96 + 5;
    EXPECT_EQ(m_Ini.GetIniString("General", "SortDescending", ""), "1");
    EXPECT_GE(Val(m_Ini.GetIniString("PopupForm", "Y_Start", "")), kAboveRows + kRows * row);
}

// A letter of 22 points is 5.5 mm high on a usual screen: seen at 2 m under nine minutes of arc.
TEST_P(EveryTemplate, PopupsAreReadFromTwoMetres) {
    EXPECT_GE(Val(m_Ini.GetIniString("PopupForm", "FontSize", "")), 22);
}

// Captions, category names: what the operator reads is in the language of the station.
TEST_P(EveryTemplate, NoCaptionIsLeftInEnglish) {
    if (Language() == "044") return;
    cFakeFiles english;
    english.Put(kPath, ReadShareFile("Templates/VigrelReceiver.044"));
    const cIni ini(english, "C:\\App\\");
    int same = 0;
    for (const std::string_view column : kColumnKeywords) {
        const std::string caption = m_Ini.GetIniString(column, "ColumnText", "");
        EXPECT_FALSE(caption.empty() && column != "StateIcon") << column;
        if (caption == ini.GetIniString(column, "ColumnText", "")) ++same;
    }
    // "Alarm", "Details", "Text 3" are words of several of the languages.
    EXPECT_LE(same, 5);
}

TEST(ImageStrip, HasAPictureForEachNumberUpToTheLast) {
    const std::filesystem::path strip = std::string(VIGREL_RESOURCES_DIR) + "/icons/strip";
    for (int icon = 0; icon <= kLastIcon; ++icon) {
        EXPECT_TRUE(std::filesystem::exists(strip / (Digits(icon, 2) + ".svg"))) << icon;
    }
    EXPECT_FALSE(std::filesystem::exists(strip / (Digits(kLastIcon + 1, 2) + ".svg")));
}

}  // namespace
}  // namespace vigrel::testing
