#pragma once

#include <algorithm>
#include <vector>

#include "platform/windows.h"

namespace vigrel {

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

  private:
    std::vector<cWindow*> m_Windows;
};

}  // namespace vigrel
