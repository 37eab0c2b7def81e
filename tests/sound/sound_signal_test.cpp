#include "adapters/qt/qt_timer.h"
#include "adapters/qt/tone_player.h"
#include "signals/sound.h"
#include "sound/sound_fixture.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

// Starts of sounds against the ticks of a machine that has other things to do too.
constexpr int kTolerance = 80;

// The sound signal as a station gives it: the machine of states, ticks of half a second, real sound.
class SoundSignal : public cSoundTest {
  protected:
    SoundSignal() {
        m_Timer.OnTick = [this] { m_Sound.TickSound(); };
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
    void ExpectPeriod(const std::vector<cSoundServer::cSound>& sounds, int milliseconds) {
        for (std::size_t i = 1; i < sounds.size(); ++i) {
            EXPECT_NEAR(sounds[i].start - sounds[i - 1].start, milliseconds, kTolerance) << i;
        }
    }

    cFakeStation m_Station;
    cQtTimer m_Timer{500};
    cFakeBeeper m_Beeper;
    cSound m_Sound{
        {m_Device, m_Timer, m_Beeper, m_Station.state, m_Station.settings, m_Station.texts, m_Station.log}};
};

TEST_F(SoundSignal, OnceMeansOnce) {
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    Event(2, File("a.wav", WaveFile(300)));
    RunEvents(2600);
    EXPECT_EQ(m_Station.state.m_SoundState, 0);
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 300, 5);
}

TEST_F(SoundSignal, RepeatedMeansAtTheFirstTickAfterEachEnd) {
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    Event(3, File("a.wav", WaveFile(300)));
    RunEvents(2700);
    const auto sounds = m_Server.StopRecording();
    EXPECT_EQ(sounds.size(), 5u);
    ExpectPeriod(sounds, 500);
}

TEST_F(SoundSignal, ThePauseOfARepeatRoundsUpToTheTick) {
    ASSERT_TRUE(m_Server.Start());
    m_Station.settings.m_EventSoundFileDelay = 700;
    ASSERT_TRUE(m_Server.StartRecording());
    Event(3, File("a.wav", WaveFile(300)));
    RunEvents(3800);
    const auto sounds = m_Server.StopRecording();
    EXPECT_EQ(sounds.size(), 4u);
    ExpectPeriod(sounds, 1000);
}

TEST_F(SoundSignal, TheMenuSilencesAtTheNextTickForGood) {
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    Event(3, File("a.wav", WaveFile(4000)));
    RunEvents(1250);
    m_Sound.Menu_StopSound();
    RunEvents(2000);
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    // From the first tick to the third.
    EXPECT_NEAR(sounds[0].length, 1000, kTolerance);
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
    RunEvents(1600);
    const auto sounds = m_Server.StopRecording();
    EXPECT_GE(sounds.size(), 2u);
    ExpectPeriod(sounds, 500);
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
