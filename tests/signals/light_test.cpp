#include "signals/light.h"

#include <gtest/gtest.h>

#include "support/fake_devices.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

class Light : public ::testing::Test, protected cFakeStation {
  protected:
    Light() {
        state.m_DelcomDllVersion = 1;
        m_Library.m_Version = 1;
        m_Library.m_Devices[1] = {"A", "B", "C"};
    }

    // The categories of a configuration file.
    void Categories(const std::string& content) {
        Ini(content);
        categories.ReadDefault(ini);
        categories.ReadCategories(files, ini);
    }
    // What an event of a category and status makes the lights do.
    std::string Signal(const std::string& category, std::int16_t status = StatusActive) {
        const AlarmPtr alarm = MakeAlarm("text", category, status);
        m_Light.SignalUsbLight(*alarm);
        return transcript.Take();
    }
    // The lines that hold a word.
    static std::string Only(const std::string& word, const std::string& steps) {
        std::string lines;
        for (const std::string& line : SplitLines(steps)) {
            if (line.find(word) != std::string::npos) lines += line + "\n";
        }
        return lines;
    }
    bool MenuEnabled() { return m_Menus["Menu_StopLight"].enabled; }

    cFakeSignalLight m_Library{&transcript};
    cFakeMenus m_Menus;
    cLight m_Light{{m_Library, m_Menus, categories, state, texts, log}};
};

constexpr const char* kFire =
    "[CategorySpecificSetting_Fire]\r\n"
    "USBLED_DeviceName_Active=A\r\n"
    "USBLED_PreScalar_Active=20\r\n"
    "USBLED_FreqDuty_Active=50,60/70,80/90,100/110,120\r\n"
    "USBLED_InitialPhaseDelay_Active=1/2/3/4\r\n"
    "USBLED_Power_Active=100/90/80/70\r\n"
    "USBLED_Control_Active=0/1/2/2\r\n";

// --- the scan at start

TEST_F(Light, TheScanLogsTheLibraryAndEveryDevice) {
    m_Library.m_Version = 1.25;
    m_Library.m_Devices = {{1, {"A", "B"}}, {3, {"C"}}};
    LoadTexts({10027, 10046, 10047});
    EXPECT_EQ(m_Light.ScanDevices(), 3);
    EXPECT_EQ(state.m_DelcomDllVersion, 1.25);
    EXPECT_EQ(Log(), "T10027 1.25\nT10047 (type 1): A\nT10047 (type 1): B\nT10047 (type 3): C\n");
}

TEST_F(Light, TheScanLooksAtFourTypes) {
    m_Library.m_Devices = {{0, {"N"}}, {1, {"A"}}, {2, {"B"}}, {3, {"C"}}, {4, {"D"}}, {5, {"N"}}};
    EXPECT_EQ(m_Light.ScanDevices(), 4);
}

TEST_F(Light, TheScanNamesAtMost255DevicesOfATypeAndCountsThemAll) {
    m_Library.m_Devices[1].assign(300, "A");
    LoadTexts({10027, 10047});
    EXPECT_EQ(m_Light.ScanDevices(), 300);
    EXPECT_EQ(SplitLines(Log()).size(), 256u);
}

TEST_F(Light, AnEmptyNameEndsItsType) {
    m_Library.m_Devices = {{1, {"A", "", "B"}}, {2, {"C"}}};
    LoadTexts({10027, 10047});
    EXPECT_EQ(m_Light.ScanDevices(), 4);
    EXPECT_EQ(Log(), "T10027 1\nT10047 (type 1): A\nT10047 (type 2): C\n");
}

TEST_F(Light, ANameEndsAtItsFirstCharacterOfCodeZero) {
    m_Library.m_Devices[1] = {std::string("A\0rest", 6)};
    LoadTexts({10027, 10047});
    m_Light.ScanDevices();
    EXPECT_EQ(Log(), "T10027 1\nT10047 (type 1): A\n");
}

TEST_F(Light, ANameHasRoomFor512Characters) {
    m_Library.m_Devices[1] = {std::string(600, 'x')};
    LoadTexts({10027, 10047});
    m_Light.ScanDevices();
    EXPECT_EQ(Log(), "T10027 1\nT10047 (type 1): " + std::string(512, 'x') + "\n");
}

TEST_F(Light, WithoutADeviceTheScanSaysSo) {
    m_Library.m_Devices.clear();
    LoadTexts({10027, 10046});
    EXPECT_EQ(m_Light.ScanDevices(), 0);
    EXPECT_EQ(Log(), "T10027 1\nT10046\n");
}

TEST_F(Light, DevicesThatCannotBeCountedAreNone) {
    m_Library.m_FailCalls = {"count"};
    LoadTexts({10027, 10046, 10047});
    EXPECT_EQ(m_Light.ScanDevices(), 0);
    EXPECT_EQ(Log(), "T10027 1\nT10046\n");
}

TEST_F(Light, WithoutALibraryTheScanLogsNothing) {
    m_Library.m_Version = 0;
    EXPECT_EQ(m_Light.ScanDevices(), 0);
    m_Library.m_Missing = true;
    state.m_DelcomDllVersion = 1;
    EXPECT_EQ(m_Light.ScanDevices(), 0);
    EXPECT_EQ(state.m_DelcomDllVersion, 0);
    EXPECT_EQ(Log(), "");
}

// --- the menu entry

TEST_F(Light, TheFirstEventThatOpensALightEnablesTheEntryAndItsCommandDisablesIt) {
    Categories(kFire);
    m_Menus.SetEnabled("Menu_StopLight", false);
    m_Library.m_Devices[1] = {"B"};
    Signal("Fire");
    EXPECT_FALSE(MenuEnabled());
    m_Library.m_Devices[1] = {"A"};
    Signal("Fire");
    EXPECT_TRUE(MenuEnabled());
    m_Light.Menu_StopLight();
    EXPECT_FALSE(MenuEnabled());
}

// --- an event

TEST_F(Light, AnEventProgrammesItsLightInOrder) {
    Categories(std::string(kFire) + "USBLED_SyncLeds_Active=1\r\n");
    EXPECT_EQ(Signal("Fire"),
              "light: open A 0\n"
              "light: prescalar #1 20\n"
              "light: freqduty #1 0 50,60\nlight: phase #1 0 1\n"
              "light: power #1 0 100\nlight: control #1 0 0\n"
              "light: freqduty #1 1 70,80\nlight: phase #1 1 2\n"
              "light: power #1 1 90\nlight: control #1 1 1\n"
              "light: freqduty #1 2 90,100\nlight: phase #1 2 3\n"
              "light: power #1 2 80\nlight: control #1 2 2\n"
              "light: freqduty #1 3 110,120\nlight: phase #1 3 4\n"
              "light: power #1 3 70\nlight: control #1 3 2\n"
              "light: sync #1\n"
              "light: close #1\n");
}

TEST_F(Light, WithoutSyncTheCallIsLeftOut) {
    Categories(kFire);
    EXPECT_EQ(Only("sync", Signal("Fire")), "");
}

// The steps of a light whose four LEDs are programmed alike.
std::string Programme(const std::string& name, int handle, const std::string& preScalar,
                      const std::string& freqDuty, const std::string& phase, const std::string& power,
                      const std::string& control, bool sync) {
    const std::string of = " #" + std::to_string(handle);
    std::string steps = "light: open " + name + " 0\nlight: prescalar" + of + " " + preScalar + "\n";
    for (const char* led : {" 0 ", " 1 ", " 2 ", " 3 "}) {
        steps += "light: freqduty" + of + led + freqDuty + "\nlight: phase" + of + led + phase + "\n" +
                 "light: power" + of + led + power + "\nlight: control" + of + led + control + "\n";
    }
    return steps + (sync ? "light: sync" + of + "\n" : "") + "light: close" + of + "\n";
}

TEST_F(Light, EveryStatusHasItsOwnProgramme) {
    Categories(
        "[CategorySpecificSetting_Fire]\r\n"
        "USBLED_DeviceName_Inactive=A\r\nUSBLED_Control_Inactive=0/0/0/0\r\n"
        "USBLED_PreScalar_Inactive=11\r\nUSBLED_FreqDuty_Inactive=1,2/1,2/1,2/1,2\r\n"
        "USBLED_InitialPhaseDelay_Inactive=3/3/3/3\r\nUSBLED_Power_Inactive=4/4/4/4\r\n"
        "USBLED_DeviceName_Active=B\r\nUSBLED_Control_Active=2/2/2/2\r\nUSBLED_SyncLeds_Active=1\r\n"
        "USBLED_PreScalar_Active=12\r\nUSBLED_FreqDuty_Active=5,6/5,6/5,6/5,6\r\n"
        "USBLED_InitialPhaseDelay_Active=7/7/7/7\r\nUSBLED_Power_Active=8/8/8/8\r\n"
        "USBLED_DeviceName_Acked=C\r\nUSBLED_Control_Acked=1/1/1/1\r\nUSBLED_SyncLeds_Acked=0\r\n"
        "USBLED_PreScalar_Acked=13\r\nUSBLED_FreqDuty_Acked=9,10/9,10/9,10/9,10\r\n"
        "USBLED_InitialPhaseDelay_Acked=20/20/20/20\r\nUSBLED_Power_Acked=21/21/21/21\r\n"
        "USBLED_DeviceName_Message=A\r\nUSBLED_Control_Message=3/3/3/3\r\nUSBLED_SyncLeds_Message=-1\r\n"
        "USBLED_PreScalar_Message=14\r\nUSBLED_FreqDuty_Message=22,23/22,23/22,23/22,23\r\n"
        "USBLED_InitialPhaseDelay_Message=24/24/24/24\r\nUSBLED_Power_Message=25/25/25/25\r\n");
    EXPECT_EQ(Signal("Fire", StatusInactive), Programme("A", 1, "11", "1,2", "3", "4", "0", false));
    EXPECT_EQ(Signal("Fire", StatusActive), Programme("B", 2, "12", "5,6", "7", "8", "2", true));
    EXPECT_EQ(Signal("Fire", StatusAcked), Programme("C", 3, "13", "9,10", "20", "21", "1", false));
    EXPECT_EQ(Signal("Fire", StatusMessage), Programme("A", 4, "14", "22,23", "24", "25", "3", true));
}

TEST_F(Light, AStatusWithoutNamesCallsNothingAndLeavesTheEntryAlone) {
    Categories(kFire);
    m_Menus.SetEnabled("Menu_StopLight", false);
    EXPECT_EQ(Signal("Fire", StatusAcked), "");
    EXPECT_FALSE(MenuEnabled());
}

TEST_F(Light, LedsWithoutAnEntryGetZeros) {
    Categories(
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=A\r\nUSBLED_FreqDuty_Active=50/70,80\r\n"
        "USBLED_InitialPhaseDelay_Active=1\r\nUSBLED_Power_Active=100\r\nUSBLED_Control_Active=2\r\n");
    EXPECT_EQ(Signal("Fire"),
              "light: open A 0\n"
              "light: prescalar #1 10\n"
              "light: freqduty #1 0 50,0\nlight: phase #1 0 1\n"
              "light: power #1 0 100\nlight: control #1 0 2\n"
              "light: freqduty #1 1 70,80\nlight: phase #1 1 0\n"
              "light: power #1 1 0\nlight: control #1 1 0\n"
              "light: freqduty #1 2 0,0\nlight: phase #1 2 0\n"
              "light: power #1 2 0\nlight: control #1 2 0\n"
              "light: freqduty #1 3 0,0\nlight: phase #1 3 0\n"
              "light: power #1 3 0\nlight: control #1 3 0\n"
              "light: close #1\n");
}

TEST_F(Light, NumbersAreReadByTheirBeginningAndRounded) {
    Categories(
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=A\r\n"
        "USBLED_FreqDuty_Active= 50 ms , 60.5 /x,y/2.5,3.5\r\nUSBLED_Power_Active=99.6/-3\r\n"
        "USBLED_Control_Active= 1 on\r\n");
    const std::string steps = Signal("Fire");
    EXPECT_EQ(Only("freqduty", steps),
              "light: freqduty #1 0 50,60\nlight: freqduty #1 1 0,0\nlight: freqduty #1 2 2,4\n"
              "light: freqduty #1 3 0,0\n");
    EXPECT_EQ(Only("power", steps),
              "light: power #1 0 100\nlight: power #1 1 -3\nlight: power #1 2 0\nlight: power #1 3 0\n");
    EXPECT_EQ(Only("control #1 0", steps), "light: control #1 0 1\n");
}

TEST_F(Light, ANumberThatIsNoByteCostsItsOwnCallOnly) {
    Categories(
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=A\r\nUSBLED_PreScalar_Active=256\r\n"
        "USBLED_FreqDuty_Active=256,1/1,-1/255,0/255.5,0\r\n"
        "USBLED_InitialPhaseDelay_Active=-1/0/255/256\r\n");
    const std::string steps = Signal("Fire");
    EXPECT_EQ(Only("prescalar", steps), "");
    EXPECT_EQ(Only("freqduty", steps), "light: freqduty #1 2 255,0\n");
    EXPECT_EQ(Only("phase", steps), "light: phase #1 1 0\nlight: phase #1 2 255\n");
    EXPECT_EQ(SplitLines(Only("power", steps)).size(), 4u);
    EXPECT_EQ(SplitLines(Only("control", steps)).size(), 4u);
    EXPECT_EQ(Only("close", steps), "light: close #1\n");
}

TEST_F(Light, ACallThatFailsLeavesAllOthersStanding) {
    Categories(std::string(kFire) + "USBLED_SyncLeds_Active=1\r\n");
    m_Menus.SetEnabled("Menu_StopLight", false);
    m_Library.m_FailCalls = {"prescalar", "freqduty", "phase", "power", "control", "sync", "close"};
    const std::string steps = Signal("Fire");
    EXPECT_EQ(SplitLines(steps).size(), 20u);
    EXPECT_TRUE(steps.ends_with("light: sync #1\nlight: close #1\n")) << steps;
    EXPECT_TRUE(MenuEnabled());
}

TEST_F(Light, ALightThatCannotBeOpenedIsPassedOver) {
    Categories("[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active= A , N ,C\r\n");
    const std::string steps = Signal("Fire");
    EXPECT_EQ(Only("open", steps), "light: open A 0\nlight: open N 0\nlight: open C 0\n");
    EXPECT_EQ(Only("close", steps), "light: close #1\nlight: close #2\n");
}

TEST_F(Light, ALibraryThatFailsToOpenStopsNothing) {
    Categories("[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=A,B\r\n");
    m_Library.m_FailCalls = {"open"};
    EXPECT_EQ(Signal("Fire"), "light: open A 0\nlight: open B 0\n");
}

TEST_F(Light, AnEmptyNameEndsTheList) {
    Categories("[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=A, ,B\r\n");
    EXPECT_EQ(Only("open", Signal("Fire")), "light: open A 0\n");
}

TEST_F(Light, WithoutALibraryNothingIsCalled) {
    Categories(kFire);
    m_Menus.SetEnabled("Menu_StopLight", true);
    state.m_DelcomDllVersion = 0;
    EXPECT_EQ(Signal("Fire"), "");
    m_Light.Menu_StopLight();
    EXPECT_EQ(transcript.Take(), "");
    EXPECT_FALSE(MenuEnabled());
}

TEST_F(Light, AnEventWithoutSettingsIsPassedOver) {
    m_Light.SignalUsbLight(*MakeAlarm());
    EXPECT_EQ(transcript.Take(), "");
}

TEST_F(Light, AnEventOfTheDefaultsDrivesTheirLight) {
    Categories("[General]\r\nUSBLED_DeviceName_Active=A\r\n");
    EXPECT_EQ(Only("open", Signal("Unknown")), "light: open A 0\n");
}

// --- the menu's command

TEST_F(Light, TheCommandSwitchesOffEveryLightOnceForEachNaming) {
    Categories(
        "[General]\r\nUSBLED_DeviceName_Active=G\r\n"
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Inactive=A\r\nUSBLED_DeviceName_Active=A,B\r\n"
        "[CategorySpecificSetting_Gas]\r\nUSBLED_DeviceName_Message=A,,C\r\n");
    std::string expected;
    for (const auto& [name, handle] : {std::pair{"A", "#1"}, {"A", "#2"}, {"B", "#3"}, {"A", "#4"}}) {
        expected += std::string("light: open ") + name + " 0\n";
        for (const char* led : {"0", "1", "2", "3"}) {
            expected += std::string("light: control ") + handle + " " + led + " 0\n";
        }
        expected += std::string("light: close ") + handle + "\n";
    }
    m_Light.Menu_StopLight();
    EXPECT_EQ(transcript.Take(), expected);
}

TEST_F(Light, TheCommandPassesOverLightsThatFail) {
    Categories("[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=N,B\r\n");
    m_Library.m_FailCalls = {"control"};
    m_Light.Menu_StopLight();
    EXPECT_EQ(transcript.Take(),
              "light: open N 0\nlight: open B 0\nlight: control #1 0 0\nlight: control #1 1 0\n"
              "light: control #1 2 0\nlight: control #1 3 0\nlight: close #1\n");
    EXPECT_FALSE(MenuEnabled());
}

}  // namespace
}  // namespace vigrel::testing
