// Every figure of a plant that is written by rules so simple that the figures can be counted by hand.

#include "vigrel-report/figures/figures.h"

#include <gtest/gtest.h>

#include "report/written_station.h"

namespace vigrel::report {
namespace {

using testing::cFakeFiles;
using testing::cMeasured;
using testing::cWrittenStation;
using testing::Wall;

constexpr int kDays = 30;

std::string Alarm(const std::string& name, const std::string& category = "Technical") {
    return name + " (House/" + category + "//)";
}

// Thirty days from Monday, 1 June 2026. The station runs all the time but for one hour.
//   every day    at 8:00, 9:00, ... 19:00 one of twelve alarms "Unit 0" to "Unit 11" for half an hour,
//   acknowledged
//                after 1 to 12 minutes                                                      12 a day, 360 in
//                all
//   day 3        a flood: 14:00 to 14:30, an alarm "Flood 0" to "Flood 44" every 40 s, for an hour each  45:
//   15 in ten
//                minutes; then 5 in the next ten, 4 in the one behind
//   day 5        "Rattle" at 2:00:00, 2:00:20, 2:00:40, 2:01:00, each for 5 s                4
//   days 10, 11  "Blink" at 3:00 for 9 s                                                      2
//   day 6        "Stuck 0" to "Stuck 5" at noon: 0 to 2 for two days and a half, 3 to 5 to the end    6
//   day 20       the station doesn't run from 22:00 to 23:00
class WrittenPlant : public ::testing::Test {
  protected:
    WrittenPlant() {
        Start(begin);
        for (int day = 0; day < kDays; ++day) WriteDay(day);
        for (const auto& [wall, text] : lines) station.Line(wall, text);
        station.KeepAlive(begin + kDays * 86400);
        cSettings settings;
        settings.priorities = {{"TECHNICAL", ePriority::Low}, {"FIRE", ePriority::High}};
        measured.emplace(files, std::vector{station.Finish()}, begin, begin + kDays * 86400, testing::kNoZone,
                         settings);
    }
    // A log stands in the order of time.
    void Add(WallTime wall, const std::string& text) { lines.emplace(wall, text); }
    void Active(WallTime wall, const std::string& alarm) {
        Add(wall, "PLC1 " + station.Text(10030) + " Active - " + alarm);
    }
    void Inactive(WallTime wall, const std::string& alarm) {
        Add(wall, "PLC1 " + station.Text(10030) + " Inactive - " + alarm);
    }
    void Acknowledge(WallTime wall, const std::string& alarm) {
        Add(wall, station.Text(10039) + " Active - " + alarm);
    }
    void End(WallTime wall) { Add(wall, station.Text(10021)); }
    void Start(WallTime wall) {
        Add(wall, station.Text(10040));
        Add(wall, station.Text(10011));
    }
    const cFigures& Figures() const { return measured->figures; }

    void WriteDay(int day) {
        const WallTime midnight = begin + day * 86400;
        if (day == 5) {
            for (int i = 0; i < 4; ++i) Short(midnight + 7200 + 20 * i, "Rattle", 5);
        }
        if (day == 10 || day == 11) Short(midnight + 3 * 3600, "Blink", 9);
        for (int i = 0; i < 12; ++i) {
            const WallTime hour = midnight + (8 + i) * 3600;
            if (day == 3 && i == 6) Flood(hour);
            const std::string unit = Alarm("Unit " + std::to_string(i));
            if (day == 6 && i == 4) {
                for (int stuck = 0; stuck < 6; ++stuck) Active(hour, Alarm("Stuck " + std::to_string(stuck)));
            }
            Active(hour, unit);
            Acknowledge(hour + 60 * (i + 1), unit);
            Inactive(hour + 1800, unit);
        }
        if (day == 8) {
            for (int stuck = 0; stuck < 3; ++stuck) {
                Inactive(midnight + 86399, Alarm("Stuck " + std::to_string(stuck)));
            }
        }
        if (day == 20) {
            End(midnight + 22 * 3600);
            Start(midnight + 23 * 3600);
        }
    }
    void Short(WallTime at, const std::string& name, int seconds) {
        Active(at, Alarm(name));
        Inactive(at + seconds, Alarm(name));
    }
    void Flood(WallTime hour) {
        for (int i = 0; i < 45; ++i) Active(hour - 3600 + 40 * i + 1800, Alarm("Flood " + std::to_string(i)));
        for (int i = 0; i < 5; ++i) Active(hour + 60 * i, Alarm("Late " + std::to_string(i), "Fire"));
        for (int i = 0; i < 4; ++i) Active(hour + 600 + 60 * i, Alarm("Later " + std::to_string(i), "Fire"));
        for (int i = 0; i < 45; ++i) Inactive(hour + 900, Alarm("Flood " + std::to_string(i)));
        for (int i = 0; i < 5; ++i) Inactive(hour + 900, Alarm("Late " + std::to_string(i), "Fire"));
        for (int i = 0; i < 4; ++i) Inactive(hour + 900, Alarm("Later " + std::to_string(i), "Fire"));
    }

    const WallTime begin = Wall(2026, 6, 1);
    std::multimap<WallTime, std::string> lines;
    cFakeFiles files;
    cWrittenStation station{files};
    std::optional<cMeasured> measured;
    // 360 daily, 45 + 5 + 4 of the flood, 4 rattles, 2 blinks, 6 stuck.
    static constexpr std::size_t kAll = 360 + 54 + 4 + 2 + 6;
};

TEST_F(WrittenPlant, Rate) {
    const cLoad& load = Figures().load;
    const double hours = kDays * 24 - 1;
    EXPECT_EQ(load.activations, kAll);
    EXPECT_EQ(load.observed, static_cast<Seconds>(hours * 3600));
    EXPECT_NEAR(load.perHour, static_cast<double>(kAll) / hours, 1e-9);
    EXPECT_NEAR(load.perTenMinutes, static_cast<double>(kAll) / hours / 6, 1e-9);
    EXPECT_NEAR(load.perDay, static_cast<double>(kAll) / hours * 24, 1e-9);
}

TEST_F(WrittenPlant, Peak) {
    const cLoad& load = Figures().load;
    EXPECT_EQ(load.peak, 15u);
    EXPECT_EQ(load.peakAt, begin + 3 * 86400 + 13 * 3600 + 1800);
    // Day 3 has 15, day 5 has 4 (the rattle), day 6 has 7 (six stuck ones and the unit of noon), the
    // others 1.
    EXPECT_NEAR(load.meanDailyPeak, (15 + 4 + 7 + 27 * 1) / 30.0, 1e-9);
    EXPECT_NEAR(load.busyBins, 3.0 / (kDays * 144 - 6), 1e-9);
    // From 13:00 to 14:00 the unit and 45 of the flood.
    EXPECT_NEAR(load.busyHours, 1.0 / (kDays * 24 - 1), 1e-9);
}

TEST_F(WrittenPlant, Flood) {
    ASSERT_EQ(Figures().load.floods.size(), 1u);
    const cFlood& flood = Figures().load.floods[0];
    // 13:30 to 14:00 with 15 each, 14:00 with 5 and the unit; 14:10 has 4, which ends it.
    EXPECT_EQ(flood.span.begin, begin + 3 * 86400 + 13 * 3600 + 1800);
    EXPECT_EQ(flood.span.Length(), 4 * 600);
    EXPECT_EQ(flood.alarms, 45u + 5 + 1);
    EXPECT_EQ(flood.peak, 15u);
    ASSERT_TRUE(flood.firstSource);
    EXPECT_EQ(measured->names.Source(*flood.firstSource).alarm, "Flood 0");
    EXPECT_NEAR(Figures().load.floodShare, 2400.0 / ((kDays * 24 - 1) * 3600), 1e-12);
    EXPECT_EQ(Figures().load.days[3].flooded, 2400);
    EXPECT_EQ(Figures().load.days[3].alarms, 12u + 54);
}

TEST_F(WrittenPlant, Sources) {
    const cSourceFigures& sources = Figures().sources;
    EXPECT_EQ(sources.ranking.size(), 12u + 54 + 1 + 1 + 6);
    EXPECT_EQ(sources.ranking[0].activations, 30u);
    EXPECT_EQ(measured->names.Source(sources.ranking[0].source).alarm, "Unit 0");
    EXPECT_EQ(measured->names.Source(sources.ranking[1].source).alarm, "Unit 1");
    EXPECT_EQ(measured->names.Source(sources.ranking[2].source).alarm, "Unit 10");  // ties by name
    EXPECT_NEAR(sources.topTenShare, 300.0 / static_cast<double>(kAll), 1e-9);
    // Eleven make 330 of 426, which is less than four fifths; twelve make 360.
    EXPECT_EQ(sources.makeEighty, 12u);
}

TEST_F(WrittenPlant, ChatteringAndFleeting) {
    const cNuisance& nuisance = Figures().nuisance;
    ASSERT_EQ(nuisance.chattering.size(), 1u);
    EXPECT_EQ(measured->names.Source(nuisance.chattering[0].source).alarm, "Rattle");
    EXPECT_EQ(nuisance.chattering[0].bursts, 1u);
    EXPECT_EQ(nuisance.chattering[0].activations, 4u);
    EXPECT_EQ(nuisance.chattering[0].most, 4u);
    ASSERT_EQ(nuisance.fleeting.size(), 1u);
    EXPECT_EQ(measured->names.Source(nuisance.fleeting[0].source).alarm, "Blink");
    EXPECT_EQ(nuisance.fleetingActivations, 2u);
}

TEST_F(WrittenPlant, StaleAndStanding) {
    const cNuisance& nuisance = Figures().nuisance;
    EXPECT_EQ(nuisance.stale.size(), 6u);
    // Active since noon of day 6: stale from noon of day 7; three of them until the end of day 8.
    for (std::size_t day = 0; day < nuisance.staleDays.size(); ++day) {
        EXPECT_EQ(nuisance.staleDays[day].alarms, day < 7 ? 0u : day < 9 ? 6u : 3u) << day;
    }
    EXPECT_EQ(nuisance.mostStale, 6u);
    ASSERT_EQ(nuisance.standing.size(), 3u);
    for (const cStale& standing : nuisance.standing) {
        EXPECT_EQ(standing.activeFor, 23 * 86400 + 12 * 3600);
        EXPECT_TRUE(standing.active);
        EXPECT_FALSE(standing.acknowledged);
    }
}

TEST_F(WrittenPlant, Acknowledgement) {
    const cAnswerTimes& times = Figures().answers.all;
    // Thirty times each of 1, 2, ... 12 minutes.
    EXPECT_EQ(times.count, 360u);
    EXPECT_EQ(times.median, 6.5 * 60);
    EXPECT_EQ(times.ninetieth, 11 * 60);
    EXPECT_EQ(times.most, 12 * 60);
    EXPECT_EQ(times.never, 54u);
    EXPECT_EQ(Figures().answers.leftOut, 4u + 2 + 6);
    ASSERT_EQ(Figures().answers.priorities.size(), 4u);
    EXPECT_EQ(Figures().answers.priorities[0].activations, 9u);  // high
    EXPECT_EQ(Figures().answers.priorities[0].times.never, 9u);
    EXPECT_EQ(Figures().answers.priorities[2].activations, kAll - 9);
}

TEST_F(WrittenPlant, HoursAndWeekdays) {
    const cHours& hours = Figures().hours;
    // 1 June 2026 is a Monday; of thirty days five are Mondays and Tuesdays, four all others.
    EXPECT_EQ(hours.cells[0][8].alarms, 5u);
    EXPECT_NEAR(hours.cells[0][8].Mean(), 1, 1e-9);
    EXPECT_EQ(hours.cells[3][13].alarms, 4u + 45);  // Thursday
    EXPECT_EQ(hours.OfHour(4).alarms, 0u);
    // Outside 7 to 17 on weekdays: 17, 18, 19 o'clock of 22 days; all of eight days; the rattle (a Saturday),
    // which counts with its day; the blinks of a Thursday and a Friday night.
    EXPECT_EQ(hours.outside, 22u * 3 + 8 * 12 + 4 + 2 + 6 * 0 + (6u));
    EXPECT_EQ(hours.all, kAll);
}

TEST_F(WrittenPlant, VerdictsStandBesideTheLimits) {
    std::map<eFigure, eVerdict> verdicts;
    for (const cJudged& line : Judge(Figures(), nullptr)) verdicts[line.figure] = line.verdict;
    EXPECT_EQ(verdicts[eFigure::RateTenMinutes], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::RateDay], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::Peak], eVerdict::Over);
    EXPECT_EQ(verdicts[eFigure::BusyBins], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::FloodShare], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::TopTen], eVerdict::Over);
    EXPECT_EQ(verdicts[eFigure::Chattering], eVerdict::Over);
    EXPECT_EQ(verdicts[eFigure::Stale], eVerdict::Over);
    EXPECT_EQ(verdicts[eFigure::Standing], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::HighShare], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::LowShare], eVerdict::Within);
    EXPECT_EQ(verdicts[eFigure::AnswerMedian], eVerdict::NotJudged);
    EXPECT_EQ(verdicts[eFigure::Outside], eVerdict::NotJudged);
}

// --- single rules

class Rules : public ::testing::Test {
  protected:
    cMeasured Measure(const cSettings& settings = {}) {
        return cMeasured(files, {station.Finish()}, day, day + 86400, testing::kNoZone, settings);
    }
    const WallTime day = Wall(2026, 6, 1);
    cFakeFiles files;
    cWrittenStation station{files};
};

TEST_F(Rules, ARepetitionOfAnActiveAlarmIsNoActivation) {
    station.Active(day + 60, Alarm("A"));
    station.Active(day + 120, Alarm("A"));
    station.Inactive(day + 180, Alarm("A"));
    station.Active(day + 240, Alarm("A"));
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 2u);
    EXPECT_EQ(measured.figures.repeats, 1u);
}

TEST_F(Rules, OfASenderThatNeverTellsReturnsEveryRecordCounts) {
    station.Active(day + 60, Alarm("A"));
    station.Active(day + 120, Alarm("A"));
    station.KeepAlive(day + 86399);
    station.KeepAlive(day + 3 * 86400);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.activations, 2u);
    EXPECT_TRUE(measured.figures.nuisance.standing.empty());
}

TEST_F(Rules, AFloodBeginsAboveTenAndEndsBelowFive) {
    const auto alarms = [&](int bin, int count) {
        for (int i = 0; i < count; ++i)
            station.Active(day + bin * 600 + i, Alarm("A" + std::to_string(bin * 100 + i)));
    };
    alarms(0, 10);
    alarms(6, 11);
    alarms(7, 5);
    alarms(8, 4);
    alarms(20, 11);
    const cMeasured measured = Measure();
    ASSERT_EQ(measured.figures.load.floods.size(), 2u);
    EXPECT_EQ(measured.figures.load.floods[0].span, (cSpan{day + 3600, day + 4800}));
    EXPECT_EQ(measured.figures.load.floods[1].span, (cSpan{day + 12000, day + 12600}));
}

TEST_F(Rules, OperatorsShareTheLoad) {
    for (int i = 0; i < 11; ++i) station.Active(day + i, Alarm("A" + std::to_string(i)));
    station.KeepAlive(day + 86399);
    cSettings settings;
    EXPECT_EQ(Measure(settings).figures.load.floods.size(), 1u);
    settings.operators = 2;
    EXPECT_EQ(Measure(settings).figures.load.floods.size(), 0u);
    EXPECT_NEAR(Measure(settings).figures.load.perDay, 5.5, 1e-9);
}

TEST_F(Rules, ThePeakIsJudgedByWhatAllOperatorsCanTake) {
    for (int i = 0; i < 15; ++i) station.Active(day + i, Alarm("A" + std::to_string(i)));
    cSettings settings;
    for (const int operators : {1, 2}) {
        settings.operators = operators;
        for (const cJudged& line : Judge(Measure(settings).figures, nullptr)) {
            if (line.figure != eFigure::Peak) continue;
            EXPECT_EQ(line.value, 15);
            EXPECT_EQ(line.verdict, operators == 1 ? eVerdict::Over : eVerdict::Within);
        }
    }
}

// A record of five minutes, all of them in flood.
TEST_F(Rules, AFloodLastsNoLongerThanItsRecord) {
    for (int i = 0; i < 300; ++i) station.Active(day + 3600 + i, Alarm("A" + std::to_string(i)));
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.load.observed, 300);
    EXPECT_NEAR(measured.figures.load.floodShare, 1, 1e-12);
    EXPECT_EQ(measured.figures.load.days[0].flooded, 300);
}

TEST_F(Rules, AFloodIsCutToThePeriod) {
    for (int i = 0; i < 900; ++i) station.Active(day + 300 + i, Alarm("A" + std::to_string(i)));
    const cMeasured measured(files, {station.Finish()}, day + 360, day + 900);
    ASSERT_EQ(measured.figures.load.floods.size(), 1u);
    EXPECT_EQ(measured.figures.load.floods[0].span, (cSpan{day + 360, day + 900}));
    EXPECT_NEAR(measured.figures.load.floodShare, 1, 1e-12);
}

TEST_F(Rules, ChatteringIsThreeWithinAMinute) {
    for (const int second : {0, 30, 60, 1000, 1031, 1061}) {
        const std::string name = Alarm("A");
        station.Active(day + second, name);
        station.Inactive(day + second + 20, name);
    }
    const cMeasured measured = Measure();
    ASSERT_EQ(measured.figures.nuisance.chattering.size(), 1u);
    EXPECT_EQ(measured.figures.nuisance.chattering[0].activations, 3u);
}

TEST_F(Rules, FleetingIsUnderTenSecondsAndAlone) {
    struct cCase {
        int at, length;
        const char* name;
    };
    for (const cCase& one :
         {cCase{0, 9, "A"}, {100, 10, "B"}, {200, 9, "C"}, {260, 9, "C"}, {400, 9, "D"}, {461, 9, "D"}}) {
        station.Active(day + one.at, Alarm(one.name));
        station.Inactive(day + one.at + one.length, Alarm(one.name));
    }
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.nuisance.fleetingActivations, 1u + 2);  // A, and D twice
}

TEST_F(Rules, StaleIsMoreThanADayAndCountsEarlierStarts) {
    station.Active(day - 3 * 86400, Alarm("Old"));
    station.Active(day - 86400 + 3600, Alarm("Exact"));
    station.Inactive(day + 3600, Alarm("Exact"));  // a day to the second
    station.Inactive(day + 7200, Alarm("Old"));
    station.KeepAlive(day + 86400);
    const cMeasured measured = Measure();
    EXPECT_EQ(measured.figures.nuisance.mostStale, 1u);
    EXPECT_EQ(measured.figures.load.activations, 0u);
    ASSERT_EQ(measured.figures.nuisance.stale.size(), 1u);
    EXPECT_FALSE(measured.figures.nuisance.stale[0].active);
}

TEST_F(Rules, TenSourcesOrFewerAreNotJudged) {
    for (int i = 0; i < 10; ++i) station.Active(day + i * 3600, Alarm("A" + std::to_string(i)));
    for (const cJudged& line : Judge(Measure().figures, nullptr)) {
        if (line.figure == eFigure::TopTen) {
            EXPECT_EQ(line.verdict, eVerdict::NotJudged);
        }
    }
}

TEST_F(Rules, PrioritiesAreJudgedOnlyWhenAllAreMapped) {
    station.Active(day + 60, Alarm("A", "Fire"));
    station.Active(day + 61, Alarm("B", "Water"));
    cSettings settings;
    settings.priorities = {{"FIRE", ePriority::High}};
    for (const bool mapped : {false, true}) {
        if (mapped) settings.priorities["WATER"] = ePriority::Low;
        for (const cJudged& line : Judge(Measure(settings).figures, nullptr)) {
            if (line.figure != eFigure::HighShare) continue;
            EXPECT_EQ(line.verdict, mapped ? eVerdict::Over : eVerdict::NotJudged);
        }
    }
}

}  // namespace
}  // namespace vigrel::report
