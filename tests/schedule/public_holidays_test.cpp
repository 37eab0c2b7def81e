#include "schedule/public_holidays.h"
#include "schedule/holiday_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "common/code_page.h"
#include "common/dates.h"
#include "common/numbers.h"

namespace vigrel::testing {
namespace {

std::string DateText(std::int32_t day) {
    const cDateParts parts = SplitDateTime(day + kFirstCalendarDay);
    return Digits(parts.year, 4) + "-" + Digits(parts.month, 2) + "-" + Digits(parts.day, 2);
}

// Of a year, "01-01 01-06": its public holidays, or the days that have a name alone.
std::string Days(std::string_view code, int year, bool free) {
    std::string text;
    const std::string prefix = std::to_string(year) + "-";
    for (const cHolidayLabel& label : PublicHolidays(code).m_HolidayLabels) {
        const std::string date = DateText(label.m_Day);
        if ((label.m_ViewInCalendar != False16) != free || date.rfind(prefix, 0) != 0) continue;
        text += (text.empty() ? "" : " ") + date.substr(5);
    }
    return text;
}

std::string NameOf(std::string_view code, int year, int month, int day) {
    const cHolidays holidays = PublicHolidays(code);
    const cHolidayLabel* label = holidays.LabelOf(CalendarIndex(DateSerial(year, month, day)));
    return label == nullptr ? "" : CodePageToUtf8(label->m_Label);
}

// Easter Sundays as almanacs print them: all of the span, and years in which the cycles have their
// exceptions.
TEST(PublicHolidays, EasterFallsAsInTheAlmanacs) {
    const std::vector<std::array<int, 3>> dates{
        {2000, 4, 23}, {2001, 4, 15}, {2002, 3, 31}, {2003, 4, 20}, {2004, 4, 11}, {2005, 3, 27},
        {2006, 4, 16}, {2007, 4, 8},  {2008, 3, 23}, {2009, 4, 12}, {2010, 4, 4},  {2011, 4, 24},
        {2012, 4, 8},  {2013, 3, 31}, {2014, 4, 20}, {2015, 4, 5},  {2016, 3, 27}, {2017, 4, 16},
        {2018, 4, 1},  {2019, 4, 21}, {2020, 4, 12}, {2021, 4, 4},  {2022, 4, 17}, {2023, 4, 9},
        {2024, 3, 31}, {2025, 4, 20}, {2026, 4, 5},  {2027, 3, 28}, {2028, 4, 16}, {2029, 4, 1},
        {2030, 4, 21}, {2031, 4, 13}, {2032, 3, 28}, {2033, 4, 17}, {2034, 4, 9},  {2035, 3, 25},
        {2036, 4, 13}, {2037, 4, 5},  {2038, 4, 25}, {2039, 4, 10}, {1761, 3, 22}, {1818, 3, 22},
        {1943, 4, 25}, {1954, 4, 18}, {1981, 4, 19}, {2049, 4, 18}, {2076, 4, 19}};
    for (const auto& [year, month, day] : dates) {
        EXPECT_EQ(EasterSunday(year), DateSerial(year, month, day)) << year;
    }
}

struct cYear {
    const char* code;
    int year;
    const char* days;
};

class HolidaysOfAYear : public ::testing::TestWithParam<cYear> {};

TEST_P(HolidaysOfAYear, AreThoseOfThePrintedCalendar) {
    EXPECT_EQ(Days(GetParam().code, GetParam().year, true), GetParam().days);
}

const cYear kYears[] = {
    {"SE", 2000, "01-01 01-06 04-21 04-23 04-24 05-01 06-01 06-11 06-12 06-24 11-04 12-25 12-26"},
    {"SE", 2004, "01-01 01-06 04-09 04-11 04-12 05-01 05-20 05-30 05-31 06-26 11-06 12-25 12-26"},
    {"SE", 2005, "01-01 01-06 03-25 03-27 03-28 05-01 05-05 05-15 06-06 06-25 11-05 12-25 12-26"},
    {"SE", 2026, "01-01 01-06 04-03 04-05 04-06 05-01 05-14 05-24 06-06 06-20 10-31 12-25 12-26"},
    {"SE", 2039, "01-01 01-06 04-08 04-10 04-11 05-01 05-19 05-29 06-06 06-25 11-05 12-25 12-26"},
    {"NO", 2000, "01-01 04-20 04-21 04-23 04-24 05-01 05-17 06-01 06-11 06-12 12-25 12-26"},
    {"NO", 2026, "01-01 04-02 04-03 04-05 04-06 05-01 05-14 05-17 05-24 05-25 12-25 12-26"},
    // Ascension fell on 1 May.
    {"NO", 2008, "01-01 03-20 03-21 03-23 03-24 05-01 05-01 05-11 05-12 05-17 12-25 12-26"},
    {"NO", 2038, "01-01 04-22 04-23 04-25 04-26 05-01 05-17 06-03 06-13 06-14 12-25 12-26"},
    {"DK", 2000, "01-01 04-20 04-21 04-23 04-24 05-19 06-01 06-11 06-12 12-25 12-26"},
    {"DK", 2008, "01-01 03-20 03-21 03-23 03-24 04-18 05-01 05-11 05-12 12-25 12-26"},
    {"DK", 2023, "01-01 04-06 04-07 04-09 04-10 05-05 05-18 05-28 05-29 12-25 12-26"},
    {"DK", 2024, "01-01 03-28 03-29 03-31 04-01 05-09 05-19 05-20 12-25 12-26"},
    {"DK", 2039, "01-01 04-07 04-08 04-10 04-11 05-19 05-29 05-30 12-25 12-26"},
    {"FI", 2000, "01-01 01-06 04-21 04-23 04-24 05-01 06-01 06-11 06-24 11-04 12-06 12-25 12-26"},
    {"FI", 2008, "01-01 01-06 03-21 03-23 03-24 05-01 05-01 05-11 06-21 11-01 12-06 12-25 12-26"},
    {"FI", 2026, "01-01 01-06 04-03 04-05 04-06 05-01 05-14 05-24 06-20 10-31 12-06 12-25 12-26"},
    {"FI", 2021, "01-01 01-06 04-02 04-04 04-05 05-01 05-13 05-23 06-26 11-06 12-06 12-25 12-26"},
    {"FI", 2035, "01-01 01-06 03-23 03-25 03-26 05-01 05-03 05-13 06-23 11-03 12-06 12-25 12-26"},
    {"DE", 2000, "01-01 04-21 04-24 05-01 06-01 06-12 10-03 12-25 12-26"},
    {"DE", 2016, "01-01 03-25 03-28 05-01 05-05 05-16 10-03 12-25 12-26"},
    {"DE", 2017, "01-01 04-14 04-17 05-01 05-25 06-05 10-03 10-31 12-25 12-26"},
    {"DE", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 10-03 12-25 12-26"},
    {"DE", 2035, "01-01 03-23 03-26 05-01 05-03 05-14 10-03 12-25 12-26"},
    {"AT", 2026, "01-01 01-06 04-06 05-01 05-14 05-25 06-04 08-15 10-26 11-01 12-08 12-25 12-26"},
    {"DE-BW", 2026, "01-01 01-06 04-03 04-06 05-01 05-14 05-25 06-04 10-03 11-01 12-25 12-26"},
    {"DE-BY", 2026, "01-01 01-06 04-03 04-06 05-01 05-14 05-25 06-04 10-03 11-01 12-25 12-26"},
    {"DE-BE", 2018, "01-01 03-30 04-02 05-01 05-10 05-21 10-03 12-25 12-26"},
    {"DE-BE", 2020, "01-01 03-08 04-10 04-13 05-01 05-08 05-21 06-01 10-03 12-25 12-26"},
    {"DE-BE", 2025, "01-01 03-08 04-18 04-21 05-01 05-08 05-29 06-09 10-03 12-25 12-26"},
    {"DE-BE", 2026, "01-01 03-08 04-03 04-06 05-01 05-14 05-25 10-03 12-25 12-26"},
    {"DE-BE", 2028, "01-01 03-08 04-14 04-17 05-01 05-25 06-05 06-17 10-03 12-25 12-26"},
    {"DE-BB", 2017, "01-01 04-14 04-16 04-17 05-01 05-25 06-04 06-05 10-03 10-31 12-25 12-26"},
    {"DE-BB", 2026, "01-01 04-03 04-05 04-06 05-01 05-14 05-24 05-25 10-03 10-31 12-25 12-26"},
    {"DE-HB", 2016, "01-01 03-25 03-28 05-01 05-05 05-16 10-03 12-25 12-26"},
    {"DE-HB", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 10-03 10-31 12-25 12-26"},
    {"DE-HH", 2018, "01-01 03-30 04-02 05-01 05-10 05-21 10-03 10-31 12-25 12-26"},
    {"DE-HE", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 06-04 10-03 12-25 12-26"},
    {"DE-MV", 2022, "01-01 04-15 04-18 05-01 05-26 06-06 10-03 10-31 12-25 12-26"},
    {"DE-MV", 2026, "01-01 03-08 04-03 04-06 05-01 05-14 05-25 10-03 10-31 12-25 12-26"},
    {"DE-NI", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 10-03 10-31 12-25 12-26"},
    {"DE-NW", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 06-04 10-03 11-01 12-25 12-26"},
    {"DE-RP", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 06-04 10-03 11-01 12-25 12-26"},
    {"DE-SL", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 06-04 08-15 10-03 11-01 12-25 12-26"},
    {"DE-SN", 2023, "01-01 04-07 04-10 05-01 05-18 05-29 10-03 10-31 11-22 12-25 12-26"},
    {"DE-SN", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 10-03 10-31 11-18 12-25 12-26"},
    {"DE-ST", 2026, "01-01 01-06 04-03 04-06 05-01 05-14 05-25 10-03 10-31 12-25 12-26"},
    {"DE-SH", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 10-03 10-31 12-25 12-26"},
    {"DE-TH", 2018, "01-01 03-30 04-02 05-01 05-10 05-21 10-03 10-31 12-25 12-26"},
    {"DE-TH", 2026, "01-01 04-03 04-06 05-01 05-14 05-25 09-20 10-03 10-31 12-25 12-26"},
    {"GB", 2000, "01-01 01-03 04-21 04-24 05-01 05-29 08-28 12-25 12-26"},
    {"GB", 2001, "01-01 04-13 04-16 05-07 05-28 08-27 12-25 12-26"},
    {"GB", 2002, "01-01 03-29 04-01 05-06 06-03 06-04 08-26 12-25 12-26"},
    {"GB", 2010, "01-01 04-02 04-05 05-03 05-31 08-30 12-25 12-26 12-27 12-28"},
    {"GB", 2011, "01-01 01-03 04-22 04-25 04-29 05-02 05-30 08-29 12-25 12-26 12-27"},
    {"GB", 2012, "01-01 01-02 04-06 04-09 05-07 06-04 06-05 08-27 12-25 12-26"},
    {"GB", 2016, "01-01 03-25 03-28 05-02 05-30 08-29 12-25 12-26 12-27"},
    {"GB", 2020, "01-01 04-10 04-13 05-08 05-25 08-31 12-25 12-26 12-28"},
    {"GB", 2021, "01-01 04-02 04-05 05-03 05-31 08-30 12-25 12-26 12-27 12-28"},
    {"GB", 2022, "01-01 01-03 04-15 04-18 05-02 06-02 06-03 08-29 09-19 12-25 12-26 12-27"},
    {"GB", 2023, "01-01 01-02 04-07 04-10 05-01 05-08 05-29 08-28 12-25 12-26"},
    {"GB", 2026, "01-01 04-03 04-06 05-04 05-25 08-31 12-25 12-26 12-28"},
    {"GB", 2027, "01-01 03-26 03-29 05-03 05-31 08-30 12-25 12-26 12-27 12-28"},
    {"GB", 2028, "01-01 01-03 04-14 04-17 05-01 05-29 08-28 12-25 12-26"},
    {"GB-SCT", 2006, "01-01 01-02 01-03 04-14 05-01 05-29 08-07 12-25 12-26"},
    {"GB-SCT", 2007, "01-01 01-02 04-06 05-07 05-28 08-06 11-30 12-25 12-26"},
    {"GB-SCT", 2019, "01-01 01-02 04-19 05-06 05-27 08-05 11-30 12-02 12-25 12-26"},
    {"GB-SCT", 2022, "01-01 01-02 01-03 01-04 04-15 05-02 06-02 06-03 08-01 09-19 11-30 12-25 12-26 12-27"},
    {"GB-SCT", 2023, "01-01 01-02 01-03 04-07 05-01 05-08 05-29 08-07 11-30 12-25 12-26"},
    {"GB-SCT", 2024, "01-01 01-02 03-29 05-06 05-27 08-05 11-30 12-02 12-25 12-26"},
    // Proclaimed for the football team's first match of the year's World Cup; 30 November is a Monday.
    {"GB-SCT", 2026, "01-01 01-02 04-03 05-04 05-25 06-15 08-03 11-30 12-25 12-26 12-28"},
    {"GB-NIR", 2018, "01-01 03-17 03-19 03-30 04-02 05-07 05-28 07-12 08-27 12-25 12-26"},
    {"GB-NIR", 2020, "01-01 03-17 04-10 04-13 05-08 05-25 07-12 07-13 08-31 12-25 12-26 12-28"},
    {"GB-NIR", 2024, "01-01 03-17 03-18 03-29 04-01 05-06 05-27 07-12 08-26 12-25 12-26"},
    {"GB-NIR", 2025, "01-01 03-17 04-18 04-21 05-05 05-26 07-12 07-14 08-25 12-25 12-26"},
    // The last year of the span: no rule ends before it. 1 January is a Saturday, Easter Sunday 10 April.
    {"NO", 2039, "01-01 04-07 04-08 04-10 04-11 05-01 05-17 05-19 05-29 05-30 12-25 12-26"},
    {"FI", 2039, "01-01 01-06 04-08 04-10 04-11 05-01 05-19 05-29 06-25 11-05 12-06 12-25 12-26"},
    {"AT", 2039, "01-01 01-06 04-11 05-01 05-19 05-30 06-09 08-15 10-26 11-01 12-08 12-25 12-26"},
    {"DE", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 10-03 12-25 12-26"},
    {"DE-BW", 2039, "01-01 01-06 04-08 04-11 05-01 05-19 05-30 06-09 10-03 11-01 12-25 12-26"},
    {"DE-BY", 2039, "01-01 01-06 04-08 04-11 05-01 05-19 05-30 06-09 10-03 11-01 12-25 12-26"},
    {"DE-BE", 2039, "01-01 03-08 04-08 04-11 05-01 05-19 05-30 10-03 12-25 12-26"},
    {"DE-BB", 2039, "01-01 04-08 04-10 04-11 05-01 05-19 05-29 05-30 10-03 10-31 12-25 12-26"},
    {"DE-HB", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 10-03 10-31 12-25 12-26"},
    {"DE-HH", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 10-03 10-31 12-25 12-26"},
    {"DE-HE", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 06-09 10-03 12-25 12-26"},
    {"DE-MV", 2039, "01-01 03-08 04-08 04-11 05-01 05-19 05-30 10-03 10-31 12-25 12-26"},
    {"DE-NI", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 10-03 10-31 12-25 12-26"},
    {"DE-NW", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 06-09 10-03 11-01 12-25 12-26"},
    {"DE-RP", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 06-09 10-03 11-01 12-25 12-26"},
    {"DE-SL", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 06-09 08-15 10-03 11-01 12-25 12-26"},
    {"DE-SN", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 10-03 10-31 11-16 12-25 12-26"},
    {"DE-ST", 2039, "01-01 01-06 04-08 04-11 05-01 05-19 05-30 10-03 10-31 12-25 12-26"},
    {"DE-SH", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 10-03 10-31 12-25 12-26"},
    {"DE-TH", 2039, "01-01 04-08 04-11 05-01 05-19 05-30 09-20 10-03 10-31 12-25 12-26"},
    {"GB", 2039, "01-01 01-03 04-08 04-11 05-02 05-30 08-29 12-25 12-26 12-27"},
    {"GB-SCT", 2039, "01-01 01-02 01-03 01-04 04-08 05-02 05-30 08-01 11-30 12-25 12-26 12-27"},
    {"GB-NIR", 2039, "01-01 01-03 03-17 04-08 04-11 05-02 05-30 07-12 08-29 12-25 12-26 12-27"},
    // The first and the last years of rules that began or ended.
    {"DE-BE", 2019, "01-01 03-08 04-19 04-22 05-01 05-30 06-10 10-03 12-25 12-26"},
    {"DE-BB", 2018, "01-01 03-30 04-01 04-02 05-01 05-10 05-20 05-21 10-03 10-31 12-25 12-26"},
    {"DE-MV", 2017, "01-01 04-14 04-17 05-01 05-25 06-05 10-03 10-31 12-25 12-26"},
    {"DE-MV", 2018, "01-01 03-30 04-02 05-01 05-10 05-21 10-03 10-31 12-25 12-26"},
    {"DE-MV", 2023, "01-01 03-08 04-07 04-10 05-01 05-18 05-29 10-03 10-31 12-25 12-26"},
    {"DE-SN", 2017, "01-01 04-14 04-17 05-01 05-25 06-05 10-03 10-31 11-22 12-25 12-26"},
    {"DE-SN", 2018, "01-01 03-30 04-02 05-01 05-10 05-21 10-03 10-31 11-21 12-25 12-26"},
    {"DE-ST", 2017, "01-01 01-06 04-14 04-17 05-01 05-25 06-05 10-03 10-31 12-25 12-26"},
    {"DE-ST", 2018, "01-01 01-06 03-30 04-02 05-01 05-10 05-21 10-03 10-31 12-25 12-26"},
    {"DE-TH", 2017, "01-01 04-14 04-17 05-01 05-25 06-05 10-03 10-31 12-25 12-26"},
    {"DE-TH", 2019, "01-01 04-19 04-22 05-01 05-30 06-10 09-20 10-03 10-31 12-25 12-26"},
    {"GB", 2003, "01-01 04-18 04-21 05-05 05-26 08-25 12-25 12-26"},
    {"GB", 2013, "01-01 03-29 04-01 05-06 05-27 08-26 12-25 12-26"},
};

INSTANTIATE_TEST_SUITE_P(Schedule, HolidaysOfAYear, ::testing::ValuesIn(kYears), [](const auto& year) {
    std::string name = year.param.code + std::to_string(year.param.year);
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});

TEST(PublicHolidays, WhitMondayGaveWayToSwedensNationalDay) {
    EXPECT_EQ(NameOf("SE", 2004, 5, 31), "Annandag pingst");
    EXPECT_EQ(NameOf("SE", 2005, 5, 16), "");
    const cHolidays holidays = PublicHolidays("SE");
    const auto shown = [&](int year) {
        return holidays.LabelOf(CalendarIndex(DateSerial(year, 6, 6)))->m_ViewInCalendar != False16;
    };
    EXPECT_FALSE(shown(2004));
    EXPECT_TRUE(shown(2005));
    EXPECT_TRUE(shown(2039));
}

TEST(PublicHolidays, DenmarkKeptItsDayOfPrayerUntil2023) {
    EXPECT_EQ(NameOf("DK", 2000, 5, 19), "Store bededag");
    EXPECT_EQ(NameOf("DK", 2023, 5, 5), "Store bededag");
    EXPECT_EQ(NameOf("DK", 2024, 4, 26), "");
}

// What all cantons keep is shown; what some keep is named.
TEST(PublicHolidays, SwitzerlandShowsWhatAllCantonsShare) {
    EXPECT_EQ(Days("CH", 2026, true), "01-01 05-14 08-01 12-25");
    EXPECT_EQ(
        Days("CH", 2026, false),
        "01-02 01-06 03-19 04-03 04-05 04-06 05-01 05-24 05-25 06-04 08-15 11-01 12-08 12-24 12-26 12-31");
    EXPECT_EQ(NameOf("CH", 2026, 5, 14), "Auffahrt");
    EXPECT_EQ(NameOf("CH", 2026, 4, 3), "Karfreitag");
    EXPECT_EQ(NameOf("CH", 2026, 12, 26), "Stephanstag");
}

TEST(PublicHolidays, BritishSubstitutesAreNamed) {
    EXPECT_EQ(NameOf("GB", 2021, 12, 27), "Christmas Day (substitute day)");
    EXPECT_EQ(NameOf("GB", 2021, 12, 28), "Boxing Day (substitute day)");
    EXPECT_EQ(NameOf("GB", 2022, 12, 26), "Boxing Day");
    EXPECT_EQ(NameOf("GB", 2022, 12, 27), "Christmas Day (substitute day)");
    EXPECT_EQ(NameOf("GB-SCT", 2017, 1, 3), "New Year's Day (substitute day)");
    EXPECT_EQ(NameOf("GB-SCT", 2021, 1, 4), "2nd January (substitute day)");
}

TEST(PublicHolidays, NamesAreInTheCodePage) {
    const cHolidays holidays = PublicHolidays("SE");
    EXPECT_EQ(holidays.LabelOf(0)->m_Label, "Ny\xE5rsdagen");
    EXPECT_EQ(NameOf("FI", 2026, 12, 6), "Itsenäisyyspäivä");
    EXPECT_EQ(NameOf("NO", 2026, 4, 2), "Skjærtorsdag");
}

TEST(PublicHolidays, EvesAreNamedLikeASaturdayAndNotShown) {
    const cHolidays holidays = PublicHolidays("SE");
    const cHolidayLabel* eve = holidays.LabelOf(CalendarIndex(DateSerial(2026, 6, 19)));
    ASSERT_NE(eve, nullptr);
    EXPECT_EQ(eve->m_Label, "Midsommarafton");
    EXPECT_EQ(eve->m_ViewInCalendar, False16);
    EXPECT_EQ(eve->m_DayType, 5);
    EXPECT_EQ(holidays.LabelOf(CalendarIndex(DateSerial(2026, 6, 20)))->m_DayType, 6);
}

// Easter is on 5 April.
TEST(PublicHolidays, DaysThatHaveANameAloneAreThoseOfThePrintedCalendar) {
    const std::pair<const char*, const char*> days[] = {{"SE", "04-04 06-19 12-24 12-31"},
                                                        {"NO", "03-29 04-04 05-23 12-24 12-31"},
                                                        {"DK", "06-05 12-24 12-31"},
                                                        {"FI", "06-19 12-24 12-31"},
                                                        {"DE", "04-05 05-24 12-24 12-31"},
                                                        {"DE-BY", "04-05 05-24 08-15 12-24 12-31"},
                                                        {"DE-SN", "04-05 05-24 06-04 12-24 12-31"},
                                                        {"DE-TH", "04-05 05-24 06-04 12-24 12-31"},
                                                        {"AT", "04-03 04-05 05-24 12-24 12-31"}};
    for (const auto& [code, expected] : days) EXPECT_EQ(Days(code, 2026, false), expected) << code;
}

TEST(PublicHolidays, TheNamesOfAYearLastToTheEndOfTheSpan) {
    const auto namesOf = [](const cHolidays& holidays, int year) {
        std::set<std::string> names;
        for (const cHolidayLabel& label : holidays.m_HolidayLabels) {
            if (SplitDateTime(label.m_Day + kFirstCalendarDay).year == year) names.insert(label.m_Label);
        }
        return names;
    };
    for (const cHolidayCountry& country : HolidayCountries()) {
        const cHolidays holidays = PublicHolidays(country.code);
        const std::set<std::string> last = namesOf(holidays, 2039);
        for (const std::string& name : namesOf(holidays, 2027)) {
            if (name.find("(substitute day)") != std::string::npos) continue;
            EXPECT_TRUE(last.contains(name)) << name;
        }
    }
}

TEST(PublicHolidays, EveryListedCountryHasHolidaysInEveryYear) {
    ASSERT_EQ(HolidayCountries().size(), 26u);
    for (const cHolidayCountry& country : HolidayCountries()) {
        const cHolidays holidays = PublicHolidays(country.code);
        std::array<int, 40> perYear{};
        std::int32_t previous = -1;
        for (const cHolidayLabel& label : holidays.m_HolidayLabels) {
            ++perYear[static_cast<std::size_t>(SplitDateTime(label.m_Day + kFirstCalendarDay).year - 2000)];
            EXPECT_LE(previous, label.m_Day);
            EXPECT_EQ(holidays.m_HolidayMarks[static_cast<std::size_t>(label.m_Day)], True16);
            EXPECT_EQ(label.m_Label.find('?'), std::string::npos) << label.m_Label;
            previous = label.m_Day;
        }
        for (const int count : perYear) EXPECT_GE(count, 9) << country.name;
        std::set<std::int32_t> days;
        for (const cHolidayLabel& label : holidays.m_HolidayLabels) days.insert(label.m_Day);
        EXPECT_EQ(std::count(holidays.m_HolidayMarks.begin(), holidays.m_HolidayMarks.end(), True16),
                  static_cast<std::ptrdiff_t>(days.size()));
    }
}

TEST(PublicHolidays, AnUnknownCodeHasNone) {
    EXPECT_TRUE(PublicHolidays("").m_HolidayLabels.empty());
    EXPECT_TRUE(PublicHolidays("XX").m_HolidayLabels.empty());
}

TEST(Holidays, OfOneDayTheShownLabelComesFirst) {
    cHolidays holidays;
    holidays.Add({10, 5, False16, "eve"});
    holidays.Add({10, 6, True16, "free"});
    EXPECT_EQ(holidays.LabelOf(10)->m_Label, "free");
    EXPECT_EQ(holidays.LabelOf(11), nullptr);
}

TEST(Holidays, ManyLabelsStandAsIfEachWasAddedForItself) {
    const std::vector<cHolidayLabel> labels{{10, 6, True16, "second"}, {3, 6, False16, "hidden"},
                                            {-1, 6, True16, "before"}, {3, 6, True16, "shown"},
                                            {10, 6, True16, "third"},  {kCalendarDays, 6, True16, "behind"}};
    cHolidays holidays;
    holidays.Add({10, 6, True16, "first"});
    holidays.Add(labels);
    std::string names;
    for (const cHolidayLabel& label : holidays.m_HolidayLabels) names += label.m_Label + " ";
    EXPECT_EQ(names, "shown hidden first second third ");
    EXPECT_EQ(holidays.LabelOf(3)->m_Label, "shown");
    EXPECT_EQ(holidays.LabelOf(-1), nullptr);
}

TEST(Holidays, ADayOutsideTheSpanIsLeftOut) {
    cHolidays holidays;
    holidays.Add({-1, 6, True16, "before"});
    holidays.Add({kCalendarDays, 6, True16, "behind"});
    EXPECT_TRUE(holidays.m_HolidayLabels.empty());
    EXPECT_EQ(holidays.LabelOf(-1), nullptr);
    EXPECT_EQ(holidays.LabelOf(kCalendarDays), nullptr);
}

TEST(Holidays, AMarkWithoutALabelHasNone) {
    cHolidays holidays;
    holidays.m_HolidayMarks[7] = True16;
    EXPECT_EQ(holidays.LabelOf(7), nullptr);
    holidays.Add({8, 6, True16, "named"});
    EXPECT_EQ(holidays.LabelOf(7), nullptr);
    ASSERT_NE(holidays.LabelOf(8), nullptr);
    EXPECT_EQ(holidays.LabelOf(8)->m_Label, "named");
}

}  // namespace
}  // namespace vigrel::testing
