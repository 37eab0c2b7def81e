// A station that is killed at random moments: while it takes alarms, with and without its limit reached,
// while it ends, and while it starts.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <thread>

#include "e2e/numbered_alarms.h"
#include "e2e/station.h"

namespace vigrel::testing {
namespace {

class Kills : public ::testing::Test {
  protected:
    Kills() { station.ExpectStandardError(); }
    void SetLimit(int limit) { SetLimits("MaxEvents=" + std::to_string(limit)); }
    void SetLimits(const std::string& keys) {
        std::filesystem::remove(station.Folder() / "VigrelReceiver.INI");
        station.Configure("[General]\r\n" + keys + "\r\n");
    }
    // Of all alarms but the newest.
    void SetTimes(int newest, const std::function<double(double)>& time) {
        for (const auto& path : station.AlarmFiles()) {
            std::string bytes = ReadAll(path);
            if (NumberOf(bytes) > alarms.m_Answered - newest) continue;
            SetCreatedTime(bytes, time(CreatedTimeOf(bytes)));
            std::ofstream(path, std::ios::binary) << bytes;
        }
    }
    // Whether one of the alarms goes, within the time that a change of date takes to be seen.
    bool WaitUntilOneGoes() const {
        const std::filesystem::path oldest = OldestFile();
        for (int tries = 0; tries < 40'000; ++tries) {
            if (!std::filesystem::exists(oldest)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return false;
    }
    std::filesystem::path OldestFile() const {
        const auto files = station.AlarmFiles();
        return *std::min_element(files.begin(), files.end(), [](const auto& a, const auto& b) {
            return CreatedTimeOf(ReadAll(a)) < CreatedTimeOf(ReadAll(b));
        });
    }
    void KillAfter(int mostMilliseconds) {
        const std::chrono::milliseconds moment(
            std::uniform_int_distribution<>(0, mostMilliseconds)(m_Random));
        std::this_thread::sleep_for(moment);
        kill(station.Process(), SIGKILL);
    }
    // Takes alarms until it is killed.
    void KillWhileItTakesAlarms() {
        std::thread killer([this] { KillAfter(300); });
        alarms.Send(station.m_Port, 1'000'000);
        killer.join();
        station.WaitForEnd();
    }
    // Started again it has the newest of them all, as many as the limit allows, and nothing else.
    void ExpectTheAnswered(int limit) {
        ASSERT_TRUE(station.Start()) << station.StandardError();
        const std::set<int> stored = StoredNumbers(station);
        EXPECT_LE(static_cast<int>(stored.size()), limit);
        if (alarms.m_Answered > 0) {
            ASSERT_FALSE(stored.empty());
        }
        const int newest = stored.empty() ? 0 : *stored.rbegin();
        EXPECT_LE(newest, alarms.m_Sent);
        int room = limit;
        for (int number = newest; number > 0 && room > 0; --number) {
            if (stored.contains(number)) {
                --room;
            } else {
                EXPECT_TRUE(number > alarms.m_Answered || m_Gaps.contains(number)) << number << " is lost";
            }
        }
        RememberGaps(stored);
    }
    // Numbers that were sent to a station which died before it answered.
    void RememberGaps(const std::set<int>& stored) {
        for (int number = alarms.m_Answered + 1; number <= alarms.m_Sent; ++number) {
            if (!stored.contains(number)) m_Gaps.insert(number);
        }
    }

    std::mt19937 m_Random = RandomMoments();
    std::set<int> m_Gaps;
    cNumberedAlarms alarms;
    cStation station;
};

constexpr int kAsManyAsCome = 10'000'000;

TEST_F(Kills, WhileItTakesAlarmsLoseNoneThatWasAnswered) {
    station.Configure("[General]\r\nMaxEvents=0\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        KillWhileItTakesAlarms();
        ExpectTheAnswered(kAsManyAsCome);
    }
    RecordProperty("answered", alarms.m_Answers);
}

TEST_F(Kills, WhileEveryAlarmPushesOneOutLoseNoneThatIsToStay) {
    station.Configure("[General]\r\nMaxEvents=40\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        KillWhileItTakesAlarms();
        ExpectTheAnswered(40);
    }
    RecordProperty("answered", alarms.m_Answers);
}

// The end closes popups, each of which acknowledges, and saves the window's place.
TEST_F(Kills, WhileItEndsLoseNeitherAlarmsNorSettings) {
    station.Configure("[General]\r\nMaxEvents=0\r\nViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        alarms.Send(station.m_Port, 20);
        kill(station.Process(), SIGTERM);
        KillAfter(60);
        station.WaitForEnd();
        const std::string configuration = ReadAll(station.Folder() / "VigrelReceiver.INI");
        EXPECT_NE(configuration.find("Language=046\r\n"), std::string::npos) << configuration;
        EXPECT_NE(configuration.find("[TCPIP]\r\nPort="), std::string::npos) << configuration;
        ExpectTheAnswered(kAsManyAsCome);
    }
    RecordProperty("answered", alarms.m_Answers);
}

// The start removes what the limit, lowered meanwhile, does not allow.
TEST_F(Kills, WhileItStartsLoseNoneThatIsToStay) {
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        SetLimit(0);
        ASSERT_TRUE(station.Start()) << station.StandardError();
        alarms.Send(station.m_Port, 300);
        station.Stop(SIGKILL);
        SetLimit(40);
        station.Launch();
        KillAfter(500);
        station.WaitForEnd();
        ExpectTheAnswered(40);
        station.Stop(SIGKILL);
    }
    RecordProperty("answered", alarms.m_Answers);
}

// The start removes what has become too old meanwhile.
TEST_F(Kills, WhileItStartsLoseNoneThatIsYoungEnough) {
    constexpr int kYoung = 40;
    for (int i = 0; i < KillsOfEachKind(); ++i) {
        SetLimits("MaxEvents=0\r\nMaxDays=0");
        ASSERT_TRUE(station.Start()) << station.StandardError();
        alarms.Send(station.m_Port, 300);
        station.Stop(SIGKILL);
        SetTimes(kYoung, [](double time) { return time - 10; });
        SetLimits("MaxEvents=0\r\nMaxDays=5");
        station.Launch();
        KillAfter(500);
        station.WaitForEnd();
        ExpectTheAnswered(kYoung);
        station.Stop(SIGKILL);
    }
    RecordProperty("answered", alarms.m_Answers);
}

// At the change of date, which a station notices ten seconds later: a tenth of the kills.
TEST_F(Kills, WhileItSweepsAtMidnightLoseNoneThatIsYoungEnough) {
    constexpr int kYoung = 40, kSeconds = 15, kMostSweepMilliseconds = 20;
    int inTheMidst = 0;
    SetLimits("MaxEvents=0\r\nMaxDays=1");
    for (int i = 0; i < std::max(1, KillsOfEachKind() / 10); ++i) {
        ASSERT_TRUE(station.Start()) << station.StandardError();
        alarms.Send(station.m_Port, 600);
        station.Stop(SIGKILL);
        const cZoneBeforeMidnight zone(kSeconds);
        double old = zone.m_Midnight - 1 - 5.0 / 86400;
        SetTimes(kYoung, [&](double) { return old += 1e-9; });
        station.m_Environment["TZ"] = zone.m_Name;
        station.Launch();
        ASSERT_TRUE(WaitUntilOneGoes());
        KillAfter(kMostSweepMilliseconds);
        station.WaitForEnd();
        station.m_Environment.erase("TZ");
        const std::set<int> stored = StoredNumbers(station);
        for (int number = alarms.m_Answered; number > alarms.m_Answered - kYoung; --number)
            EXPECT_TRUE(stored.contains(number)) << number << " is lost";
        if (stored.size() > kYoung) ++inTheMidst;
        for (const auto& path : station.AlarmFiles()) std::filesystem::remove(path);
    }
    RecordProperty("answered", alarms.m_Answers);
    RecordProperty("in the midst of sweeping", inTheMidst);
}

}  // namespace
}  // namespace vigrel::testing
