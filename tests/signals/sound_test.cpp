#include "signals/sound.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

#include "support/fake_devices.h"
#include "support/fake_station.h"
#include "support/fake_timer.h"

namespace vigrel::testing {
namespace {

// A station whose device holds "a.wav".
class Sound : public ::testing::Test, protected cFakeStation {
  protected:
    Sound() {
        m_State.m_SoundState = 0;
        LoadTexts({10044});
        m_Sound.OpenSound(Setting(0));
        transcript.Take();
    }
    static cCategorySpecificSetting Setting(std::int16_t signal, const std::string& file = "a.wav") {
        cCategorySpecificSetting setting;
        setting.m_EventSignal = signal;
        setting.m_EventSoundFile = file;
        return setting;
    }
    void Event(std::int16_t signal, const std::string& file = "a.wav") {
        m_Sound.StartSignal(Setting(signal, file));
    }
    std::string Tick() {
        m_LastTickWentOn = m_Sound.TickSound();
        return transcript.Take();
    }
    // The number of ticks until the next play starts, that tick included.
    int TicksUntilPlay(int most = 100) {
        for (int tick = 1; tick <= most; ++tick) {
            if (Tick().find("Play") != std::string::npos) return tick;
        }
        return 0;
    }
    // Brings the machine into a state as a station would come there.
    void Reach(int wanted) {
        if (wanted == 1) Event(2);
        if (wanted == 2) {
            Event(2);
            Tick();
        }
        if (wanted == 3) Event(3);
        if (wanted == 4) {
            Event(3);
            Tick();
        }
        transcript.Take();
        ASSERT_EQ(m_State.m_SoundState, wanted);
    }

    cReceiverState& m_State = state;
    cFakeWaveDevice m_Device{&transcript};
    cFakeTimer m_Timer{500, &transcript};
    cFakeBeeper m_Beeper{&transcript};
    cSound m_Sound{{m_Device, m_Timer, m_Beeper, state, settings, texts, log}};
    bool m_LastTickWentOn = false;
};

const std::string kStartPlay =
    "timer off\nsound: Prev\nsound: notify on\nsound: wait off\nsound: Play\ntimer on\n";
const std::set<std::string> kAllCommands = {"Open", "Close", "Play", "Prev", "Stop"};
constexpr std::int16_t kAllStates[] = {0, 1, 2, 3, 4};
const std::string kStop = "timer off\nsound: Stop\ntimer on\n";

// --- start and end

TEST_F(Sound, TheStartSetsTheFlagsAndOpens) {
    m_Sound.Prepare();
    EXPECT_EQ(transcript.Take(), "sound: notify off\nsound: wait on\nsound: share off\nsound: Open\n");
}

TEST_F(Sound, TheEndClosesWithoutNotification) {
    m_Sound.Shutdown();
    EXPECT_EQ(transcript.Take(), "sound: notify off\nsound: wait on\nsound: Close\n");
}

TEST_F(Sound, AMachineWithoutSoundStartsAndEnds) {
    m_Device.m_FailCommands = kAllCommands;
    m_Sound.Prepare();
    m_Sound.OpenSound(Setting(2, "b.wav"));
    m_Sound.Shutdown();
    EXPECT_EQ(transcript.Take(),
              "sound: notify off\nsound: wait on\nsound: share off\nsound: Open\n"
              "sound: type WaveAudio\nsound: Close\nsound: file b.wav\nsound: Open\n"
              "sound: notify off\nsound: wait on\nsound: Close\n");
}

// --- the file

TEST_F(Sound, AnotherFileIsClosedForAndOpened) {
    m_Sound.OpenSound(Setting(0, "b.wav"));
    EXPECT_EQ(transcript.Take(), "sound: type WaveAudio\nsound: Close\nsound: file b.wav\nsound: Open\n");
}

TEST_F(Sound, TheSameFileIsNotOpenedAgain) {
    m_Sound.OpenSound(Setting(2));
    EXPECT_EQ(transcript.Take(), "");
}

TEST_F(Sound, TheSameNameInAnotherCaseIsAnotherFile) {
    m_Sound.OpenSound(Setting(2, "A.wav"));
    EXPECT_EQ(m_Device.FileName(), "A.wav");
}

TEST_F(Sound, ACategoryWithoutAFileKeepsTheDevicesFile) {
    Event(2, "");
    EXPECT_EQ(m_Device.FileName(), "a.wav");
    EXPECT_EQ(Tick(), kStartPlay);
}

TEST_F(Sound, ACategoryWithoutASignalSwapsTheFileOfARunningRepeat) {
    Reach(4);
    Event(0, "b.wav");
    EXPECT_EQ(m_State.m_SoundState, 4);
    EXPECT_EQ(m_Device.FileName(), "b.wav");
    m_Device.EndPlay();
    transcript.Take();
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_EQ(m_Device.FileName(), "b.wav");
}

TEST_F(Sound, ASingleSignalDuringARepeatSwapsTheFileAndNothingElse) {
    Reach(3);
    Event(2, "b.wav");
    EXPECT_EQ(m_State.m_SoundState, 3);
    EXPECT_EQ(m_Device.FileName(), "b.wav");
}

// --- events, state by state

TEST_F(Sound, SignalsOtherThanTheThreeChangeNothing) {
    for (const std::int16_t signal : std::initializer_list<std::int16_t>{0, 4, -1, 32767}) {
        for (const std::int16_t from : kAllStates) {
            m_State.m_SoundState = from;
            Event(signal);
            EXPECT_EQ(m_State.m_SoundState, from) << signal;
        }
    }
    EXPECT_EQ(transcript.Take(), "");
}

TEST_F(Sound, ABeepSoundsAtOnceAndLeavesTheStateAlone) {
    for (const std::int16_t from : kAllStates) {
        m_State.m_SoundState = from;
        Event(1);
        EXPECT_EQ(m_State.m_SoundState, from);
        EXPECT_EQ(transcript.Take(), "beep\n");
    }
}

TEST_F(Sound, ASingleSignalIsWantedUnlessARepeatRuns) {
    for (const auto& [from, to] : {std::pair{0, 1}, {1, 1}, {2, 1}, {3, 3}, {4, 4}}) {
        m_State.m_SoundState = static_cast<std::int16_t>(from);
        Event(2);
        EXPECT_EQ(m_State.m_SoundState, to) << from;
    }
}

TEST_F(Sound, ARepeatOverridesEveryStateAndCountsItsPauseAsOver) {
    settings.m_EventSoundFileDelay = 7000;
    for (const std::int16_t from : kAllStates) {
        m_State.m_SoundState = from;
        m_State.m_SoundDelayCounter = 0;
        Event(3);
        EXPECT_EQ(m_State.m_SoundState, 3) << from;
        EXPECT_EQ(m_State.m_SoundDelayCounter, 7000) << from;
    }
}

// --- ticks, state by state

TEST_F(Sound, SilenceCommandsNothing) {
    EXPECT_EQ(Tick(), "");
    EXPECT_TRUE(m_LastTickWentOn);
    EXPECT_EQ(m_State.m_SoundState, 0);
}

TEST_F(Sound, ASinglePlayStartsAtTheNextTickWithTheTimerOff) {
    Reach(1);
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_EQ(m_State.m_SoundState, 2);
    EXPECT_TRUE(m_LastTickWentOn);
    EXPECT_TRUE(m_Timer.Enabled());
}

TEST_F(Sound, ASinglePlayEndsByTheDevicesWord) {
    Reach(2);
    EXPECT_EQ(Tick(), "");
    m_Device.EndPlay();
    EXPECT_EQ(m_State.m_SoundState, 0);
    EXPECT_EQ(Tick(), "");
}

TEST_F(Sound, ASinglePlayWhoseEndIsLostStandsUntilSomebodyElseEndsIt) {
    Reach(2);
    m_Device.EndPlaySilently();
    for (int tick = 0; tick < 10; ++tick) EXPECT_EQ(Tick(), "");
    EXPECT_EQ(m_State.m_SoundState, 2);
    m_State.m_SoundState = 0;
    EXPECT_EQ(Tick(), kStop);
}

TEST_F(Sound, ARepeatPlaysAtTheNextTickInsteadOfAfterAPause) {
    settings.m_EventSoundFileDelay = 60000;
    Reach(3);
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_EQ(m_State.m_SoundState, 4);
}

TEST_F(Sound, ARepeatGoesOnPlayAfterPlay) {
    Reach(4);
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(Tick(), "");
        m_Device.EndPlay();
        EXPECT_EQ(m_State.m_SoundState, 3);
        EXPECT_EQ(Tick(), kStartPlay);
        EXPECT_EQ(m_State.m_SoundState, 4);
    }
}

TEST_F(Sound, ARepeatGoesOnWhenTheEndOfAPlayIsLost) {
    Reach(4);
    m_Device.EndPlaySilently();
    EXPECT_EQ(Tick(), "");  // notices it
    EXPECT_EQ(m_State.m_SoundState, 4);
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_EQ(m_State.m_SoundState, 4);
}

TEST_F(Sound, WithoutADelayTheNextPlayStartsOnTheFirstTickAfterTheEnd) {
    settings.m_EventSoundFileDelay = 0;
    Reach(4);
    m_Device.EndPlay();
    EXPECT_EQ(TicksUntilPlay(), 1);
}

TEST_F(Sound, APlayThatEndsWithinItsCommandHasEndedAndTheNextStartsAtTheNextTick) {
    // A file without a sound in it.
    class cAtOnce : public cFakeWaveDevice {
      public:
        void Command(std::string_view command) override {
            cFakeWaveDevice::Command(command);
            if (command == "Play") EndPlay();
        }
        int Mode() const override {
            ++m_Asked;
            return cFakeWaveDevice::Mode();
        }
        mutable int m_Asked = 0;
    };
    cAtOnce device;
    cSound sound{{device, m_Timer, m_Beeper, state, settings, texts, log}};
    sound.OpenSound(Setting(3));
    sound.StartSignal(Setting(3));
    for (int tick = 0; tick < 2; ++tick) {
        EXPECT_TRUE(sound.TickSound());
        EXPECT_EQ(m_State.m_SoundState, 4);
    }
    EXPECT_EQ(device.m_Asked, 0);
}

TEST_F(Sound, ADelayRoundsUpToTheNextTick) {
    for (const auto& [delay, ticks] :
         {std::pair{1, 1}, {499, 1}, {500, 1}, {501, 2}, {700, 2}, {1000, 2}, {1001, 3}, {10000, 20}}) {
        settings.m_EventSoundFileDelay = delay;
        m_State.m_SoundState = 0;
        Tick();
        Reach(4);
        m_Device.EndPlay();
        EXPECT_EQ(TicksUntilPlay(), ticks) << delay;
    }
}

TEST_F(Sound, TheDelayIsCountedInTheTimersOwnIntervals) {
    settings.m_EventSoundFileDelay = 700;
    m_Timer.SetInterval(100);
    Reach(4);
    m_Device.EndPlay();
    EXPECT_EQ(TicksUntilPlay(), 7);
}

TEST_F(Sound, ATickWithinThePauseGoesNoFurther) {
    settings.m_EventSoundFileDelay = 1500;
    Reach(4);
    m_Device.EndPlay();
    EXPECT_EQ(Tick(), "");
    EXPECT_FALSE(m_LastTickWentOn);
    EXPECT_EQ(Tick(), "");
    EXPECT_FALSE(m_LastTickWentOn);
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_TRUE(m_LastTickWentOn);
}

TEST_F(Sound, ATickWhileTheSoundPlaysGoesOn) {
    settings.m_EventSoundFileDelay = 1500;
    Reach(4);
    Tick();
    EXPECT_TRUE(m_LastTickWentOn);
}

TEST_F(Sound, ThePauseIsCountedFromTheEndOfThePlayOn) {
    settings.m_EventSoundFileDelay = 1500;
    Reach(4);
    for (int tick = 0; tick < 10; ++tick) EXPECT_EQ(Tick(), "");
    EXPECT_EQ(m_State.m_SoundDelayCounter, 0);
    m_Device.EndPlay();
    EXPECT_EQ(TicksUntilPlay(), 3);
}

TEST_F(Sound, TheLongestDelayDoesNotOverflow) {
    settings.m_EventSoundFileDelay = std::numeric_limits<std::int32_t>::max();
    Reach(4);
    m_Device.EndPlay();
    m_State.m_SoundDelayCounter = settings.m_EventSoundFileDelay - 501;
    EXPECT_EQ(TicksUntilPlay(), 2);
    Event(3);
    m_Device.EndPlay();
    EXPECT_EQ(TicksUntilPlay(), 1);
}

TEST_F(Sound, ANegativeDelayIsNone) {
    settings.m_EventSoundFileDelay = -5000;
    Reach(4);
    m_Device.EndPlay();
    EXPECT_EQ(TicksUntilPlay(), 1);
}

// --- requests that meet a running play

TEST_F(Sound, ARequestWhileAPlayRunsWaitsForItsEndAndPlaysOnceMore) {
    Reach(2);
    Event(2);
    EXPECT_EQ(Tick(), "");
    m_Device.EndPlay();
    EXPECT_EQ(m_State.m_SoundState, 1);
    EXPECT_EQ(Tick(), kStartPlay);
    m_Device.EndPlay();
    EXPECT_EQ(m_State.m_SoundState, 0);
    EXPECT_EQ(Tick(), "");
}

TEST_F(Sound, ARequestAfterALostEndPlaysToo) {
    Reach(2);
    m_Device.EndPlaySilently();
    Event(2);
    EXPECT_EQ(TicksUntilPlay(), 2);
}

TEST_F(Sound, ARepeatDuringASinglePlayFollowsItWithoutAPause) {
    settings.m_EventSoundFileDelay = 60000;
    Reach(2);
    Event(3);
    EXPECT_EQ(Tick(), "");
    EXPECT_EQ(m_State.m_SoundState, 3);
    m_Device.EndPlay();
    EXPECT_EQ(m_State.m_SoundState, 3);
    EXPECT_EQ(Tick(), kStartPlay);
}

TEST_F(Sound, AnEventWithAnotherFileCutsAPlayAndPlaysItsOwn) {
    Reach(2);
    Event(2, "b.wav");
    m_Device.OnDone();
    transcript.Take();
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_EQ(m_Device.FileName(), "b.wav");
}

// --- who ends a signal

TEST_F(Sound, SilencingAPlayStopsItAtTheNextTickOnce) {
    for (const int from : {2, 4}) {
        Reach(from);
        m_State.m_SoundState = 0;
        EXPECT_EQ(Tick(), kStop);
        EXPECT_EQ(Tick(), "");
    }
}

TEST_F(Sound, TheEventThatAStopBringsChangesNothing) {
    Reach(4);
    m_State.m_SoundState = 0;
    Tick();
    m_Device.OnDone();
    EXPECT_EQ(m_State.m_SoundState, 0);
    EXPECT_EQ(Tick(), "");
}

TEST_F(Sound, SilencingThePauseOfARepeatCommandsNothing) {
    settings.m_EventSoundFileDelay = 5000;
    Reach(4);
    m_Device.EndPlay();
    Tick();
    m_State.m_SoundState = 0;
    for (int tick = 0; tick < 20; ++tick) EXPECT_EQ(Tick(), "");
}

TEST_F(Sound, ARequestTakenBackBeforeItsTickPlaysNothing) {
    Reach(1);
    m_State.m_SoundState = 0;
    EXPECT_EQ(Tick(), "");
}

TEST_F(Sound, TheMenuSilencesAndIsLogged) {
    Reach(4);
    m_Sound.Menu_StopSound();
    EXPECT_EQ(m_State.m_SoundState, 0);
    EXPECT_EQ(Log(), "T10044\n");
    EXPECT_EQ(Tick(), kStop);
    EXPECT_FALSE(m_Device.m_Playing);
}

// --- a device that does nothing

TEST_F(Sound, AMachineWithoutSoundLetsTheTicksRun) {
    m_Device.m_FailCommands = kAllCommands;
    Reach(1);
    EXPECT_EQ(Tick(), kStartPlay);
    EXPECT_EQ(m_State.m_SoundState, 2);
    EXPECT_TRUE(m_Timer.Enabled());
    m_Device.m_FailCommands.clear();
    Event(3);
    EXPECT_EQ(TicksUntilPlay(), 2);
}

TEST_F(Sound, ARepeatTriesAgainOnAMachineWithoutSound) {
    m_Device.m_FailCommands = kAllCommands;
    Event(3);
    EXPECT_EQ(TicksUntilPlay(), 1);
    EXPECT_EQ(TicksUntilPlay(), 1);
}

}  // namespace
}  // namespace vigrel::testing
