#pragma once

#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>

namespace vigrel {

// Tells when the desktop's notification area goes away, be it one of X11 or one of the message bus. The
// toolkit doesn't tell.
//
// A desktop that starts its panel anew is without one for a moment only; what is back within
// kSettleMilliseconds was never gone.
class cTrayHostWatch : public QObject {
    Q_OBJECT
  public:
    static constexpr int kSettleMilliseconds = 3000;

    // hostAvailable can take a while, so it is asked after something has happened, and not again and again.
    explicit cTrayHostWatch(std::function<bool()> hostAvailable);

    // Called from the event loop.
    std::function<void()> OnGone;

  private slots:
    void Left() { m_Settle.start(); }

  private:
    void WatchScreen();
    void WatchBus();
    std::uint32_t ScreenHost() const;

    std::function<bool()> m_HostAvailable;
    QTimer m_Settle;            // runs behind a host that has left
    QTimer m_Look;              // looks at the screen's host
    std::uint32_t m_Atom = 0;   // names the owner of the screen's notification area
    std::uint32_t m_Owner = 0;  // as last seen; 0: none
};

}  // namespace vigrel
