#pragma once

#include <QTcpServer>
#include <cstdint>
#include <map>
#include <memory>

#include "adapters/qt/accepted_socket.h"
#include "platform/sockets.h"

namespace vigrel {

// Listens on the machine's addresses. A machine without IPv6 is listened on by IPv4 alone.
class cQtListener : public QTcpServer, public cListener {
    Q_OBJECT
  public:
    cQtListener();
    ~cQtListener() override;

    void SetLocalPort(std::int32_t port) override { m_Port = port; }
    // Port 0 lets the machine choose one.
    void Listen() override;
    std::int32_t LocalPort() const { return serverPort(); }
    // Hands over the connection of a request; throws cFailure for an unknown id.
    SocketPtr TakeRequest(std::int32_t requestId);

  protected:
    void incomingConnection(qintptr descriptor) override;

  private:
    std::int32_t m_Port = 0;
    std::int32_t m_LastRequestId = 0;
    std::map<std::int32_t, SocketPtr> m_Pending;
};

}  // namespace vigrel
