// Whole stations: the real program on a real folder, fed over real sockets.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

#include "e2e/station.h"
#include "vigrel-send/connection.h"

namespace vigrel::testing {
namespace {

std::vector<std::string> Behind(const std::vector<std::string>& lines, std::size_t count) {
    return {lines.begin() + static_cast<std::ptrdiff_t>(std::min(count, lines.size())), lines.end()};
}

TEST(Receiver, AnAlarmIsAnsweredStoredAndBackAfterAKill) {
    cStation station;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    const std::vector<std::string> expectedStart{std::string(120, '-'), "T10040", "0 T10041",
                                                 "T10017 " + std::to_string(station.m_Port) + " T10018",
                                                 "T10011"};
    auto start = station.Log();
    // The signal light's lines depend on the machine.
    std::erase_if(start, [](const std::string& line) {
        return line.starts_with("T10027") || line.starts_with("T10046") || line.starts_with("T10047");
    });
    EXPECT_EQ(start, expectedStart);

    const std::size_t before = station.Log().size();
    const cResult sent = station.Send({"--sender", "PLC1", "--t0", "Fan 3 tripped", "--t2", "Technical",
                                       "--date", "2024-03-05", "--time", "01:02:03"});
    EXPECT_EQ(sent.exitCode, 0) << sent.output;
    EXPECT_EQ(sent.output, "positive\n");
    EXPECT_EQ(Behind(station.Log(), before),
              (std::vector<std::string>{"PLC1 T10030 Active - Fan 3 tripped (/Technical//)", "PLC1T10029"}));
    ASSERT_EQ(station.AlarmFiles().size(), 1u);
    const std::string file = ReadAll(station.AlarmFiles()[0]);
    // 180 bytes of an empty alarm and its texts; the event's id 0 and status 1 behind the two time stamps.
    EXPECT_EQ(file.size(), 180u + 13 + 9 + 4);
    using std::string_literals::operator""s;
    EXPECT_EQ(file.substr(16, 23), "\0\0\0\0\x01\0\x0D\0Fan 3 tripped\0\0"s);

    EXPECT_EQ(station.Stop(SIGKILL), -SIGKILL);
    const std::size_t killed = station.Log().size();
    ASSERT_TRUE(station.Start()) << station.StandardError();
    const auto restart = Behind(station.Log(), killed);
    EXPECT_NE(std::find(restart.begin(), restart.end(), "1 T10041"), restart.end());
    EXPECT_EQ(station.AlarmFiles().size(), 1u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST(Receiver, SpoiledFramesAreRefusedAndTheConnectionStaysUp) {
    cStation station;
    ASSERT_TRUE(station.Start());
    for (const char* what : {"checksum", "etx", "kind"}) {
        const cResult sent = station.Send({"--corrupt", what, "--count", "2", "--quiet"});
        EXPECT_EQ(sent.exitCode, 1) << what << sent.output;
    }
    EXPECT_TRUE(station.AlarmFiles().empty());
    EXPECT_EQ(station.Send({"--raw", "02 41 FF 53 30 FF 39 33 03 0A 02 41 FF 53 30 FF 43 33 03 0A"}).output,
              "negative\npositive\n");
}

TEST(Receiver, AMessageIsLoggedAndAKeepAliveOfAKnownSenderToo) {
    cStation station;
    station.Configure("[Senders]\r\nPLC1=5\r\n");
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--sender", "PLC1", "--message", "hello"}).exitCode, 0);
    EXPECT_EQ(station.Send({"--sender", "plc1", "--keepalive"}).exitCode, 0);
    const auto log = station.Log();
    EXPECT_NE(std::find(log.begin(), log.end(), "PLC1 - T10013 5 T10014"), log.end());
    EXPECT_EQ(log.back(), "plc1 T10028");
    EXPECT_EQ(log[log.size() - 2], "PLC1 T10042 -> hello");
}

TEST(Receiver, ABurstIsStoredWhole) {
    cStation station;
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--t0", "burst", "--count", "300", "--quiet"}).exitCode, 0);
    EXPECT_EQ(station.AlarmFiles().size(), 300u);
}

TEST(Receiver, ALimitOfEventsRemovesTheOldest) {
    cStation station;
    station.Configure("[General]\r\nMaxEvents=10\r\n");
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--count", "25", "--quiet"}).exitCode, 0);
    EXPECT_EQ(station.AlarmFiles().size(), 10u);
}

// The bytes of a stored alarm that holds nothing but the time at which it was made.
std::string StoredAt(std::uint64_t timeBits) {
    std::string bytes(180, '\0');
    for (std::size_t i = 0; i < 8; ++i) bytes[108 + i] = static_cast<char>(timeBits >> 8 * i);
    return bytes;
}

TEST(Receiver, StoredAlarmsWhoseTimeIsNoneMakeRoomForNewOnes) {
    cStation station;
    station.Configure("[General]\r\nMaxEvents=3\r\nMaxDays=0\r\n");
    std::filesystem::create_directory(station.Folder() / "Alarms");
    int number = 0;
    // No number, with and without sign, and infinity.
    for (const std::uint64_t time : {0x7FF8000000000001u, 0xFFF8000000000000u, 0x7FF0000000000000u}) {
        const std::string name = "A000000" + std::to_string(++number) + ".alm";
        std::ofstream(station.Folder() / "Alarms" / name, std::ios::binary) << StoredAt(time);
    }
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_TRUE(station.WaitForLog("3 T10041"));
    EXPECT_EQ(station.Send({"--t0", "new", "--count", "3", "--quiet"}).exitCode, 0);
    EXPECT_EQ(station.AlarmFiles().size(), 3u);
    for (const auto& file : station.AlarmFiles()) {
        EXPECT_NE(ReadAll(file).find("new"), std::string::npos) << file;
    }
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST(Receiver, ItAnswersOverIPv4AndIPv6) {
    cStation station;
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--host", "127.0.0.1", "--keepalive"}).exitCode, 0);
    EXPECT_EQ(station.Send({"--host", "::1", "--keepalive"}).exitCode, 0);
}

TEST(Receiver, TwoFoldersRunSideBySide) {
    cStation first;
    cStation second;
    ASSERT_TRUE(first.Start());
    ASSERT_TRUE(second.Start());
    EXPECT_EQ(first.Send({"--t0", "first"}).exitCode, 0);
    EXPECT_EQ(second.Send({"--t0", "second", "--count", "2"}).exitCode, 0);
    EXPECT_EQ(first.AlarmFiles().size(), 1u);
    EXPECT_EQ(second.AlarmFiles().size(), 2u);
}

TEST(Receiver, AnEventIsPrintedByItsTemplateInLinesOfEightyCharacters) {
    cStation station;
    const std::string printer = (station.Folder() / "printer").string();
    station.Configure("[Printer]\r\nPort=2\r\nFormat={ACTIVE?ALARM }[SENDER] [T0]\r\n[PrinterPorts]\r\n2=" +
                      printer + "\r\n");
    // A printer's device is there before anything is printed on it.
    std::ofstream(printer).close();
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--sender", "PLC1", "--t0", "K\xC3\xA4llare " + std::string(70, 'x')}).exitCode,
              0);
    EXPECT_EQ(ReadAll(printer),
              "ALARM PLC1 K\x84llare " + std::string(61, 'x') + "\r\n" + std::string(9, 'x') + "\r\n");
}

TEST(Receiver, AMinuteOfSilenceIsAnAlarmAndTheNextFrameItsEnd) {
    cStation station;
    station.Configure("[General]\r\nDateFormat=yyyy-mm-dd\r\nTimeFormat=hh:nn\r\n[Senders]\r\nPLC1=1\r\n");
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--sender", "PLC1", "--keepalive"}).exitCode, 0);
    const auto start = std::chrono::steady_clock::now();
    while (station.AlarmFiles().empty() &&
           std::chrono::steady_clock::now() - start < std::chrono::seconds(90)) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    // A minute, and at most one tick of ten seconds behind it.
    const auto silence = std::chrono::steady_clock::now() - start;
    EXPECT_GE(silence, std::chrono::seconds(59));
    EXPECT_LT(silence, std::chrono::seconds(75));
    ASSERT_EQ(station.AlarmFiles().size(), 1u);
    const auto lost = station.AlarmFiles()[0];
    const std::string file = ReadAll(lost);
    EXPECT_EQ(file[20], 1);
    EXPECT_NE(file.find("VigrelAlarmReceiver"), std::string::npos);
    EXPECT_NE(file.find("PLC1 - T10031 20"), std::string::npos);
    EXPECT_EQ(station.Send({"--sender", "plc1", "--keepalive"}).exitCode, 0);
    ASSERT_EQ(station.AlarmFiles().size(), 2u);
    const auto files = station.AlarmFiles();
    EXPECT_EQ(ReadAll(files[0] == lost ? files[1] : files[0])[20], 0);
}

TEST(Receiver, AFloodWithoutLineEndEndsTheConnectionAndTheNextOneWorks) {
    cStation station;
    ASSERT_TRUE(station.Start());
    send::cConnection flood("127.0.0.1", std::to_string(station.m_Port), 10);
    const std::string chunk(65'536, 'x');
    for (int i = 0; i < 20; ++i) flood.Send(chunk);
    // The station's end of the connection comes as the end of what can be read, long before the time is over.
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(flood.ReadReply(), "");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
    EXPECT_EQ(station.Send({"--t0", "after"}).exitCode, 0);
    EXPECT_EQ(station.AlarmFiles().size(), 1u);
}

}  // namespace
}  // namespace vigrel::testing
