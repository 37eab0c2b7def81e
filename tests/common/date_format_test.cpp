#include <gtest/gtest.h>

#include <cmath>

#include "common/dates.h"
#include "common/failure.h"

namespace vigrel::testing {
namespace {

// A Sunday, the 74th day of its year, in the first quarter.
const DateTime kSunday = DateSerial(2026, 3, 15) + TimeSerial(14, 5, 9);

cLocaleForms Swedish() {
    cLocaleForms forms;
    forms.shortDate = "yyyy-mm-dd";
    forms.longDate = "\"den\" d mmmm yyyy";
    forms.mediumDate = "dd mmm yy";
    forms.shortTime = "hh.nn";
    forms.mediumTime = "h:nn AMPM";
    forms.longTime = "\"kl\" hh:nn:ss";
    forms.am = "fm";
    forms.pm = "em";
    forms.timeSeparator = ".";
    forms.dateSeparator = "_";
    forms.dayNames[0] = "s\xF6ndag";
    forms.shortDayNames[0] = "s\xF6n";
    forms.monthNames[2] = "mars";
    forms.shortMonthNames[2] = "mar";
    return forms;
}

std::string Format(std::string_view pattern, DateTime value = kSunday) {
    return FormatDateTime(value, pattern, Swedish());
}

struct cForm {
    const char* pattern;
    const char* text;
};

void ExpectAll(std::initializer_list<cForm> cases, DateTime value = kSunday) {
    for (const cForm& c : cases) EXPECT_EQ(Format(c.pattern, value), c.text) << "pattern: " << c.pattern;
}

TEST(FormatDateTime, NamedFormsAreThoseOfTheLocale) {
    ExpectAll({{"Short Date", "2026-03-15"},
               {"Medium Date", "15 mar 26"},
               {"Long Date", "den 15 mars 2026"},
               {"Short Time", "14.05"},
               {"Medium Time", "2.05 em"},
               {"Long Time", "kl 14.05.09"},
               {"General Date", "2026-03-15 kl 14.05.09"}});
}

TEST(FormatDateTime, NamedFormsMatchInAnyCase) {
    ExpectAll({{"short date", "2026-03-15"},
               {"LONG TIME", "kl 14.05.09"},
               {"gEnErAl dAtE", "2026-03-15 kl 14.05.09"}});
}

TEST(FormatDateTime, TokensOfTheDate) {
    ExpectAll({{"d", "15"},
               {"dd", "15"},
               {"ddd", "s\xF6n"},
               {"dddd", "s\xF6ndag"},
               {"ddddd", "2026-03-15"},
               {"dddddd", "den 15 mars 2026"},
               {"w", "1"},
               {"ww", "12"},
               {"m", "3"},
               {"mm", "03"},
               {"mmm", "mar"},
               {"mmmm", "mars"},
               {"q", "1"},
               {"y", "74"},
               {"yy", "26"},
               {"yyyy", "2026"},
               {"yyyy/mm/dd", "2026_03_15"}});
}

TEST(FormatDateTime, TokensOfTheTime) {
    ExpectAll({{"h", "14"},
               {"hh", "14"},
               {"n", "5"},
               {"nn", "05"},
               {"s", "9"},
               {"ss", "09"},
               {"ttttt", "kl 14.05.09"},
               {"hh:nn:ss", "14.05.09"}});
}

TEST(FormatDateTime, TokensWithoutLeadingZeros) {
    const DateTime early = DateSerial(2004, 1, 2) + TimeSerial(3, 4, 5);
    ExpectAll({{"d", "2"},
               {"dd", "02"},
               {"m", "1"},
               {"mm", "01"},
               {"y", "2"},
               {"yy", "04"},
               {"h", "3"},
               {"hh", "03"}},
              early);
}

TEST(FormatDateTime, TokensMatchInAnyCase) {
    ExpectAll({{"YYYYMMDD", "20260315"}, {"HH:NN:SS", "14.05.09"}});
}

TEST(FormatDateTime, ALongerRunOfALetterIsTheLongestTokenAndTheRest) {
    ExpectAll({{"ddddddd", "den 15 mars 202615"},
               {"mmmmm", "mars3"},
               {"www", "121"},
               {"yyy", "2674"},
               {"hhh", "1414"},
               {"tttt", "tttt"}});
}

TEST(FormatDateTime, MIsMinutesDirectlyBehindAnHour) {
    ExpectAll({{"h:m", "14.5"},
               {"hh:mm", "14.05"},
               {"hh:mm:ss", "14.05.09"},
               {"hhmm", "1405"},
               {"hh - mm", "14 - 05"},
               {"hh/mm", "14_05"},
               {"hh\"h\"mm", "14h05"},
               {"hh\\hmm", "14h05"},
               {"yyyy-mm-dd hh:mm", "2026-03-15 14.05"}});
}

TEST(FormatDateTime, MIsTheMonthEverywhereElse) {
    ExpectAll({{"mm:hh", "03.14"},
               {"mm:ss", "03.09"},
               {"hh dd mm", "14 15 03"},
               {"hh k mm", "14 k 03"},
               {"hh:mm mm", "14.05 03"},
               {"hh:nn mm", "14.05 03"},
               {"hh mmm", "14 mar"},
               {"hh mmmm", "14 mars"}});
}

TEST(FormatDateTime, AHalfOfTheDayMakesAClockOfTwelveHours) {
    ExpectAll({{"h AM/PM", "2 PM"},
               {"h am/pm", "2 pm"},
               {"h Am/Pm", "2 Pm"},
               {"h A/P", "2 P"},
               {"h a/p", "2 p"},
               {"h AMPM", "2 em"},
               {"hampm", "2em"},
               {"AM/PM hh:mm", "PM 02.05"}});
}

TEST(FormatDateTime, AQuotedHalfOfTheDayLeavesTheClockAlone) {
    ExpectAll({{"h \"AM/PM\"", "14 AM/PM"}});
}

TEST(FormatDateTime, AHalfOfTheDayInALocaleFormIsThatFormsOwn) {
    cLocaleForms forms;
    forms.longTime = "h:nn AM/PM";
    EXPECT_EQ(FormatDateTime(kSunday, "ttttt h", forms), "2:05 PM 14");
    EXPECT_EQ(FormatDateTime(kSunday, "h AM/PM", cLocaleForms{}), "2 PM");
}

TEST(FormatDateTime, MidnightIsTwelveBeforeNoonAndNoonTwelveBehind) {
    const auto at = [](int hour, int minute) {
        return DateSerial(2026, 3, 15) + TimeSerial(hour, minute, 0);
    };
    EXPECT_EQ(Format("h:nn AM/PM", at(0, 0)), "12.00 AM");
    EXPECT_EQ(Format("h:nn AM/PM", at(11, 59)), "11.59 AM");
    EXPECT_EQ(Format("h:nn AM/PM", at(12, 0)), "12.00 PM");
    EXPECT_EQ(Format("h:nn AMPM", at(1, 0)), "1.00 fm");
}

TEST(FormatDateTime, LiteralsStandInQuotesOrBehindABackslash) {
    ExpectAll({{"\"day\" d", "day 15"},
               {"\\d\\d d", "dd 15"},
               {"\"\"d", "15"},
               {"hh\\:nn\\:ss", "14:05:09"},
               {"\"a\\b\"", "a\\b"},
               {"\\\"d", "\"15"}});
}

TEST(FormatDateTime, AnOpenQuoteReachesToTheEnd) {
    ExpectAll({{"d \"open d", "15 open d"}, {"d\"", "15"}});
}

TEST(FormatDateTime, ABackslashAtTheEndStandsForItself) {
    ExpectAll({{"d\\", "15\\"}});
}

TEST(FormatDateTime, WhatIsNoTokenStandsForItself) {
    ExpectAll({{"foo", "foo"},
               {"[d] (x) 7%", "[15] (x) 7%"},
               {"\xE5r yyyy", "\xE5r 2026"},
               {"A", "A"},
               {"T", "T"}});
}

TEST(FormatDateTime, AnEmptyPatternIsTheGeneralDate) {
    EXPECT_EQ(Format(""), "2026-03-15 kl 14.05.09");
}

TEST(FormatDateTime, CShowsTheDateOnlyWhenThereIsADate) {
    ExpectAll({{"c", "kl 14.05.09"}, {"General Date", "kl 14.05.09"}}, TimeSerial(14, 5, 9));
    ExpectAll({{"c", "kl 00.00.00"}}, 0);
    // Day 0 alone is no date: its neighbours in month and year are.
    ExpectAll({{"c", "1899-12-31"}}, DateSerial(1899, 12, 31));
    ExpectAll({{"c", "1899-11-30"}}, DateSerial(1899, 11, 30));
    ExpectAll({{"c", "1900-12-30"}}, DateSerial(1900, 12, 30));
}

TEST(FormatDateTime, CShowsTheTimeOnlyWhenThereIsATime) {
    ExpectAll({{"c", "2026-03-15"}, {"(c)", "(2026-03-15)"}}, DateSerial(2026, 3, 15));
    ExpectAll({{"c", "2026-03-15 kl 00.07.00"}}, DateSerial(2026, 3, 15) + TimeSerial(0, 7, 0));
    ExpectAll({{"c", "2026-03-15 kl 00.00.09"}}, DateSerial(2026, 3, 15) + TimeSerial(0, 0, 9));
}

TEST(FormatDateTime, WeeksBeginOnSundayAndTheFirstHoldsTheFirstOfJanuary) {
    const auto week = [](int year, int month, int day) {
        return Format("ww w", DateSerial(year, month, day));
    };
    EXPECT_EQ(week(2026, 1, 1), "1 5");  // a Thursday
    EXPECT_EQ(week(2026, 1, 3), "1 7");
    EXPECT_EQ(week(2026, 1, 4), "2 1");
    EXPECT_EQ(week(2026, 12, 31), "53 5");
    EXPECT_EQ(week(2023, 1, 1), "1 1");  // a Sunday
    EXPECT_EQ(week(2023, 1, 8), "2 1");
    EXPECT_EQ(week(2022, 1, 1), "1 7");  // a Saturday
    EXPECT_EQ(week(2022, 1, 2), "2 1");
    EXPECT_EQ(week(2000, 12, 31), "54 1");  // a leap year from Saturday to Sunday
}

TEST(FormatDateTime, QuartersHaveThreeMonths) {
    std::string quarters;
    for (int month = 1; month <= 12; ++month) quarters += Format("q", DateSerial(2026, month, 1));
    EXPECT_EQ(quarters, "111222333444");
}

TEST(FormatDateTime, DaysOfTheYearCountTheLeapDay) {
    EXPECT_EQ(Format("y", DateSerial(2024, 12, 31)), "366");
    EXPECT_EQ(Format("y", DateSerial(2025, 12, 31)), "365");
    EXPECT_EQ(Format("y", DateSerial(2024, 3, 1)), "61");
}

TEST(FormatDateTime, YearsHaveFourDigitsFrom100To9999) {
    EXPECT_EQ(Format("yyyy yy mm dd", DateSerial(100, 1, 1)), "0100 00 01 01");
    EXPECT_EQ(Format("yyyy yy mm dd", DateSerial(9999, 12, 31)), "9999 99 12 31");
}

TEST(FormatDateTime, BeforeTheFirstDayTheTimeStillCountsForward) {
    EXPECT_EQ(Format("yyyy-mm-dd hh\\:nn w", -1.25), "1899-12-29 06:00 6");
    EXPECT_EQ(Format("yyyy-mm-dd hh\\:nn", -0.25), "1899-12-30 06:00");
    EXPECT_EQ(Format("yyyy-mm-dd", -657434), "0100-01-01");
}

TEST(FormatDateTime, ATimeIsCutToTheSecondThatHasCome) {
    const auto at = [](double second) { return DateSerial(2026, 12, 31) + (86399 + second) / 86400; };
    EXPECT_EQ(Format("yyyy-mm-dd hh\\:nn\\:ss", at(0.4)), "2026-12-31 23:59:59");
    EXPECT_EQ(Format("yyyy-mm-dd hh\\:nn\\:ss", at(0.7)), "2026-12-31 23:59:59");
    EXPECT_EQ(Format("yyyy-mm-dd hh\\:nn\\:ss", -1.999999), "1899-12-29 23:59:59");
}

TEST(FormatDateTime, ValuesOutsideTheYears100To9999AreAnOverflow) {
    for (const double value : {-657435.0, 2958466.0, 2958465.9999999995, 1e300, std::nan("")}) {
        EXPECT_THROW(Format("yyyy", value), cFailure) << value;
    }
}

TEST(FormatDateTime, ALocaleFormThatNamesAFormShowsTheName) {
    cLocaleForms forms;
    forms.shortDate = "ddddd d";
    forms.longDate = "ttttt";
    forms.longTime = "c";
    EXPECT_EQ(FormatDateTime(kSunday, "Short Date", forms), "ddddd 15");
    EXPECT_EQ(FormatDateTime(kSunday, "ddddd|dddddd|ttttt", forms), "ddddd 15|ttttt|c");
    EXPECT_EQ(FormatDateTime(kSunday, "c", forms), "ddddd 15 c");
}

TEST(FormatDateTime, AnEmptyLocaleFormIsEmpty) {
    cLocaleForms forms;
    forms.shortDate.clear();
    EXPECT_EQ(FormatDateTime(kSunday, "Short Date", forms), "");
}

}  // namespace
}  // namespace vigrel::testing
