// A station writes its record, and the report reads it.

#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <thread>

#include "e2e/station.h"

namespace vigrel::testing {
namespace {

cResult Report(const cStation& station, const std::string& date) {
    return RunProgram("vigrel-report", {"--quiet", "--language", "en", "--json", "--from", date, "--to", date,
                                        station.Folder().string()});
}

// The day of the only log: "20260315.Log" is 2026-03-15.
std::string DayOfLog(const cStation& station) {
    const auto log = *std::filesystem::directory_iterator(station.Folder() / "LogFiles");
    const std::string name = log.path().filename().string();
    return name.substr(0, 4) + "-" + name.substr(4, 2) + "-" + name.substr(6, 2);
}

TEST(ReportOfAStation, KnowsEveryLineThatItWrote) {
    cStation station;
    station.Configure("[Senders]\r\nPLC1=5\r\nPLC2=0\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--sender", "PLC1", "--t0", "Fan", "--t2", "Technical"}).exitCode, 0);
    EXPECT_EQ(station.Send({"--sender", "PLC1", "--t0", "Fan", "--t2", "Technical"}).exitCode, 0);
    EXPECT_EQ(station.Send({"--sender", "PLC1", "--keepalive"}).exitCode, 0);
    EXPECT_EQ(station.Send({"--sender", "Stranger", "--corrupt", "checksum", "--t0", "x"}).exitCode, 1);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    std::this_thread::sleep_for(std::chrono::seconds(1));  // the second that runs is no part of a report

    const cResult report = Report(station, DayOfLog(station));
    EXPECT_EQ(report.exitCode, 0) << report.output;
    // Of a sender that tells no returns each record counts.
    EXPECT_NE(report.output.find("\"alarms\": 2"), std::string::npos) << report.output;
    EXPECT_NE(report.output.find("\"sender\": \"PLC1\", \"allowed_silence\": 300"), std::string::npos);
    EXPECT_NE(report.output.find("\"starts\": 1, \"orderly_ends\": 1, \"unexpected_ends\": 0"),
              std::string::npos);
    for (const char* fault : {"were damaged", "no known language", "no line of a station"}) {
        EXPECT_EQ(report.output.find(fault), std::string::npos) << report.output;
    }
}

}  // namespace
}  // namespace vigrel::testing
