#include "adapters/qt/accepted_socket.h"

#include <QNetworkProxy>

namespace vigrel {

SocketPtr MakeSocket(qintptr descriptor) {
    SocketPtr socket(new QTcpSocket);
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(kBytesPerTurn);
    if (!socket->setSocketDescriptor(descriptor)) return nullptr;
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    return socket;
}

}  // namespace vigrel
