#pragma once

#include <functional>
#include <utility>

#include "platform/windows.h"
#include "windows/open_windows.h"

namespace vigrel {

// The close of a window: the query, the unload step, the leave of the open windows.
//
// state    asked to close                                          leaves the state by
// -------  ------------------------------------------------------  --------------------------------------
// Open     the query runs; refused, the window stays               query passed -> Closing
// Closing  yes, without a word: what the unload step does closes   the unload step's end -> Closed
//          the window, and the step runs once
// Closed   yes, without a word                                     the window enters the open ones -> Open
//
// A window that has not entered the open windows yet is Closed.
class cWindowClose {
  public:
    enum class eState { Open, Closing, Closed };

    // closed is called when the window is no longer among the open ones.
    cWindowClose(cWindow& window, cOpenWindows& windows, std::function<void()> closed)
        : m_Window(window), m_Windows(windows), m_Closed(std::move(closed)) {}

    eState State() const;
    // Whether the window is closed, or about to be.
    bool TryClose(eCloseReason reason);

  private:
    cWindow& m_Window;
    cOpenWindows& m_Windows;
    std::function<void()> m_Closed;
    bool m_Closing = false;
};

}  // namespace vigrel
