// What takes no more alarms, as the whole program meets it: a disk that refuses any file above 8,000 bytes, a
// process that may open nothing more.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "e2e/station.h"
#include "e2e/tcp_client.h"
#include "link/frame.h"

namespace vigrel::testing {
namespace {

class Refusals : public ::testing::Test {
  protected:
    void Limit(__rlimit_resource resource, rlim_t most) const {
        rlimit limit{};
        ASSERT_EQ(prlimit(station.Process(), resource, nullptr, &limit), 0);
        limit.rlim_cur = std::min(most, limit.rlim_max);
        ASSERT_EQ(prlimit(station.Process(), resource, &limit, nullptr), 0);
    }
    // Whether standard error tells a text within 30 s; the station tries again every ten.
    bool Tells(const std::string& text) const {
        for (int i = 0; i < 300; ++i) {
            if (station.StandardError().find(text) != std::string::npos) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return false;
    }
    cStation station;
};

// The program inherits that a refused write is an error and no signal.
class FullDisk : public Refusals {
  protected:
    FullDisk() { signal(SIGXFSZ, SIG_IGN); }
    ~FullDisk() override { signal(SIGXFSZ, SIG_DFL); }
};

// The machine refuses to wait for more descriptors than the limit: it can't be lower than what is open.
class OpenFiles : public Refusals {
  protected:
    rlim_t LowestFree() const {
        const std::string open = "/proc/" + std::to_string(station.Process()) + "/fd/";
        rlim_t lowest = 0;
        while (std::filesystem::is_symlink(open + std::to_string(lowest))) ++lowest;
        return lowest;
    }
};

TEST_F(FullDisk, IsToldWhileAlarmsAreNotOnDiskAndNothingIsLost) {
    station.ExpectStandardError();
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--t0", "before"}).exitCode, 0);
    Limit(RLIMIT_FSIZE, 8000);
    const std::string large(9000, 'x');
    EXPECT_EQ(station.Send({"--t0", large, "--count", "3", "--quiet"}).exitCode, 0);
    EXPECT_TRUE(Tells("vigrel-receiver: T10049 ")) << station.StandardError();
    EXPECT_EQ(station.StandardError().find("T10052"), std::string::npos);
    Limit(RLIMIT_FSIZE, RLIM_INFINITY);
    EXPECT_TRUE(Tells("vigrel-receiver: T10052")) << station.StandardError();
    EXPECT_EQ(station.AlarmFiles().size(), 4u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

// The configuration is spelled in another way, so that every look at it is a search through the folder. The
// window is small: the toolkit paints what is large with threads, each of which needs a descriptor.
TEST_F(OpenFiles, AtTheirLimitLoseNothingAndLetNobodyInUntilItIsOver) {
    station.ExpectStandardError();
    station.Configure("[General]\r\nVigrel_Receiver_Main.Width=3000\r\nVigrel_Receiver_Main.Height=1500\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    ASSERT_EQ(station.Stop(SIGTERM), 0);
    std::filesystem::rename(station.Folder() / "VigrelReceiver.INI", station.Folder() / "vigrelreceiver.ini");
    const std::string configuration = ReadAll(station.Folder() / "vigrelreceiver.ini");
    station.m_MakesConfiguration = true;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    const cTcpClient sender(station.m_Port);
    const std::string answer = std::string(kPositive) + std::string(kReplyEnd);
    sender.Send(MakeFrame("PLC1", "S1||before"));
    EXPECT_EQ(sender.Read(answer.size()), answer);
    Limit(RLIMIT_NOFILE, LowestFree());
    for (int i = 0; i < 20; ++i) {
        sender.Send(MakeFrame("PLC1", "S1||alarm " + std::to_string(i)));
        ASSERT_EQ(sender.Read(answer.size()), answer) << i;
    }
    EXPECT_TRUE(Tells("vigrel-receiver: T10049 ")) << station.StandardError();
    const cTcpClient waits(station.m_Port);
    waits.Send(MakeFrame("PLC1", "S1||waits"));
    Limit(RLIMIT_NOFILE, RLIM_INFINITY);
    EXPECT_EQ(waits.Read(answer.size()), answer);
    EXPECT_TRUE(Tells("vigrel-receiver: T10052")) << station.StandardError();
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(station.AlarmFiles().size(), 22u);
    EXPECT_EQ(ReadAll(station.Folder() / "vigrelreceiver.ini"), configuration);
    EXPECT_FALSE(std::filesystem::exists(station.Folder() / "VigrelReceiver.INI"));
}

}  // namespace
}  // namespace vigrel::testing
