// What the program tells an operator before it ends, as he meets it: a box on the screen that Return closes.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>

#include "e2e/station.h"
#include "e2e/windows/operator.h"
#include "vigrel-send/connection.h"

namespace vigrel::testing {
namespace {

using Lines = std::vector<std::string>;

// The lines of a start behind those that were there, without the signal light's, which depend on the machine.
Lines Behind(const Lines& log, std::size_t count) {
    Lines lines(log.begin() + static_cast<std::ptrdiff_t>(std::min(count, log.size())), log.end());
    std::erase_if(lines, [](const std::string& line) {
        return line.starts_with("T10027") || line.starts_with("T10046") || line.starts_with("T10047");
    });
    return lines;
}

// Waits for the box, checks that the program waits for its answer, and gives it.
int AnswerBox(cStation& station) {
    const std::string box = FindWindow(station.Process(), "^Vigrel Alarm Receiver$");
    EXPECT_NE(box, "") << station.StandardError();
    EXPECT_EQ(waitpid(station.Process(), nullptr, WNOHANG), 0);
    Press(box, {"Return"});
    return station.WaitForEnd();
}

TEST(BoxesAtTheStart, ASecondStartOnTheFolderSaysSoAndLeavesItsFirstLines) {
    cStation first;
    ASSERT_TRUE(first.Start()) << first.StandardError();
    const std::size_t before = first.Log().size();
    cStation second(&first);
    OnScreen(second);
    second.Launch();
    EXPECT_EQ(AnswerBox(second), 69);
    EXPECT_EQ(Behind(first.Log(), before), (Lines{std::string(120, '-'), "T10040"}));
    // The first one has noticed nothing.
    EXPECT_EQ(first.Send({"--t0", "still here"}).exitCode, 0);
    EXPECT_EQ(first.Stop(SIGTERM), 0);
}

TEST(BoxesAtTheStart, ATakenPortIsNamedAndEndsTheStartBeforeItsLastLine) {
    cStation first;
    ASSERT_TRUE(first.Start()) << first.StandardError();
    cStation second;
    second.m_Port = first.m_Port;
    second.Configure("[Senders]\r\nPLC1=5\r\n");
    OnScreen(second);
    second.Launch();
    EXPECT_EQ(AnswerBox(second), 69);
    EXPECT_EQ(Behind(second.Log(), 0),
              (Lines{std::string(120, '-'), "T10040", "0 T10041", "PLC1 - T10013 5 T10014"}));
}

TEST(BoxesAtTheStart, AnImpossibleSettingIsNamedWithItsFileAndEndsWithCode70) {
    cStation station;
    station.ExpectStandardError();
    station.Configure("[General]\r\nMaxEvents=99999999999\r\n");
    OnScreen(station);
    station.Launch();
    EXPECT_EQ(AnswerBox(station), 70);
    const std::string error = station.StandardError();
    EXPECT_NE(error.find("Failure: "), std::string::npos) << error;
    EXPECT_NE(error.find("VigrelReceiver.INI: key MaxEvents of section General is \"99999999999\""),
              std::string::npos)
        << error;
}

TEST(BoxesAtTheStart, AnApplicationFolderThatCannotBeMadeIsNamedWithTheReasonAndEndsWithCode70) {
    cStation station;
    station.ExpectStandardError();
    OnScreen(station);
    const std::string folder = (station.Folder() / "VigrelReceiver.INI" / "below a file").string();
    station.m_Environment["VIGREL_APPLICATION_PATH"] = folder;
    station.Launch();
    EXPECT_EQ(AnswerBox(station), 70);
    const std::string line = "vigrel-receiver: " + folder + "/: Failure: The application folder " + folder +
                             "/ can't be made: Not a directory\n";
    EXPECT_TRUE(station.StandardError().ends_with(line)) << station.StandardError();
}

TEST(BoxesWhileRunning, AFailureInAnEventEndsTheProgramWithABoxALineAndCode70) {
    cStation station;
    station.ExpectStandardError();
    OnScreen(station);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    ASSERT_NE(FindWindow(station.Process(), "T10000"), "");
    // A line that has grown beyond 16-bit positions before its carriage return.
    send::cConnection sender("127.0.0.1", std::to_string(station.m_Port), 10);
    sender.Send(std::string(40000, 'x') + "\r");
    EXPECT_EQ(AnswerBox(station), 70);
    EXPECT_NE(station.StandardError().find("Failure: a text position is beyond 32767\n"), std::string::npos)
        << station.StandardError();
}

TEST(BoxesWhileRunning, AFailureBoxThatNobodyAnswersClosesByItself) {
    const auto start = std::chrono::steady_clock::now();
    const testing::cResult result = testing::RunProgram("failing_program", {});
    EXPECT_EQ(result.exitCode, 70);
    EXPECT_NE(result.output.find("Failure: an event failed\n"), std::string::npos) << result.output;
    // The box stands for 1.5 s; the toolkit's timers may come a twentieth early.
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1400));
}

TEST(BoxesWhileRunning, NothingRunsAnyMoreWhenTheSessionEndsOverAFailureBox) {
    const testing::cResult result = testing::RunProgram("failing_program", {"session"});
    EXPECT_EQ(result.exitCode, 70);
    EXPECT_NE(result.output.find("Failure: an event failed\n"), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("the program runs on"), std::string::npos) << result.output;
}

TEST(BoxesWhileRunning, AFailureIsShownAndEndsTheProgramThoughAMenuIsOpen) {
    const auto start = std::chrono::steady_clock::now();
    const testing::cResult result = testing::RunProgram("failing_program", {"menu"});
    EXPECT_EQ(result.exitCode, 70);
    EXPECT_NE(result.output.find("Failure: an event failed\n"), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("the program runs on"), std::string::npos) << result.output;
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1400));
}

}  // namespace
}  // namespace vigrel::testing
