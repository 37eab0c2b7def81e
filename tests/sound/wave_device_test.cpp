#include "adapters/qt/qt_wave_device.h"

#include <QThread>
#include <atomic>
#include <memory>

#include "common/failure.h"
#include "sound/sound_fixture.h"

namespace vigrel::testing {
namespace {

// What a busy machine may make of a play, and what a device that blocks would exceed by far.
constexpr int kTolerance = 150;
constexpr qint64 kLongestGap = 250;

using WaveDevice = cSoundTest;

TEST_F(WaveDevice, AFileIsHeardOnceAndWhole) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(500)));
    ASSERT_TRUE(m_Server.StartRecording());
    Play();
    EXPECT_EQ(m_Device.Mode(), cWaveDevice::Playing);
    ASSERT_TRUE(WaitUntil([this] { return m_Done == 1; }));
    EXPECT_NE(m_Device.Mode(), cWaveDevice::Playing);
    RunEvents(700);
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 500, 5);
    EXPECT_EQ(m_Done, 1);
}

TEST_F(WaveDevice, AnotherPlayStartsFromTheBeginning) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(200)));
    ASSERT_TRUE(m_Server.StartRecording());
    for (int play = 0; play < 3; ++play) {
        ASSERT_TRUE(PlayToTheEnd());
        RunEvents(100);
    }
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 3u);
    for (const auto& sound : sounds) EXPECT_NEAR(sound.length, 200, 5);
}

TEST_F(WaveDevice, AVeryShortFileIsHeardWhole) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(50)));
    ASSERT_TRUE(m_Server.StartRecording());
    ASSERT_TRUE(PlayToTheEnd());
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 50, 5);
}

TEST_F(WaveDevice, AFileLongerThanWhatIsHandedAheadIsHeardWhole) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(2500)));
    ASSERT_TRUE(m_Server.StartRecording());
    ASSERT_TRUE(PlayToTheEnd());
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 2500, 5);
}

TEST_F(WaveDevice, AFileIsFoundWhateverItsCase) {
    ASSERT_TRUE(m_Server.Start());
    File("Alarm.WAV", WaveFile(100));
    OpenFile(m_Folder.Folder() + "alarm.wav");
    ASSERT_TRUE(m_Server.StartRecording());
    ASSERT_TRUE(PlayToTheEnd());
    EXPECT_EQ(m_Server.StopRecording().size(), 1u);
}

TEST_F(WaveDevice, StopMeansSilence) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(5000)));
    ASSERT_TRUE(m_Server.StartRecording());
    Play();
    RunEvents(600);
    m_Device.Command("Stop");
    EXPECT_NE(m_Device.Mode(), cWaveDevice::Playing);
    EXPECT_EQ(m_Done, 0);  // told from the event loop
    RunEvents(600);
    EXPECT_EQ(m_Done, 1);
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 600, kTolerance);
}

TEST_F(WaveDevice, AnotherFileCutsThePlay) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(5000)));
    ASSERT_TRUE(m_Server.StartRecording());
    Play();
    RunEvents(300);
    OpenFile(File("b.wav", WaveFile(200)));
    RunEvents(200);
    EXPECT_EQ(m_Done, 1);
    ASSERT_TRUE(PlayToTheEnd());
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 2u);
    EXPECT_NEAR(sounds[0].length, 300, kTolerance);
    EXPECT_NEAR(sounds[1].length, 200, 5);
}

TEST_F(WaveDevice, TheEndOfAStoppedPlayIsNotTakenForThatOfTheNext) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(1000)));
    Play();
    RunEvents(300);
    m_Device.Command("Stop");
    Play();
    RunEvents(500);
    EXPECT_EQ(m_Done, 0);
    EXPECT_EQ(m_Device.Mode(), cWaveDevice::Playing);
    EXPECT_TRUE(WaitUntil([this] { return m_Done == 1; }));
}

TEST_F(WaveDevice, WithoutNotificationNobodyIsTold) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(100)));
    Play();
    m_Device.SetNotify(false);
    EXPECT_TRUE(WaitUntil([this] { return m_Device.Mode() != cWaveDevice::Playing; }));
    RunEvents(50);
    EXPECT_EQ(m_Done, 0);
}

TEST_F(WaveDevice, FilesWithoutSoundEndAtOnce) {
    ASSERT_TRUE(m_Server.Start());
    const std::string wave = WaveFile(100);
    ASSERT_TRUE(m_Server.StartRecording());
    for (const std::string& file :
         {m_Folder.Folder() + "missing.wav", m_Folder.Folder(), std::string(), File("empty.wav", ""),
          File("text.wav", "This is no sound."), File("head.wav", wave.substr(0, 20)),
          File("silent.wav", wave.substr(0, 44))}) {
        OpenFile(file);
        EXPECT_TRUE(PlayToTheEnd(500)) << file;
    }
    EXPECT_TRUE(m_Server.StopRecording().empty());
}

TEST_F(WaveDevice, ADamagedFileSoundsAsFarAsItGoes) {
    ASSERT_TRUE(m_Server.Start());
    const std::string wave = WaveFile(1000);
    OpenFile(File("a.wav", wave.substr(0, wave.size() / 2)));
    ASSERT_TRUE(m_Server.StartRecording());
    ASSERT_TRUE(PlayToTheEnd());
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 500, 5);
}

TEST_F(WaveDevice, AFileThatComesBackIsHeardWithoutBeingOpenedAgain) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(m_Folder.Folder() + "a.wav");
    EXPECT_TRUE(PlayToTheEnd(500));
    File("a.wav", WaveFile(100));
    ASSERT_TRUE(m_Server.StartRecording());
    EXPECT_TRUE(PlayToTheEnd());
    EXPECT_EQ(m_Server.StopRecording().size(), 1u);
}

TEST_F(WaveDevice, WithoutAServerAPlayEndsAtOnceAndTheNextSoundsWhenOneIsThere) {
    OpenFile(File("a.wav", WaveFile(100)));
    for (int play = 0; play < 3; ++play) EXPECT_TRUE(PlayToTheEnd(500));
    ASSERT_TRUE(m_Server.Start());
    ASSERT_TRUE(m_Server.StartRecording());
    EXPECT_TRUE(PlayToTheEnd());
    EXPECT_EQ(m_Server.StopRecording().size(), 1u);
}

TEST_F(WaveDevice, AServerThatDiesEndsThePlayAndTheNextSoundsWhenItIsBack) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(3000)));
    Play();
    RunEvents(300);
    m_Server.Kill();
    EXPECT_TRUE(WaitUntil([this] { return m_Done == 1; }, 500));
    EXPECT_TRUE(PlayToTheEnd(500));
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("b.wav", WaveFile(100)));
    ASSERT_TRUE(m_Server.StartRecording());
    EXPECT_TRUE(PlayToTheEnd());
    EXPECT_EQ(m_Server.StopRecording().size(), 1u);
}

TEST_F(WaveDevice, ADeviceThatIsUnpluggedEndsThePlayAndTheNextSoundsWhenItIsBack) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(3000)));
    Play();
    RunEvents(300);
    ASSERT_TRUE(m_Server.Unplug());
    EXPECT_TRUE(WaitUntil([this] { return m_Done == 1; }, 500));
    EXPECT_TRUE(PlayToTheEnd(500));
    ASSERT_TRUE(m_Server.PlugIn());
    OpenFile(File("b.wav", WaveFile(100)));
    ASSERT_TRUE(m_Server.StartRecording());
    EXPECT_TRUE(PlayToTheEnd());
    EXPECT_EQ(m_Server.StopRecording().size(), 1u);
}

TEST_F(WaveDevice, AServerThatHangsHoldsUpNobodyAndThePlayIsGivenUp) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(1000)));
    const cGapMeter meter;
    Play();
    RunEvents(300);
    m_Server.Hang();
    EXPECT_TRUE(WaitUntil([this] { return m_Done == 1; }, 4500));
    // A play that finds the server hanging is given up too.
    Play();
    RunEvents(500);
    EXPECT_EQ(m_Device.Mode(), cWaveDevice::Playing);
    EXPECT_TRUE(WaitUntil([this] { return m_Done == 2; }, 4500));
    EXPECT_LT(meter.Longest(), kLongestGap);
    RecordProperty("longest_gap_ms", static_cast<int>(meter.Longest()));
    // Nothing of it is heard when the server goes on, and the next play is.
    m_Server.GoOn();
    ASSERT_TRUE(m_Server.StartRecording());
    RunEvents(500);
    EXPECT_TRUE(PlayToTheEnd());
    const auto sounds = m_Server.StopRecording();
    ASSERT_EQ(sounds.size(), 1u);
    EXPECT_NEAR(sounds[0].length, 1000, 5);
}

// The search for the file runs in the sound's thread, where nobody else would take its failure.
TEST_F(WaveDevice, AFileThatCannotBeLookedForEndsThePlay) {
    cQtWaveDevice device([](std::string_view path) -> std::string {
        throw cFailure(eFailure::InputOutput, std::string(path) + ": Too many open files");
    });
    bool failed = false;
    device.OnDone = [&] { failed = true; };
    device.SetFileName("any.wav");
    device.Command("Open");
    device.SetNotify(true);
    device.Command("Play");
    EXPECT_TRUE(WaitUntil([&] { return failed; }));
}

TEST_F(WaveDevice, OrdersDoNotPileUpWhileTheDiskHangs) {
    std::atomic<bool> hangs = true;
    std::atomic<int> opened = 0;
    cQtWaveDevice device([&](std::string_view path) {
        ++opened;
        while (hangs) QThread::msleep(5);
        return std::string(path);
    });
    int done = 0;
    device.OnDone = [&] { ++done; };
    device.SetFileName("slow.wav");
    device.Command("Open");
    device.SetNotify(true);
    for (int play = 0; play < 50; ++play) {
        device.Command("Play");
        RunEvents(5);
    }
    EXPECT_EQ(done, 0);
    EXPECT_EQ(opened, 1);
    hangs = false;
    EXPECT_TRUE(WaitUntil([&] { return done == 1; }));
    RunEvents(100);
    EXPECT_EQ(done, 1);
    EXPECT_EQ(opened, 2);
}

TEST_F(WaveDevice, AServerThatHangsDoesNotHoldUpTheProgramsEnd) {
    ASSERT_TRUE(m_Server.Start());
    auto device = std::make_unique<cQtWaveDevice>(NativePath);
    device->SetFileName(File("a.wav", WaveFile(1000)));
    device->Command("Open");
    device->Command("Play");
    RunEvents(300);
    m_Server.Hang();
    device->Command("Play");
    RunEvents(300);
    QElapsedTimer timer;
    timer.start();
    device->Command("Close");
    device.reset();
    EXPECT_LT(timer.elapsed(), cSoundPlayer::kLongestEndMilliseconds);
}

TEST_F(WaveDevice, AFileOnADiskThatHangsHoldsUpNobody) {
    // A path whose reading takes as long as the test wants.
    std::atomic<bool> hangs = true;
    std::atomic<bool> over = false;
    auto device = std::make_unique<cQtWaveDevice>([&](std::string_view path) {
        while (hangs) QThread::msleep(5);
        over = true;
        return std::string(path);
    });
    int done = 0;
    device->OnDone = [&] { ++done; };
    device->SetFileName("slow.wav");
    device->Command("Open");
    device->SetNotify(true);
    const cGapMeter meter;
    device->Command("Play");
    EXPECT_TRUE(WaitUntil([&] { return done == 1; }, cSoundPlayer::kPatienceMilliseconds + 1000));
    EXPECT_LT(meter.Longest(), kLongestGap);
    QElapsedTimer timer;
    timer.start();
    device.reset();
    EXPECT_LT(timer.elapsed(), cSoundPlayer::kLongestEndMilliseconds + kLongestGap);
    hangs = false;
    EXPECT_TRUE(WaitUntil([&] { return over.load(); }));
    RunEvents(50);  // the thread that was left to itself ends
}

TEST_F(WaveDevice, NoCommandTakesLong) {
    ASSERT_TRUE(m_Server.Start());
    OpenFile(File("a.wav", WaveFile(100)));
    qint64 longest = 0;
    for (int turn = 0; turn < 200; ++turn) {
        if (turn == 150) m_Server.Hang();
        for (const char* command : {"Close", "Open", "Prev", "Play", "Stop", "Play"}) {
            QElapsedTimer timer;
            timer.start();
            m_Device.Command(command);
            longest = std::max(longest, timer.nsecsElapsed());
        }
        RunEvents(3);
    }
    RecordProperty("longest_command_us", static_cast<int>(longest / 1000));
    EXPECT_LT(longest, 50'000'000);
}

TEST_F(WaveDevice, AnUnknownCommandIsRefused) {
    EXPECT_THROW(m_Device.Command("Rewind"), cFailure);
}

}  // namespace
}  // namespace vigrel::testing
