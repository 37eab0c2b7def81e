#pragma once

#include <sys/types.h>
#include <string>

namespace vigrel::testing {

// An X server without a screen and a window manager on it, for as long as the object lives.
class cXServer {
  public:
    // Throws std::runtime_error when either does not come up.
    cXServer();
    ~cXServer();
    cXServer(const cXServer&) = delete;
    cXServer& operator=(const cXServer&) = delete;

    const std::string& Display() const { return m_Display; }  // ":5"

  private:
    void StartServer();
    void StartWindowManager();
    void Stop();

    std::string m_Display, m_Home;
    pid_t m_Server = -1, m_WindowManager = -1;
};

}  // namespace vigrel::testing
