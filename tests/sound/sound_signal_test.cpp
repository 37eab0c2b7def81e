#include <vector>

#include "adapters/qt/qt_timer.h"
#include "adapters/qt/tone_player.h"
#include "signals/sound.h"
#include "sound/sound_fixture.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

// The sound signal as a station gives it: the machine of states, ticks of half a second, real sound. When a
// sound begins to be heard and when it ends is for the machine to say, by half a second where it has other
// things to do. So each tick is noted, and judged by what came before it.
class SoundSignal : public cSoundTest {
  protected:
    SoundSignal() {
        m_Timer.OnTick = [this] { Tick(); };
        m_Device.OnDone = [this, then = m_Device.OnDone] {
            m_Free = true;
            then();
        };
        m_Sound.Prepare();
    }
    void Event(std::int16_t signal, const std::string& file) {
        cCategorySpecificSetting setting;
        setting.m_EventSignal = signal;
        setting.m_EventSoundFile = file;
        m_Sound.StartSignal(setting);
        // From here on the ticks come at known times.
        m_Timer.SetEnabled(false);
        m_Timer.SetEnabled(true);
    }
    bool Plays() { return m_Device.Mode() == cWaveDevice::Playing; }
    bool WaitForTicks(int ticks) {
        return WaitUntil([&] { return m_Ticks >= ticks; });
    }
    // Lets so many sounds begin, and the last one end. On a slow machine a sound can be heard so late in its
    // half second that the next one follows close.
    void LetSoundsPlay(int count) {
        ASSERT_TRUE(WaitUntil([&] { return m_Starts == count; }));
        m_Timer.SetEnabled(false);
        ASSERT_TRUE(WaitUntil([&] { return m_Free; }));
    }

    cFakeStation m_Station;
    cQtTimer m_Timer{500};
    cFakeBeeper m_Beeper;
    cSound m_Sound{
        {m_Device, m_Timer, m_Beeper, m_Station.state, m_Station.settings, m_Station.texts, m_Station.log}};
    int m_Ticks = 0;
    int m_Starts = 0;
    // Of each pause: the ticks that found the device free, the one that ended the pause too.
    std::vector<int> m_FreeTicks{0};

  private:
    void Tick() {
        ++m_Ticks;
        if (m_Free) ++m_FreeTicks.back();
        const bool played = Plays();
        m_Sound.TickSound();
        if (played || !Plays()) return;
        m_Free = false;
        ++m_Starts;
        m_FreeTicks.push_back(0);
    }

    bool m_Free = true;
};

TEST_F(SoundSignal, OnceMeansOnce) {
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    Event(2, File("a.wav", WaveFile(300)));
    ASSERT_TRUE(WaitForTicks(5));
    EXPECT_EQ(m_Station.state.m_SoundState, 0);
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 300, 5);
}

TEST_F(SoundSignal, RepeatedMeansAtTheFirstTickAfterEachEnd) {
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    Event(3, File("a.wav", WaveFile(300)));
    LetSoundsPlay(5);
    EXPECT_NEAR(m_Server.StopRecordingLoud(), 5 * 300, 15);
    EXPECT_EQ(m_FreeTicks, (std::vector{1, 1, 1, 1, 1, 0}));
}

TEST_F(SoundSignal, ThePauseOfARepeatRoundsUpToTheTick) {
    ASSERT_TRUE(m_Server.Start());
    m_Station.settings.m_EventSoundFileDelay = 700;
    ASSERT_TRUE(m_Server.StartRecording());
    Event(3, File("a.wav", WaveFile(300)));
    LetSoundsPlay(4);
    EXPECT_NEAR(m_Server.StopRecordingLoud(), 4 * 300, 15);
    // The first play waits for no pause.
    EXPECT_EQ(m_FreeTicks, (std::vector{1, 2, 2, 2, 0}));
}

TEST_F(SoundSignal, TheMenuSilencesAtTheNextTickForGood) {
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    Event(3, File("a.wav", WaveFile(4000)));
    ASSERT_TRUE(WaitForTicks(2));
    m_Sound.Menu_StopSound();
    EXPECT_TRUE(Plays());
    ASSERT_TRUE(WaitForTicks(3));
    EXPECT_FALSE(Plays());
    ASSERT_TRUE(WaitForTicks(6));
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_LT(sounds[0].length, 3000);
}

TEST_F(SoundSignal, ARepeatGoesOnWhenTheServerComesBack) {
    ASSERT_TRUE(m_Server.Start());
    Event(3, File("a.wav", WaveFile(200)));
    RunEvents(900);
    m_Server.Kill();
    RunEvents(1500);
    EXPECT_NE(m_Station.state.m_SoundState, 0);
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    const int before = m_Starts;
    ASSERT_TRUE(WaitUntil([&] { return m_Starts >= before + 3; }));
    EXPECT_GE(m_Server.StopRecordingLoud(), 2 * 200 - 10);
}

TEST_F(SoundSignal, TheToneIsShort) {
    ASSERT_TRUE(m_Server.Start());
    cTonePlayer tone;
    int silent = 0;
    tone.OnSilent = [&] { ++silent; };
    ASSERT_TRUE(m_Server.StartRecording());
    tone.Play();
    RunEvents(500);
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 200, 10);
    EXPECT_EQ(silent, 0);
}

TEST_F(SoundSignal, AToneThatCannotBePlayedSaysSo) {
    cTonePlayer tone;
    int silent = 0;
    tone.OnSilent = [&] { ++silent; };
    tone.Play();
    EXPECT_TRUE(WaitUntil([&] { return silent == 1; }, 1000));
}

TEST_F(SoundSignal, AToneSoundsBesideAFile) {
    ASSERT_TRUE(m_Server.Start());
    cTonePlayer tone;
    OpenFile(File("a.wav", WaveFile(1000)));
    ASSERT_TRUE(m_Server.StartRecording());
    Play();
    RunEvents(300);
    tone.Play();
    EXPECT_TRUE(WaitUntil([this] { return m_Device.Mode() != cWaveDevice::Playing; }));
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 1000, 5);
}

}  // namespace
}  // namespace vigrel::testing
