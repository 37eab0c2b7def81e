#pragma once

#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>

#include "adapters/sound/sample_source.h"

namespace vigrel {

// Plays one sound at a time, in a thread of its own, so that neither a sound server nor a disk that hangs
// holds up the caller: no call blocks, and the end waits no longer than kLongestEndMilliseconds; a thread
// that hangs longer is left to itself. Lives in the thread of the event loop.
class cSoundPlayer : public QObject {
  public:
    static constexpr int kLongestEndMilliseconds = 500;
    // A play that has not begun after this time, or has not ended this long after its length, is given up:
    // it has failed, and nothing of it is played later.
    static constexpr int kPatienceMilliseconds = 5000;

    cSoundPlayer();
    ~cSoundPlayer() override;

    // Cuts what is playing and starts anew.
    void Play(SourceMaker maker);
    void Stop();
    // From Play until the play has ended.
    bool Playing() const { return m_Playing; }

    // The latest play has ended, by itself, by Stop, or because it failed. Called from the event loop, never
    // for a play that another has followed.
    std::function<void(bool failed)> OnEnded;

  private:
    class cThread;

    void Begun(std::uint64_t play, std::int64_t milliseconds);
    void Ended(std::uint64_t play, bool failed);
    void Tell(bool failed);

    std::shared_ptr<cThread> m_Thread;
    std::uint64_t m_Play = 0;  // number of the latest
    bool m_Playing = false;
    QTimer m_Watchdog;
};

}  // namespace vigrel
