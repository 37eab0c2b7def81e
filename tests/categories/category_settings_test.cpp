#include <gtest/gtest.h>

#include "categories/category_specific_setting.h"
#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

class CategorySettings : public ::testing::Test {
  protected:
    void Read(const std::string& content) {
        files.Put("C:\\App\\VigrelReceiver.INI", content);
        settings = cCategorySettings();
        settings.ReadDefault(ini);
        settings.ReadCategories(files, ini);
    }
    const cCategorySpecificSetting& General() const { return settings.m_DefaultCategorySetting; }
    const cCategorySpecificSetting& First() const { return settings.m_CategorySettings.at(0); }

    cFakeFiles files;
    cIni ini{files, "C:\\App\\"};
    cCategorySettings settings;
};

TEST(ColorFromText, ThreeNumbersAreRedGreenBlue) {
    EXPECT_EQ(ColorFromText("1,2,3"), 0x030201);
    EXPECT_EQ(ColorFromText(" 255 , 0 , 128 "), 0x8000FF);
}

TEST(ColorFromText, AMissingFieldIsZeroAndALargeOneIs255) {
    EXPECT_EQ(ColorFromText("10"), 10);
    EXPECT_EQ(ColorFromText("10,,20"), 0x14000A);
    EXPECT_EQ(ColorFromText("256,32767,0"), 0x00FFFF);
    EXPECT_EQ(ColorFromText(""), 0);
    EXPECT_EQ(ColorFromText("red"), 0);
}

TEST(ColorFromText, ANegativeOrTooLargeNumberLeavesWhite) {
    EXPECT_EQ(ColorFromText("-1,0,0"), 0xFFFFFF);
    EXPECT_EQ(ColorFromText("0,0,32768"), 0xFFFFFF);
}

TEST_F(CategorySettings, WithoutColourKeysEverythingIsBlackOnBlack) {
    Read("[General]\r\n");
    for (int status = 0; status < 4; ++status) {
        EXPECT_EQ(General().GetBackColor(status), 0);
        EXPECT_EQ(General().GetForeColor(status), 0);
        EXPECT_EQ(General().GetIcon(status, false), 0);
        EXPECT_EQ(General().GetIcon(status, true), 0);
        EXPECT_EQ(General().GetFontBold(status), 0);
        EXPECT_EQ(General().GetFontItalic(status), 0);
    }
    EXPECT_EQ(General().m_EventSignal, 0);
    EXPECT_EQ(General().m_EventPopupFormat, "");
    EXPECT_EQ(General().m_ExtraText, "");
    EXPECT_EQ(General().m_Category, "");
    EXPECT_FALSE(General().USBLED_Enabled);
}

TEST_F(CategorySettings, EveryKeyIsReadForEachState) {
    std::string content = "[General]\r\n";
    const char* states[] = {"Inactive", "Active", "Acked", "Message"};
    for (int i = 0; i < 4; ++i) {
        const std::string n = std::to_string(i + 1);
        const std::string s = states[i];
        content += "Icon_" + s + "=" + n + "," + n + "0\r\nBackColor_" + s + "=" + n + ",0,0\r\nForeColor_" +
                   s + "=0," + n + ",0\r\nFontBold_" + s + "=" + n + "\r\nFontItalic_" + s + "=-" + n +
                   "\r\nUSBLED_DeviceName_" + s + "= L" + n + " \r\nUSBLED_Control_" + s + "= " + n +
                   "/0 \r\nUSBLED_FreqDuty_" + s + "=1," + n + "\r\nUSBLED_InitialPhaseDelay_" + s + "=" + n +
                   "/1\r\nUSBLED_Power_" + s + "=" + n + "\r\nUSBLED_PreScalar_" + s + "=" + n +
                   "\r\nUSBLED_SyncLeds_" + s + "=" + n + "\r\n";
    }
    Read(content);
    for (int i = 0; i < 4; ++i) {
        const std::string n = std::to_string(i + 1);
        EXPECT_EQ(General().GetIcon(i, false), i + 1);
        EXPECT_EQ(General().GetIcon(i, true), (i + 1) * 10);
        EXPECT_EQ(General().GetBackColor(i), i + 1);
        EXPECT_EQ(General().GetForeColor(i), (i + 1) * 256);
        EXPECT_EQ(General().GetFontBold(i), i + 1);
        EXPECT_EQ(General().GetFontItalic(i), -(i + 1));
        EXPECT_EQ(General().Get_USBLED_DeviceName(i), "L" + n);
        EXPECT_EQ(General().Get_USBLED_Control(i), n + "/0");
        EXPECT_EQ(General().Get_USBLED_FreqDuty(i), "1," + n);
        EXPECT_EQ(General().Get_USBLED_InitialPhaseDelay(i), n + "/1");
        EXPECT_EQ(General().Get_USBLED_Power(i), n);
        EXPECT_EQ(General().Get_USBLED_PreScalar(i), i + 1);
        EXPECT_EQ(General().Get_USBLED_SyncLeds(i), True16);
    }
    EXPECT_TRUE(General().USBLED_Enabled);
}

TEST_F(CategorySettings, TheSignalLightsKeysHaveTheirDefaults) {
    Read("[General]\r\n");
    EXPECT_EQ(General().Get_USBLED_DeviceName(1), "");
    EXPECT_EQ(General().Get_USBLED_Control(1), "");
    EXPECT_EQ(General().Get_USBLED_FreqDuty(1), "50,50/50,50/50,50/50,50");
    EXPECT_EQ(General().Get_USBLED_InitialPhaseDelay(1), "");
    EXPECT_EQ(General().Get_USBLED_Power(1), "100/100/100/100");
    EXPECT_EQ(General().Get_USBLED_PreScalar(1), 10);
    EXPECT_EQ(General().Get_USBLED_SyncLeds(1), False16);
}

TEST_F(CategorySettings, ACategoryInheritsAllButTheSignalLight) {
    Read(
        "[General]\r\nIcon_Active=4,5\r\nBackColor_Active=1,2,3\r\nForeColor_Active=4,5,6\r\nFontBold_Active="
        "1\r\n"
        "FontItalic_Active=1\r\nEventSignal=3\r\nEventSoundFile=Sounds\\a.wav\r\nEventPopupFormat=[T0]\r\n"
        "USBLED_DeviceName_Active=L1\r\nUSBLED_Control_Active=1\r\nUSBLED_PreScalar_Active=99\r\n"
        "[CategorySpecificSetting_Fire]\r\nExtraText=call 112\r\n");
    EXPECT_EQ(First().m_Category, "Fire");
    EXPECT_EQ(First().GetIcon(1, false), 4);
    EXPECT_EQ(First().GetIcon(1, true), 5);
    EXPECT_EQ(First().GetBackColor(1), 0x030201);
    EXPECT_EQ(First().GetForeColor(1), 0x060504);
    EXPECT_EQ(First().GetFontBold(1), 1);
    EXPECT_EQ(First().GetFontItalic(1), 1);
    EXPECT_EQ(First().m_EventSignal, 3);
    EXPECT_EQ(First().m_EventSoundFile, "C:\\App\\Sounds\\a.wav");
    EXPECT_EQ(First().m_EventPopupFormat, "[T0]");
    EXPECT_EQ(First().m_ExtraText, "call 112");
    EXPECT_EQ(General().m_ExtraText, "");
    EXPECT_EQ(First().Get_USBLED_DeviceName(1), "");
    EXPECT_EQ(First().Get_USBLED_Control(1), "");
    EXPECT_EQ(First().Get_USBLED_PreScalar(1), 10);
    EXPECT_FALSE(First().USBLED_Enabled);
}

TEST_F(CategorySettings, OneIconNumberSetsTheSecondToZero) {
    Read("[General]\r\nIcon_Acked=5\r\nIcon_Active=7,8\r\n[CategorySpecificSetting_F]\r\nIcon_Active=9\r\n");
    EXPECT_EQ(General().GetIcon(2, false), 5);
    EXPECT_EQ(General().GetIcon(2, true), 0);
    EXPECT_EQ(First().GetIcon(1, false), 9);
    EXPECT_EQ(First().GetIcon(1, true), 0);
}

TEST_F(CategorySettings, AForeColourAloneHasNoEffect) {
    Read("[General]\r\nForeColor_Active=1,2,3\r\n");
    EXPECT_EQ(General().GetForeColor(1), 0);
}

TEST_F(CategorySettings, ABackColourAloneTakesTheParentsForeColourAsOneNumber) {
    const auto foreColour = [this](const std::string& parent) {
        Read("[General]\r\nBackColor_Active=9,9,9\r\nForeColor_Active=" + parent +
             "\r\n[CategorySpecificSetting_F]\r\nBackColor_Active=1,1,1\r\n");
        return First().GetForeColor(1);
    };
    EXPECT_EQ(foreColour("0,0,0"), 0);
    EXPECT_EQ(foreColour("200,0,0"), 200);
    EXPECT_EQ(foreColour("0,1,0"), 255);         // 256
    EXPECT_EQ(foreColour("255,127,0"), 255);     // 32,767
    EXPECT_EQ(foreColour("0,128,0"), 0xFFFFFF);  // 32,768
    EXPECT_EQ(foreColour("0,255,0"), 0xFFFFFF);  // 65,280
}

TEST_F(CategorySettings, ARelativeSoundFileLiesInTheApplicationFolder) {
    const auto soundFile = [this](const std::string& value) {
        Read("[General]\r\nEventSoundFile=" + value + "\r\n[CategorySpecificSetting_F]\r\n");
        EXPECT_EQ(First().m_EventSoundFile, General().m_EventSoundFile);
        return General().m_EventSoundFile;
    };
    EXPECT_EQ(soundFile("Sounds\\a.wav"), "C:\\App\\Sounds\\a.wav");
    EXPECT_EQ(soundFile("D:\\a.wav"), "D:\\a.wav");
    EXPECT_EQ(soundFile("\\\\server\\a.wav"), "\\\\server\\a.wav");
    EXPECT_EQ(soundFile("/usr/share/a.wav"), "/usr/share/a.wav");
    EXPECT_EQ(soundFile(""), "C:\\App\\");
}

TEST_F(CategorySettings, ARootOrADriveMakesASoundFilesPathFull) {
    for (const char* full : {"\\a.wav", "/a.wav", "\\\\server\\a.wav", "C:", "c:a.wav", "\\"}) {
        Read(std::string("[General]\r\nEventSoundFile=") + full + "\r\n");
        EXPECT_EQ(General().m_EventSoundFile, full);
    }
    for (const char* relative : {"a", "a\\b.wav", "a/b.wav", "ab:c", ":a"}) {
        Read(std::string("[General]\r\nEventSoundFile=") + relative + "\r\n");
        EXPECT_EQ(General().m_EventSoundFile, std::string("C:\\App\\") + relative);
    }
}

TEST_F(CategorySettings, AnInheritedSoundFileStaysAsItIsBelowARootedApplicationFolder) {
    files.Put("/home/u/VigrelReceiver.INI",
              "[General]\r\nEventSoundFile=a.wav\r\n[CategorySpecificSetting_F]\r\n");
    const cIni rooted(files, "/home/u\\");
    settings.ReadDefault(rooted);
    settings.ReadCategories(files, rooted);
    EXPECT_EQ(General().m_EventSoundFile, "/home/u\\a.wav");
    EXPECT_EQ(First().m_EventSoundFile, "/home/u\\a.wav");
}

TEST_F(CategorySettings, SectionsAreRecognisedInAnyCaseAndNamesTrimmed) {
    Read(
        "[categoryspecificsetting_ Fire "
        "]\r\nExtraText=x\r\n[CATEGORYSPECIFICSETTING_GAS]\r\n[CategorySpecificSetting]\r\n");
    ASSERT_EQ(settings.m_CategorySettings.size(), 2u);
    EXPECT_EQ(First().m_Category, "Fire");
    EXPECT_EQ(First().m_ExtraText, "x");
    EXPECT_EQ(settings.m_CategorySettings[1].m_Category, "GAS");
}

TEST_F(CategorySettings, OfTwoSectionsThatDifferInCaseTheFirstWins) {
    Read(
        "[CategorySpecificSetting_fire]\r\nExtraText=a\r\n[CategorySpecificSetting_FIRE]\r\nExtraText=b\r\n");
    EXPECT_EQ(settings.m_CategorySettings.size(), 2u);
    EXPECT_EQ(&settings.Find("Fire"), &settings.m_CategorySettings[0]);
    EXPECT_EQ(&settings.Find("Gas"), &settings.m_DefaultCategorySetting);
    EXPECT_EQ(&settings.Find(" fire"), &settings.m_DefaultCategorySetting);
}

TEST_F(CategorySettings, CategoriesBeyondTheBufferOfSectionNamesAreNotSeen) {
    std::string content;
    for (int i = 0; i < 200; ++i)
        content += "[CategorySpecificSetting_" + std::string(60, 'x') + std::to_string(i) + "]\r\n";
    Read(content);
    EXPECT_GT(settings.m_CategorySettings.size(), 80u);
    EXPECT_LT(settings.m_CategorySettings.size(), 100u);
}

TEST_F(CategorySettings, TheBufferOfSectionNamesHolds8192Characters) {
    // 127 names of 64 with their zeros come to 8,128; the last must end below 8,192.
    std::string full;
    for (int i = 100; i < 227; ++i)
        full += "[CategorySpecificSetting_" + std::string(36, 'x') + std::to_string(i) + "]\r\n";
    for (const auto& [length, seen] : {std::pair{38u, 128u}, {39u, 127u}}) {
        Read(full + "[CategorySpecificSetting_" + std::string(length, 'y') + "]\r\n");
        EXPECT_EQ(settings.m_CategorySettings.size(), seen);
    }
}

TEST_F(CategorySettings, BlanksInQuotesAreSet) {
    Read(
        "[General]\r\nIcon_Active=4,5\r\nBackColor_Active=1,2,3\r\nForeColor_Active=0,0,9\r\n"
        "[CategorySpecificSetting_Fire]\r\nIcon_Active=\"  \"\r\nBackColor_Active=\"  \"\r\n"
        "ForeColor_Active=7,0,0\r\n");
    EXPECT_EQ(First().GetIcon(1, false), 0);
    EXPECT_EQ(First().GetIcon(1, true), 0);
    EXPECT_EQ(First().GetBackColor(1), 0);
    EXPECT_EQ(First().GetForeColor(1), 7);
}

TEST_F(CategorySettings, TheSignalLightsValuesAreTrimmed) {
    std::string content = "[General]\r\n";
    for (const char* key : {"DeviceName", "Control", "FreqDuty", "InitialPhaseDelay", "Power"})
        content += std::string("USBLED_") + key + "_Active=\"  1/2  \"\r\n";
    Read(content + "USBLED_DeviceName_Acked=\"   \"\r\n");
    EXPECT_EQ(General().Get_USBLED_DeviceName(1), "1/2");
    EXPECT_EQ(General().Get_USBLED_Control(1), "1/2");
    EXPECT_EQ(General().Get_USBLED_FreqDuty(1), "1/2");
    EXPECT_EQ(General().Get_USBLED_InitialPhaseDelay(1), "1/2");
    EXPECT_EQ(General().Get_USBLED_Power(1), "1/2");
    EXPECT_EQ(General().Get_USBLED_DeviceName(2), "");
    Read("[General]\r\nUSBLED_DeviceName_Acked=\"   \"\r\n");
    EXPECT_FALSE(General().USBLED_Enabled);
}

TEST_F(CategorySettings, EveryNumberButZeroSynchronisesTheLight) {
    for (const auto& [number, sync] :
         {std::pair{"-1", True16}, {"2", True16}, {"0", False16}, {"x", False16}}) {
        Read(std::string("[General]\r\nUSBLED_SyncLeds_Active=") + number + "\r\n");
        EXPECT_EQ(General().Get_USBLED_SyncLeds(1), sync) << number;
    }
}

TEST_F(CategorySettings, ALightOfTheGeneralSettingsEnablesNoCategory) {
    Read("[General]\r\nUSBLED_DeviceName_Active=L1\r\n[CategorySpecificSetting_Fire]\r\nExtraText=x\r\n");
    EXPECT_TRUE(General().USBLED_Enabled);
    EXPECT_FALSE(First().USBLED_Enabled);
}

TEST_F(CategorySettings, ANumberThatDoesNotFitIsSkipped) {
    Read(
        "[General]\r\nFontBold_Active=99999\r\nEventSignal=99999\r\nIcon_Active=99999,7\r\nUSBLED_PreScalar_"
        "Active=1e9\r\n");
    EXPECT_EQ(General().GetFontBold(1), 0);
    EXPECT_EQ(General().m_EventSignal, 0);
    EXPECT_EQ(General().GetIcon(1, false), 0);
    EXPECT_EQ(General().GetIcon(1, true), 7);
    EXPECT_EQ(General().Get_USBLED_PreScalar(1), 0);
}

TEST_F(CategorySettings, AStatusOutsideItsRangeIsRefused) {
    EXPECT_THROW(General().GetBackColor(4), cFailure);
    EXPECT_THROW(General().GetIcon(-1, true), cFailure);
}

TEST_F(CategorySettings, AFileThatCannotBeReadIsAFailureSinceACategoryWouldSoundLikeAnyOther) {
    Read("[CategorySpecificSetting_Fire]\r\nEventSignal=3\r\n");
    cCategorySettings again;
    files.SetUnreadable("C:\\App\\VigrelReceiver.INI", true);
    const auto failure = CatchFailure([&] { again.ReadCategories(files, ini); });
    ASSERT_TRUE(failure);
    EXPECT_NE(std::string(failure->what()).find("C:\\App\\VigrelReceiver.INI"), std::string::npos);
    EXPECT_TRUE(again.m_CategorySettings.empty());
}

TEST_F(CategorySettings, AMissingFileHasNoCategories) {
    settings.ReadCategories(files, ini);
    EXPECT_TRUE(settings.m_CategorySettings.empty());
}

}  // namespace
}  // namespace vigrel::testing
