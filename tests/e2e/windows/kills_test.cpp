// A station that is killed while its operator acknowledges all alarms.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "e2e/numbered_alarms.h"
#include "e2e/station.h"
#include "e2e/windows/operator.h"

namespace vigrel::testing {
namespace {

constexpr int kStored = 600, kMostMilliseconds = 300;

class KillsOnScreen : public ::testing::Test {
  protected:
    KillsOnScreen() {
        m_Station.ExpectStandardError();
        m_Station.m_Environment = {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}};
        m_Station.Configure("[General]\r\nMaxEvents=0\r\nColumns=DateTime,t0\r\n");
    }
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const auto& path : m_Station.AlarmFiles()) files[path] = ReadAll(path);
        return files;
    }
    std::ptrdiff_t Acknowledged() const {
        const std::vector<std::string> log = m_Station.Log();
        return std::count_if(log.begin(), log.end(),
                             [](const std::string& line) { return line.starts_with("T10039"); });
    }
    // The command tells the log of each alarm, then writes the files behind. Whether it was in the midst of
    // it.
    bool KillWhileAllIsAcknowledged() {
        const auto before = Files();
        const std::ptrdiff_t known = Acknowledged();
        const std::string window = FindWindow(m_Station.Process(), "^T10000 .* - ");
        EXPECT_NE(window, "");
        Press(window, {"Escape"});
        Press(window, {"F9"});
        for (int tries = 0; tries < 5000 && Acknowledged() == known; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        EXPECT_GT(Acknowledged(), known);
        std::this_thread::sleep_for(
            std::chrono::milliseconds(std::uniform_int_distribution<>(0, kMostMilliseconds)(m_Random)));
        kill(m_Station.Process(), SIGKILL);
        m_Station.WaitForEnd();
        const std::filesystem::directory_iterator entries(m_Station.Folder() / "Alarms");
        const auto temporaries = std::count_if(begin(entries), end(entries), [](const auto& entry) {
            return entry.path().string().ends_with("$~");
        });
        std::size_t written = 0;
        for (const auto& [path, bytes] : Files()) written += before.at(path) == bytes ? 0 : 1;
        return temporaries > 0 || (written > 0 && written < kStored);
    }

    std::ptrdiff_t Written() const {
        const auto files = Files();
        return std::count_if(files.begin(), files.end(),
                             [](const auto& file) { return IsAcknowledged(file.second); });
    }

    std::mt19937 m_Random = RandomMoments();
    cStation m_Station;
};

TEST_F(KillsOnScreen, WhileAllIsAcknowledgedLeaveEveryAlarmWhole) {
    int inTheMidst = 0;
    cNumberedAlarms alarms;
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
        alarms.Send(m_Station.m_Port, kStored);
        inTheMidst += KillWhileAllIsAcknowledged() ? 1 : 0;
        const std::set<int> stored = StoredNumbers(m_Station);
        EXPECT_EQ(stored.size(), static_cast<std::size_t>(alarms.m_Answered));
        EXPECT_EQ(*stored.rbegin(), alarms.m_Answered);
    }
    EXPECT_EQ(alarms.m_Answered, alarms.m_Sent);
    RecordProperty("answered", alarms.m_Answers);
    RecordProperty("in the midst", inTheMidst);
}

// Each is on disk before the next key; the log tells of it just before.
TEST_F(KillsOnScreen, WhileRowsAreAcknowledgedOneByOneKeepWhatWasAcknowledged) {
    constexpr int kRows = 30;
    cNumberedAlarms alarms;
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
        alarms.Send(m_Station.m_Port, kRows);
        const std::ptrdiff_t written = Written(), told = Acknowledged();
        const std::string window = FindWindow(m_Station.Process(), "^T10000 .* - ");
        ASSERT_NE(window, "");
        // The box that greets at the first look goes by any key.
        Press(window, {"Escape"});
        Press(window, {"Escape"});
        std::thread operatorsHand([&] {
            std::vector<std::string> keys{"End"};
            for (int row = 0; row < kRows; ++row) keys.insert(keys.end(), {"Return", "Up"});
            Press(window, keys);
        });
        for (int tries = 0; tries < 5000 && Acknowledged() == told; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        std::this_thread::sleep_for(
            std::chrono::milliseconds(std::uniform_int_distribution<>(0, kMostMilliseconds)(m_Random)));
        kill(m_Station.Process(), SIGKILL);
        m_Station.WaitForEnd();
        operatorsHand.join();
        const std::ptrdiff_t newlyTold = Acknowledged() - told, newlyWritten = Written() - written;
        EXPECT_GT(newlyTold, 0);
        EXPECT_LE(newlyWritten, newlyTold);
        EXPECT_GE(newlyWritten, newlyTold - 1);
        EXPECT_EQ(StoredNumbers(m_Station).size(), static_cast<std::size_t>(alarms.m_Answered));
    }
    RecordProperty("answered", alarms.m_Answers);
}

}  // namespace
}  // namespace vigrel::testing
