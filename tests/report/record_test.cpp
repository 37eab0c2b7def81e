// What folders tell, also damaged ones.

#include <gtest/gtest.h>

#include "common/failure.h"
#include "report/written_station.h"

namespace vigrel::report {
namespace {

using testing::cFakeFiles;
using testing::cMeasured;
using testing::cWrittenStation;
using testing::kStockholm;
using testing::Wall;

const std::string kFan = "Fan (Roof/Technical//)", kPump = "Pump (Cellar/Technical//)";

class Record : public ::testing::Test {
  protected:
    cMeasured Measure(const cTimeZone& zone = testing::kNoZone) {
        return cMeasured(files, {station.Finish()}, day, day + 86400, zone);
    }
    cFakeFiles files;
    cWrittenStation station{files};
    const WallTime day = Wall(2026, 3, 16);
};

TEST_F(Record, ALogThatWasCutTellsWhatIsWhole) {
    station.Raw(day, "or room alarm received: Active - half a line (a/b/c/d)\r\n");
    station.KeepAlive(day + 60);
    station.Active(day + 120, kFan);
    station.Raw(day, "00:03:00 PLC1 " + station.Text(10030) + " Active - Pump (Cel");
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 1u);
    EXPECT_EQ(measured.Record().faults.damagedLines, 2u);
    EXPECT_EQ(measured.Record().faults.lines, 4u);
}

TEST_F(Record, EveryCutOfALogIsRead) {
    station.Start(day);
    station.Active(day + 120, kFan);
    station.Acknowledge(day + 180, kFan);
    station.End(day + 240);
    station.Finish();
    const std::string whole = files.ReadFile("/app/LogFiles/20260316.Log");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        files.Put("/app/LogFiles/20260316.Log", whole.substr(0, length));
        const cMeasured measured(files, {"/app/"}, day, day + 86400);
        EXPECT_LE(measured.figures.load.activations, 1u) << length;
    }
}

TEST_F(Record, LogsOfOtherProgramsAreNamedAndLeftOut) {
    station.Start(day);
    station.Active(day + 60, kFan);
    files.Put("/app/LogFiles/20260315.Log", "10:00:00 cron[1]: started\r\nJan 3 10:00:00 host kernel: x\r\n");
    files.Put("/app/LogFiles/20260314.Log", std::string(2000, '\0'));
    files.Put("/app/LogFiles/20261399.Log", "10:00:00 x\r\n");
    files.Put("/app/LogFiles/error.log", "10:00:00 x\r\n");
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.Record().faults.foreignFiles,
              (std::vector<std::string>{"20260314.Log", "20260315.Log"}));
    EXPECT_EQ(measured.Record().faults.unknownLines, 1u);
    EXPECT_EQ(measured.Record().faults.damagedLines, 2u);
    EXPECT_EQ(measured.figures.load.activations, 1u);
}

TEST_F(Record, AFileThatCannotBeReadIsNamed) {
    station.Start(day);
    station.Finish();
    files.SetUnreadable("/app/LogFiles/20260316.Log", true);
    const cMeasured measured = Measure();
    ASSERT_EQ(measured.Record().faults.unreadableFiles.size(), 1u);
    EXPECT_NE(measured.Record().faults.unreadableFiles[0].find("20260316.Log"), std::string::npos);
}

TEST_F(Record, ALogThatTheFolderTellsAsUnreadableIsNamed) {
    station.Start(day);
    station.Finish();
    files.m_Unreadable["/app/LogFiles/"] = {{"20260316.Log", "Permission denied"},
                                            {"notes.log", "Permission denied"}};
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.Record().faults.unreadableFiles,
              std::vector<std::string>{"/app/LogFiles/20260316.Log: Permission denied"});
}

TEST_F(Record, TextsOfSendersCanHoldLineBreaks) {
    station.Active(day + 60, "Fan\n00:01:00 " + station.Text(10021) + " (Roof/Technical//)");
    station.KeepAlive(day + 120);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 1u);
    EXPECT_EQ(measured.figures.stations[0].orderlyEnds, 0u);
    EXPECT_EQ(measured.Record().faults.damagedLines, 0u);
}

TEST_F(Record, ALogWithConvertedLineEndsIsRead) {
    station.Raw(day, "00:01:00 PLC1 " + station.Text(10028) + "\n00:02:00 PLC1 " + station.Text(10030) +
                         " Active - " + kFan + "\n");
    EXPECT_EQ(Measure().figures.load.activations, 1u);
}

TEST_F(Record, AClockSetBackIsToldAndCountsTimesAsShown) {
    station.Active(day + 36000, kFan);
    station.KeepAlive(day + 36060);
    station.Acknowledge(day + 30000, kFan);  // set back by 1 h 41 min
    station.Active(day + 30010, kPump);
    const cMeasured measured = Measure();
    ASSERT_EQ(measured.Record().setBacks.size(), 1u);
    EXPECT_EQ(measured.Record().setBacks[0].by, 6060);
    EXPECT_EQ(measured.figures.load.activations, 2u);
    EXPECT_EQ(measured.figures.answers.all.most, 60);  // never negative
}

TEST_F(Record, TheHourOfTheClockChangeHoldsItsTwoHours) {
    const WallTime change = Wall(2026, 10, 25);
    for (const int minute : {0, 10, 20, 30, 40, 50})
        station.Active(change + 7200 + minute * 60, kFan + std::to_string(minute) + ")");
    for (const int minute : {0, 10, 20, 30, 40, 50})
        station.Active(change + 7200 + minute * 60, kPump + std::to_string(minute) + ")");
    const cMeasured measured(files, {station.Finish()}, change, change + 86400, kStockholm);
    EXPECT_EQ(measured.figures.load.activations, 12u);
    EXPECT_EQ(measured.figures.load.peak, 1u);  // two passes of the hour, one alarm in each ten minutes
    EXPECT_EQ(measured.figures.load.bins.counts.size(), 25u * 6);
    EXPECT_TRUE(measured.Record().setBacks.empty());
    EXPECT_EQ(measured.figures.hours.cells[6][2].alarms, 12u);  // a Sunday
    EXPECT_NEAR(measured.figures.hours.cells[6][2].Mean(), 12 / (110.0 / 60 + 1.0 / 3600), 0.01);
}

TEST_F(Record, AFolderWithoutAlarmsIsAQuietStation) {
    station.Start(day);
    station.KeepAlive(day + 86399);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 0u);
    EXPECT_EQ(measured.figures.load.observed, 86400);
    EXPECT_EQ(measured.figures.load.perDay, 0);
}

TEST_F(Record, AFolderWithNothingButItsConfigurationKnowsNothing) {
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.observed, 0);
    for (const cJudged& line : Judge(measured.figures, nullptr)) EXPECT_EQ(line.verdict, eVerdict::NotJudged);
}

TEST_F(Record, AFolderOfNoStationIsRefused) {
    cAlarmNames names;
    files.Put("/other/readme.txt", "x");
    EXPECT_THROW(ReadStation(files, "/other", ReadPhrases(files, "/app/"), testing::kNoZone, names,
                             [](std::size_t, std::size_t) {}),
                 cFailure);
}

TEST_F(Record, AFolderIsNotReadWithoutWords) {
    station.Start(day);
    station.Finish();
    files.RemoveFile("/app/Vigrel_Texts.044");
    cAlarmNames names;
    const auto failure = CatchFailure(
        [&] { ReadStation(files, "/app", {}, testing::kNoZone, names, [](std::size_t, std::size_t) {}); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(std::string(failure->what()),
              "/app/: no text file (Vigrel_Texts.NNN) is here or in the installation; no log can be read");
}

TEST_F(Record, StoredAlarmsAndLogLinesOfThemCountOnce) {
    station.Start(day);
    station.Active(day + 61, kFan);
    station.Store({.created = day + 60, .texts = {"Fan", "Roof", "Technical", "", ""}});
    // Its line is lost.
    station.Store({.created = day + 600, .texts = {"Pump", "Cellar", "Technical", "", ""}});
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 2u);
}

TEST_F(Record, AlarmsThatLimitsRemovedCountFromTheLog) {
    station.Start(day);
    for (int i = 0; i < 5; ++i) station.Active(day + 3600 * (i + 1), kFan);
    station.Line(day + 70000, "5 " + station.Text(10036));
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 5u);
    EXPECT_EQ(measured.figures.stations[0].removed, 5);
}

TEST_F(Record, StoredAlarmsWithoutALogTellOfTheirTime) {
    for (int i = 0; i < 5; ++i) {
        station.Store({.created = day + 3600 * (i + 1), .texts = {"Fan", "Roof", "Technical", "", ""}});
    }
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 5u);
    EXPECT_EQ(measured.figures.load.observed, 4 * 3600 + 1);
    EXPECT_EQ(measured.figures.unlogged, 4 * 3600 + 1);
}

TEST_F(Record, DamagedAlarmFilesAreCounted) {
    station.Store({.created = day + 3600, .texts = {"Fan", "Roof", "Technical", "", ""}});
    const std::string whole = files.ReadFile("/app/Alarms/A1000000.alm");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        files.Put("/app/Alarms/A1000000.alm", whole.substr(0, length));
        EXPECT_EQ(Measure().Record().faults.damagedAlarms, 1u) << length;
    }
    // A time outside of everything.
    files.Put("/app/Alarms/A1000000.alm", std::string(180, '\0'));
    EXPECT_EQ(Measure().Record().faults.damagedAlarms, 1u);
}

TEST_F(Record, TwoStationsWithTheSameSendersCountAnAlarmOnce) {
    cWrittenStation second(files, "/second/", "046");
    for (cWrittenStation* one : {&station, &second}) one->Start(day);
    station.Active(day + 600, kFan);
    second.Active(day + 603, kFan);
    second.Acknowledge(day + 663, kFan);
    second.Active(day + 1200, kPump);  // the first one did not get it
    const cMeasured measured(files, {station.Finish(), second.Finish()}, day, day + 86400);
    EXPECT_EQ(measured.figures.load.activations, 2u);
    EXPECT_EQ(measured.plant.toldTwice, 1u);
    EXPECT_EQ(measured.figures.answers.all.count, 1u);
    EXPECT_EQ(measured.figures.answers.all.most, 60);
}

// --- when the station ran

TEST_F(Record, EndsAndStartsBoundTheTimeWithoutAStation) {
    station.Start(day);
    station.End(day + 3600);
    station.Start(day + 5400);
    station.KeepAlive(day + 7200);
    station.Start(day + 9000);  // no end before: it ended after its last line
    station.KeepAlive(day + 10800);
    const cMeasured measured = Measure();
    const cStationFigures& figures = measured.figures.stations[0];
    EXPECT_EQ(figures.starts, 3u);
    EXPECT_EQ(figures.orderlyEnds, 1u);
    EXPECT_EQ(figures.unexpectedEnds, 1u);
    EXPECT_EQ(figures.notRunning, 1800 + 1800);
    EXPECT_EQ(figures.running, 3600 + 1800 + 1801);
    EXPECT_EQ(figures.notKnown, 86400 - 10801);
}

TEST_F(Record, AStationThatWasNotStartedAgainIsNotRunning) {
    station.Start(day);
    station.End(day + 3600);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.stations[0].notRunning, 86400 - 3600);
    EXPECT_EQ(measured.figures.stations[0].notKnown, 0);
    ASSERT_EQ(measured.figures.stations[0].outages.size(), 1u);
    EXPECT_EQ(measured.figures.stations[0].outages[0].span, (cSpan{day + 3600, day + 86400}));
}

TEST_F(Record, ASecondProgramThatFindsTheStationRunningIsNoStart) {
    station.Start(day);
    station.Line(day + 600, std::string(120, '-'));
    station.Line(day + 600, station.Text(10040));
    station.KeepAlive(day + 660);
    station.KeepAlive(day + 7200);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.stations[0].starts, 1u);
    EXPECT_EQ(measured.figures.stations[0].unexpectedEnds, 0u);
    EXPECT_EQ(measured.figures.stations[0].running, 7201);
}

TEST_F(Record, DaysWithoutALineInARunAreQuiet) {
    station.Start(day - 2 * 86400);
    station.KeepAlive(day + 86400);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.observed, 86400);
    EXPECT_EQ(measured.Record().faults.quietDays, 2u);
}

TEST_F(Record, WeeksWithoutALogAreAHole) {
    station.Start(day - 20 * 86400);
    station.KeepAlive(day + 86400);
    EXPECT_EQ(Measure().figures.load.observed, 0);
}

// --- senders, prints, acknowledgements

TEST_F(Record, LostSendersComeFromAlarmsAndPopups) {
    const std::array<std::string, 5> own = {"VigrelAlarmReceiver", "", "Vigrel", "", "PLC1 - lost"};
    station.Start(day);
    station.Line(day, "PLC1 - " + station.Text(10013) + " 5 " + station.Text(10014));
    station.KeepAlive(day + 60);
    station.Store({.created = day + 400, .texts = own});
    station.Store({.created = day + 700, .texts = own});  // repeated
    station.Store({.created = day + 1000, .state = 0, .texts = own});
    station.KeepAlive(day + 1000);
    // The alarm itself was removed; its popup's line is there.
    station.Line(day + 5000, station.Text(10043) + " Active - VigrelAlarmReceiver (/Vigrel//PLC1 - " +
                                 station.Text(10031) + " 2026-03-16 01:16:40)");
    station.End(day + 6000);
    const cMeasured measured = Measure();
    ASSERT_EQ(measured.figures.stations[0].senders.size(), 1u);
    const cSenderFigures& sender = measured.figures.stations[0].senders[0];
    EXPECT_EQ(sender.minutes, 5);
    EXPECT_EQ(sender.lost, 2u);
    EXPECT_EQ(sender.returned, 1u);
    EXPECT_EQ(sender.without, 600 + 1000);
    EXPECT_FALSE(sender.isLost);
    EXPECT_EQ(sender.longestSilence, 940);
    EXPECT_EQ(measured.figures.load.activations, 0u);  // they are the station's, and told apart
}

// The log of their start can be gone for long. A line of a zero byte ends them.
TEST_F(Record, SendersOfTheConfigurationAreThereWithoutALine) {
    using std::string_literals::operator""s;
    files.Put("/app/VigrelReceiver.INI",
              "[General]\r\nLanguage=044\r\n[Senders]\r\n;PLC0=1\r\nPLC1=5\r\nplc1=6\r\nPLC2=0\r\nPLC3=x\r\n"
              "PLC4=99999\r\nno pair\r\n\0PLC5=1\r\nPLC6=1\r\n"s);
    station.KeepAlive(day + 60);
    station.Line(day + 61, "PLC2 - " + station.Text(10013) + " 7 " + station.Text(10014));
    std::map<std::string, std::optional<std::int64_t>> minutes;
    const cMeasured measured = Measure();
    for (const cSenderFigures& sender : measured.figures.stations[0].senders) {
        minutes[measured.names.SenderName(sender.sender)] = sender.minutes;
    }
    EXPECT_EQ(minutes,
              (std::map<std::string, std::optional<std::int64_t>>{{"PLC1", 5}, {"PLC2", 7}, {"PLC3", 0}}));
}

TEST_F(Record, FailedPrintsAreToldFromClosedPopups) {
    const std::string failed = station.Text(10038) + " Active - ";
    station.Start(day);
    station.Line(day + 60, failed + kFan);
    station.Active(day + 60, kFan);
    station.Line(day + 90, station.Text(10043) + " Active - VigrelAlarmReceiver (/Vigrel//x)");
    station.Line(day + 90, failed + "VigrelAlarmReceiver (/Vigrel//x)");
    station.End(day + 120);
    station.Line(day + 120, failed + kFan);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.stations[0].failedPrints, 2u);
    EXPECT_EQ(measured.Record().faults.doublePrintLines, 1u);
}

TEST_F(Record, AnAcknowledgementIsOfTheNewestOpenAlarmWithItsWords) {
    station.Start(day);
    station.Active(day + 100, kFan);
    station.Inactive(day + 200, kFan);
    station.Active(day + 1000, kFan);
    station.Acknowledge(day + 1030, kFan);
    station.Acknowledge(day + 1040, kPump);                                         // of no alarm here
    station.Acknowledge(day + 1050, "VigrelAlarmReceiver (/Vigrel//PLC1 - lost)");  // the station's own
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.answers.all.count, 1u);
    EXPECT_EQ(measured.figures.answers.all.most, 30);
    EXPECT_EQ(measured.figures.answers.all.never, 1u);
    EXPECT_EQ(measured.Record().faults.acknowledgements, 1u);
}

TEST_F(Record, AnAcknowledgementAtTheSourceCounts) {
    station.Start(day);
    station.Active(day + 100, kFan);
    station.Line(day + 145, "PLC1 " + station.Text(10030) + " Acked - " + kFan);
    station.Acknowledge(day + 200, kFan);
    EXPECT_EQ(Measure().figures.answers.all.most, 45);
}

TEST_F(Record, AnAlarmsFileTellsOfAnAcknowledgementWithoutATime) {
    station.Store({.created = day + 60, .texts = {"Fan", "Roof", "Technical", "", ""}, .observed = true});
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.answers.all.untimed, 1u);
    EXPECT_EQ(measured.figures.answers.all.never, 0u);
}

}  // namespace
}  // namespace vigrel::report
