#include "common/date_text.h"

#include <gtest/gtest.h>

#include "common/dates.h"

namespace vigrel::testing {
namespace {

TEST(DateTimeText, ShowsYearMonthDayAndTime) {
    EXPECT_EQ(DateTimeText(DateSerial(2026, 3, 5) + TimeSerial(7, 8, 9)), "2026-03-05 07:08:09");
    EXPECT_EQ(DateTimeText(0), "1899-12-30 00:00:00");
}

TEST(DateTimeText, AValueOutsideTheCalendarShowsItsDayCount) {
    EXPECT_EQ(DateTimeText(1e9), "1000000000");
}

TEST(ParseDateTimeText, ReadsADayWithOrWithoutATime) {
    EXPECT_EQ(ParseDateTimeText("2026-03-05"), DateSerial(2026, 3, 5));
    EXPECT_EQ(ParseDateTimeText(" 2026-03-05 07:08 "), DateSerial(2026, 3, 5) + TimeSerial(7, 8, 0));
    EXPECT_EQ(ParseDateTimeText("2026-03-05T07:08:09"), DateSerial(2026, 3, 5) + TimeSerial(7, 8, 9));
    EXPECT_EQ(ParseDateTimeText("2024-02-29"), DateSerial(2024, 2, 29));
}

TEST(ParseDateTimeText, ReadsWhatIsWrittenAlsoInFrontOfDayZero) {
    for (const double value : {46096.25, 0.5, 0.0, -1.5, -657434.0, 2958465.75}) {
        EXPECT_EQ(ParseDateTimeText(DateTimeText(value)), value) << value;
    }
}

TEST(ParseDateTimeText, RefusesWhatIsNoDate) {
    for (const char* text : {"",
                             "2026",
                             "2026-3-5",
                             "2026-13-01",
                             "2026-02-29",
                             "2026-04-31",
                             "2026-00-10",
                             "2026-01-00",
                             "0099-01-01",
                             "2026-01-01 24:00",
                             "2026-01-01 10:60",
                             "2026-0a-01",
                             "2026-0:-01",
                             "2026-1/-01",
                             "2026-01-01 0::00",
                             "2026-03.05",
                             "2026-03-x5",
                             "2026-03-5",
                             "2026-01-01 1",
                             "2026-01-01 10:1",
                             "2026-01-01 10:00:x",
                             "2026-01-01 10",
                             "2026-01-01 10:00:00x",
                             "2026-01-01x",
                             "15.03.2026"}) {
        EXPECT_FALSE(ParseDateTimeText(text)) << text;
    }
}

}  // namespace
}  // namespace vigrel::testing
