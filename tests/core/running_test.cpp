// The receiver while it runs: from a sender's bytes to the operator, its timers, its window and its end.

#include <gtest/gtest.h>

#include <map>

#include "common/failure.h"
#include "link/frame.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

const std::string kPositiveReply =
    "\x04"
    "04\n\r";

class Running : public ::testing::Test, public cFakeReceiver {
  protected:
    std::string Send(const std::string& sender, const std::string& second) {
        if (data.State() == 0) listener.Knock(1);
        data.Arrive(MakeFrame(sender, second));
        return data.TakeSent();
    }
    bool Did(const std::string& step) const { return transcript.Text().find(step) != std::string::npos; }
};

TEST_F(Running, AnAlarmIsOnDiskBeforeThePositiveReplyGoesOut) {
    Start();
    bool saved = false;
    files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        if (operation == "sync" && path.find("Alarms") != std::string_view::npos) {
            saved = true;
            EXPECT_EQ(data.TakeSent(), "");
        }
    };
    EXPECT_EQ(Send("PLC1", "S1||Fan 3 tripped||Technical"), kPositiveReply);
    EXPECT_TRUE(saved);
    files.Crash();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Running, AFullDiskKeepsTheStationReceivingAndItRecovers) {
    Ini("Columns=StateIcon,t0\r\n");
    Start();
    files.m_DiskFull = true;
    EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
    EXPECT_EQ(Send("PLC1", "S1||two"), kPositiveReply);
    EXPECT_EQ(list.Rows().size(), 2u);
    EXPECT_TRUE(AlarmFiles().empty());
    timerKeepAlive.Tick();
    EXPECT_TRUE(AlarmFiles().empty());
    files.m_DiskFull = false;
    timerKeepAlive.Tick();
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(Running, WhatCouldNotBeWrittenIsTriedOnceMoreAtTheEnd) {
    for (const bool displayGoes : {false, true}) {
        Start();
        files.m_DiskFull = true;
        EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
        const std::size_t before = AlarmFiles().size();
        files.m_DiskFull = false;
        displayGoes ? receiver->DisplayIsLost() : receiver->Form_Unload();
        EXPECT_EQ(AlarmFiles().size(), before + 1);
    }
}

TEST_F(Running, WhatThePopupsOfTheEndAcknowledgeIsWrittenTogether) {
    Ini("Columns=StateIcon,t0\r\nMaxEvents=0\r\nViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\n");
    Start();
    for (int i = 0; i < 20; ++i) Send("PLC1", "S1||" + std::to_string(i));
    int syncs = 0;
    files.m_OnCall = [&](std::string_view operation, std::string_view) {
        syncs += operation.starts_with("sync") ? 1 : 0;
    };
    receiver->Form_Unload();
    EXPECT_LT(syncs, 10);
    files.m_OnCall = nullptr;
    files.Crash();
    Start();
    EXPECT_EQ(list.Rows().size(), 20u);
    receiver->Menu_AckAll();
    // Nothing is left to be acknowledged.
    EXPECT_EQ(timerSave.Enabled(), false);
}

TEST_F(Running, ClosedPopupsBringBackNoFileThatTheLimitTookAway) {
    Ini("Columns=StateIcon,t0\r\nMaxEvents=1\r\nViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\n");
    Start();
    for (const char* text : {"one", "two", "three"}) Send("PLC1", std::string("S1||") + text);
    for (int popup = 1; popup <= 3; ++popup) popups[popup].CloseFor(eCloseReason::Control);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_EQ(list.Rows().size(), 1u);
}

TEST_F(Running, TheTraceGoesToTheDebugWindowInDebugMode) {
    Start("/debug");
    Send("PLC1", "S0");
    EXPECT_EQ(otherWindows.m_Trace, "1:" + MakeFrame("PLC1", "S0") + ";2:" + kPositiveReply + ";");
}

TEST_F(Running, ClosingTheDebugWindowEndsTheTraceAndTheStationRunsOn) {
    Start("/debug");
    EXPECT_TRUE(receiver->State().m_DebugMode);
    otherWindows.m_CloseDebugWindow();
    EXPECT_EQ(Send("PLC1", "S0"), kPositiveReply);
    EXPECT_EQ(otherWindows.m_Trace, "");
}

TEST_F(Running, ASenderThatCountsItsCarriageReturnIsRefused) {
    Start();
    EXPECT_EQ(Send("PLC1", "S1||one\rtwo"),
              "\x05"
              "05\n\r");
    EXPECT_TRUE(AlarmFiles().empty());
}

TEST_F(Running, TwoSendersShareAConnection) {
    Ini("Columns=StateIcon,t0\r\n", "[Senders]\r\nPLC1=5\r\nPLC2=5\r\n");
    Start();
    listener.Knock(1);
    data.Arrive(MakeFrame("PLC1", "S1||a") + MakeFrame("PLC2", "S1||b"));
    EXPECT_EQ(data.TakeSent(), kPositiveReply + kPositiveReply);
    EXPECT_EQ(list.Screen(), "#0|a|\n#0|b|\n");
    EXPECT_NE(Log().find("PLC1 T10030 Active - a (///)\nPLC2 T10030 Active - b (///)\n"), std::string::npos);
}

TEST_F(Running, ATranslationChangedInTheFileShowsInTheNextRow) {
    Ini("Columns=StateIcon,t2\r\n");
    Start();
    Send("PLC1", "S1||||Fire");
    receiver->Ini().PutIniString("CategoryTranslations", "Fire", "Brand");
    Send("PLC1", "S1||||Fire");
    EXPECT_EQ(list.Screen(), "#0|Fire|\n#0|Brand|\n");
}

TEST_F(Running, AnEventOpensAPopupPlaysAndPrints) {
    Ini("ViewPopupForm=1\r\nEventPopupFormat=[T0]!\r\nEventSignal=3\r\n",
        "[Printer]\r\nFormat=[SENDER] [T0]\r\n");
    Start();
    Send("PLC1", "S1||Fan");
    EXPECT_EQ(popups.Open(), "1");
    EXPECT_EQ(popups[1].m_LabelText, "Fan!");
    EXPECT_EQ(receiver->State().m_SoundState, 3);
    EXPECT_EQ(printerPorts.m_Lines, std::vector<std::string>{"0:PLC1 Fan\r\n"});
    timerPlay.Tick();
    EXPECT_TRUE(waveDevice.m_Playing);
    popups[1].Close();
    timerPlay.Tick();
    EXPECT_FALSE(waveDevice.m_Playing);
}

TEST_F(Running, WithoutAFormatNoEventIsPrintedAndNoneIsMissed) {
    Start();
    for (const char* second : {"S0||Fan", "S1||Fan", "S2||Fan"}) Send("PLC1", second);
    EXPECT_TRUE(printerPorts.m_Lines.empty());
    EXPECT_EQ(Log().find("T10038"), std::string::npos);
}

TEST_F(Running, APrintHasNoExtraTextThoughThePopupHas) {
    Ini("ViewPopupForm=1\r\nEventPopupFormat=<[EXTRATEXT]>\r\nExtraText=Call\r\n",
        "[Printer]\r\nFormat=<[EXTRATEXT]>\r\n");
    Start();
    Send("PLC1", "S1||Fan");
    EXPECT_EQ(popups[1].m_LabelText, "<Call>");
    EXPECT_EQ(printerPorts.m_Lines, std::vector<std::string>{"0:<>\r\n"});
}

TEST_F(Running, WithSoundForActiveEventsAnyOtherLeavesASignalAndItsFileAlone) {
    Ini("EventSignal=3\r\nEventSoundFile=a.wav\r\nEventSignalOnlyForActive=1\r\n",
        "[CategorySpecificSetting_Water]\r\nEventSignal=2\r\nEventSoundFile=b.wav\r\n");
    Start();
    Send("PLC1", "S1||Fan");
    timerPlay.Tick();
    const std::string file = waveDevice.FileName();
    for (const char* second : {"S0||Fan||Water", "S2||Fan||Water"}) {
        Send("PLC1", second);
        timerPlay.Tick();
        EXPECT_EQ(waveDevice.FileName(), file);
        EXPECT_EQ(receiver->State().m_SoundState, 4);
        EXPECT_TRUE(waveDevice.m_Playing);
    }
    Send("PLC1", "S1||Fan||Water");
    EXPECT_NE(waveDevice.FileName(), file);
}

TEST_F(Running, ADoubleClickAcknowledges) {
    Ini("Columns=StateIcon,Observed\r\n");
    Start();
    Send("PLC1", "S1||Fan");
    list.DoubleClick(list.Rows()[0]);
    EXPECT_EQ(list.Screen(), "#0|#27|\n");
    EXPECT_NE(Log().find("T10039 Active - Fan (///)\n"), std::string::npos);
}

TEST_F(Running, F9AcknowledgesAllAndEscapeDeselectsWhateverTheShiftState) {
    Ini("Columns=StateIcon,Observed\r\n");
    Start();
    Send("PLC1", "S1||a");
    Send("PLC1", "S1||b");
    list.PressKey(120, 1);
    EXPECT_EQ(list.Screen(), "#0|#27|\n#0|#27|\n");
    list.SelectAllRows();
    list.PressKey(27, 2);
    EXPECT_TRUE(list.SelectedRows().empty());
}

TEST_F(Running, OtherKeysNeitherAcknowledgeNorDeselect) {
    Ini("Columns=StateIcon,Observed\r\n");
    Start();
    Send("PLC1", "S1||a");
    list.SelectAllRows();
    for (const int keyCode : {8, 13, 26, 28, 46, 65, 119, 121}) list.PressKey(keyCode, 0);
    EXPECT_EQ(list.Screen(), "#0|#26|\n");
    EXPECT_EQ(list.SelectedRows().size(), 1u);
}

TEST_F(Running, ControlWithASelectsAllAndWithCCopies) {
    Ini("Columns=StateIcon,t0\r\n");
    Start();
    Send("PLC1", "S1||one");
    Send("PLC1", "S1||two");
    list.PressKey(65, 2);
    EXPECT_EQ(list.SelectedRows().size(), 2u);
    list.PressKey(67, 2);
    EXPECT_NE(clipboard.m_Text.find("one"), std::string::npos) << clipboard.m_Text;
    EXPECT_NE(clipboard.m_Text.find("two"), std::string::npos) << clipboard.m_Text;
}

TEST_F(Running, ARowIsDrawnInTheStyleOfItsCategory) {
    Ini("Columns=StateIcon,t0\r\n", "[CategorySpecificSetting_Fire]\r\nFontBold_Active=1\r\n");
    Start();
    Send("PLC1", "S1||a||Fire");
    Send("PLC1", "S1||b||Water");
    EXPECT_TRUE(list.DrawnStyle(list.Rows()[0]).bold);
    EXPECT_FALSE(list.DrawnStyle(list.Rows()[1]).bold);
}

TEST_F(Running, TheListForgetsItsSelectionWhenAttentionLeavesIt) {
    Start();
    Send("PLC1", "S1||a");
    list.SelectAllRows();
    list.LoseFocus();
    EXPECT_TRUE(list.SelectedRows().empty());
}

TEST_F(Running, AcknowledgingAllWithPopupsClosesThem) {
    Ini("ViewPopupForm=1\r\nEventSignalUntilNoMorePopupForms=1\r\nEventSignal=3\r\n");
    Start();
    Send("PLC1", "S1||a");
    Send("PLC1", "S1||b");
    receiver->Menu_AckAll();
    EXPECT_EQ(receiver->State().m_SoundState, 3);
    receiver->Menu_AckAll_AndClosePopups();
    EXPECT_EQ(popups.Open(), "");
    EXPECT_EQ(receiver->State().m_SoundState, 0);
    EXPECT_EQ(receiver->State().m_PopupFormCount, 0);
}

TEST_F(Running, TheFileMenuEnablesWhatCanBeDone) {
    Ini("ViewPopupForm=1\r\nEventSignal=2\r\n");
    Start();
    receiver->Menu_File();
    EXPECT_FALSE(menus["Menu_StopSound"].enabled);
    EXPECT_FALSE(menus["Menu_AckAll_AndClosePopups"].enabled);
    Send("PLC1", "S1||a");
    receiver->Menu_File();
    EXPECT_TRUE(menus["Menu_StopSound"].enabled);
    EXPECT_TRUE(menus["Menu_AckAll_AndClosePopups"].enabled);
    receiver->Menu_StopSound();
    receiver->Menu_File();
    EXPECT_FALSE(menus["Menu_StopSound"].enabled);
    EXPECT_NE(Log().find("T10044\n"), std::string::npos);
}

TEST_F(Running, EveryMenuEntryDoesItsWork) {
    Ini("Columns=StateIcon,Observed\r\nViewPopupForm=1\r\nEventSignal=3\r\n",
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=L\r\n");
    light.m_Version = 1;
    light.m_Devices = {{1, {"L"}}};
    Start();
    menus.OnMenuFileOpens();
    EXPECT_FALSE(menus["Menu_StopSound"].enabled);
    EXPECT_FALSE(menus["Menu_StopLight"].enabled);
    Send("PLC1", "S1||a||Fire");
    EXPECT_TRUE(menus["Menu_StopLight"].enabled);
    EXPECT_TRUE(Did("light: open L"));
    menus.OnMenuStopLight();
    EXPECT_FALSE(menus["Menu_StopLight"].enabled);
    EXPECT_EQ(receiver->State().m_SoundState, 3);
    menus.OnMenuStopSound();
    EXPECT_EQ(receiver->State().m_SoundState, 0);
    menus.OnMenuAckAll();
    EXPECT_EQ(list.Screen(), "#0|#27|\n");
    Send("PLC1", "S1||b");
    EXPECT_EQ(popups.Open(), "1 2");
    menus.OnMenuAckAllAndClosePopups();
    EXPECT_EQ(list.Screen(), "#0|#27|\n#0|#27|\n");
    EXPECT_EQ(popups.Open(), "");
    menus.OnMenuExit();
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"question, yes/no: T10022"});
}

TEST_F(Running, AcknowledgedTogetherAlarmsAreWrittenInTurns) {
    Start();
    for (const char* text : {"a", "b", "c"}) Send("PLC1", std::string("S1||") + text);
    const std::vector<std::string> names = AlarmFiles();
    std::map<std::string, std::string> before;
    for (const std::string& name : names) before[name] = files.ReadFile("C:\\App\\Alarms\\" + name);
    receiver->Menu_AckAll();
    for (int i = 0; i < 20; ++i) timerSave.Tick();
    EXPECT_FALSE(timerSave.Enabled());
    files.Crash();
    EXPECT_EQ(names.size(), 3u);
    for (const auto& [name, bytes] : before)
        EXPECT_NE(files.ReadFile("C:\\App\\Alarms\\" + name), bytes) << name;
}

TEST_F(Running, APopupThatIsClosedAcknowledgesItsEventWhereThatIsSet) {
    for (const std::string flag : {"0", "1"}) {
        Ini("Columns=StateIcon,Observed\r\nViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=" + flag +
            "\r\n");
        list = testing::cFakeReportList();
        Start();
        receiver->Menu_AckAll();
        Send("PLC1", "S1||Fan");
        popups[flag == "0" ? 1 : 2].CloseFor(eCloseReason::Control);
        EXPECT_TRUE(list.Screen().ends_with(flag == "0" ? "#0|#26|\n" : "#0|#27|\n")) << list.Screen();
    }
}

TEST_F(Running, APopupLeftHalfPreparedAcknowledgesNothingWhenItIsClosed) {
    Ini("Columns=StateIcon,Observed\r\nViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\n",
        "[PopupForm]\r\nFontBold=99999999999\r\n");
    Start();
    Send("PLC1", "S1||a");
    Send("PLC1", "S1||b");
    EXPECT_EQ(popups.Open(), "1 2");
    EXPECT_EQ(popups.Visible(), "");
    popups[1].CloseFor(eCloseReason::Control);
    EXPECT_EQ(list.Screen(), "#0|#26|\n#0|#26|\n");
}

TEST_F(Running, WhatAnOldLogLeavesFreeTakesTheWaitingAlarmsAtOnce) {
    files.Put("C:\\App\\LogFiles\\20260301.Log", "old");
    Ini("KeepForDays=15\r\n");
    Start();
    timerKeepAlive.Tick();
    files.m_DiskFull = true;
    Send("PLC1", "S1||one");
    files.m_OnCall = [this](std::string_view operation, std::string_view path) {
        if (operation == "remove" && path.ends_with(".LOG")) files.m_DiskFull = false;
    };
    clock.AddSeconds(2.0 * 86400);
    EXPECT_TRUE(AlarmFiles().empty());
    timerKeepAlive.Tick();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Running, WaitingAlarmsHaveTheDiskBeforeTheLog) {
    Start();
    files.m_DiskFull = true;
    Send("PLC1", "S1||one");
    for (int i = 0; i < 50; ++i) Send("PLC1", "S9");
    files.m_DiskFull = false;
    std::string steps;
    files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        if (operation == "append") steps += "log;";
        if (operation == "rename" && path.find("Alarms") != std::string_view::npos) steps += "alarm;";
    };
    timerKeepAlive.Tick();
    EXPECT_EQ(steps, "alarm;log;");
}

TEST_F(Running, ASilentSenderRaisesAnAlarmAndItsFrameTheReturn) {
    Ini("Columns=StateIcon,t4\r\nSystemErrorCategory=System\r\nDateFormat=yyyy-mm-dd\r\nTimeFormat=hh:nn:"
        "ss\r\n",
        "[Senders]\r\nPLC1=1\r\n[CategorySpecificSetting_System]\r\nEventSignal=3\r\nEventSoundFile=lost."
        "wav\r\n");
    Start();
    for (int i = 0; i < 7; ++i) {
        clock.AddSeconds(10);
        timerKeepAlive.Tick();
    }
    EXPECT_EQ(list.Screen(), "#0|PLC1 - T10032|\n");
    EXPECT_EQ(receiver->State().m_SoundState, 3);
    EXPECT_EQ(waveDevice.FileName(), "C:\\App\\lost.wav");
    EXPECT_EQ(Send("plc1", "S0"), kPositiveReply);
    EXPECT_EQ(list.Screen(), "#0|PLC1 - T10032|\n#0|PLC1 - T10032|\n");
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(Running, TheFirstTickOfARunDoesNoHousekeeping) {
    Start();
    files.Put("C:\\App\\LogFiles\\20260101.log", "old");
    timerKeepAlive.Tick();
    timerKeepAlive.Tick();
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260101.log"));
}

TEST_F(Running, AtTheChangeOfDateOldLogsAndAlarmsGo) {
    Ini("MaxDays=30\r\nKeepForDays=20\r\n");
    Start();
    timerKeepAlive.Tick();
    Send("PLC1", "S1||old");
    clock.AddSeconds(29.0 * 86400);
    Send("PLC1", "S1||young");
    clock.AddSeconds(1.5 * 86400);  // 2026-04-15
    timerKeepAlive.Tick();
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_EQ(list.RecordCount(), 1);
    EXPECT_EQ(list.Rows().size(), 1u);
    EXPECT_FALSE(files.FileExists("C:\\App\\LogFiles\\20260315.Log"));
    const std::string log = Log("20260415");
    EXPECT_NE(log.find("1 T10036\n"), std::string::npos);
    EXPECT_LT(log.find("20260315.LOG"), log.find("1 T10036\n")) << log;
    // Once a day.
    files.Put("C:\\App\\LogFiles\\20260101.log", "old");
    clock.AddSeconds(3600);
    timerKeepAlive.Tick();
    EXPECT_EQ(Log("20260415"), log);
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260101.log"));
}

TEST_F(Running, SilentSendersAreReportedBeforeOldAlarmsGo) {
    Ini("MaxDays=30\r\nViewPopupForm=1\r\n", "[Senders]\r\nPLC1=5\r\n");
    Start();
    timerKeepAlive.Tick();
    Send("PLC1", "S1||old");
    clock.AddSeconds(31.0 * 86400);  // 2026-04-15
    timerKeepAlive.Tick();
    const std::string log = Log("20260415");
    EXPECT_LT(log.find("T10043 Active - VigrelAlarmReceiver"), log.find("1 T10036\n")) << log;
    EXPECT_NE(log.find("1 T10036\n"), std::string::npos);
}

TEST_F(Running, WithoutDayLimitTheChangeOfDateRemovesNoAlarmButCleansLogsAndRepaints) {
    Ini("MaxDays=0\r\n");
    Start();
    timerKeepAlive.Tick();
    Send("PLC1", "S1||old");
    list.AddRecord(list.RecordTagOf(list.Rows().at(0)));
    clock.AddSeconds(400.0 * 86400);
    timerKeepAlive.Tick();
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_FALSE(files.FileExists("C:\\App\\LogFiles\\20260315.Log"));
    EXPECT_EQ(list.Rows().size(), 2u);
}

TEST_F(Running, TheChangeOfDateTakesOverRecordsThoughNothingWasRemoved) {
    Start();
    timerKeepAlive.Tick();
    Send("PLC1", "S1||a");
    list.AddRecord(list.RecordTagOf(list.Rows().at(0)));
    EXPECT_EQ(list.Rows().size(), 1u);
    clock.AddSeconds(86400);
    timerKeepAlive.Tick();
    EXPECT_EQ(list.Rows().size(), 2u);
}

TEST_F(Running, TheTrayIconFlashesWhileAnAlarmIsNotAcknowledged) {
    Ini("ShowInTaskBar=0\r\n");
    Start();
    Send("PLC1", "S1||a");
    const auto icons = [this] {
        int changes = 0;
        for (int i = 0; i < 10; ++i) {
            const int before = trayArea.m_Image;
            timerPlay.Tick();
            if (trayArea.m_Image != before) ++changes;
        }
        return changes;
    };
    EXPECT_GE(icons(), 9);
    receiver->Menu_AckAll();
    EXPECT_LE(icons(), 1);
}

TEST_F(Running, InThePauseOfARepeatTheTrayPartOfTheTickIsLeftOut) {
    Ini("ShowInTaskBar=0\r\nEventSignal=3\r\nEventSoundFileDelay=5000\r\n");
    Start();
    Send("PLC1", "S1||a");
    timerPlay.Tick();
    waveDevice.EndPlay();
    transcript.Take();
    timerPlay.Tick();
    timerPlay.Tick();
    EXPECT_EQ(transcript.Text(), "");
}

// --- closing

TEST_F(Running, ClosingAsksAndNoKeepsTheStation) {
    Start();
    const std::string log = Log();
    EXPECT_FALSE(mainWindow.CloseFor(eCloseReason::Control));
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"question, yes/no: T10022"});
    EXPECT_EQ(Log(), log);
    EXPECT_TRUE(mainWindow.m_Open);
}

TEST_F(Running, AYesEndsTheStationInItsOrder) {
    Ini("ShowInTaskBar=0\r\nViewPopupForm=1\r\nEventPopupFormat=[T0]\r\n",
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=L\r\n");
    light.m_Version = 1;
    light.m_Devices = {{1, {"L"}}};
    Start();
    Send("PLC1", "S1||a");
    Send("PLC1", "S1||b");
    Send("PLC1", "S1||c");
    mainWindow.m_Left = 1500;
    transcript.Take();
    files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        if (operation == "rename" && path.find("VigrelReceiver.") != std::string_view::npos)
            transcript.Add("geometry saved");
    };
    messageBox.m_Answers = {eMessageAnswer::Yes};
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::Code));
    std::string steps = transcript.Text();
    const auto next = [&](const std::string& step) {
        const std::size_t found = steps.find(step);
        EXPECT_NE(found, std::string::npos) << step << "\n" << steps;
        if (found != std::string::npos) steps = steps.substr(found + step.size());
    };
    next("message box (question, yes/no): T10022\n");
    next("geometry saved\ngeometry saved\ngeometry saved\ngeometry saved\n");
    next("sound: notify off\nsound: wait on\nsound: Close\n");
    next("tray: invisible\n");
    next("application 8 is 0\n");
    next("light: open L 0\nlight: control");
    next("popup 1: closed\n");
    next("popup 2: closed\n");
    next("popup 3: closed\n");
    EXPECT_EQ(popups.Open(), "");
    EXPECT_EQ(receiver->Ini().GetIniString("General", "Vigrel_Receiver_Main.Left", ""), "1500");
    EXPECT_NE(Log().find("T10021\nT10037"), std::string::npos) << Log();
}

TEST_F(Running, ClosingWithThreePopupsOpenClosesThemAndLeavesTheOtherWindowsUntouched) {
    Ini("ViewPopupForm=1\r\n");
    Start();
    for (const char* text : {"a", "b", "c"}) Send("PLC1", "S1||" + std::string(text));
    testing::cFakeWindow debugView("Vigrel_Receiver_Debug", &transcript, &windows);
    debugView.Show();
    int asked = 0, unloads = 0;
    mainWindow.OnQueryUnload = [&](eCloseReason) { return ++asked > 0; };
    mainWindow.OnUnload = [&] {
        ++unloads;
        if (unloads == 1) receiver->Form_Unload();
    };
    transcript.Take();
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::SessionEnd));
    EXPECT_EQ(popups.Open(), "");
    EXPECT_EQ(receiver->State().m_PopupFormCount, 0);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(transcript.Text().find("Vigrel_Receiver_Debug: closed"), std::string::npos);
}

TEST_F(Running, AForbiddenShutdownIsRefusedWithoutAQuestion) {
    Ini("DisableShutdown=1\r\n");
    Start();
    const std::string log = Log();
    for (const eCloseReason reason : {eCloseReason::Control, eCloseReason::Code, eCloseReason::TaskManager,
                                      static_cast<eCloseReason>(5)}) {
        EXPECT_FALSE(mainWindow.CloseFor(reason));
    }
    EXPECT_TRUE(messageBox.m_Shown.empty());
    EXPECT_EQ(Log(), log);
}

TEST_F(Running, TheEndOfTheDesktopsSessionIsNeverQuestioned) {
    Ini("DisableShutdown=1\r\n");
    Start();
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::SessionEnd));
    EXPECT_TRUE(messageBox.m_Shown.empty());
    EXPECT_EQ(Log().substr(Log().size() - 7), "T10020\n");
}

// --- minimising

TEST_F(Running, AMinimisedWindowHidesWhenItHasAnIconInstead) {
    Ini("ShowInTaskBar=0\r\n");
    Start();
    mainWindow.SetState(eWindowState::Minimised);
    EXPECT_FALSE(mainWindow.m_Visible);
    trayArea.OnOpen();
    EXPECT_TRUE(mainWindow.m_Visible);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Normal);
}

TEST_F(Running, WithoutATrayHostAMinimisedWindowStaysAndTheLogSaysSoOnce) {
    Ini("ShowInTaskBar=0\r\n");
    trayArea.m_HostAvailable = false;
    Start();
    const std::size_t before = Log().size();
    for (int i = 0; i < 3; ++i) {
        mainWindow.SetState(eWindowState::Minimised);
        EXPECT_TRUE(mainWindow.m_Visible);
        EXPECT_EQ(Log().substr(before), "T11006\n");
        mainWindow.SetState(eWindowState::Normal);
    }
}

TEST_F(Running, AHiddenWindowShowsWhenTheTrayHostGoes) {
    Ini("ShowInTaskBar=0\r\n");
    Start();
    const std::size_t before = Log().size();
    mainWindow.SetState(eWindowState::Minimised);
    ASSERT_FALSE(mainWindow.m_Visible);
    transcript.Take();
    trayArea.m_HostAvailable = false;
    trayArea.OnHostGone();
    // It never shows as minimised.
    EXPECT_EQ(transcript.Take(), "Vigrel_Receiver_Main: normal\nVigrel_Receiver_Main: show\n");
    EXPECT_NE(Log().find("T11007\n", before), std::string::npos);
}

TEST_F(Running, AWindowThatShowsIsLeftAloneWhenTheTrayHostGoes) {
    Ini("ShowInTaskBar=0\r\n");
    Start();
    const std::size_t before = Log().size();
    mainWindow.SetState(eWindowState::Maximised);
    trayArea.OnHostGone();
    EXPECT_EQ(mainWindow.m_State, eWindowState::Maximised);
    EXPECT_EQ(Log().size(), before);
}

TEST_F(Running, InTheTaskBarAMinimisedWindowStaysThere) {
    Start();
    mainWindow.SetState(eWindowState::Minimised);
    EXPECT_TRUE(mainWindow.m_Visible);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Minimised);
    EXPECT_FALSE(trayArea.m_Visible);
}

TEST_F(Running, APreventedMinimiseJumpsBackToTheStateBefore) {
    Ini("PreventMinimize=1\r\n");
    Start();
    mainWindow.SetState(eWindowState::Minimised);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Normal);
    mainWindow.SetState(eWindowState::Maximised);
    mainWindow.SetState(eWindowState::Minimised);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Maximised);
}

TEST_F(Running, APreventedMinimiseGoesBackToTheStateOfTheStart) {
    Ini("PreventMinimize=1\r\n");
    Make("/MAXIMIZE");
    EXPECT_EQ(receiver->Form_Load(), eStartUp::Running);
    mainWindow.SetState(eWindowState::Minimised);
    receiver->Form_Resize();
    EXPECT_EQ(mainWindow.m_State, eWindowState::Maximised);
}

TEST_F(Running, APreventedMinimiseUndoesAMinimisedStart) {
    Ini("PreventMinimize=1\r\n");
    EXPECT_EQ(Load("/MINIMIZE"), eStartUp::Running);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Normal);
}

TEST_F(Running, AHiddenWindowComesBackWithAnEventInItsFormerSize) {
    Ini("ShowInTaskBar=0\r\n");
    Start();
    const double width = mainWindow.m_Width;
    mainWindow.SetState(eWindowState::Minimised);
    EXPECT_FALSE(mainWindow.m_Visible);
    Send("PLC1", "S1||a");
    EXPECT_TRUE(mainWindow.m_Visible);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Normal);
    EXPECT_EQ(mainWindow.m_Width, width);
}

TEST_F(Running, AnAlarmSurvivesAPowerCutInTheFirstMinuteOfANewStation) {
    Start();
    Send("PLC1", "S1||one");
    files.Crash();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Running, AFolderThatCouldNotBeMadeIsMadeWhenTheDiskHasRoom) {
    files.m_OnCall = [](std::string_view operation, std::string_view path) {
        if (operation == "mkdir") throw cFailure(eFailure::DiskFull, std::string(path));
    };
    Start();
    EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
    EXPECT_TRUE(AlarmFiles().empty());
    files.m_OnCall = nullptr;
    timerKeepAlive.Tick();
    EXPECT_EQ(AlarmFiles().size(), 1u);
    files.Crash();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Running, ALogThatCannotBeDeletedEndsTheProgramAndTakesNoAlarmAlong) {
    files.Put("C:\\App\\LogFiles\\20260301.Log", "old");
    Ini("KeepForDays=15\r\n");
    Start();
    timerKeepAlive.Tick();
    files.m_DiskFull = true;
    EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
    EXPECT_TRUE(AlarmFiles().empty());
    files.m_DiskFull = false;
    files.m_OnCall = [](std::string_view operation, std::string_view path) {
        if (operation == "remove" && path.ends_with(".LOG"))
            throw cFailure(eFailure::PermissionDenied, std::string(path));
    };
    clock.AddSeconds(2 * 86400);
    EXPECT_THROW(timerKeepAlive.Tick(), cFailure);
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

// What ends the program by a failure while something is in memory alone.
class Failing : public Running {
  protected:
    // What is in the files of all alarms.
    std::string AlarmBytes() const {
        std::string bytes;
        for (const std::string& name : AlarmFiles()) bytes += files.ReadFile("C:\\App\\Alarms\\" + name);
        return bytes;
    }
    void LetASenderEndTheStation() { EXPECT_THROW(data.Arrive(std::string(32'768, 'x') + "\r\n"), cFailure); }
};

TEST_F(Failing, ASendersWayToEndTheStationTakesNoAcknowledgementAlong) {
    Start();
    for (const char* text : {"one", "two", "three"}) Send("PLC1", std::string("S1||") + text);
    const std::string before = AlarmBytes();
    receiver->Menu_AckAll();
    EXPECT_EQ(AlarmBytes(), before);
    LetASenderEndTheStation();
    files.Crash();
    const std::string behind = AlarmBytes();
    EXPECT_EQ(behind.size(), before.size());
    EXPECT_NE(behind, before);
    // Nothing is left to be acknowledged.
    Start();
    receiver->Menu_AckAll();
    EXPECT_EQ(AlarmBytes(), behind);
    EXPECT_FALSE(timerSave.Enabled());
}

TEST_F(Failing, ASendersWayToEndTheStationTakesNoAlarmAlongForWhichTheDiskHasRoomAgain) {
    Start();
    files.m_DiskFull = true;
    EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
    files.m_DiskFull = false;
    LetASenderEndTheStation();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Failing, WhatIsLostIsTold) {
    Start();
    files.m_DiskFull = true;
    EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
    LetASenderEndTheStation();
    ASSERT_EQ(status.m_Texts.size(), 1u);
    EXPECT_TRUE(status.m_Texts[0].starts_with("T10049 1, "));
}

TEST_F(Failing, ATraceThatCannotBeSavedTakesNoAlarmAlong) {
    Start("/debug");
    files.m_DiskFull = true;
    EXPECT_EQ(Send("PLC1", "S1||one"), kPositiveReply);
    files.m_DiskFull = false;
    otherWindows.OnFailing();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

}  // namespace
}  // namespace vigrel::testing
