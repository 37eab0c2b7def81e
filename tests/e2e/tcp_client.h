#pragma once

#include <string>
#include <string_view>

namespace vigrel::testing {

// A connection to a port of this machine whose owner does with it what he likes. He minds no reset.
class cTcpClient {
  public:
    explicit cTcpClient(int port);
    ~cTcpClient() { Leave(); }
    cTcpClient(const cTcpClient&) = delete;
    cTcpClient& operator=(const cTcpClient&) = delete;

    bool Connected() const { return m_Connected; }
    // False when the connection ended before all was sent.
    bool TrySend(std::string_view bytes) const;
    // The same; an end of the connection fails the test.
    void Send(std::string_view bytes) const;
    // What has arrived; waits for it, and is empty at the end of the connection.
    std::string ReadSome() const;
    // So many bytes, or what came before the end of the connection or until nothing came for so long.
    std::string Read(std::size_t count, int patienceMilliseconds = 10'000) const;
    // Everything until the other side ends the connection, or nothing comes for ten seconds.
    std::string ReadToTheEnd() const;
    // Ended by the other side within ten seconds, without a reply.
    bool IsEndedInSilence() const;

    void EndSending() const;
    void Leave();
    // Leaves with a reset.
    void Reset();
    // Is gone without a word, as when a cable is pulled. Without the right to do so it leaves in order.
    void Vanish();

  private:
    void SetPatience(int milliseconds) const;

    int m_Socket;
    bool m_Connected = false;
};

}  // namespace vigrel::testing
