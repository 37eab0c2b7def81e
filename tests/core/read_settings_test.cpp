#include "core/read_settings.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

class SettingsReading : public ::testing::Test {
  protected:
    cSettings Read(const std::string& content) {
        files.Put("C:\\App\\VigrelReceiver.INI", content);
        cSettings read;
        ReadSettings(ini, read, [this] { ++fontReads; });
        return read;
    }
    cSettings General(const std::string& lines) { return Read("[General]\r\n" + lines + "\r\n"); }
    cSettings Printer(const std::string& lines) { return Read("[Printer]\r\n" + lines + "\r\n"); }

    cFakeFiles files;
    cIni ini{files, "C:\\App\\"};
    int fontReads = 0;
};

void ExpectDefaults(const cSettings& s) {
    EXPECT_EQ(s.m_MaxEvents, 1000);
    EXPECT_EQ(s.m_MaxDays, 30);
    EXPECT_EQ(s.m_PopupFormTopMostCategory, "");
    EXPECT_FALSE(s.m_ViewOnlyOnePopupForm);
    EXPECT_EQ(s.m_DateFormat, "Short Date");
    EXPECT_EQ(s.m_TimeFormat, "Long Time");
    EXPECT_TRUE(s.m_ShowInTaskBar);
    EXPECT_TRUE(s.m_AutoResetKeepAliveTimer);
    EXPECT_EQ(s.m_EventSoundFileDelay, 0);
    EXPECT_TRUE(s.m_EventRestore);
    EXPECT_FALSE(s.m_EventSignalOnlyForActive);
    EXPECT_FALSE(s.m_EventSignalStopByNotifyClick);
    EXPECT_FALSE(s.m_EventRestoreOnlyForActive);
    EXPECT_FALSE(s.m_ViewPopupForm);
    EXPECT_FALSE(s.m_PopupFormOnlyForActive);
    EXPECT_FALSE(s.m_AckEventWhenPopupFormIsClosed);
    EXPECT_EQ(s.m_SystemErrorCategory, "Vigrel");
    EXPECT_FALSE(s.m_DisableShutdown);
    EXPECT_FALSE(s.m_EventSignalUntilNoMorePopupForms);
    EXPECT_EQ(s.m_EventFontName, "Arial");
    EXPECT_EQ(s.m_EventFontSize, 12);
    EXPECT_EQ(s.m_ViewOnlyPopupFormForCategory, "");
    EXPECT_FALSE(s.m_PreventMinimize);
    EXPECT_FALSE(s.m_SortDescending);
    EXPECT_EQ(s.m_PrinterPort, 1);
    EXPECT_TRUE(s.m_PrinterISOLatConv);
    EXPECT_EQ(s.m_PrinterFormat, "");
    EXPECT_EQ(s.m_KeepForDays, 0);
}

TEST_F(SettingsReading, AnEmptyFileGivesAllDefaults) {
    ExpectDefaults(Read(""));
    EXPECT_EQ(ReadPort(ini), 12412);
    EXPECT_EQ(fontReads, 1);
}

TEST_F(SettingsReading, AMissingFileGivesAllDefaults) {
    cSettings read;
    ReadSettings(ini, read, [] {});
    ExpectDefaults(read);
    EXPECT_EQ(ReadPort(ini), 12412);
}

TEST_F(SettingsReading, AFlagIsTrueOnlyAtExactlyOne) {
    EXPECT_FALSE(General("ShowInTaskBar=2").m_ShowInTaskBar);
    EXPECT_FALSE(General("ShowInTaskBar=-1").m_ShowInTaskBar);
    EXPECT_FALSE(General("ShowInTaskBar=yes").m_ShowInTaskBar);
    EXPECT_FALSE(General("ShowInTaskBar=true").m_ShowInTaskBar);
    EXPECT_FALSE(General("ShowInTaskBar=").m_ShowInTaskBar);
    EXPECT_FALSE(General("ShowInTaskBar=1.5").m_ShowInTaskBar);
    EXPECT_TRUE(General("ShowInTaskBar=1").m_ShowInTaskBar);
    EXPECT_TRUE(General("ShowInTaskBar= 1 and more").m_ShowInTaskBar);
    EXPECT_TRUE(General("SHOWINTASKBAR=1.0").m_ShowInTaskBar);
}

TEST_F(SettingsReading, EveryFlagIsReadFromItsOwnKey) {
    const std::pair<const char*, bool cSettings::*> flags[] = {
        {"ViewOnlyOnePopupForm", &cSettings::m_ViewOnlyOnePopupForm},
        {"ShowInTaskBar", &cSettings::m_ShowInTaskBar},
        {"AutoResetKeepAliveTimer", &cSettings::m_AutoResetKeepAliveTimer},
        {"EventRestore", &cSettings::m_EventRestore},
        {"EventSignalOnlyForActive", &cSettings::m_EventSignalOnlyForActive},
        {"EventSignalStopByNotifyClick", &cSettings::m_EventSignalStopByNotifyClick},
        {"EventRestoreOnlyForActive", &cSettings::m_EventRestoreOnlyForActive},
        {"ViewPopupForm", &cSettings::m_ViewPopupForm},
        {"PopupFormOnlyForActive", &cSettings::m_PopupFormOnlyForActive},
        {"AckEventWhenPopupFormIsClosed", &cSettings::m_AckEventWhenPopupFormIsClosed},
        {"DisableShutdown", &cSettings::m_DisableShutdown},
        {"EventSignalUntilNoMorePopupForms", &cSettings::m_EventSignalUntilNoMorePopupForms},
        {"PreventMinimize", &cSettings::m_PreventMinimize},
        {"SortDescending", &cSettings::m_SortDescending}};
    const cSettings defaults;
    for (const auto& [key, flag] : flags) {
        const bool other = !(defaults.*flag);
        const cSettings read = General(std::string(key) + "=" + (other ? "1" : "0"));
        for (const auto& [otherKey, otherFlag] : flags) {
            EXPECT_EQ(read.*otherFlag, otherFlag == flag ? other : defaults.*otherFlag)
                << key << " " << otherKey;
        }
    }
}

TEST_F(SettingsReading, NumbersAndTextsAreRead) {
    const cSettings s = General(
        "MaxEvents=5\r\nMaxDays=-1\r\nEventSoundFileDelay=700\r\nDateFormat=yyyy-mm-dd\r\nTimeFormat=hh:"
        "nn\r\n"
        "SystemErrorCategory=System\r\nEventFontName=DejaVu Sans\r\nEventFontSize=10.5\r\nKeepForDays=14");
    EXPECT_EQ(s.m_MaxEvents, 5);
    EXPECT_EQ(s.m_MaxDays, -1);
    EXPECT_EQ(s.m_EventSoundFileDelay, 700);
    EXPECT_EQ(s.m_DateFormat, "yyyy-mm-dd");
    EXPECT_EQ(s.m_TimeFormat, "hh:nn");
    EXPECT_EQ(s.m_SystemErrorCategory, "System");
    EXPECT_EQ(s.m_EventFontName, "DejaVu Sans");
    EXPECT_EQ(s.m_EventFontSize, 10.5);
    EXPECT_EQ(s.m_KeepForDays, 14);
}

TEST_F(SettingsReading, ACommaEndsANumber) {
    EXPECT_EQ(General("EventFontSize=10,5").m_EventFontSize, 10);
}

TEST_F(SettingsReading, RubbishBehindANumberIsIgnoredAndRubbishAloneIsZero) {
    EXPECT_EQ(General("MaxEvents=50 alarms").m_MaxEvents, 50);
    EXPECT_EQ(General("MaxEvents=many").m_MaxEvents, 0);
    EXPECT_EQ(General("MaxEvents=2.5").m_MaxEvents, 2);
    EXPECT_EQ(General("MaxEvents=3.5").m_MaxEvents, 4);
}

TEST_F(SettingsReading, CategoryListsAreFoldedAndTheFilterEnclosedInCommas) {
    const cSettings s =
        General("PopupFormTopMostCategory=\" Fire,Gas \"\r\nViewOnlyPopupFormForCategory=Fire, Gas");
    EXPECT_EQ(s.m_PopupFormTopMostCategory, "FIRE,GAS");
    EXPECT_EQ(s.m_ViewOnlyPopupFormForCategory, ",FIRE, GAS,");
}

TEST_F(SettingsReading, ThePrintersPortAndTheLinksPortAreDifferentKeys) {
    const cSettings s =
        Read("[Printer]\r\nPort=3\r\nISOLatConv=0\r\nFormat=[T0]\r\n[TCPIP]\r\nPort=12500\r\n");
    EXPECT_EQ(s.m_PrinterPort, 3);
    EXPECT_FALSE(s.m_PrinterISOLatConv);
    EXPECT_EQ(s.m_PrinterFormat, "[T0]");
    EXPECT_EQ(ReadPort(ini), 12500);
    Read("[TCPIP]\r\nPort=70000\r\n");
    EXPECT_EQ(ReadPort(ini), 70000);
}

TEST_F(SettingsReading, TheConversionIsOnForAnyNumberButZero) {
    EXPECT_TRUE(Printer("ISOLatConv=2").m_PrinterISOLatConv);
    EXPECT_TRUE(Printer("ISOLatConv=-1").m_PrinterISOLatConv);
    EXPECT_FALSE(Printer("ISOLatConv=no").m_PrinterISOLatConv);
}

TEST_F(SettingsReading, ANumberOutOfRangeNamesFileKeyAndValue) {
    const auto message = [this](const std::string& content) -> std::string {
        try {
            Read(content);
            ReadPort(ini);
        } catch (const cFailure& failure) {
            EXPECT_EQ(failure.Number(), eFailure::Overflow);
            return failure.what();
        }
        return "none";
    };
    for (const auto& [content, key] : {std::pair{"[General]\r\nMaxEvents=3000000000\r\n", "MaxEvents"},
                                       {"[General]\r\nKeepForDays=40000\r\n", "KeepForDays"},
                                       {"[Printer]\r\nPort=40000\r\n", "Port of section Printer"},
                                       {"[TCPIP]\r\nPort=1e12\r\n", "Port of section TCPIP"}}) {
        const std::string text = message(content);
        EXPECT_NE(text.find("C:\\App\\VigrelReceiver.INI"), std::string::npos) << text;
        EXPECT_NE(text.find(key), std::string::npos) << text;
    }
    EXPECT_NE(message("[General]\r\nMaxDays=9999999999\r\n").find("\"9999999999\""), std::string::npos);
}

TEST_F(SettingsReading, OddLinesAreNoKeys) {
    const cSettings s = Read(
        "MaxEvents=1\r\n[General\r\nMaxEvents=2\r\n[ General ]\r\n;MaxEvents=3\r\n=5\r\nMaxEvents\r\n"
        "MaxEvents = 7 \r\nMaxEvents=8\r\n[General]\r\nMaxDays=9\r\n");
    EXPECT_EQ(s.m_MaxDays, 30);
}

}  // namespace
}  // namespace vigrel::testing
