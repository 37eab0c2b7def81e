#pragma once

#include <string>
#include <string_view>

#include "platform/service_manager.h"

namespace vigrel {

// The service manager behind the socket that it names in the environment (NOTIFY_SOCKET): a path, or behind
// "@" a name outside the file system. Each message is a datagram of its own.
class cNotifySocket : public cServiceManager {
  public:
    cNotifySocket();

    void Ready() override { Send("READY=1"); }
    void Stopping() override { Send("STOPPING=1"); }
    void SetStatus(std::string_view line) override;
    // The program does its work. A manager that hears this no more ends the program and starts it again.
    void Alive() const { Send("WATCHDOG=1"); }
    // How often to say so, in milliseconds: three times in what the manager waits for it (WATCHDOG_USEC);
    // 0 when it doesn't wait.
    int AliveInterval() const { return m_AliveInterval; }

  private:
    void Send(const std::string& message) const;

    std::string m_Path;  // empty: there is no manager
    int m_AliveInterval = 0;
};

}  // namespace vigrel
