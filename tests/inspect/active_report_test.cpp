#include "vigrel-inspect/active_report.h"

#include <gtest/gtest.h>

#include "common/dates.h"
#include "common/failure.h"
#include "schedule/calendar_days.h"
#include "schedule/schedule_builder.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

const testing::cContent kWeek = testing::cContent()
                                    .Day(3, {{960, 1200}, {420, 720}})
                                    .Day(4, {{420, 720}, {960, 1200}})
                                    .Day(7, {{0, 480}})
                                    .Grouped({3, 4});
const DateTime kChristmasEve = DateSerial(2026, 12, 24);

std::string Report(const std::optional<cNamedContent>& calendar, DateTime moment) {
    return ActiveReport({"Office.sch", kWeek.Bytes()}, calendar, moment);
}
cNamedContent CalendarWith(char value) {
    std::string content(29220, '\0');
    content[static_cast<std::size_t>(CalendarIndex(kChristmasEve)) * 2] = value;
    return {"Site.cal", content};
}
std::string RefusalOf(const cNamedContent& file, const std::optional<cNamedContent>& calendar,
                      DateTime moment) {
    const auto failure = CatchFailure([&] { ActiveReport(file, calendar, moment); });
    return failure ? failure->what() : "";
}

TEST(ActiveReport, WithoutACalendarTheWeekdayAnswers) {
    EXPECT_EQ(Report({}, kChristmasEve + TimeSerial(18, 0, 0)),
              "Office.sch\nWhen: 2026-12-24 18:00, Thursday\n"
              "Day type: Thursday, by the weekday; no calendar was named\nIn a group with: Friday\n"
              "Periods: 07:00-12:00, 16:00-20:00\nActive: yes, until 20:00\n");
}

TEST(ActiveReport, TheCalendarsDayTypeAnswersWhenTheScheduleUsesIt) {
    EXPECT_EQ(Report(CalendarWith(8), kChristmasEve + TimeSerial(18, 0, 0)),
              "Office.sch\nWhen: 2026-12-24 18:00, Thursday\n"
              "Day type: special day type 1, by Site.cal\nPeriods: 00:00-08:00\n"
              "Active: no, until 24:00 at least\n");
    EXPECT_NE(Report(CalendarWith(9), kChristmasEve)
                  .find("Thursday, by the weekday; Site.cal says special day type 2, which the schedule "
                        "doesn't use\n"),
              std::string::npos);
    EXPECT_NE(Report(CalendarWith(0), kChristmasEve).find("Site.cal says nothing of the date"),
              std::string::npos);
}

TEST(ActiveReport, AProfileAnswersByTheScheduleInItsFile) {
    const std::string report =
        ActiveReport({"Profile_0012.dat", testing::Sample("profile_version_5.dat")}, {}, kChristmasEve);
    EXPECT_TRUE(report.starts_with("Profile_0012.dat (Night)\nWhen: 2026-12-24 00:00, Thursday\n")) << report;
    const std::string older =
        ActiveReport({"Profile_0012.dat", testing::Sample("profile_version_4.dat")}, {}, kChristmasEve);
    EXPECT_NE(older.find("When: 2026-12-24 00:00, Thursday\n"), std::string::npos);
}

TEST(ActiveReport, WhatCantAnswerIsRefusedByName) {
    const cNamedContent week{"Office.sch", kWeek.Bytes()};
    EXPECT_EQ(RefusalOf({"Site.cal", CalendarWith(0).content}, {}, kChristmasEve),
              "Site.cal is neither a profile nor a time schedule");
    EXPECT_EQ(RefusalOf({"Profile_0012.dat", testing::Sample("profile_version_5.dat").substr(0, 2400)}, {},
                        kChristmasEve),
              "Profile_0012.dat is damaged; look at it with vigrel-inspect Profile_0012.dat");
    EXPECT_EQ(RefusalOf(week, cNamedContent{"x.cal", "abc"}, kChristmasEve),
              "x.cal is not a calendar: it has 3 bytes in place of 29220.");
    EXPECT_EQ(RefusalOf(week, CalendarWith(0), DateSerial(2040, 1, 1)),
              "the calendar has the years 2000 to 2039 only");
    EXPECT_EQ(RefusalOf(week, {}, DateSerial(2040, 1, 1)), "");
}

}  // namespace
}  // namespace vigrel::testing
