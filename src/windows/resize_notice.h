#pragma once

#include <functional>
#include <utility>

namespace vigrel {

// Tells a window's listener of its resizes, but not in the middle of a Show: a window that its listener hides
// there would show all the same.
//
// state     a resize            leaves the state by
// --------  ------------------  -----------------------------------
// Telling   is told             Hold -> Holding
// Holding   is kept, once       Release -> Telling
// Kept      adds nothing        Release -> Telling, and it is told
class cResizeNotice {
  public:
    enum class eState { Telling, Holding, Kept };

    explicit cResizeNotice(const std::function<void()>& listener) : m_Listener(listener) {}

    eState State() const { return m_State; }
    void Resized() {
        if (m_State != eState::Telling) {
            m_State = eState::Kept;
        } else if (m_Listener) {
            m_Listener();
        }
    }
    void Hold() {
        if (m_State == eState::Telling) m_State = eState::Holding;
    }
    void Release() {
        if (std::exchange(m_State, eState::Telling) == eState::Kept) Resized();
    }

  private:
    const std::function<void()>& m_Listener;
    eState m_State = eState::Telling;
};

}  // namespace vigrel
