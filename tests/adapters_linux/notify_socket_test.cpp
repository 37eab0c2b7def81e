#include "adapters/linux/notify_socket.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>

#include "adapters/linux/file_handle.h"
#include "common/path_text.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

// A service manager's end of the socket.
class NotifySocket : public ::testing::Test {
  protected:
    ~NotifySocket() override {
        for (const char* name : {"NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID"}) unsetenv(name);
    }
    // The name as the environment has it.
    void Listen(const std::string& name) {
        setenv("NOTIFY_SOCKET", name.c_str(), 1);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        name.copy(address.sun_path, name.size());
        if (name[0] == '@') address.sun_path[0] = '\0';
        m_Descriptor = cFileHandle(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
        ASSERT_EQ(bind(m_Descriptor.Get(), reinterpret_cast<const sockaddr*>(&address),
                       static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size())),
                  0);
    }
    // The next datagram; empty when there is none.
    std::string Heard() const {
        std::array<char, 4096> message;
        const ssize_t count = recv(m_Descriptor.Get(), message.data(), message.size(), MSG_DONTWAIT);
        return count > 0 ? std::string(message.data(), static_cast<std::size_t>(count)) : "";
    }
    testing::cTemporaryFolder m_Folder;
    cFileHandle m_Descriptor;
};

TEST_F(NotifySocket, EachMessageIsADatagramToTheNamedSocket) {
    const std::string abstract = "@vigrel-test-" + std::to_string(getpid());
    for (const std::string& name : {(m_Folder.Path() / "notify").string(), abstract}) {
        Listen(name);
        cNotifySocket manager;
        manager.Ready();
        manager.SetStatus("Line \xE4\nREADY=1");
        manager.Alive();
        manager.Stopping();
        EXPECT_EQ(Heard(), "READY=1") << name;
        // A line end in a text begins no message of its own.
        EXPECT_EQ(Heard(), "STATUS=Line \xC3\xA4\\nREADY=1") << name;
        EXPECT_EQ(Heard(), "WATCHDOG=1") << name;
        EXPECT_EQ(Heard(), "STOPPING=1") << name;
        EXPECT_EQ(Heard(), "") << name;
    }
}

// A disk's trouble names its folder, which can be in any script.
TEST_F(NotifySocket, APathInTheStatusIsShownInItsOwnScript) {
    Listen((m_Folder.Path() / "notify").string());
    cNotifySocket manager;
    manager.SetStatus("not on disk (" + PathText("/home/\xD0\xB8\xD0\xB2\xD0\xB0\xD0\xBD") + ": full)");
    EXPECT_EQ(Heard(), "STATUS=not on disk (/home/\xD0\xB8\xD0\xB2\xD0\xB0\xD0\xBD: full)");
}

TEST_F(NotifySocket, WithoutAManagerOrWithOneThatIsGoneNothingHappens) {
    unsetenv("NOTIFY_SOCKET");
    setenv("WATCHDOG_USEC", "60000000", 1);
    cNotifySocket none;
    none.Ready();
    EXPECT_EQ(none.AliveInterval(), 0);
    for (const std::string name : {"", "@", "relative", "/", "/nobody/listens/here"}) {
        setenv("NOTIFY_SOCKET", name.c_str(), 1);
        cNotifySocket gone;
        gone.Ready();
        gone.SetStatus("text");
    }
    setenv("NOTIFY_SOCKET", ("/" + std::string(300, 'x')).c_str(), 1);
    cNotifySocket tooLong;
    tooLong.Ready();
}

TEST_F(NotifySocket, TheManagerHearsOfItThreeTimesInWhatItWaits) {
    setenv("NOTIFY_SOCKET", "/run/somewhere", 1);
    const auto interval = [](const char* microseconds) {
        setenv("WATCHDOG_USEC", microseconds, 1);
        return cNotifySocket().AliveInterval();
    };
    EXPECT_EQ(interval("60000000"), 20000);
    EXPECT_EQ(interval("1"), 1);
    for (const char* none : {"0", "", "-5", "no number"}) EXPECT_EQ(interval(none), 0) << none;
    // Meant for another process, whose environment we have.
    setenv("WATCHDOG_PID", "1", 1);
    EXPECT_EQ(interval("60000000"), 0);
    setenv("WATCHDOG_PID", std::to_string(getpid()).c_str(), 1);
    EXPECT_EQ(interval("60000000"), 20000);
}

}  // namespace
}  // namespace vigrel::testing
