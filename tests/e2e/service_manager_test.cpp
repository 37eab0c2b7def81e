// What a whole station tells the service manager that started it.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "e2e/station.h"

namespace vigrel::testing {
namespace {

using Clock = std::chrono::steady_clock;
using cLines = std::vector<std::string>;

// The manager's end of the socket, on a name outside the file system.
class cManager {
  public:
    explicit cManager(cStation& station) : m_Socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        const std::string name = "@vigrel-e2e-" + std::to_string(getpid()) + "-" + std::to_string(m_Socket);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        name.copy(address.sun_path + 1, name.size() - 1, 1);
        EXPECT_EQ(bind(m_Socket, reinterpret_cast<const sockaddr*>(&address),
                       static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size())),
                  0);
        station.m_Environment["NOTIFY_SOCKET"] = name;
    }
    ~cManager() { close(m_Socket); }
    cManager(const cManager&) = delete;
    cManager& operator=(const cManager&) = delete;
    // All that comes until there was nothing for so long.
    cLines Hear(std::chrono::milliseconds silence) const {
        const timeval patience{silence.count() / 1000, silence.count() % 1000 * 1000};
        setsockopt(m_Socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        cLines messages;
        std::array<char, 4096> message;
        for (ssize_t count = 0; (count = recv(m_Socket, message.data(), message.size(), 0)) > 0;) {
            messages.emplace_back(message.data(), static_cast<std::size_t>(count));
        }
        return messages;
    }
    // How often the message comes in the time.
    long Count(const std::string& message, std::chrono::milliseconds time) const {
        long count = 0;
        for (const auto end = Clock::now() + time; Clock::now() < end;) {
            const cLines heard = Hear(std::chrono::milliseconds(1));
            count += std::count(heard.begin(), heard.end(), message);
        }
        return count;
    }

  private:
    int m_Socket;
};

TEST(ServiceManager, HearsOfStartStateAndEnd) {
    cStation station;
    const cManager manager(station);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    const std::string port = std::to_string(station.m_Port);
    EXPECT_EQ(manager.Hear(std::chrono::milliseconds(500)),
              (cLines{"STATUS=T11009 " + port + "; T11010: 0, T11011: 0", "READY=1"}));
    EXPECT_EQ(station.Send({"--t0", "alarm"}).exitCode, 0);
    EXPECT_EQ(manager.Hear(std::chrono::seconds(12)),
              cLines{"STATUS=T11009 " + port + "; T11010: 1, T11011: 1"});
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(manager.Hear(std::chrono::milliseconds(100)), cLines{"STOPPING=1"});
}

TEST(ServiceManager, HearsThatTheEventLoopTurnsUntilItStandsStill) {
    cStation station;
    const cManager manager(station);
    station.m_Environment["WATCHDOG_USEC"] = "300000";
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_GE(manager.Count("WATCHDOG=1", std::chrono::seconds(2)), 10);
    kill(station.Process(), SIGSTOP);
    manager.Hear(std::chrono::milliseconds(50));
    EXPECT_EQ(manager.Count("WATCHDOG=1", std::chrono::seconds(1)), 0);
    kill(station.Process(), SIGCONT);
    EXPECT_GE(manager.Count("WATCHDOG=1", std::chrono::seconds(2)), 10);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST(ServiceManager, IsNotToldOfAStartThatWasRefused) {
    cStation first;
    ASSERT_TRUE(first.Start()) << first.StandardError();
    cStation second;
    second.ExpectStandardError();
    second.m_Port = first.m_Port;
    const cManager manager(second);
    second.Launch();
    EXPECT_EQ(second.WaitForEnd(), kRefusedStart);
    EXPECT_EQ(manager.Hear(std::chrono::milliseconds(100)), cLines{"STOPPING=1"});
}

// The network is up later than the station, as after a power failure.
TEST(ServiceManager, IsAskedToTryAgainWhileTheAddressIsNotThere) {
    // Of a net that is nobody's, and of a device that the machine has not.
    for (const char* address : {"192.0.2.77", "fe80::77%none9"}) {
        cStation station;
        station.ExpectStandardError();
        station.m_Address = address;
        station.Launch();
        EXPECT_EQ(station.WaitForEnd(), 75) << address;
        EXPECT_NE(station.StandardError().find("T10015 (" + std::string(address) + " "), std::string::npos)
            << station.StandardError();
    }
    cStation wrong;
    wrong.ExpectStandardError();
    wrong.m_Address = "no address";
    wrong.Launch();
    EXPECT_EQ(wrong.WaitForEnd(), kRefusedStart);
}

}  // namespace
}  // namespace vigrel::testing
