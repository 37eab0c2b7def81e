#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>

namespace vigrel {

// The desktop's notification area, be it one of X11 or one of the message bus: whether it is there, and when
// it goes away. The toolkit doesn't tell of its going, and waits for the bus up to a minute when a desktop
// hangs.
//
// The toolkit chooses between the two at its first icon, for good: the bus's, when one is there at that time.
class cTrayHost : public QObject {
    Q_OBJECT
  public:
    // A desktop that starts its panel anew is without one for a moment only; what is back within this time
    // was never gone.
    static constexpr int kSettleMilliseconds = 3000;

    // To be made before the first icon.
    cTrayHost();

    // Does not wait for the desktop.
    bool Available() const;

    // It has gone and not come back. Called from the event loop.
    std::function<void()> OnGone;

  private:
    Q_SLOT void AskBus();
    void WatchScreen();
    void WatchBus();
    std::uint32_t ScreenHost() const;
    void SetBusHost(bool there);
    void Left() { m_Settle.start(); }

    QDBusConnection m_Bus = QDBusConnection::sessionBus();
    bool m_UsesBus = false;     // the toolkit does
    bool m_BusHost = false;     // the bus has one
    QTimer m_Settle;            // runs behind a host that has left
    QTimer m_Look;              // looks at the screen's host
    std::uint32_t m_Atom = 0;   // names the owner of the screen's notification area
    std::uint32_t m_Owner = 0;  // as last seen; 0: none
};

}  // namespace vigrel
