#pragma once

#include <chrono>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace vigrel::send {

class cConnectionError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

inline constexpr std::size_t kReplySize = 5;

// One TCP connection to a station. Every failure is a cConnectionError that names host and port; a station
// that doesn't answer, or takes nothing, for so many seconds is one.
class cConnection {
  public:
    cConnection(const std::string& host, const std::string& port, double timeoutSeconds);
    ~cConnection();
    cConnection(const cConnection&) = delete;
    cConnection& operator=(const cConnection&) = delete;

    void Send(const std::string& bytes);
    // The next reply, or what came of it before the time was over or the peer closed.
    std::string ReadReply();

  private:
    [[noreturn]] void Fail(const std::string& what) const;

    std::string m_Peer;
    std::chrono::milliseconds m_Timeout;
    int m_Socket = -1;
    std::string m_Received;
};

}  // namespace vigrel::send
