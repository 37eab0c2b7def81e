#pragma once

#include <gtest/gtest.h>

#include <string>

#include "common/failure.h"
#include "platform/wave_device.h"

namespace vigrel::testing {

// What the system may rely on, whoever plays its sounds. A rig offers cWaveDevice& Device(), SoundFile(): the
// name of a short sound, WaitForEnd(): the play that runs comes to its end, RunEvents(): the event loop
// delivers what waits.
template <class Rig>
class WaveDeviceContract : public ::testing::Test {
  protected:
    WaveDeviceContract() {
        m_Rig.Device().OnDone = [this] { ++m_Done; };
    }
    cWaveDevice& Device() { return m_Rig.Device(); }
    // Ready for a sound, with notification on.
    void Open() {
        Device().SetFileName(m_Rig.SoundFile());
        Device().Command("Open");
        Device().SetNotify(true);
    }
    bool Plays() { return Device().Mode() == cWaveDevice::Playing; }

    Rig m_Rig;
    int m_Done = 0;  // how often an end was told
};
TYPED_TEST_SUITE_P(WaveDeviceContract);

TYPED_TEST_P(WaveDeviceContract, HasNoFileAtFirstAndIsStill) {
    EXPECT_EQ(this->Device().FileName(), "");
    EXPECT_FALSE(this->Plays());
}

TYPED_TEST_P(WaveDeviceContract, TheFileNameReadsBackAsItWasSetWhetherThereIsOneOrNot) {
    const std::string name = "C:\\App\\Missing \xE5.WAV";
    this->Device().SetFileName(name);
    this->Device().Command("Open");
    EXPECT_EQ(this->Device().FileName(), name);
}

TYPED_TEST_P(WaveDeviceContract, PlaysFromTheCommandOnUntilTheEndWhichIsToldOnce) {
    this->Open();
    this->Device().Command("Play");
    EXPECT_TRUE(this->Plays());
    EXPECT_EQ(this->m_Done, 0);
    this->m_Rig.WaitForEnd();
    EXPECT_FALSE(this->Plays());
    this->m_Rig.RunEvents();
    EXPECT_EQ(this->m_Done, 1);
}

TYPED_TEST_P(WaveDeviceContract, WithoutNotificationTheEndIsNotTold) {
    this->Open();
    this->Device().SetNotify(false);
    this->Device().Command("Play");
    this->m_Rig.WaitForEnd();
    this->m_Rig.RunEvents();
    EXPECT_FALSE(this->Plays());
    EXPECT_EQ(this->m_Done, 0);
}

TYPED_TEST_P(WaveDeviceContract, ThreeCommandsCutAPlayAtOnceAndTheEventLoopTells) {
    this->Open();
    for (const char* command : {"Stop", "Prev", "Close"}) {
        this->m_Done = 0;
        this->Device().Command("Open");
        this->Device().Command("Play");
        this->Device().Command(command);
        EXPECT_FALSE(this->Plays()) << command;
        EXPECT_EQ(this->m_Done, 0) << command;
        this->m_Rig.RunEvents();
        EXPECT_EQ(this->m_Done, 1) << command;
    }
}

TYPED_TEST_P(WaveDeviceContract, CommandsWithoutAPlayTellNothing) {
    this->Open();
    for (const char* command : {"Stop", "Prev", "Close", "Open"}) this->Device().Command(command);
    this->m_Rig.RunEvents();
    EXPECT_EQ(this->m_Done, 0);
}

TYPED_TEST_P(WaveDeviceContract, TheEndOfAPlayThatAnotherFollowsIsNotTold) {
    this->Open();
    this->Device().Command("Play");
    this->Device().Command("Prev");
    this->Device().Command("Play");
    this->m_Rig.RunEvents();
    EXPECT_EQ(this->m_Done, 0);
    EXPECT_TRUE(this->Plays());
    this->m_Rig.WaitForEnd();
    this->m_Rig.RunEvents();
    EXPECT_EQ(this->m_Done, 1);
}

TYPED_TEST_P(WaveDeviceContract, AnotherFileNameAndTheFlagsLeaveAPlayAlone) {
    this->Open();
    this->Device().Command("Play");
    this->Device().SetDeviceType("WaveAudio");
    this->Device().SetFileName("C:\\App\\other.wav");
    this->Device().SetWait(true);
    this->Device().SetShareable(true);
    this->Device().Command("Open");
    EXPECT_TRUE(this->Plays());
    this->m_Rig.RunEvents();
    EXPECT_EQ(this->m_Done, 0);
}

TYPED_TEST_P(WaveDeviceContract, APlayWithoutAFileEndsAndIsTold) {
    this->Device().SetNotify(true);
    this->Device().Command("Play");
    EXPECT_TRUE(this->Plays());
    this->m_Rig.WaitForEnd();
    this->m_Rig.RunEvents();
    EXPECT_FALSE(this->Plays());
    EXPECT_EQ(this->m_Done, 1);
}

TYPED_TEST_P(WaveDeviceContract, AnUnknownCommandIsAFailure) {
    for (const char* command : {"Pause", "play", ""}) EXPECT_THROW(this->Device().Command(command), cFailure);
}

REGISTER_TYPED_TEST_SUITE_P(WaveDeviceContract, HasNoFileAtFirstAndIsStill,
                            TheFileNameReadsBackAsItWasSetWhetherThereIsOneOrNot,
                            PlaysFromTheCommandOnUntilTheEndWhichIsToldOnce,
                            WithoutNotificationTheEndIsNotTold,
                            ThreeCommandsCutAPlayAtOnceAndTheEventLoopTells, CommandsWithoutAPlayTellNothing,
                            TheEndOfAPlayThatAnotherFollowsIsNotTold,
                            AnotherFileNameAndTheFlagsLeaveAPlayAlone, APlayWithoutAFileEndsAndIsTold,
                            AnUnknownCommandIsAFailure);

}  // namespace vigrel::testing
