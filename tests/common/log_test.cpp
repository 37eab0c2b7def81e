#include "common/log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "common/app_folder.h"
#include "common/failure.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

using Paths = std::vector<std::string>;
const std::string kLogs = kFolder + "LogFiles\\";

// A station at 2026-03-15 12:30:15.
struct cLoggingStation {
    cLoggingStation() {
        files.PutFolder(kLogs);
        files.Put(kFolder + "VigrelReceiver.INI", "[General]\r\nLanguage=046\r\n");
        files.Put(kFolder + "Vigrel_Texts.046", "141=Log file deleted (\r\n10048=more like this\r\n");
        texts.LoadTexts();
    }
    std::string Today() const { return files.ReadFile(kLogs + "20260315.Log"); }
    // Whether a log of that name is left by a cleaning.
    bool Keeps(const std::string& name, std::int16_t keepForDays) {
        files.Put(kLogs + name, "x");
        log.CleanLogFiles(kLogMask, keepForDays);
        return files.FileExists(kLogs + name);
    }

    cFakeFiles files;
    cFakeClock clock;
    cIni ini{files, kFolder};
    cTexts texts{files, ini};
    cLog log{files, clock, texts, kFolder};
};

TEST(WriteLog, TheFirstLineOfADayCreatesTheFile) {
    cLoggingStation station;
    station.log.WriteLog("started");
    EXPECT_EQ(station.files.AllPaths()[0], kLogs + "20260315.Log");
    EXPECT_EQ(station.Today(), "12:30:15 started\r\n");
}

TEST(WriteLog, AppendsOneLineForEachCall) {
    cLoggingStation station;
    station.log.WriteLog("one");
    station.clock.Set(2026, 3, 15, 3, 4, 5);
    station.log.WriteLog("two\r\nlines");
    station.log.WriteLog("");
    EXPECT_EQ(station.Today(), "12:30:15 one\r\n03:04:05 two\r\nlines\r\n03:04:05 \r\n");
}

TEST(WriteLog, TheLastMomentOfADayIsThatDays) {
    cLoggingStation station;
    station.clock.Set(2026, 3, 15, 23, 59, 59);
    station.clock.AddSeconds(0.9);
    station.log.WriteLog("late");
    EXPECT_EQ(station.Today(), "23:59:59 late\r\n");
    EXPECT_EQ(station.files.AllPaths()[0], kLogs + "20260315.Log");
}

// Ten refusals, as a sender that is set up wrongly brings them, and what stands in the log behind them.
std::string Refusals(cLoggingStation& station, int count, const std::string& text = "no") {
    for (int i = 0; i < count; ++i) station.log.WriteRefusal(text);
    return station.Today();
}

std::string Lines(int count, const std::string& text = "no") {
    std::string lines;
    for (int i = 0; i < count; ++i) lines += "12:30:15 " + text + "\r\n";
    return lines;
}

TEST(WriteRefusal, TheFirstEqualOnesInARowAreWritten) {
    cLoggingStation station;
    EXPECT_EQ(Refusals(station, 10), Lines(10));
}

TEST(WriteRefusal, FurtherOnesAreCountedUntilSomethingElseIsWritten) {
    cLoggingStation station;
    EXPECT_EQ(Refusals(station, 2423), Lines(10));
    station.log.WriteLog("other");
    EXPECT_EQ(station.Today(), Lines(10) + Lines(1, "... 2413 more like this") + Lines(1, "other"));
    station.log.WriteLog("no");
    EXPECT_EQ(station.Today(),
              Lines(10) + Lines(1, "... 2413 more like this") + Lines(1, "other") + Lines(1));
}

TEST(WriteRefusal, AnotherRefusalEndsTheRow) {
    cLoggingStation station;
    Refusals(station, 12);
    EXPECT_EQ(Refusals(station, 1, "never"),
              Lines(10) + Lines(1, "... 2 more like this") + Lines(1, "never"));
    Refusals(station, 9, "never");
    EXPECT_EQ(Refusals(station, 1),
              Lines(10) + Lines(1, "... 2 more like this") + Lines(10, "never") + Lines(1));
}

TEST(WriteRefusal, TheCountIsWrittenAtIntervalsAndTheRowGoesOn) {
    cLoggingStation station;
    Refusals(station, 15);
    station.log.WriteRepeats();
    station.log.WriteRepeats();
    EXPECT_EQ(Refusals(station, 3), Lines(10) + Lines(1, "... 5 more like this"));
    station.log.WriteRepeats();
    EXPECT_EQ(station.Today(),
              Lines(10) + Lines(1, "... 5 more like this") + Lines(1, "... 3 more like this"));
}

TEST(WriteRefusal, AFloodOfChangingNamesIsBoundedByTheMinute) {
    cLoggingStation station;
    std::string expected;
    for (int i = 0; i < 5000; ++i) {
        const std::string text = "sender " + std::to_string(i);
        station.log.WriteRefusal(text);
        if (i < kRefusalsAMinute) expected += Lines(1, text);
    }
    EXPECT_EQ(station.Today(), expected);
    station.log.WriteRepeats();
    EXPECT_EQ(station.Today(), expected + Lines(1, "... 4900 more like this"));
}

TEST(WriteRefusal, ANewMinuteTakesThemAgain) {
    cLoggingStation station;
    for (const char* text : {"a", "b"}) {
        for (int i = 0; i < 1000; ++i) station.log.WriteRefusal(text + std::to_string(i));
        station.clock.AddSeconds(61);
    }
    const std::string today = station.Today();
    EXPECT_EQ(std::count(today.begin(), today.end(), '\n'), 2 * kRefusalsAMinute + 1);
    EXPECT_NE(today.find("a99\r\n12:31:16 ... 900 more like this\r\n12:31:16 b0\r\n"), std::string::npos);
}

TEST(WriteRefusal, ANewMinuteBeginsSixtySecondsBehindTheFirstOfTheLast) {
    cLoggingStation station;
    station.clock.m_Steady = 0;
    std::string expected;
    for (int i = 0; i < kRefusalsAMinute; ++i) {
        station.log.WriteRefusal("a" + std::to_string(i));
        expected += Lines(1, "a" + std::to_string(i));
    }
    station.clock.m_Steady = 59.0 / 86400;
    EXPECT_EQ(Refusals(station, 1, "b"), expected);
    station.clock.m_Steady = 60.0 / 86400;
    EXPECT_EQ(Refusals(station, 1, "b"), expected + Lines(1, "... 1 more like this") + Lines(1, "b"));
}

TEST(WriteLog, EachDayHasItsFile) {
    cLoggingStation station;
    station.log.WriteLog("a");
    station.clock.Set(2026, 12, 1);
    station.log.WriteLog("b");
    EXPECT_EQ(station.files.ReadFile(kLogs + "20261201.Log"), "00:00:00 b\r\n");
    EXPECT_EQ(station.Today(), "12:30:15 a\r\n");
}

TEST(WriteLog, ALineIsInTheFileWhenTheCallReturns) {
    cLoggingStation station;
    for (const char* line : {"a", "b", "c"}) {
        const int calls = station.files.m_Calls;
        station.log.WriteLog(line);
        EXPECT_EQ(station.files.m_Calls, calls + 1);
        EXPECT_TRUE(station.Today().ends_with(std::string(line) + "\r\n"));
    }
}

TEST(WriteLog, AMissingFolderAFullDiskOrALockedFileLosesTheLineInSilence) {
    cFakeFiles nothing;
    const cFakeClock clock;
    const cIni ini(nothing, kFolder);
    const cTexts texts(nothing, ini);
    cLog(nothing, clock, texts, kFolder).WriteLog("lost");
    EXPECT_EQ(nothing.AllPaths(), Paths{});

    cLoggingStation station;
    station.log.WriteLog("kept");
    station.files.m_DiskFull = true;
    station.log.WriteLog("lost");
    station.files.m_DiskFull = false;
    station.files.SetReadOnly(kLogs + "20260315.Log", true);
    station.log.WriteLog("lost");
    EXPECT_EQ(station.Today(), "12:30:15 kept\r\n");
}

TEST(CleanLogFiles, ALogOfTheKeptAgeStaysAndAnOlderOneGoes) {
    cLoggingStation station;
    EXPECT_TRUE(station.Keeps("20260215.Log", 30));
    EXPECT_FALSE(station.Keeps("20260214.Log", 30));
}

TEST(CleanLogFiles, OldLogsGoWhateverOrderTheFolderGives) {
    for (const bool backwards : {false, true}) {
        cLoggingStation station;
        station.files.m_ListsBackwards = backwards;
        for (const char* name : {"20260101.Log", "20260102.Log", "20260314.Log"})
            station.files.Put(kLogs + name, "x");
        station.log.CleanLogFiles(kLogMask, 30);
        EXPECT_FALSE(station.files.FileExists(kLogs + "20260101.Log"));
        EXPECT_FALSE(station.files.FileExists(kLogs + "20260102.Log"));
        EXPECT_TRUE(station.files.FileExists(kLogs + "20260314.Log"));
    }
}

TEST(CleanLogFiles, AgesCountYearsOf365DaysAndMonthsOf30) {
    const auto ageIs = [](cLoggingStation& station, const std::string& name, std::int16_t age) {
        return station.Keeps(name, age) && !station.Keeps(name, static_cast<std::int16_t>(age - 1));
    };
    cLoggingStation station;
    station.clock.Set(2026, 2, 28);
    EXPECT_TRUE(ageIs(station, "20260201.Log", 27));
    station.clock.Set(2026, 1, 1);
    EXPECT_TRUE(ageIs(station, "20251231.Log", 5));
    station.clock.Set(2026, 3, 1);
    EXPECT_TRUE(ageIs(station, "20260131.Log", 30));
    EXPECT_TRUE(ageIs(station, "20240301.Log", 730));
}

TEST(CleanLogFiles, KeepingZeroDaysLeavesTodayAndWhatComputesToNoAge) {
    cLoggingStation station;
    EXPECT_TRUE(station.Keeps("20260315.Log", 0));
    EXPECT_TRUE(station.Keeps("20270101.Log", 0));
    EXPECT_FALSE(station.Keeps("20260314.Log", 0));
    station.clock.Set(2026, 3, 1);
    EXPECT_TRUE(station.Keeps("20260231.Log", 0));  // 30 - 30 days
}

TEST(CleanLogFiles, AttributesAreLeftAloneWhereTheyAreNotInTheWay) {
    cLoggingStation station;
    // As with the file of another user: it may be removed, and not be changed.
    station.files.m_OnCall = [](std::string_view operation, std::string_view) {
        if (operation == "attributes") throw cFailure(eFailure::PermissionDenied, "not the owner");
    };
    EXPECT_FALSE(station.Keeps("20260101.log", 0));
}

TEST(CleanLogFiles, NamesAreTakenWithoutRegardToCase) {
    cLoggingStation station;
    EXPECT_FALSE(station.Keeps("20260101.log", 0));
    EXPECT_FALSE(station.Keeps("20260102.Log", 0));
    EXPECT_FALSE(station.Keeps("20260103.LOG", 0));
}

TEST(CleanLogFiles, OtherNamesAreLeftAlone) {
    cLoggingStation station;
    for (const char* name : {"OLD.LOG", "20200101.txt", "2020010.log", "202001011.log", "2020010x.log",
                             "Debug.txt", "20200101.log.bak", "abcdefgh.log"}) {
        EXPECT_TRUE(station.Keeps(name, 0)) << name;
    }
}

TEST(CleanLogFiles, OtherNamesAreLeftAloneWhateverTheMask) {
    cLoggingStation station;
    station.files.Put(kLogs + "OLD.LOG", "");
    station.files.Put(kLogs + "2020010.log", "");
    station.log.CleanLogFiles("*", 0);
    EXPECT_EQ(station.files.ListFiles(kLogs, "*").size(), 2u);
}

TEST(CleanLogFiles, ImpossibleMonthsAndDaysAreNumbersAllTheSame) {
    cLoggingStation station;
    EXPECT_TRUE(station.Keeps("20250000.Log", 365 + 90 + 15));
    EXPECT_FALSE(station.Keeps("20250000.Log", 365 + 90 + 14));
    EXPECT_TRUE(station.Keeps("20259999.Log", 0));
}

TEST(CleanLogFiles, EachDeletionIsLoggedWithThePathBehindIt) {
    cLoggingStation station;
    station.files.Put(kLogs + "20260101.log", "");
    station.files.Put(kLogs + "20260102.log", "");
    station.log.CleanLogFiles(kLogMask, 30);
    EXPECT_EQ(station.Today(),
              "12:30:15 Log file deleted ( C:\\App\\LogFiles\\20260101.LOG)\r\n"
              "12:30:15 Log file deleted ( C:\\App\\LogFiles\\20260102.LOG)\r\n");
}

TEST(CleanLogFiles, TheLineIsWrittenWhenTheFileIsGone) {
    cLoggingStation station;
    station.files.Put(kLogs + "20260101.log", "");
    std::string steps;
    station.files.m_OnCall = [&](std::string_view operation, std::string_view) {
        steps += std::string(operation) + " ";
    };
    station.log.CleanLogFiles(kLogMask, 30);
    EXPECT_EQ(steps, "remove append ");
}

TEST(CleanLogFiles, AWriteProtectedLogGoesToo) {
    cLoggingStation station;
    station.files.Put(kLogs + "20260101.log", "");
    station.files.SetReadOnly(kLogs + "20260101.log", true);
    station.log.CleanLogFiles(kLogMask, 30);
    EXPECT_FALSE(station.files.FileExists(kLogs + "20260101.log"));
}

TEST(CleanLogFiles, AFailureToDeleteReachesTheCaller) {
    cLoggingStation station;
    station.files.Put(kLogs + "20260101.log", "");
    station.files.m_FolderReadOnly = true;
    EXPECT_THROW(station.log.CleanLogFiles(kLogMask, 30), cFailure);
}

// As a nightly cleaning of the machine may do at the same time.
TEST(CleanLogFiles, ALogThatSomebodyElseRemovesMeanwhileEndsNothing) {
    cLoggingStation station;
    station.files.Put(kLogs + "20260101.log", "");
    station.files.Put(kLogs + "20260102.log", "");
    bool isFirst = true;
    station.files.m_OnCall = [&](std::string_view operation, std::string_view) {
        if (operation != "remove" || !std::exchange(isFirst, false)) return;
        station.files.RemoveFile(kLogs + "20260101.log");
    };
    station.log.CleanLogFiles(kLogMask, 30);
    EXPECT_EQ(station.Today(), "12:30:15 Log file deleted ( C:\\App\\LogFiles\\20260102.LOG)\r\n");
}

TEST(CleanLogFiles, AMissingFolderHasNoLogs) {
    cFakeFiles files;
    const cFakeClock clock;
    const cIni ini(files, kFolder);
    const cTexts texts(files, ini);
    cLog(files, clock, texts, kFolder).CleanLogFiles(kLogMask, 0);
    EXPECT_EQ(files.m_Calls, 0);
}

}  // namespace
}  // namespace vigrel::testing
