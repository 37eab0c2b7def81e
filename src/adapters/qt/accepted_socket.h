#pragma once

#include <QTcpSocket>
#include <memory>

namespace vigrel {

// Most bytes that one turn of the event loop reads, so that timers and windows get their turn in a flood.
inline constexpr qint64 kBytesPerTurn = 4096;

// Deleted from the event loop: a connection is often given up inside one of its own events.
struct cDeleteLater {
    void operator()(QObject* object) const { object->deleteLater(); }
};
using SocketPtr = std::unique_ptr<QTcpSocket, cDeleteLater>;

// A connection over an accepted descriptor, set up for short lines and prompt replies. Nothing when the
// descriptor is no good any more.
SocketPtr MakeSocket(qintptr descriptor);

}  // namespace vigrel
