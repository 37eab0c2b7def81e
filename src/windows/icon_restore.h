#pragma once

#include <QTimer>

class QWidget;

namespace vigrel {

// Makes a window of an icon. The toolkit alone doesn't as long as it has not heard from the window manager
// that the window is one. A window manager that was just making an icon of the window goes on with it, so
// that the way back is gone once more when all has settled.
//
// state     means                                   leaves the state by
// --------  --------------------------------------  ------------------------------------------------------
// Settled   nothing is waited for                   Restore -> Settling
// Settling  the window was told to be one and may   Forget, the window has another state by now -> Settled;
//           have been made an icon since            200 ms -> Settled, told again unless it is on the screen
class cIconRestore {
  public:
    explicit cIconRestore(QWidget& window);
    bool Settling() const { return m_Timer.isActive(); }
    void Restore();
    void Forget() { m_Timer.stop(); }

  private:
    void Settle();

    QWidget& m_Window;
    QTimer m_Timer;
};

}  // namespace vigrel
