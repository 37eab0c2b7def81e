#pragma once

#include <stdexcept>
#include <string>

namespace vigrel::send {

class cConnectionError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// One TCP connection to a station. Every failure is a cConnectionError that names host and port.
class cConnection {
  public:
    cConnection(const std::string& host, const std::string& port, double timeoutSeconds);
    ~cConnection();
    cConnection(const cConnection&) = delete;
    cConnection& operator=(const cConnection&) = delete;

    void Send(const std::string& bytes);
    // The next five bytes, or what came of them before the time was over or the peer closed.
    std::string ReadReply();

  private:
    [[noreturn]] void Fail(const std::string& what) const;

    std::string m_Peer;
    int m_Timeout;  // milliseconds
    int m_Socket = -1;
    std::string m_Received;
};

}  // namespace vigrel::send
