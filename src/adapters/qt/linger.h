#pragma once

#include <QDeadlineTimer>
#include <QTimer>
#include <cstddef>
#include <deque>
#include <memory>

#include "adapters/qt/tcp_connection.h"

namespace vigrel {

// Ends connections so that what was written still reaches the peer: the sending side is ended first, and what
// the peer goes on sending is read and dropped until it ends its side too, or for two seconds. A connection
// that is simply closed with bytes unread is reset, and the reset can overtake the last replies.
class cLingeringConnections {
  public:
    // So many at a time; the oldest gives way, since whoever connects again and again must not use up the
    // program's descriptors.
    static constexpr std::size_t kMost = 32;

    cLingeringConnections();
    void Add(std::unique_ptr<cTcpConnection> connection);
    std::size_t Count() const { return m_Connections.size(); }

  private:
    struct cLingering {
        std::unique_ptr<cTcpConnection> connection;
        QDeadlineTimer end;
    };
    void ReadOn(cTcpConnection& connection);
    void DropOld();

    std::deque<cLingering> m_Connections;  // the oldest first
    QTimer m_Timer;
};

}  // namespace vigrel
