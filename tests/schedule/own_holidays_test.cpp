#include "schedule/own_holidays.h"

#include <gtest/gtest.h>

#include <map>

#include "common/dates.h"
#include "common/failure.h"
#include "schedule/public_holidays.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

const char* const kOwnHolidays = "C:\\App\\OwnHolidays.txt";

class OwnHolidays : public ::testing::Test {
  protected:
    // What was skipped: "line: reason", one a line.
    std::string Parse(const std::string& text) {
        std::string problems;
        for (const cLineProblem& problem : m_Own.Parse(text))
            problems += std::to_string(problem.line) + ": " + problem.description.English() + "\n";
        return problems;
    }
    // The name that a day is marked with; empty for none.
    std::string NameOn(int year, int month, int day) const {
        cHolidays holidays;
        m_Own.AddTo(holidays);
        const cHolidayLabel* label = holidays.LabelOf(CalendarIndex(DateSerial(year, month, day)));
        return label == nullptr || label->m_ViewInCalendar == False16 ? "" : label->m_Label;
    }
    std::size_t Marks() const {
        cHolidays holidays;
        m_Own.AddTo(holidays);
        return holidays.m_HolidayLabels.size();
    }

    cFakeFiles m_Files;
    cOwnHolidays m_Own;
};

TEST_F(OwnHolidays, ADayWithAYearIsOnceAndOneWithoutIsEveryYear) {
    EXPECT_EQ(Parse("2026-08-14 | Summer party\r\n12-24|Company holiday\r\n"), "");
    EXPECT_EQ(NameOn(2026, 8, 14), "Summer party");
    EXPECT_EQ(NameOn(2027, 8, 14), "");
    for (int year = 2000; year <= 2039; ++year) EXPECT_EQ(NameOn(year, 12, 24), "Company holiday");
    EXPECT_EQ(Marks(), 41u);
    EXPECT_FALSE(m_Own.m_Holidays[0].IsEveryYear());
    EXPECT_TRUE(m_Own.m_Holidays[1].IsEveryYear());
}

// Each mark in its place moves all that stand behind it: twenty lines took longer than a minute.
TEST_F(OwnHolidays, SpansOfAllYearsAreMarkedInTheirOrder) {
    std::string text = "06-06 | In front\n";
    for (int i = 0; i < 20; ++i) text += "2000-01-01..2039-12-31 | Open " + std::to_string(i) + "\n";
    EXPECT_EQ(Parse(text), "");
    EXPECT_EQ(NameOn(2000, 1, 1), "Open 0");
    EXPECT_EQ(NameOn(2026, 6, 6), "In front");
    EXPECT_EQ(NameOn(2039, 12, 31), "Open 0");
    EXPECT_EQ(Marks(), 40u + 20u * kCalendarDays);
}

TEST_F(OwnHolidays, SeveralDaysOnEndBelongToBothOfTheirEnds) {
    EXPECT_EQ(Parse("2026-07-06..2026-07-31 | Works holiday\n2026-12-30 .. 2027-01-02 | Stocktaking\n"), "");
    EXPECT_EQ(NameOn(2026, 7, 5), "");
    EXPECT_EQ(NameOn(2026, 7, 6), "Works holiday");
    EXPECT_EQ(NameOn(2026, 7, 31), "Works holiday");
    EXPECT_EQ(NameOn(2026, 8, 1), "");
    EXPECT_EQ(NameOn(2027, 1, 2), "Stocktaking");
    EXPECT_EQ(Marks(), 26u + 4u);
}

TEST_F(OwnHolidays, DaysOfEveryYearMayGoOverTheNewYear) {
    EXPECT_EQ(Parse("12-24..01-06 | Winter break\n"), "");
    for (const int year : {2000, 2026, 2039}) {
        EXPECT_EQ(NameOn(year, 1, 1), "Winter break") << year;
        EXPECT_EQ(NameOn(year, 1, 6), "Winter break") << year;
        EXPECT_EQ(NameOn(year, 1, 7), "") << year;
        EXPECT_EQ(NameOn(year, 12, 23), "") << year;
        EXPECT_EQ(NameOn(year, 12, 31), "Winter break") << year;
    }
}

TEST_F(OwnHolidays, TheLeapDayIsThereInLeapYearsAlone) {
    EXPECT_EQ(Parse("02-29 | Leap day\n"), "");
    EXPECT_EQ(NameOn(2028, 2, 29), "Leap day");
    EXPECT_EQ(NameOn(2027, 3, 1), "");
    EXPECT_EQ(Marks(), 10u);
}

TEST_F(OwnHolidays, DaysFromTheLeapDayOnBeginInMarchInOtherYears) {
    EXPECT_EQ(Parse("02-29..03-02 | Inventory\n"), "");
    EXPECT_EQ(NameOn(2028, 2, 28), "");
    EXPECT_EQ(NameOn(2028, 2, 29), "Inventory");
    EXPECT_EQ(NameOn(2027, 2, 28), "");
    EXPECT_EQ(NameOn(2027, 3, 1), "Inventory");
    EXPECT_EQ(NameOn(2027, 3, 2), "Inventory");
    EXPECT_EQ(NameOn(2027, 3, 3), "");
}

TEST_F(OwnHolidays, WhatIsNoHolidayIsToldWithItsLineAndReason) {
    const std::map<std::string, std::string> lines{
        {"12-24", "a holiday has two fields (day | name), this line has 1"},
        {"12-24 | a | b", "a holiday has two fields (day | name), this line has 3"},
        {"24.12. | x", "\"24.12.\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"2026-1-2 | x", "\"2026-1-2\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"12-2x | x", "\"12-2x\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"12/24 | x", "\"12/24\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"x2-24 | x", "\"x2-24\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"2026/12-24 | x", "\"2026/12-24\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"2026-12/24 | x", "\"2026-12/24\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"20x6-12-24 | x", "\"20x6-12-24\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"01-32 | x", "\"01-32\" is no day of the calendar"},
        {"00-10 | x", "\"00-10\" is no day of the calendar"},
        {"12-99 | x", "\"12-99\" is no day of the calendar"},
        {" | x", "\"\" is no day such as 2026-12-24, or 12-24 for every year"},
        {"02-30 | x", "\"02-30\" is no day of the calendar"},
        {"2026-02-29 | x", "\"2026-02-29\" is no day of the calendar"},
        {"13-01 | x", "\"13-01\" is no day of the calendar"},
        {"01-00 | x", "\"01-00\" is no day of the calendar"},
        {"1999-12-31 | x", "\"1999-12-31\" lies outside the years 2000 to 2039"},
        {"2040-01-01 | x", "\"2040-01-01\" lies outside the years 2000 to 2039"},
        {"0000-01-01 | x", "\"0000-01-01\" lies outside the years 2000 to 2039"},
        {"2026-07-31..2026-07-06 | x", "\"2026-07-31..2026-07-06\" ends before it begins"},
        {"07-06..2026-07-31 | x", "\"07-06..2026-07-31\": give both days a year, or none of them"},
        {"07-06.. | x", "\"07-06..\" has no last day"},
        {"12-24 | ", "the name is empty"},
    };
    for (const auto& [line, reason] : lines) {
        EXPECT_EQ(Parse("# own\n" + line + "\n"), "2: " + reason + "\n") << line;
        EXPECT_TRUE(m_Own.m_Holidays.empty()) << line;
        EXPECT_EQ(m_Own.Text(), "# own\r\n" + line + "\r\n");
    }
}

// Remarks, blanks between fields and lines that were not understood stay as they were written.
TEST_F(OwnHolidays, WhatWasWrittenStaysWhereAnotherEntryIsChanged) {
    const std::string text =
        "# ours\r\n  12-24   |  Company holiday\r\n\r\nnonsense\r\n2026-08-14|Party\r\n# end\r\n";
    EXPECT_EQ(Parse(text), "4: a holiday has two fields (day | name), this line has 1\n");
    EXPECT_EQ(m_Own.Text(), text);
    m_Own.m_Holidays[1].m_Name = "Summer party";
    m_Own.m_Holidays[1].m_Last = "2026-08-15";
    EXPECT_EQ(m_Own.Text(),
              "# ours\r\n  12-24   |  Company holiday\r\n\r\nnonsense\r\n2026-08-14..2026-08-15 | Summer "
              "party\r\n# end\r\n");
    m_Own.Remove(1);
    EXPECT_EQ(m_Own.Text(), "# ours\r\n  12-24   |  Company holiday\r\n\r\nnonsense\r\n# end\r\n");
    m_Own.Remove(0);
    EXPECT_EQ(m_Own.Text(), "# ours\r\n\r\nnonsense\r\n# end\r\n");
}

TEST_F(OwnHolidays, AnEntryThatSaysSomethingElseInAnyOfItsPartsIsWrittenAnew) {
    Parse("  12-24   |  Old\n");
    m_Own.m_Holidays[0].m_Name = "New";
    EXPECT_EQ(m_Own.Text(), "12-24 | New\r\n");
    Parse("  12-24   |  Old\n");
    m_Own.m_Holidays[0].m_First = "12-23";
    EXPECT_EQ(m_Own.Text(), "12-23 | Old\r\n");
    Parse("  12-24   |  Old\n");
    m_Own.m_Holidays[0].m_Last = "12-26";
    EXPECT_EQ(m_Own.Text(), "12-24..12-26 | Old\r\n");
}

TEST_F(OwnHolidays, AFileIsReadAndReplacedWhole) {
    EXPECT_TRUE(m_Own.Load(m_Files, kOwnHolidays).empty());
    EXPECT_TRUE(m_Own.m_Holidays.empty());
    m_Files.Put(kOwnHolidays, "12-24 | Company holiday\n");
    EXPECT_TRUE(m_Own.Load(m_Files, kOwnHolidays).empty());
    m_Own.m_Holidays[0].m_First = "12-23";
    m_Own.Save(m_Files, kOwnHolidays);
    EXPECT_EQ(m_Files.ReadFile(kOwnHolidays), "12-23 | Company holiday\r\n");
    m_Own.m_Holidays[0].m_Name = "a|b";
    EXPECT_TRUE(CatchFailure([&] { m_Own.Save(m_Files, kOwnHolidays); }));
    EXPECT_EQ(m_Files.ReadFile(kOwnHolidays), "12-23 | Company holiday\r\n");
}

TEST_F(OwnHolidays, StandBesideThoseOfTheCountry) {
    cHolidays holidays = PublicHolidays("DE");
    Parse("12-24 | Company holiday\n05-01 | Ours too\n");
    m_Own.AddTo(holidays);
    // An eve has but a name; what is free counts for more.
    EXPECT_EQ(holidays.LabelOf(CalendarIndex(DateSerial(2026, 12, 24)))->m_Label, "Company holiday");
    EXPECT_EQ(holidays.LabelOf(CalendarIndex(DateSerial(2026, 5, 1)))->m_Label, "Tag der Arbeit");
}

}  // namespace
}  // namespace vigrel::testing
