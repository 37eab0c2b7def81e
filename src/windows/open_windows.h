#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "platform/windows.h"
#include "windows/box_in_front.h"

namespace vigrel {

// Windows that stay on top of those of other programs lie over each other by their layers, from the lowest
// up; a box that waits for its answer lies over all.
enum class eLayer { Main, Popups, Notice };

// The open windows of the program: a window enters when it is opened and leaves at the end of its close.
class cOpenWindows : public cWindowList {
  public:
    std::vector<cWindow*> OpenWindows() override { return m_Windows; }
    bool Holds(const cWindow& window) const {
        return std::find(m_Windows.begin(), m_Windows.end(), &window) != m_Windows.end();
    }
    // At the end, unless it is there already.
    void Enter(cWindow& window) {
        if (!Holds(window)) m_Windows.push_back(&window);
    }
    void Leave(const cWindow& window) {
        m_Windows.erase(std::remove(m_Windows.begin(), m_Windows.end(), &window), m_Windows.end());
    }

    // What brings the windows of a layer to the front again, by now or soon; nothing when there are none.
    void SetRaise(eLayer layer, std::function<void()> raise) {
        m_Raise[static_cast<std::size_t>(layer)] = std::move(raise);
    }
    // To be called behind what brings a window of the layer to the front: what lies over it does so again.
    void KeepOver(eLayer layer) const {
        for (std::size_t over = static_cast<std::size_t>(layer) + 1; over < m_Raise.size(); ++over) {
            if (m_Raise[over]) m_Raise[over]();
        }
        KeepBoxInFront();
    }

  private:
    std::vector<cWindow*> m_Windows;
    std::array<std::function<void()>, 3> m_Raise;  // by layer
};

}  // namespace vigrel
