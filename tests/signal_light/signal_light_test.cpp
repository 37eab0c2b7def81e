#include "adapters/linux/hid_signal_light.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "adapters/linux/system_clock.h"
#include "common/failure.h"
#include "signals/light.h"
#include "support/fake_station.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

// The machine's steady clock, which a test can put forward.
class cLeapingClock : public cSystemClock {
  public:
    double Steady() const override { return cSystemClock::Steady() + m_Seconds / 86400; }
    double m_Seconds = 0;
};

class SignalLight : public ::testing::Test {
  protected:
    SignalLight() { setenv("VIGREL_TEST_LIGHTS", m_Folder.Path().c_str(), 1); }

    // The lights that are plugged in: path, serial number, state, one a line.
    void PlugIn(const std::string& lights) { std::ofstream(m_Folder.Path() / "lights") << lights; }
    // Tells where a node is plugged in, as the kernel does.
    void Place(const std::string& node, const std::string& port) {
        const auto device = m_Folder.Path() / "sys/devices/pci0000:00/0000:00:14.0/usb1/1-1" / port /
                            (port + ":1.0") / "0003:0FC5:B080.0001";
        const auto link = m_Folder.Path() / "sys/class/hidraw" / node;
        std::filesystem::create_directories(device);
        std::filesystem::create_directories(link);
        std::filesystem::create_symlink(device, link / "device");
    }
    // What was sent since the last look.
    std::string Packets() {
        std::ifstream file(m_Folder.Path() / "packets");
        std::string packets{std::istreambuf_iterator<char>(file), {}};
        std::filesystem::remove(m_Folder.Path() / "packets");
        return packets;
    }
    std::string Name(std::int32_t index, std::int32_t type = 1) {
        std::string buffer(512, '\0');
        m_Light.DelcomGetNthDevice(type, index, buffer);
        EXPECT_EQ(buffer.size(), 512u);
        return buffer.substr(0, buffer.find('\0'));
    }
    // A light of number 77, opened.
    std::int32_t OpenOne() {
        PlugIn("/dev/hidraw3 77 good\n");
        return m_Light.DelcomOpenDevice("serial-77", 0);
    }
    double Seconds(const std::function<void()>& step) {
        const auto start = std::chrono::steady_clock::now();
        step();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    cTemporaryFolder m_Folder;
    cLeapingClock m_Clock;
    cHidSignalLight m_Light{m_Clock, (m_Folder.Path() / "sys").string()};
};

// --- finding lights

TEST_F(SignalLight, TheLibraryHasAVersionOnlyWhenItWorks) {
    EXPECT_EQ(m_Light.DelcomGetDLLVersion(), 1);
    setenv("VIGREL_TEST_NO_HID", "1", 1);
    EXPECT_EQ(m_Light.DelcomGetDLLVersion(), 0);
    unsetenv("VIGREL_TEST_NO_HID");
}

TEST_F(SignalLight, AllLightsAreOfOneType) {
    PlugIn("/dev/hidraw0 1 good\n/dev/hidraw1 2 good\n");
    EXPECT_EQ(m_Light.DelcomGetDeviceCount(1), 2);
    for (const int type : {0, 2, 3, 4}) {
        EXPECT_EQ(m_Light.DelcomGetDeviceCount(type), 0);
        EXPECT_EQ(Name(0, type), "");
    }
}

TEST_F(SignalLight, ALightIsNamedByItsSerialNumber) {
    PlugIn("/dev/hidraw3 77 good\n/dev/hidraw4 4294967294 good\n");
    EXPECT_EQ(Name(0), "serial-77");
    EXPECT_EQ(Name(1), "serial-4294967294");
    EXPECT_EQ(Name(2), "");
    EXPECT_EQ(Name(-1), "");
}

TEST_F(SignalLight, ALightWithoutANumberIsNamedByItsPort) {
    PlugIn("/dev/hidraw3 0 good\n/dev/hidraw4 4294967295 good\n/dev/hidraw5 5 locked\n");
    Place("hidraw3", "1-1.2");
    Place("hidraw4", "1-1.3.1");
    Place("hidraw5", "1-4");
    EXPECT_EQ(Name(0), "port-1-1.2");
    EXPECT_EQ(Name(1), "port-1-1.3.1");
    EXPECT_EQ(Name(2), "port-1-4");
}

TEST_F(SignalLight, LightsStandInTheOrderOfTheirPortsWhateverTheirNodes) {
    PlugIn("/dev/hidraw9 0 good\n/dev/hidraw3 0 good\n");
    Place("hidraw9", "1-1.1");
    Place("hidraw3", "1-1.2");
    EXPECT_EQ(Name(0) + " " + Name(1), "port-1-1.1 port-1-1.2");
    PlugIn("/dev/hidraw3 0 good\n/dev/hidraw9 0 good\n");
    EXPECT_EQ(Name(0) + " " + Name(1), "port-1-1.1 port-1-1.2");
}

TEST_F(SignalLight, ALightThatIsListedTwiceIsOne) {
    PlugIn("/dev/hidraw3 77 twice\n");
    EXPECT_EQ(m_Light.DelcomGetDeviceCount(1), 1);
}

TEST_F(SignalLight, ANameThatDoesNotFitTheBufferIsCut) {
    PlugIn("/dev/hidraw3 77 good\n");
    std::string buffer(4, '\0');
    m_Light.DelcomGetNthDevice(1, 0, buffer);
    EXPECT_EQ(buffer, "seri");
}

// --- opening

TEST_F(SignalLight, BothNamesOpenALight) {
    PlugIn("/dev/hidraw3 77 good\n");
    Place("hidraw3", "1-1.2");
    for (const char* name : {"serial-77", "port-1-1.2"}) {
        const std::int32_t handle = m_Light.DelcomOpenDevice(name, 0);
        EXPECT_GT(handle, 0) << name;
        m_Light.DelcomSyncLeds(handle);
        EXPECT_EQ(Packets(), "/dev/hidraw3 65 19 0F 0F 00 00 00 00\n");
        m_Light.DelcomCloseDevice(handle);
    }
}

TEST_F(SignalLight, TheNameChoosesTheLight) {
    PlugIn("/dev/hidraw3 77 good\n/dev/hidraw4 78 good\n");
    m_Light.DelcomSyncLeds(m_Light.DelcomOpenDevice("serial-78", 0));
    EXPECT_EQ(Packets(), "/dev/hidraw4 65 19 0F 0F 00 00 00 00\n");
}

TEST_F(SignalLight, WhatIsNotThereOrLockedDoesNotOpen) {
    PlugIn("/dev/hidraw3 77 good\n/dev/hidraw4 0 locked\n");
    for (const char* name : {"serial-7", "serial-", "", "port-hidraw4", "/dev/hidraw3"}) {
        EXPECT_EQ(m_Light.DelcomOpenDevice(name, 0), 0) << name;
    }
}

TEST_F(SignalLight, AClosedHandleIsNoneAndNeverComesAgain) {
    const std::int32_t first = OpenOne();
    m_Light.DelcomCloseDevice(first);
    EXPECT_THROW(m_Light.DelcomSyncLeds(first), cFailure);
    m_Light.DelcomCloseDevice(first);
    EXPECT_GT(OpenOne(), first);
    EXPECT_THROW(m_Light.DelcomLEDControl(0, 0, 1), cFailure);
    EXPECT_EQ(Packets(), "");
}

TEST_F(SignalLight, ALightThatComesBackUnderAnotherNodeIsTheSame) {
    m_Light.DelcomCloseDevice(OpenOne());
    PlugIn("");
    EXPECT_EQ(m_Light.DelcomOpenDevice("serial-77", 0), 0);
    PlugIn("/dev/hidraw3 78 good\n/dev/hidraw5 77 good\n");
    m_Light.DelcomSyncLeds(m_Light.DelcomOpenDevice("serial-77", 0));
    EXPECT_EQ(Packets(), "/dev/hidraw5 65 19 0F 0F 00 00 00 00\n");
}

// --- packets

TEST_F(SignalLight, ThePreScalarIsOnePacket) {
    m_Light.DelcomLoadPreScalar(OpenOne(), 10);
    EXPECT_EQ(Packets(), "/dev/hidraw3 65 13 0A 00 00 00 00 00\n");
}

TEST_F(SignalLight, EachLedHasItsOwnCommandsOfFlashing) {
    const std::int32_t light = OpenOne();
    for (std::uint8_t led = 0; led < 4; ++led) {
        m_Light.DelcomLoadLedFreqDuty(light, led, 50, 255);
        m_Light.DelcomLoadInitialPhaseDelay(light, led, 100);
    }
    EXPECT_EQ(Packets(),
              "/dev/hidraw3 65 15 32 FF 00 00 00 00\n/dev/hidraw3 65 1A 64 00 00 00 00 00\n"
              "/dev/hidraw3 65 16 32 FF 00 00 00 00\n/dev/hidraw3 65 1B 64 00 00 00 00 00\n"
              "/dev/hidraw3 65 17 32 FF 00 00 00 00\n/dev/hidraw3 65 1C 64 00 00 00 00 00\n"
              "/dev/hidraw3 65 18 32 FF 00 00 00 00\n/dev/hidraw3 65 1D 64 00 00 00 00 00\n");
}

TEST_F(SignalLight, PowerNamesTheLedAndThePercentage) {
    const std::int32_t light = OpenOne();
    m_Light.DelcomLEDPower(light, 0, 0);
    m_Light.DelcomLEDPower(light, 3, 100);
    EXPECT_EQ(Packets(), "/dev/hidraw3 65 22 00 00 00 00 00 00\n/dev/hidraw3 65 22 03 64 00 00 00 00\n");
}

TEST_F(SignalLight, OffEndsTheFlashingAndSetsThePin) {
    const std::int32_t light = OpenOne();
    m_Light.DelcomLEDControl(light, 0, 0);
    m_Light.DelcomLEDControl(light, 3, 0);
    EXPECT_EQ(Packets(),
              "/dev/hidraw3 65 14 01 00 00 00 00 00\n/dev/hidraw3 65 0C 00 01 00 00 00 00\n"
              "/dev/hidraw3 65 14 08 00 00 00 00 00\n/dev/hidraw3 65 0C 00 08 00 00 00 00\n");
}

TEST_F(SignalLight, OnEndsTheFlashingAndResetsThePin) {
    m_Light.DelcomLEDControl(OpenOne(), 1, 1);
    EXPECT_EQ(Packets(), "/dev/hidraw3 65 14 02 00 00 00 00 00\n/dev/hidraw3 65 0C 02 00 00 00 00 00\n");
}

TEST_F(SignalLight, FlashingResetsThePinToo) {
    m_Light.DelcomLEDControl(OpenOne(), 2, 2);
    EXPECT_EQ(Packets(), "/dev/hidraw3 65 14 00 04 00 00 00 00\n/dev/hidraw3 65 0C 04 00 00 00 00 00\n");
}

TEST_F(SignalLight, WhatTheLightHasNotGotIsRefusedAndNotSent) {
    const std::int32_t light = OpenOne();
    EXPECT_THROW(m_Light.DelcomLEDControl(light, 4, 1), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDControl(light, -1, 1), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDControl(light, 0, 3), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDControl(light, 0, -1), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDPower(light, 0, 101), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDPower(light, 0, -1), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDPower(light, 4, 50), cFailure);
    EXPECT_THROW(m_Light.DelcomLoadLedFreqDuty(light, 4, 1, 1), cFailure);
    EXPECT_THROW(m_Light.DelcomLoadInitialPhaseDelay(light, 4, 1), cFailure);
    EXPECT_EQ(Packets(), "");
}

// --- lights that fail

TEST_F(SignalLight, ALightThatIsPulledOutWhileOpenTakesNoMorePackets) {
    const std::int32_t light = OpenOne();
    PlugIn("");
    EXPECT_THROW(m_Light.DelcomSyncLeds(light), cFailure);
    EXPECT_THROW(m_Light.DelcomSyncLeds(light), cFailure);
    m_Light.DelcomCloseDevice(light);
    EXPECT_EQ(Packets(), "");
    PlugIn("/dev/hidraw3 77 good\n");
    m_Light.DelcomSyncLeds(m_Light.DelcomOpenDevice("serial-77", 0));
    EXPECT_EQ(Packets(), "/dev/hidraw3 65 19 0F 0F 00 00 00 00\n");
}

// A light that doesn't know one of the commands must not stay dark for it.
TEST_F(SignalLight, APacketThatTheLightRefusesCostsNoOther) {
    PlugIn("/dev/hidraw3 77 plain\n");
    const std::int32_t light = m_Light.DelcomOpenDevice("serial-77", 0);
    EXPECT_THROW(m_Light.DelcomLoadLedFreqDuty(light, 0, 1, 2), cFailure);
    EXPECT_THROW(m_Light.DelcomLoadInitialPhaseDelay(light, 0, 1), cFailure);
    EXPECT_THROW(m_Light.DelcomLEDControl(light, 0, 1), cFailure);
    EXPECT_EQ(Packets(), "/dev/hidraw3 65 0C 01 00 00 00 00 00\n");
}

TEST_F(SignalLight, ALightThatRefusesPacketByPacketIsWaitedForNoLongerThanOneThatHangs) {
    PlugIn("/dev/hidraw3 77 hesitant\n");
    Place("hidraw3", "1-1.2");
    const std::int32_t light = m_Light.DelcomOpenDevice("port-1-1.2", 0);
    ASSERT_GT(light, 0);
    const double waited = Seconds([&] {
        for (int packet = 0; packet < 22; ++packet) EXPECT_THROW(m_Light.DelcomSyncLeds(light), cFailure);
    });
    EXPECT_LT(waited, 2);
    m_Light.DelcomCloseDevice(light);
    EXPECT_EQ(m_Light.DelcomOpenDevice("port-1-1.2", 0), 0);
}

TEST_F(SignalLight, ALightThatHangsIsWaitedForOnceAndThenRests) {
    PlugIn("/dev/hidraw3 77 slow\n");
    Place("hidraw3", "1-1.2");
    const std::int32_t light = m_Light.DelcomOpenDevice("port-1-1.2", 0);
    ASSERT_GT(light, 0);
    EXPECT_GT(Seconds([&] { EXPECT_THROW(m_Light.DelcomSyncLeds(light), cFailure); }), 1);
    // No more of the handle, no more of the light; others go on.
    PlugIn("/dev/hidraw3 77 slow\n/dev/hidraw4 78 good\n");
    const double rest = Seconds([&] {
        EXPECT_THROW(m_Light.DelcomSyncLeds(light), cFailure);
        m_Light.DelcomCloseDevice(light);
        EXPECT_EQ(m_Light.DelcomOpenDevice("port-1-1.2", 0), 0);
        EXPECT_EQ(m_Light.DelcomOpenDevice("serial-77", 0), 0);
        EXPECT_GT(m_Light.DelcomOpenDevice("serial-78", 0), 0);
    });
    EXPECT_LT(rest, 0.5);
    PlugIn("/dev/hidraw3 77 good\n");
    m_Clock.m_Seconds = cHidSignalLight::kRestSeconds - 10;
    EXPECT_EQ(m_Light.DelcomOpenDevice("serial-77", 0), 0);
    m_Clock.m_Seconds = cHidSignalLight::kRestSeconds + 1;
    EXPECT_GT(m_Light.DelcomOpenDevice("serial-77", 0), 0);
}

// --- together with the logic

TEST_F(SignalLight, AnEventReachesTheLightAsPackets) {
    PlugIn("/dev/hidraw3 77 good\n");
    cFakeStation station;
    station.Ini(
        "[CategorySpecificSetting_Fire]\r\nUSBLED_DeviceName_Active=serial-77\r\n"
        "USBLED_FreqDuty_Active=20,30\r\nUSBLED_Control_Active=2/1\r\nUSBLED_SyncLeds_Active=1\r\n");
    station.categories.ReadCategories(station.files, station.ini);
    cFakeMenus menus;
    cLight light({m_Light, menus, station.categories, station.state, station.texts, station.log});
    ASSERT_EQ(light.ScanDevices(), 1);
    const AlarmPtr alarm = station.MakeAlarm("text", "Fire");
    light.SignalUsbLight(*alarm);
    const std::string node = "/dev/hidraw3 ";
    const std::string zeros = " 00 00 00 00\n";
    std::string expected = node + "65 13 0A 00" + zeros;
    for (const char* packet :
         {"65 15 14 1E", "65 1A 00 00", "65 22 00 64", "65 14 00 01", "65 0C 01 00",  // LED 0: flashes
          "65 16 00 00", "65 1B 00 00", "65 22 01 64", "65 14 02 00", "65 0C 02 00",  // LED 1: on
          "65 17 00 00", "65 1C 00 00", "65 22 02 64", "65 14 04 00", "65 0C 00 04",  // LED 2: off
          "65 18 00 00", "65 1D 00 00", "65 22 03 64", "65 14 08 00", "65 0C 00 08",  // LED 3: off
          "65 19 0F 0F"}) {
        expected += node + packet + zeros;
    }
    EXPECT_EQ(Packets(), expected);
    light.Menu_StopLight();
    EXPECT_EQ(Packets(),
              "/dev/hidraw3 65 14 01 00 00 00 00 00\n/dev/hidraw3 65 0C 00 01 00 00 00 00\n"
              "/dev/hidraw3 65 14 02 00 00 00 00 00\n/dev/hidraw3 65 0C 00 02 00 00 00 00\n"
              "/dev/hidraw3 65 14 04 00 00 00 00 00\n/dev/hidraw3 65 0C 00 04 00 00 00 00\n"
              "/dev/hidraw3 65 14 08 00 00 00 00 00\n/dev/hidraw3 65 0C 00 08 00 00 00 00\n");
}

}  // namespace
}  // namespace vigrel::testing
