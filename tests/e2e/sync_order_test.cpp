#include <gtest/gtest.h>
#include <signal.h>
#include <sys/syscall.h>

#include <map>
#include <string>
#include <vector>

#include "e2e/station.h"
#include "e2e/system_calls.h"
#include "e2e/tcp_client.h"
#include "link/frame.h"

namespace vigrel::testing {
namespace {

// The calls that bring an alarm to the disk, and the one that answers it.
const std::map<long, std::string> kCalls{
    {SYS_fsync, "sync"},       {SYS_fdatasync, "sync"}, {SYS_syncfs, "sync all"}, {SYS_renameat, "rename"},
    {SYS_renameat2, "rename"}, {SYS_sendto, "send"},    {SYS_sendmsg, "send"}};

TEST(SyncOrder, AnAlarmIsAnsweredWhenItAndItsNameAreOnDisk) {
    cStation station;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    cTcpClient sender(station.m_Port);
    const auto send = [&sender](const std::string& text) {
        sender.Send(MakeFrame("PLC1", "S1|||" + text));
        EXPECT_EQ(sender.Read(5),
                  "\x04"
                  "04\n\r");
    };
    // What a station does once, and not with each alarm, comes with the first.
    send("first");
    const auto calls = SystemCallsOf(station.Process(), [&] { send("second"); });
    ASSERT_TRUE(calls);
    std::vector<std::string> named;
    for (const long call : *calls) {
        if (const auto known = kCalls.find(call); known != kCalls.end()) named.push_back(known->second);
    }
    EXPECT_EQ(named, (std::vector<std::string>{"sync", "rename", "sync", "send"}));
    EXPECT_EQ(station.AlarmFiles().size(), 2u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

}  // namespace
}  // namespace vigrel::testing
