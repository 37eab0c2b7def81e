#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace vigrel {

// The receiver's life, which goes one way only: it starts, it runs, it has ended.
//
// The machine's events may reach the receiver while it runs, and at no other time. A box of the start waits
// for its answer in the event loop, where timers tick and senders knock at a receiver that has read neither
// its settings nor its alarms; and behind an accepted close the loop still delivers what was on its way.
class cLife {
  public:
    bool Starting() const { return m_State == eState::Starting; }
    bool Running() const { return m_State == eState::Running; }
    bool Ended() const { return m_State == eState::Ended; }

    // The start has ended well. Nothing wakes up what has ended.
    void Run() {
        if (Starting()) m_State = eState::Running;
    }
    // The start was given up, or a close was accepted.
    void End() { m_State = eState::Ended; }

    // Puts the life before an event's handler: told at another time, the event is as good as never told.
    // What is gated must not be told any more when the life is gone.
    template <class... Arguments>
    void Gate(std::function<void(Arguments...)>& event) {
        if (!event) return;
        event = [this, handler = std::move(event)](Arguments... arguments) {
            if (Running()) handler(arguments...);
        };
    }

  private:
    enum class eState : std::uint8_t { Starting, Running, Ended };
    eState m_State = eState::Starting;
};

}  // namespace vigrel
