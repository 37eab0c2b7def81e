#include <gtest/gtest.h>

#include "common/failure.h"
#include "events/vigrel_reciever_alarm.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

class StartUp : public ::testing::Test, public cFakeReceiver {
  protected:
    const std::string dashes = std::string(120, '-') + "\n";
    bool Did(const std::string& step) const { return transcript.Text().find(step) != std::string::npos; }
};

TEST_F(StartUp, TheLogTellsTheStepsInTheirOrder) {
    Ini("", "[Senders]\r\nPLC1=5\r\nPLC2=0\r\n");
    light.m_Version = 1.2;
    light.m_Devices = {{1, {"Light A", "Light B"}}, {3, {"Light C"}}};
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(Log(), dashes +
                         "T10040\nT10027 1.2\nT10047 (type 1): Light A\nT10047 (type 1): Light B\n"
                         "T10047 (type 3): Light C\n0 T10041\nPLC1 - T10013 5 T10014\nPLC2 - T10012\n"
                         "T10017 12412 T10018\nT10011\n");
}

TEST_F(StartUp, TheStepsRunInTheirOrder) {
    Ini("ShowInTaskBar=0\r\nEventSoundFile=a.wav\r\nObject=Plant\r\n", "[TCPIP]\r\nPort=12500\r\n");
    EXPECT_EQ(Load("/topmost /debug"), eStartUp::Running);
    EXPECT_EQ(transcript.Text(),
              "Vigrel_Receiver_Main: caption \"T10000 (Plant) - Version 3.00.04\"\n"
              "sound: notify off\nsound: wait on\nsound: share off\nsound: Open\n"
              "sound: type WaveAudio\nsound: Close\nsound: file C:\\App\\a.wav\nsound: Open\n"
              "Vigrel_Receiver_Main: topmost\ndebug window\n"
              "tray: icon -1\ntray: tooltip Vigrel Alarm Receiver\ntray: visible\n"
              "listening on 12500\napplication 8 is -1\n");
    EXPECT_TRUE(receiver->State().m_DebugMode);
}

// Where a start ends tells what came before: captions, another instance's test, title, settings, wave device,
// switches, notification icon, senders, port.
TEST_F(StartUp, ASecondInstanceHasItsCaptionsAndNoTitle) {
    singleInstance.m_Another = true;
    Load();
    EXPECT_EQ(menus["Menu_SimAlarm"].caption, "T10009");
    EXPECT_EQ(mainWindow.m_Caption, "");
}

TEST_F(StartUp, WithoutTheSuiteLibraryThereIsNoTitle) {
    runningApps.m_Missing = true;
    Load();
    EXPECT_EQ(mainWindow.m_Caption, "");
}

TEST_F(StartUp, LightsAreLookedForBeforeTheColumnsAreBuilt) {
    std::string columns = "t0";
    for (int i = 1; i < 33; ++i) columns += ",t0";
    Ini("Columns=" + columns + "\r\n");
    light.m_Version = 2;
    EXPECT_THROW(Load(), cFailure);
    EXPECT_EQ(Log(), dashes + "T10040\nT10027 2\nT10046\n");
}

TEST_F(StartUp, SettingsAreReadBehindTheTitleAndBeforeTheWaveDevice) {
    Ini("MaxEvents=99999999999\r\n");
    EXPECT_THROW(Load("/topmost"), cFailure);
    EXPECT_EQ(transcript.Text(), "Vigrel_Receiver_Main: caption \"T10000 (none) - Version 3.00.04\"\n");
}

TEST_F(StartUp, SendersAreReadBehindTheNotificationIconAndBeforeTheAlarms) {
    Ini("ShowInTaskBar=0\r\n", "[Senders]\r\nPLC1=40000\r\n");
    EXPECT_THROW(Load("/simulate"), cFailure);
    EXPECT_TRUE(trayArea.m_Visible);
    EXPECT_TRUE(menus["Menu_Simulate"].visible);
    EXPECT_EQ(Log(), dashes + "T10040\n");
}

TEST_F(StartUp, APortOutOfRangeEndsTheStartBehindTheSendersLines) {
    Ini("", "[Senders]\r\nPLC1=5\r\n[TCPIP]\r\nPort=99999999999\r\n");
    EXPECT_THROW(Load(), cFailure);
    EXPECT_EQ(Log(), dashes + "T10040\n0 T10041\nPLC1 - T10013 5 T10014\n");
    EXPECT_TRUE(messageBox.m_Shown.empty());
}

TEST_F(StartUp, TheProgramIsReportedAsRunningBehindTheLastLine) {
    std::int32_t reported = 0;
    files.m_OnCall = [&](std::string_view, std::string_view path) {
        if (path.ends_with(".Log")) reported = runningApps.m_States[8];
    };
    Load();
    EXPECT_EQ(reported, 0);
    EXPECT_EQ(runningApps.m_States[8], -1);
}

TEST_F(StartUp, TheRandomGeneratorIsSeededFromTheClock) {
    Load();
    EXPECT_EQ(random.m_Seed, clock.Now());
}

TEST_F(StartUp, AFirstStartCopiesTheDefaultConfigurationAndALaterOneKeepsChanges) {
    files.RemoveFile("C:\\App\\VigrelReceiver.INI");
    files.Put("C:\\App\\Templates\\VigrelReceiver.oni", "[General]\r\nLanguage=046\r\nObject=Default\r\n");
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(receiver->Ini().GetIniString("General", "Object", ""), "Default");
    receiver->Ini().PutIniString("General", "Object", "Mine");
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(mainWindow.m_Caption, "T10000 (Mine) - Version 3.00.04");
}

TEST_F(StartUp, TheFoldersAreMadeAndSurviveAPowerCut) {
    Load();
    files.Crash();
    EXPECT_TRUE(files.HasFolder("C:\\App\\LogFiles"));
    EXPECT_TRUE(files.HasFolder("C:\\App\\Alarms"));
}

TEST_F(StartUp, FoldersThatCannotBeMadeAreIgnored) {
    files.m_FolderReadOnly = true;
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(Log(), "");
}

TEST_F(StartUp, WithoutALanguageTheWindowAsksAndTheChoiceTakesEffectAtOnce) {
    files.Put("C:\\App\\VigrelReceiver.INI", "");
    otherWindows.m_OnLanguageWindow = [this] { receiver->Ini().PutIniString("General", "Language", "046"); };
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_TRUE(Did("language window"));
    EXPECT_EQ(Log().substr(0, 128), dashes + "T10040\n");
}

TEST_F(StartUp, WithoutALanguageInTheEndTheProgramEndsWithoutAWord) {
    files.Put("C:\\App\\VigrelReceiver.INI", "");
    EXPECT_EQ(Load(), eStartUp::NoLanguage);
    EXPECT_EQ(transcript.Text(), "language window\n");
    EXPECT_EQ(Log(), "");
    EXPECT_FALSE(listener.m_Listening);
}

TEST_F(StartUp, ALanguageFileThatIsMissingAsksToo) {
    Ini("");
    files.RemoveFile("C:\\App\\Vigrel_Texts.046");
    EXPECT_EQ(Load(), eStartUp::NoLanguage);
    EXPECT_TRUE(Did("language window"));
}

TEST_F(StartUp, TextsThatAFileLacksAreAddedAndTold) {
    files.Put("C:\\App\\Vigrel_Texts.046", "11000=added\r\n10011=started\r\n");
    deliveredTexts.Add("046", "10011=other\r\n10040=begins\r\n");
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_NE(Log().find("Vigrel_Texts.046: 1 added: 10040\n"), std::string::npos) << Log();
    EXPECT_EQ(files.ReadFile("C:\\App\\Vigrel_Texts.046"),
              "11000=added\r\n10011=started\r\n10040=begins\r\n");
    EXPECT_TRUE(status.m_Texts.empty());
}

TEST_F(StartUp, ATextFileThatCannotBeReadIsToldAndTheDeliveredTextsSpeak) {
    files.SetUnreadable("C:\\App\\Vigrel_Texts.046", true);
    deliveredTexts.Add("046", "10011=delivered\r\n10040=begins\r\n11002=not read\r\n");
    EXPECT_EQ(Load(), eStartUp::Running);
    const std::string told = "not read: C:\\App\\Vigrel_Texts.046: the file can't be read";
    EXPECT_TRUE(Log().starts_with(dashes + "begins\n" + told + "\n")) << Log();
    EXPECT_TRUE(Log().ends_with("delivered\n")) << Log();
    EXPECT_EQ(status.m_Texts, std::vector<std::string>{told});
}

TEST_F(StartUp, ASecondInstanceEndsAfterItsFirstLogLines) {
    singleInstance.m_Another = true;
    light.m_Version = 2;
    EXPECT_EQ(Load(), eStartUp::SecondInstance);
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"warning, ok: T10010"});
    EXPECT_EQ(Log(), dashes + "T10040\nT10027 2\nT10046\n");
    EXPECT_FALSE(listener.m_Listening);
    EXPECT_TRUE(runningApps.m_States.empty());
}

TEST_F(StartUp, ASuiteLibraryThatCannotBeReachedEndsTheStart) {
    runningApps.m_Missing = true;
    EXPECT_EQ(Load(), eStartUp::NoSuiteLibrary);
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"stop, ok: T208"});
    EXPECT_EQ(Log(), dashes + "T10040\n");
}

TEST_F(StartUp, APortThatCannotBeOpenedIsNamedAndEndsTheStart) {
    Ini("", "[Senders]\r\nPLC1=5\r\n");
    listener.m_PortInUse = true;
    EXPECT_EQ(Load(), eStartUp::PortTaken);
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"warning, ok: T10015 (12412) T10016"});
    EXPECT_EQ(Log(), dashes + "T10040\n0 T10041\nPLC1 - T10013 5 T10014\n");
    // Asked for, never set.
    EXPECT_EQ(runningApps.m_States, (std::map<std::int32_t, std::int32_t>{{8, 0}}));
}

TEST_F(StartUp, AnAddressThatIsNotThereYetIsNamedForAWhileAndToldApart) {
    Ini("", "[TCPIP]\r\nAddress=192.168.1.10\r\n");
    listener.m_AddressMissing = true;
    EXPECT_EQ(Load(), eStartUp::AddressMissing);
    EXPECT_EQ(messageBox.m_Shown,
              std::vector<std::string>{"warning, ok: for a while: T10015 (192.168.1.10 12412) T10016"});
}

TEST_F(StartUp, WithoutALightLibraryNothingIsLogged) {
    light.m_Missing = true;
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(receiver->State().m_DelcomDllVersion, 0);
    EXPECT_EQ(Log(), dashes + "T10040\n0 T10041\nT10017 12412 T10018\nT10011\n");
}

TEST_F(StartUp, CaptionsComeFromTheTextTableButForTheFixedOne) {
    Load();
    EXPECT_EQ(menus["Menu_File"].caption, "T10004");
    EXPECT_EQ(menus["Menu_StopSound"].caption, "T10034");
    EXPECT_EQ(menus["Menu_StopLight"].caption, "T10019");
    EXPECT_EQ(menus["Menu_AckAll"].caption, "T10006");
    EXPECT_EQ(menus["Menu_Exit"].caption, "T10007\tAlt+F4");
    EXPECT_EQ(menus["Menu_Simulate"].caption, "T10008");
    EXPECT_EQ(menus["Menu_SimAlarm"].caption, "T10009");
    EXPECT_EQ(menus["Menu_AckAll_AndClosePopups"].caption, "");
    EXPECT_EQ(list.m_EmptyText, "(T10035)");
}

TEST_F(StartUp, TheListTakesItsFontFromSettingsAndTheDefaultCategory) {
    Ini("EventFontName=DejaVu Sans\r\nEventFontSize=14\r\nFontBold_Inactive=1\r\n");
    Load();
    EXPECT_EQ(list.m_FontName, "DejaVu Sans");
    EXPECT_EQ(list.m_FontPoints, 14);
    EXPECT_TRUE(list.m_Style.bold);
    EXPECT_FALSE(list.m_Style.italic);
}

TEST_F(StartUp, EveryNumberButZeroMakesTheListBoldOrItalic) {
    for (const std::string number : {"-1", "2", "0"}) {
        Ini("FontBold_Inactive=" + number + "\r\nFontItalic_Active=1\r\n");
        Load();
        EXPECT_EQ(list.m_Style.bold, number != "0") << number;
        EXPECT_FALSE(list.m_Style.italic);
        Ini("FontItalic_Inactive=" + number + "\r\nFontBold_Active=1\r\n");
        Load();
        EXPECT_EQ(list.m_Style.italic, number != "0") << number;
        EXPECT_FALSE(list.m_Style.bold);
    }
}

TEST_F(StartUp, TheTitleNamesNoObjectAsNone) {
    Load();
    EXPECT_EQ(mainWindow.m_Caption, "T10000 (none) - Version 3.00.04");
}

TEST_F(StartUp, TheLightMenuIsOfferedForACategoryWithALightAndADevice) {
    light.m_Version = 1;
    light.m_Devices = {{1, {"L"}}};
    Ini("", "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=L\r\n");
    Load();
    EXPECT_TRUE(menus["Menu_StopLight"].visible);
    EXPECT_FALSE(menus["Menu_StopLight"].enabled);
}

TEST_F(StartUp, TheLightMenuStaysHiddenWithoutADevice) {
    light.m_Version = 1;
    Ini("", "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=L\r\n");
    Load();
    EXPECT_FALSE(menus["Menu_StopLight"].visible);
}

TEST_F(StartUp, TheDefaultSettingsAloneNeverOfferTheLightMenu) {
    light.m_Version = 1;
    light.m_Devices = {{1, {"L"}}};
    Ini("USBLED_DeviceName_Active=L\r\n", "[CategorySpecificSetting_Fire]\r\n");
    Load();
    EXPECT_FALSE(menus["Menu_StopLight"].visible);
}

TEST_F(StartUp, ASwitchIsFoundAnywhereInAnyCase) {
    EXPECT_EQ(Load("x/debuggery/ToPmOsT"), eStartUp::Running);
    EXPECT_TRUE(Did("debug window"));
    EXPECT_TRUE(mainWindow.m_TopMost);
}

TEST_F(StartUp, WithoutSwitchesTheWindowTakesItsStoredPlace) {
    Ini("Vigrel_Receiver_Main.Left=1500\r\nVigrel_Receiver_Main.Top=600\r\nVigrel_Receiver_Main.Width="
        "9000\r\n"
        "Vigrel_Receiver_Main.Height=6000\r\n");
    Load();
    EXPECT_EQ(mainWindow.m_Left, 1500);
    EXPECT_EQ(mainWindow.m_Top, 600);
    EXPECT_EQ(mainWindow.m_Width, 9000);
    EXPECT_EQ(mainWindow.m_Height, 6000);
    EXPECT_EQ(mainWindow.m_State, eWindowState::Normal);
    EXPECT_FALSE(mainWindow.m_TopMost);
    EXPECT_FALSE(menus["Menu_Simulate"].visible);
    EXPECT_FALSE(Did("about box"));
    EXPECT_FALSE(Did("debug window"));
    EXPECT_FALSE(receiver->State().m_DebugMode);
}

TEST_F(StartUp, MaximisedTheStoredPlaceIsNotApplied) {
    Ini("Vigrel_Receiver_Main.Left=1500\r\n");
    Load("/MAXIMIZE");
    EXPECT_EQ(mainWindow.m_State, eWindowState::Maximised);
    EXPECT_EQ(mainWindow.m_Left, 0);
    EXPECT_FALSE(Did("about box"));
}

TEST_F(StartUp, MinimisedAndWithPopupsTheStoredPlaceIsAppliedFirst) {
    for (const auto& [general, commandLine] : {std::pair{"", "/minimize"}, {"ViewPopupForm=1\r\n", ""}}) {
        mainWindow.m_State = eWindowState::Normal;
        mainWindow.m_Left = 0;
        transcript.Take();
        Ini(std::string("Vigrel_Receiver_Main.Left=1500\r\n") + general);
        Load(commandLine);
        EXPECT_EQ(mainWindow.m_Left, 1500) << commandLine;
        EXPECT_EQ(mainWindow.m_State, eWindowState::Minimised) << commandLine;
        EXPECT_TRUE(Did("about box\nVigrel_Receiver_Main: minimised")) << transcript.Text();
    }
}

TEST_F(StartUp, MaximisedAndMinimisedTheFirstActivationMinimises) {
    Load("/MAXIMIZE /MINIMIZE");
    EXPECT_EQ(mainWindow.m_State, eWindowState::Maximised);
    transcript.Take();
    receiver->Form_Activate();
    EXPECT_EQ(transcript.Take(), "Vigrel_Receiver_Main: minimised\nabout box\n");
}

TEST_F(StartUp, TheFirstActivationShowsTheAboutBoxAndTheNextUnloadsIt) {
    Load();
    transcript.Take();
    receiver->Form_Activate();
    EXPECT_EQ(transcript.Take(), "about box\n");
    receiver->Form_Activate();
    EXPECT_EQ(transcript.Take(), "about box unloaded\n");
}

TEST_F(StartUp, AnActivationOfTheWindowReachesTheReceiverOnceItRuns) {
    Make();
    mainWindow.OnActivate();
    EXPECT_FALSE(Did("about box"));
    receiver->Form_Load();
    mainWindow.OnActivate();
    EXPECT_TRUE(Did("about box\n"));
}

TEST_F(StartUp, AnActivationByTheAboutBoxItselfShowsNoSecondOne) {
    Load();
    transcript.Take();
    otherWindows.m_OnAboutBox = [this] { receiver->Form_Activate(); };
    receiver->Form_Activate();
    EXPECT_EQ(transcript.Take(), "about box\nabout box unloaded\n");
}

TEST_F(StartUp, AfterAMinimisedStartTheFirstActivationUnloadsTheAboutBox) {
    Load("/MINIMIZE");
    transcript.Take();
    receiver->Form_Activate();
    EXPECT_EQ(transcript.Take(), "about box unloaded\n");
}

TEST_F(StartUp, TheSimulationMenuShowsWithItsSwitchOnly) {
    Load("/simulate");
    EXPECT_TRUE(menus["Menu_Simulate"].visible);
}

TEST_F(StartUp, InTheTaskBarNoIconShows) {
    Load();
    EXPECT_FALSE(trayArea.m_Visible);
    EXPECT_FALSE(Did("tray:"));
}

TEST_F(StartUp, OldLogsGo) {
    files.Put("C:\\App\\LogFiles\\20260210.log", "old");
    files.Put("C:\\App\\LogFiles\\20260310.log", "young");
    Ini("KeepForDays=30\r\n");
    Load();
    EXPECT_FALSE(files.FileExists("C:\\App\\LogFiles\\20260210.log"));
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260310.log"));
}

TEST_F(StartUp, OldLogsStayUntilTheSendersAreRead) {
    files.Put("C:\\App\\LogFiles\\20260210.log", "old");
    Ini("", "[Senders]\r\nPLC1=40000\r\n");
    EXPECT_THROW(Load(), cFailure);
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260210.log"));
}

TEST_F(StartUp, StoredAlarmsAreListedAndNothingSignals) {
    Ini("Columns=StateIcon,t0\r\nViewPopupForm=1\r\nEventSignal=3\r\n");
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    alarm.m_Alarm.m_Status = StatusActive;
    alarm.m_Alarm.SetCondition(0, "stored");
    cBinaryWriter file;
    alarm.WriteToDisk(file);
    files.Put("C:\\App\\Alarms\\A0000001.alm", file.Bytes());
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(list.Screen(), "#0|stored|\n");
    EXPECT_EQ(popups.Open(), "");
    EXPECT_EQ(receiver->State().m_SoundState, 0);
    EXPECT_TRUE(printerPorts.m_Lines.empty());
}

TEST_F(StartUp, StoredAlarmsStandInTheConfiguredOrderFromTheStart) {
    for (const auto& [number, text] : {std::pair{1, "older"}, {2, "newer"}}) {
        cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
        alarm.m_CreatedTime = clock.Now() - 1.0 / number;
        alarm.m_Alarm.SetCondition(0, text);
        cBinaryWriter file;
        alarm.WriteToDisk(file);
        files.Put("C:\\App\\Alarms\\A000000" + std::to_string(number) + ".alm", file.Bytes());
    }
    Ini("Columns=StateIcon,t0\r\nSortDescending=1\r\n");
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(list.Screen(), "#0|newer|\n#0|older|\n");
    Ini("Columns=StateIcon,t0\r\n");
    list = testing::cFakeReportList();
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_EQ(list.Screen(), "#0|older|\n#0|newer|\n");
}

TEST_F(StartUp, NoColumnWidthIsStoredWhileTheColumnsAreBuilt) {
    Ini("Columns=t0\r\n");
    Load();
    EXPECT_EQ(receiver->Ini().GetIniString("t0", "ColumnWidth", "none"), "none");
    list.DragColumn(0, 222);
    EXPECT_EQ(receiver->Ini().GetIniString("t0", "ColumnWidth", "none"), "222");
}

TEST_F(StartUp, ANumberOutOfRangeEndsTheStart) {
    Ini("MaxEvents=99999999999\r\n");
    EXPECT_THROW(Load(), cFailure);
}

TEST_F(StartUp, LeftoverTemporariesAreCleared) {
    files.Put("C:\\App\\VigrelReceiver.INI.$~", "half");
    Load();
    EXPECT_FALSE(files.FileExists("C:\\App\\VigrelReceiver.INI.$~"));
}

TEST_F(StartUp, LeftoverTemporariesOfLinkedFilesAreCleared) {
    files.Put("C:\\App\\Vigrel_Texts.047", "0=Test\r\n");
    files.m_Links = {{"C:\\App\\VigrelReceiver.INI", "C:\\Shared\\station.ini"},
                     {"C:\\App\\Vigrel_Texts.047", "C:\\Shared\\norsk"}};
    for (const char* name : {"station.ini.$~", "norsk.$~", "other.ini.$~"})
        files.Put(std::string("C:\\Shared\\") + name, "half");
    Load();
    EXPECT_EQ(files.ListFiles("C:\\Shared\\", "*.$~"), std::vector<std::string>{"other.ini.$~"});
}

TEST_F(StartUp, AFolderThatCannotBeLockedIsToldAndTheStartGoesOn) {
    singleInstance.m_Problem = "C:\\App\\x.lock: no locks";
    EXPECT_EQ(Load(), eStartUp::Running);
    const std::string line = "T11003: C:\\App\\x.lock: no locks";
    EXPECT_EQ(status.m_Texts, std::vector<std::string>{line});
    EXPECT_NE(Log().find(line + "\n"), std::string::npos);
}

TEST_F(StartUp, ASecondInstanceLeavesTheFirstOnesTemporariesAlone) {
    files.Put("C:\\App\\VigrelReceiver.INI.$~", "being written");
    singleInstance.m_Another = true;
    EXPECT_EQ(Load(), eStartUp::SecondInstance);
    EXPECT_TRUE(files.FileExists("C:\\App\\VigrelReceiver.INI.$~"));
}

// With the limits' defaults the stored alarms would be cut down to them; senders would not be missed.
TEST_F(StartUp, AConfigurationThatCannotBeReadAnyMoreOnTheWayEndsTheStart) {
    files.m_OnCall = [this](std::string_view operation, std::string_view) {
        if (operation == "append") files.SetUnreadable("C:\\App\\VigrelReceiver.INI", true);
    };
    files.Put("C:\\App\\LogFiles\\20260101.log", "old");
    EXPECT_THROW(Load(), cFailure);
    EXPECT_FALSE(listener.m_Listening);
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260101.log"));
}

TEST_F(StartUp, AConfigurationThatCouldNotBeReadForAMomentEndsTheStartToo) {
    // Changed and unreadable while the settings are read, and behind them there again.
    deliveredTexts.Add("046", "20001=more\r\n");
    files.m_OnCall = [this](std::string_view, std::string_view path) {
        if (path.find("Vigrel_Texts") == std::string_view::npos) return;
        Ini("MaxEvents=5000\r\n");
        files.SetUnreadable("C:\\App\\VigrelReceiver.INI", true);
    };
    otherWindows.m_OnAboutBox = [this] { files.SetUnreadable("C:\\App\\VigrelReceiver.INI", false); };
    files.Put("C:\\App\\LogFiles\\20260101.log", "old");
    Make("/minimize");
    const auto failure = CatchFailure([this] { receiver->Form_Load(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::InputOutput);
    EXPECT_TRUE(Did("about box"));
    EXPECT_FALSE(listener.m_Listening);
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260101.log"));
}

// At the default one nobody would call.
TEST_F(StartUp, APortThatCannotBeReadAnyMoreEndsTheStart) {
    Ini("", "[Senders]\r\nPLC1=5\r\n[TCPIP]\r\nPort=12500\r\n");
    files.m_OnCall = [this](std::string_view operation, std::string_view) {
        if (operation != "append" || Log().find("T10041") == std::string::npos) return;
        Ini("Object=Plant\r\n", "[TCPIP]\r\nPort=12500\r\n");
        files.SetUnreadable("C:\\App\\VigrelReceiver.INI", true);
    };
    EXPECT_THROW(Load(), cFailure);
    EXPECT_FALSE(listener.m_Listening);
    EXPECT_EQ(Log(), dashes + "T10040\n0 T10041\nPLC1 - T10013 5 T10014\n");
}

}  // namespace
}  // namespace vigrel::testing
