#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "adapters/qt/linger.h"
#include "adapters/qt/tcp_connection.h"
#include "platform/sockets.h"

namespace vigrel {

class cQtListener;

class cQtDataSocket : public cDataSocket {
  public:
    // So much of what comes in without a pause behind a knock may have been sent before it, by a peer that
    // has left: what the socket has no room for waits in the peer's machine.
    static constexpr std::size_t kMostOnItsWay = 262'144;

    // The listener's requests are what Accept takes over; it must outlive this socket.
    explicit cQtDataSocket(cQtListener& listener);
    ~cQtDataSocket() override;
    cQtDataSocket(const cQtDataSocket&) = delete;
    cQtDataSocket& operator=(const cQtDataSocket&) = delete;

    int State() const override { return m_Connection ? kOpen : 0; }
    void Close() override;
    void Accept(std::int32_t requestId) override;
    std::string Fetch() override;
    void Send(std::string_view bytes) override;

    std::size_t Lingering() const { return m_Lingering.Count(); }

  private:
    static constexpr int kOpen = 7;
    // Reads a turn's bytes and delivers them, or the end.
    void ReadTurn();
    bool HoldsBackTheNext();
    void Deliver(std::string_view bytes);

    cQtListener& m_Listener;
    std::unique_ptr<cTcpConnection> m_Connection;
    cLingeringConnections m_Lingering;
    std::string m_Received;   // and not yet fetched
    bool m_Ended = false;     // by the peer, or by an error
    bool m_Answered = false;  // since the last turn
    // While somebody knocks: how many bytes may still be read before he is let in.
    std::optional<std::size_t> m_BeforeTheNext;
};

}  // namespace vigrel
