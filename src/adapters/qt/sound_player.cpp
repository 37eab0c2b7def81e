#include "adapters/qt/sound_player.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

#include "adapters/linux/start_thread.h"
#include "adapters/sound/pulse_play.h"

namespace vigrel {

// What a player and its thread share; it lives as long as either. Only the latest order counts: while the
// thread hangs, orders replace each other instead of piling up.
class cSoundPlayer::cThread {
  public:
    explicit cThread(cSoundPlayer& player) : m_Player(&player) {}

    // --- called by the player
    void Order(std::uint64_t play, SourceMaker maker) {
        const std::lock_guard lock(m_Mutex);
        m_Wanted = play;
        m_Maker = std::move(maker);
        m_Changed.notify_all();
    }
    void Silence() { Order(0, nullptr); }
    // The player goes. Waits for the thread's end, if it comes soon.
    void End() {
        std::unique_lock lock(m_Mutex);
        m_Player = nullptr;
        m_Wanted = 0;
        m_Changed.notify_all();
        m_Changed.wait_for(lock, std::chrono::milliseconds(kLongestEndMilliseconds),
                           [this] { return m_Ended; });
    }

    // --- the thread
    void Run() {
        while (const SourceMaker maker = NextOrder()) Play(maker());
        const std::lock_guard lock(m_Mutex);
        m_Ended = true;
        m_Changed.notify_all();
    }

  private:
    // Waits for a play that is wanted. Empty once the player is gone.
    SourceMaker NextOrder() {
        std::unique_lock lock(m_Mutex);
        m_Changed.wait(lock, [this] { return m_Player == nullptr || m_Maker; });
        m_Current = m_Wanted;
        return m_Player == nullptr ? nullptr : std::exchange(m_Maker, nullptr);
    }
    void Play(const SourcePtr& source) {
        bool played = false;
        if (source) {
            const std::int64_t milliseconds = source->Frames() * 1000 / source->SampleRate();
            Post(
                [play = m_Current, milliseconds](cSoundPlayer& player) { player.Begun(play, milliseconds); });
            played = PlayThroughServer(*source, [this] { return IsWanted(); });
        }
        Post([play = m_Current, played](cSoundPlayer& player) { player.Ended(play, !played); });
    }
    bool IsWanted() {
        const std::lock_guard lock(m_Mutex);
        return m_Wanted == m_Current;
    }
    // Has the player's event loop do a step. A player that goes takes the steps along that still wait for it.
    template <class Step>
    void Post(Step step) {
        const std::lock_guard lock(m_Mutex);
        if (m_Player == nullptr) return;
        QMetaObject::invokeMethod(
            m_Player, [player = m_Player, step] { step(*player); }, Qt::QueuedConnection);
    }

    std::mutex m_Mutex;
    std::condition_variable m_Changed;
    cSoundPlayer* m_Player;      // nullptr once it is gone
    std::uint64_t m_Wanted = 0;  // number of the play that is to sound; 0: silence
    SourceMaker m_Maker;         // its source, until the thread has taken it
    bool m_Ended = false;
    std::uint64_t m_Current = 0;  // the thread's own: number of the play it is at
};

cSoundPlayer::cSoundPlayer() : m_Thread(std::make_shared<cThread>(*this)) {
    StartThread([thread = m_Thread] { thread->Run(); }).detach();
    m_Watchdog.setSingleShot(true);
    connect(&m_Watchdog, &QTimer::timeout, this, [this] {
        m_Thread->Silence();
        Ended(m_Play, true);
    });
}

cSoundPlayer::~cSoundPlayer() {
    m_Thread->End();
}

void cSoundPlayer::Play(SourceMaker maker) {
    m_Playing = true;
    m_Watchdog.start(kPatienceMilliseconds);
    m_Thread->Order(++m_Play, std::move(maker));
}

void cSoundPlayer::Stop() {
    if (!m_Playing) return;
    m_Thread->Silence();
    m_Playing = false;
    m_Watchdog.stop();
    // From the event loop, not from within the call.
    const auto tell = [this, play = m_Play] {
        if (play == m_Play) Tell(false);
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void cSoundPlayer::Begun(std::uint64_t play, std::int64_t milliseconds) {
    constexpr std::int64_t kLongest = std::int64_t{24} * 3600 * 1000;
    if (play != m_Play || !m_Playing) return;
    m_Watchdog.start(static_cast<int>(std::min(milliseconds, kLongest)) + kPatienceMilliseconds);
}

void cSoundPlayer::Ended(std::uint64_t play, bool failed) {
    if (play != m_Play || !m_Playing) return;
    m_Playing = false;
    m_Watchdog.stop();
    Tell(failed);
}

void cSoundPlayer::Tell(bool failed) {
    if (OnEnded) OnEnded(failed);
}

}  // namespace vigrel
