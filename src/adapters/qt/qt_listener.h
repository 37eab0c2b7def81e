#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "adapters/linux/file_handle.h"
#include "platform/sockets.h"

namespace vigrel {

// Listens on the machine's addresses, or on one of them. One request is delivered in each turn of the event
// loop, so that a storm of them leaves the others their turns.
class cQtListener : public cListener {
  public:
    cQtListener();

    void SetLocalAddress(std::string_view address) override { m_Address = address; }
    void SetLocalPort(std::int32_t port) override { m_Port = port; }
    // Port 0 lets the machine choose one.
    void Listen() override;
    std::int32_t LocalPort() const;
    // Hands over the connection of a request; throws cFailure for an unknown id.
    cFileHandle TakeRequest(std::int32_t requestId);

    // Whether who knocks has to wait. Asked in each turn of the event loop until he need not.
    std::function<bool()> HoldsBack;

  private:
    void Knock();

    std::string m_Address;
    std::int32_t m_Port = 0;
    cFileHandle m_Descriptor;
    std::unique_ptr<QSocketNotifier> m_Notifier;
    QTimer m_Again;
    std::int32_t m_LastRequestId = 0;
    cFileHandle m_Pending;  // the connection of m_LastRequestId, until it is taken or refused
};

}  // namespace vigrel
