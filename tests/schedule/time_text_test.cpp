#include "schedule/time_text.h"

#include <gtest/gtest.h>

#include "common/text.h"

namespace vigrel::testing {
namespace {

TEST(TimeText, WhatIsATimeIsAccepted) {
    for (const char* text : {"8", "08", "24", "830", "0830", "1630", "16:30", "8:5", "8.30", "8-30", " 7:00 ",
                             "0:00", "24:00", "2400", "0"}) {
        EXPECT_EQ(FaultOfTimeText(text).value_or("").English(), "") << text;
    }
}

TEST(TimeText, WhatIsNoneIsRefusedWithItsReason) {
    EXPECT_EQ(FaultOfTimeText("25:30"), "\"25:30\" lies behind 24:00.");
    EXPECT_EQ(FaultOfTimeText("24:01"), "\"24:01\" lies behind 24:00.");
    EXPECT_EQ(FaultOfTimeText("25"), "\"25\" lies behind 24:00.");
    EXPECT_EQ(FaultOfTimeText("80"), "\"80\" lies behind 24:00.");
    EXPECT_EQ(FaultOfTimeText("1375"), "\"1375\" has more than 59 minutes.");
    EXPECT_EQ(FaultOfTimeText("8:60"), "\"8:60\" has more than 59 minutes.");
    EXPECT_EQ(FaultOfTimeText(" "), "The time is missing.");
    for (const char* text : {"x", "16:30x", "1630x", "16:", ":30", "-1", "12345", "1:2:3", "123:00", "8:000",
                             "a:30", "8h:30", "8:3x"}) {
        EXPECT_EQ(FaultOfTimeText(text),
                  "\"" + std::string(text) + "\" is not a time such as 8, 0830 or 16:30.");
    }
}

// One place says what a text means, another what is refused.
TEST(TimeText, AnAcceptedTextMeansTheMinutesThatItSays) {
    for (int hour = 0; hour <= 24; ++hour) {
        for (int minute = 0; minute < 60; ++minute) {
            const std::string text = std::to_string(hour) + ":" + std::to_string(minute);
            const bool isTime = hour * 60 + minute <= 1440;
            EXPECT_EQ(!FaultOfTimeText(text).has_value(), isTime) << text;
            if (!isTime) continue;
            EXPECT_EQ(TimeTextToMinutes(text), hour * 60 + minute) << text;
        }
    }
}

}  // namespace
}  // namespace vigrel::testing
