#include "core/first_start.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

#include "core/read_settings.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/faulty_files.h"

namespace vigrel::testing {
namespace {

const std::string kFolder = "C:\\App\\";

class FirstStart : public ::testing::Test {
  protected:
    FirstStart() {
        for (const auto& [number, name, caption] : {std::tuple{"044", "English", "Alarm"},
                                                    {"046", "svenska", "Larm"},
                                                    {"049", "Deutsch", "Alarm"}}) {
            m_Files.Put(kFolder + "Vigrel_Texts." + number, "0=" + std::string(name) + "\r\n");
            m_Files.Put(
                kFolder + "Templates\\VigrelReceiver." + number,
                "; " + std::string(name) +
                    "\r\n[General]\r\nLanguage=\r\nColumns=StateIcon,t0,t4\r\n[StateIcon]\r\nColumnWidth=40"
                    "\r\n[t0]\r\nColumnText=" +
                    caption + "\r\nColumnWidth=200\r\n[t4]\r\nColumnWidth=100\r\n");
        }
    }
    cFirstStart& Start(const cFirstStartHints& hints) {
        m_Start.emplace(m_Files, m_Ini, m_Locale, hints);
        m_Start->Prepare();
        return *m_Start;
    }
    std::string Setting(std::string_view section, std::string_view key) const {
        return m_Ini.GetIniString(section, key, "(none)");
    }
    std::string Template() const { return m_Files.ReadFile(kFolder + "Templates\\VigrelReceiver.oni"); }
    // What the language window does.
    void Choose(std::string_view language) {
        m_Ini.PutIniString("General", "Language", language);
        m_Ini.PutIniString("General", "CountryFilter", "Sweden");
    }

    cFakeFiles m_Files;
    cFakeLocale m_Locale;  // Swedish
    cIni m_Ini{m_Files, kFolder};
    std::optional<cFirstStart> m_Start;
};

TEST_F(FirstStart, TemplateAndConfigurationAreInTheUsersLanguageAndTheLanguageIsAskedFor) {
    Start({});
    EXPECT_EQ(Template(), m_Files.ReadFile(kFolder + "Templates\\VigrelReceiver.046"));
    EXPECT_EQ(m_Files.ReadFile(kFolder + "VigrelReceiver.ini"), Template());
    EXPECT_EQ(Setting("General", "Language"), "");
}

// A look that fails once is no first start: the configuration of years is there.
TEST_F(FirstStart, IsNoneWhereTheConfigurationCannotBeLookedAt) {
    m_Files.Put(kFolder + "VigrelReceiver.INI", "[General]\r\nLanguage=049\r\n");
    for (const eFault fault : {eFault::InputOutput, eFault::TooManyFiles}) {
        for (int call = 0; call < 10; ++call) {
            cFaultyFiles faulty(m_Files);
            faulty.m_Fault = fault;
            faulty.m_First = call;
            faulty.m_Count = 1;
            cIni ini(faulty, kFolder);
            cFirstStart(faulty, ini, m_Locale, {}).Prepare();
            EXPECT_EQ(Setting("General", "Language"), "049") << call;
        }
    }
}

struct cEnd {};

TEST_F(FirstStart, ThatEndsAtAnyMomentLeavesTheNextOneNoHalfConfiguration) {
    const cFirstStartHints hints{"", false, 0, 0, 1024, 768};
    const cFakeFiles before = m_Files;
    Start(hints);
    const std::string whole = m_Files.ReadFile(kFolder + "VigrelReceiver.ini");
    EXPECT_NE(whole.find("Language=046"), std::string::npos);
    bool ended = true;
    for (int calls = 0; ended; ++calls) {
        cFakeFiles files = before;
        int left = calls;
        files.m_OnCall = [&](std::string_view, std::string_view) {
            if (left-- == 0) throw cEnd();
        };
        cIni ini(files, kFolder);
        ended = false;
        try {
            cFirstStart(files, ini, m_Locale, hints).Prepare();
        } catch (const cEnd&) {
            ended = true;
        }
        files.m_OnCall = nullptr;
        cIni next(files, kFolder);
        cFirstStart(files, next, m_Locale, hints).Prepare();
        EXPECT_EQ(files.ReadFile(kFolder + "VigrelReceiver.ini"), whole) << calls;
    }
}

TEST_F(FirstStart, AnUnknownLocaleGetsEnglish) {
    m_Locale.m_EnglishLanguageName = m_Locale.m_NativeLanguageName = "";
    Start({});
    EXPECT_TRUE(Template().starts_with("; English"));
    EXPECT_EQ(Setting("General", "Language"), "");
}

TEST_F(FirstStart, WithoutAScreenTheUsersLanguageIsTaken) {
    Start({"", false});
    EXPECT_EQ(Setting("General", "Language"), "046");
}

TEST_F(FirstStart, TheUsersLanguageCanBeTheFirstOfAll) {
    m_Files.Put(kFolder + "Vigrel_Texts.031", "0=Nederlands\r\n");
    m_Files.Put(kFolder + "Templates\\VigrelReceiver.031", "; Nederlands\r\n[General]\r\nLanguage=\r\n");
    m_Locale.m_EnglishLanguageName = "Dutch";
    m_Locale.m_NativeLanguageName = "Nederlands";
    Start({"", false});
    EXPECT_EQ(Setting("General", "Language"), "031");
}

TEST_F(FirstStart, WithoutAScreenAndAKnownLocaleItIsEnglish) {
    m_Locale.m_EnglishLanguageName = m_Locale.m_NativeLanguageName = "";
    Start({"", false});
    EXPECT_EQ(Setting("General", "Language"), "044");
}

TEST_F(FirstStart, AWishedLanguageIsNotAskedFor) {
    Start({"049"});
    EXPECT_TRUE(Template().starts_with("; Deutsch"));
    EXPECT_EQ(Setting("General", "Language"), "049");
}

TEST_F(FirstStart, AWishForTheLocalesLanguageIsEnglishWhereTheLocaleNamesNone) {
    Start({"locale"});
    EXPECT_EQ(Setting("General", "Language"), "046");
    m_Files.RemoveFile(kFolder + "VigrelReceiver.ini");
    m_Files.RemoveFile(kFolder + "Templates\\VigrelReceiver.oni");
    m_Locale.m_EnglishLanguageName = m_Locale.m_NativeLanguageName = "";
    Start({"locale"});
    EXPECT_EQ(Setting("General", "Language"), "044");
}

TEST_F(FirstStart, AnotherChoiceReplacesTemplateAndConfiguration) {
    cFirstStart& start = Start({"", true, 0, 0, 800, 600});
    Choose("049");
    start.FollowChoice();
    EXPECT_TRUE(Template().starts_with("; Deutsch"));
    EXPECT_EQ(Setting("t0", "ColumnText"), "Alarm");
    EXPECT_EQ(Setting("General", "Language"), "049");
    EXPECT_EQ(Setting("General", "CountryFilter"), "Sweden");
    EXPECT_EQ(Setting("General", "Vigrel_Receiver_Main.Width"), "12000");
}

TEST_F(FirstStart, TheSameChoiceLeavesWhatTheFirstStartMade) {
    cFirstStart& start = Start({});
    m_Ini.PutIniString("General", "Object", "Plant");
    Choose("046");
    start.FollowChoice();
    EXPECT_EQ(Setting("General", "Object"), "Plant");
    EXPECT_EQ(Setting("General", "Language"), "046");
}

TEST_F(FirstStart, WithoutAChoiceNothingFollows) {
    cFirstStart& start = Start({});
    m_Ini.PutIniString("General", "Object", "Plant");
    start.FollowChoice();
    EXPECT_EQ(Setting("General", "Object"), "Plant");
    EXPECT_EQ(Setting("General", "Language"), "");
}

TEST_F(FirstStart, AChosenLanguageWithoutATemplateKeepsTheConfiguration) {
    m_Files.Put(kFolder + "Vigrel_Texts.033",
                "0=fran\xE7"
                "ais\r\n");
    cFirstStart& start = Start({});
    Choose("033");
    start.FollowChoice();
    EXPECT_EQ(Setting("t0", "ColumnText"), "Larm");
    EXPECT_EQ(Setting("General", "Language"), "033");
    EXPECT_EQ(Setting("General", "CountryFilter"), "Sweden");
    EXPECT_TRUE(Template().starts_with("; svenska"));
}

TEST_F(FirstStart, AConfigurationOfAnEarlierStartStaysAtAnotherChoice) {
    Start({});
    m_Ini.PutIniString("General", "Object", "Plant");
    cFirstStart& next = Start({});
    Choose("049");
    next.FollowChoice();
    EXPECT_EQ(Setting("t0", "ColumnText"), "Larm");
    EXPECT_EQ(Setting("General", "Object"), "Plant");
    EXPECT_EQ(Setting("General", "Language"), "049");
}

TEST_F(FirstStart, AFolderWithAConfigurationOrATemplateOfItsOwnIsLeftAlone) {
    m_Files.Put(kFolder + "Templates\\VigrelReceiver.oni", "mine");
    Start({"046"});
    EXPECT_EQ(Template(), "mine");
    EXPECT_FALSE(m_Files.FileExists(kFolder + "VigrelReceiver.INI"));
    m_Files.RemoveFile(kFolder + "Templates\\VigrelReceiver.oni");
    m_Files.Put(kFolder + "VigrelReceiver.INI", "[General]\r\n");
    const int calls = m_Files.m_Calls;
    Start({"046", false, 0, 0, 800, 600});
    EXPECT_EQ(m_Files.m_Calls, calls);
}

TEST_F(FirstStart, WithoutTemplatesNothingIsMade) {
    cFakeFiles empty;
    empty.PutFolder(kFolder);
    cIni ini(empty, kFolder);
    cFirstStart start(empty, ini, m_Locale, {"046", false, 0, 0, 800, 600});
    start.Prepare();
    EXPECT_TRUE(empty.AllPaths().empty());
}

TEST_F(FirstStart, TheWindowTakesWhatTheScreenOffers) {
    Start({"", true, 10, 20, 800, 560});
    EXPECT_EQ(Setting("General", "Vigrel_Receiver_Main.Left"), "150");
    EXPECT_EQ(Setting("General", "Vigrel_Receiver_Main.Top"), "300");
    EXPECT_EQ(Setting("General", "Vigrel_Receiver_Main.Width"), "12000");
    EXPECT_EQ(Setting("General", "Vigrel_Receiver_Main.Height"), "8400");
}

TEST_F(FirstStart, AScreenWithoutRoomToTellOfIsNone) {
    for (const auto& [width, height] : {std::pair{0, 560}, {800, 0}, {-1, 560}, {800, -1}}) {
        cFakeFiles files = m_Files;
        cIni ini(files, kFolder);
        cFirstStart(files, ini, m_Locale, {"", true, 10, 20, width, height}).Prepare();
        EXPECT_EQ(ini.GetIniString("t0", "ColumnText", ""), "Larm");
        EXPECT_EQ(ini.GetIniString("General", "Vigrel_Receiver_Main.Left", "(none)"), "(none)");
        EXPECT_EQ(ini.GetIniString("t0", "ColumnWidth", ""), "200");
    }
}

TEST_F(FirstStart, AScreenOfWhichOnlyTheSizeIsToldBeginsAtItsCorner) {
    const auto placed = [this](const cFirstStartHints& hints) {
        cFakeFiles files = m_Files;
        cIni ini(files, kFolder);
        cFirstStart(files, ini, m_Locale, hints).Prepare();
        return ini.GetIniString("General", "Vigrel_Receiver_Main.Left", "(none)") + " " +
               ini.GetIniString("General", "Vigrel_Receiver_Main.Top", "(none)");
    };
    cFirstStartHints width, height, both;
    width.width = both.width = 800;
    height.height = both.height = 560;
    EXPECT_EQ(placed(width), "(none) (none)");
    EXPECT_EQ(placed(height), "(none) (none)");
    EXPECT_EQ(placed(both), "0 0");
}

TEST_F(FirstStart, ColumnsGetWhatTheWindowLeavesTheAlarmsTextMostOfAll) {
    Start({"", true, 0, 0, 40 + 200 + 100 + 28 + 1000, 600});
    EXPECT_EQ(Setting("StateIcon", "ColumnWidth"), "40");
    EXPECT_EQ(Setting("t0", "ColumnWidth"), "700");
    EXPECT_EQ(Setting("t1", "ColumnWidth"), "300");
    EXPECT_EQ(Setting("t4", "ColumnWidth"), "400");
}

TEST_F(FirstStart, ColumnsKeepTheirWidthOnASmallScreen) {
    Start({"", true, 0, 0, 300, 200});
    EXPECT_EQ(Setting("t0", "ColumnWidth"), "200");
    EXPECT_EQ(Setting("t4", "ColumnWidth"), "100");
}

}  // namespace
}  // namespace vigrel::testing
