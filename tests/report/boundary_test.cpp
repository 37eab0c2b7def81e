// What happens across the end of a period is the same, whichever period counts it.

#include "vigrel-report/figures/figures.h"

#include <gtest/gtest.h>

#include "report/written_station.h"

namespace vigrel::report {
namespace {

using testing::cFakeFiles;
using testing::cMeasured;
using testing::cWrittenStation;
using testing::Wall;

constexpr WallTime kWeek = 7 * 86400;

class Boundary : public ::testing::Test {
  protected:
    Boundary() { station.Start(begin); }
    // Acknowledged a second later.
    void Alarm(WallTime at, const std::string& name, int seconds) {
        const std::string text = name + " (House/Technical//)";
        Add(at, "PLC1 " + station.Text(10030) + " Active - " + text);
        Add(at + 1, station.Text(10039) + " Active - " + text);
        Add(at + seconds, "PLC1 " + station.Text(10030) + " Inactive - " + text);
    }
    // In ten minutes, each of another kind.
    void AlarmsIn(WallTime at, int count) {
        for (int i = 0; i < count; ++i) Alarm(at + 30 * i, "Pump " + std::to_string(at + i), 20);
    }
    void Measure() {
        for (const auto& [wall, text] : lines) station.Line(wall, text);
        station.KeepAlive(begin + 2 * kWeek);
        const std::string folder = station.Finish();
        first.emplace(files, std::vector{folder}, begin, monday);
        second.emplace(files, std::vector{folder}, monday, begin + 2 * kWeek);
        both.emplace(files, std::vector{folder}, begin, begin + 2 * kWeek);
    }
    static std::size_t Chattering(const std::optional<cMeasured>& measured) {
        std::size_t activations = 0;
        for (const cChattering& found : measured->figures.nuisance.chattering) {
            activations += found.activations;
        }
        return activations;
    }
    static std::size_t Fleeting(const std::optional<cMeasured>& measured) {
        return measured->figures.nuisance.fleetingActivations;
    }
    static std::size_t LeftOut(const std::optional<cMeasured>& measured) {
        return measured->figures.answers.leftOut;
    }
    static std::size_t Answered(const std::optional<cMeasured>& measured) {
        return measured->figures.answers.all.count;
    }
    static const std::vector<cFlood>& Floods(const std::optional<cMeasured>& measured) {
        return measured->figures.load.floods;
    }
    static std::size_t Flooded(const std::optional<cMeasured>& measured) {
        Seconds flooded = 0;
        for (const cFlood& flood : Floods(measured)) flooded += flood.span.Length();
        return static_cast<std::size_t>(flooded);
    }
    void ExpectTheWeeksToAddUp() const {
        for (const auto count : {&Chattering, &Fleeting, &LeftOut, &Answered, &Flooded}) {
            EXPECT_EQ(count(first) + count(second), count(both));
        }
    }

    const WallTime begin = Wall(2026, 6, 1), monday = begin + kWeek;
    cFakeFiles files;
    cWrittenStation station{files};
    std::optional<cMeasured> first, second, both;

  private:
    void Add(WallTime wall, const std::string& text) { lines.emplace(wall, text); }
    std::multimap<WallTime, std::string> lines;  // a log stands in the order of time
};

TEST_F(Boundary, ABurstThatBeginsAtTheEndIsSeenInBothWeeks) {
    for (const int at : {-20, 5, 30}) Alarm(monday + at, "Rattle", 5);
    Measure();
    ASSERT_EQ(first->figures.nuisance.chattering.size(), 1u);
    const cChattering& before = first->figures.nuisance.chattering[0];
    EXPECT_EQ(before.activations, 1u);
    EXPECT_EQ(before.bursts, 1u);
    EXPECT_EQ(before.most, 1u);
    EXPECT_EQ(before.first, monday - 20);
    EXPECT_EQ(Fleeting(first), 0u);
    ASSERT_EQ(both->figures.nuisance.chattering.size(), 1u);
    EXPECT_EQ(both->figures.nuisance.chattering[0].bursts, 1u);
    EXPECT_EQ(both->figures.nuisance.chattering[0].most, 3u);
    EXPECT_EQ(Fleeting(both), 0u);
    EXPECT_EQ(Answered(first), 0u);
    ExpectTheWeeksToAddUp();
}

// Of a burst that began before the period, it counts no more than it tells of.
TEST_F(Boundary, ABurstThatEndsAtTheBeginningCountsWhatThePeriodHolds) {
    for (const int at : {-50, -25, 5}) Alarm(monday + at, "Rattle", 5);
    for (const int at : {1000, 1020, 1040, 1060}) Alarm(monday + at, "Rattle", 5);
    Measure();
    ASSERT_EQ(second->figures.nuisance.chattering.size(), 1u);
    const cChattering& behind = second->figures.nuisance.chattering[0];
    EXPECT_EQ(behind.activations, 1u + 4);
    EXPECT_EQ(behind.bursts, 2u);
    EXPECT_EQ(behind.most, 4u);
    EXPECT_EQ(behind.first, monday + 5);
    EXPECT_EQ(Chattering(first), 2u);
    EXPECT_EQ(Fleeting(first) + Fleeting(second), 0u);
    ExpectTheWeeksToAddUp();
}

TEST_F(Boundary, ABurstsShareOfAPeriodIsItsOwn) {
    for (const int at : {-50, -25, 5}) Alarm(monday + at, "Rattle", 5);
    Measure();
    ASSERT_EQ(second->figures.nuisance.chattering.size(), 1u);
    EXPECT_EQ(second->figures.nuisance.chattering[0].activations, 1u);
    EXPECT_EQ(second->figures.nuisance.chattering[0].most, 1u);
}

TEST_F(Boundary, ARepeatBehindTheEndIsNotFleeting) {
    for (const int at : {-30, 30}) Alarm(monday + at, "Twice", 5);
    for (const int at : {-31, 30}) Alarm(monday + at, "Apart", 5);
    Measure();
    EXPECT_EQ(Fleeting(first), 1u);
    EXPECT_EQ(Fleeting(second), 1u);
    EXPECT_EQ(Fleeting(both), 2u);
    EXPECT_EQ(Answered(first), 1u);
    ExpectTheWeeksToAddUp();
}

TEST_F(Boundary, AFloodThatStandsWhenThePeriodBeginsGoesOnInIt) {
    AlarmsIn(monday - 600, 11);
    AlarmsIn(monday, 6);
    AlarmsIn(monday + 600, 5);
    AlarmsIn(monday + 1200, 4);
    Measure();
    ASSERT_EQ(Floods(second).size(), 1u);
    EXPECT_EQ(Floods(second)[0].span.begin, monday);
    EXPECT_EQ(Floods(second)[0].span.end, monday + 1200);
    EXPECT_EQ(Floods(second)[0].alarms, 11u);
    EXPECT_EQ(Floods(second)[0].peak, 6u);
    ASSERT_EQ(Floods(both).size(), 1u);
    EXPECT_EQ(Floods(both)[0].span.Length(), 1800);
    EXPECT_EQ(Floods(first).size(), 1u);
    ExpectTheWeeksToAddUp();
}

TEST_F(Boundary, AFloodThatEndedBeforeThePeriodIsOver) {
    AlarmsIn(monday - 1200, 11);
    AlarmsIn(monday - 600, 4);
    AlarmsIn(monday, 10);
    Measure();
    EXPECT_EQ(Floods(first).size(), 1u);
    EXPECT_EQ(Floods(second).size(), 0u);
    ExpectTheWeeksToAddUp();
}

TEST_F(Boundary, AFloodEndsAtThePeriodWhenItsFirstTenMinutesAreCalm) {
    AlarmsIn(monday - 600, 11);
    AlarmsIn(monday, 4);
    Measure();
    EXPECT_EQ(Floods(second).size(), 0u);
    ExpectTheWeeksToAddUp();
}

// One that is stale on Monday isn't on Sunday yet, but its acknowledgement is left out of either.
TEST_F(Boundary, WhatBecomesStaleBehindTheEndIsLeftOutOfTheAnswers) {
    Alarm(monday - 3600, "Stuck", 2 * 86400);
    Alarm(monday - 3600, "Day", 86400);
    Measure();
    EXPECT_EQ(first->figures.nuisance.stale.size(), 0u);
    EXPECT_EQ(first->figures.nuisance.standing.size(), 2u);
    EXPECT_EQ(second->figures.nuisance.stale.size(), 1u);
    EXPECT_EQ(LeftOut(first), 1u);
    EXPECT_EQ(Answered(first), 1u);
    ExpectTheWeeksToAddUp();
}

}  // namespace
}  // namespace vigrel::report
