#include "adapters/qt/linger.h"

#include <sys/socket.h>

#include <QTimer>

namespace vigrel {
namespace {

constexpr int kLingerMilliseconds = 2000;

void ShutWriting(QTcpSocket* socket) {
    if (socket->bytesToWrite() == 0) ::shutdown(static_cast<int>(socket->socketDescriptor()), SHUT_WR);
}

}  // namespace

void CloseLingering(SocketPtr owned) {
    owned->flush();
    if (owned->state() != QAbstractSocket::ConnectedState) return;
    QTcpSocket* socket = owned.release();
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QTcpSocket::errorOccurred, socket, &QObject::deleteLater);
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket] { ShutWriting(socket); });
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] { socket->readAll(); });
    QTimer::singleShot(kLingerMilliseconds, socket, &QObject::deleteLater);
    socket->readAll();
    ShutWriting(socket);
}

}  // namespace vigrel
