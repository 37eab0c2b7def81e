#pragma once

#include <cstddef>
#include <string>

#include "adapters/qt/accepted_socket.h"
#include "platform/sockets.h"

namespace vigrel {

class cQtListener;

class cQtDataSocket : public cDataSocket {
  public:
    // A stream without a line end that has grown to more than this is no sender's.
    static constexpr std::size_t kMaxLine = 1'048'576;

    // The listener's requests are what Accept takes over; it must outlive this socket.
    explicit cQtDataSocket(cQtListener& listener) : m_Listener(listener) {}
    ~cQtDataSocket() override;

    int State() const override { return m_Socket ? kOpen : 0; }
    void Close() override;
    void Accept(std::int32_t requestId) override;
    std::string Fetch() override;
    void Send(std::string_view bytes) override;

  private:
    static constexpr int kOpen = 7;
    void Read();
    void Fail();
    void CountLine(std::string_view chunk);

    cQtListener& m_Listener;
    SocketPtr m_Socket;
    std::string m_Received;       // and not yet fetched
    std::size_t m_LineBytes = 0;  // since the last line feed
    bool m_Failed = false;
};

}  // namespace vigrel
