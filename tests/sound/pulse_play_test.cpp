#include "adapters/sound/pulse_play.h"

#include <filesystem>
#include <iterator>

#include "sound/sound_fixture.h"

namespace vigrel::testing {
namespace {

std::ptrdiff_t OpenFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

// Plays of a short tone, each of them called off when it has been asked so many times whether it goes on.
void PlaysCalledOffAfter(int questions, int plays) {
    for (int play = 0; play < plays; ++play) {
        const SourcePtr tone = MakeTone(440, 20);
        int asked = 0;
        PlayThroughServer(*tone, [&] { return asked++ < questions; });
    }
}

class PulsePlay : public ::testing::Test {
  protected:
    cSoundServer m_Server;
};

// A station that plays a sound for each alarm of a flood calls most of them off within milliseconds.
TEST_F(PulsePlay, LeavesNoOpenFileBehindWhereverItIsCalledOff) {
    ASSERT_TRUE(m_Server.Start());
    PlaysCalledOffAfter(1000, 1);
    const std::ptrdiff_t before = OpenFiles();
    for (int questions = 0; questions < 25; ++questions) {
        PlaysCalledOffAfter(questions, 4);
        EXPECT_EQ(OpenFiles(), before) << "called off after " << questions << " questions";
    }
}

TEST_F(PulsePlay, ThatIsCalledOffWhileTheServerHangsEndsSoon) {
    ASSERT_TRUE(m_Server.Start());
    m_Server.Hang();
    QElapsedTimer timer;
    timer.start();
    PlaysCalledOffAfter(3, 1);
    EXPECT_LT(timer.elapsed(), kServerPatienceMilliseconds / 2);
    m_Server.GoOn();
}

}  // namespace
}  // namespace vigrel::testing
