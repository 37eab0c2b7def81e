#include "editor_ui/calendar/day_line.h"

#include <gtest/gtest.h>

#include <QImage>

#include "schedule/time_schedule.h"

namespace vigrel::testing {
namespace {

class DayLine : public ::testing::Test {
  protected:
    // The colours of a line across it, below its labels.
    QImage Picture(std::vector<std::pair<int, int>> periods, int minute) {
        m_Line.resize(600, m_Line.sizeHint().height());
        m_Line.Show(std::move(periods), minute);
        QImage image(m_Line.size(), QImage::Format_RGB32);
        m_Line.render(&image);
        return image.copy(0, m_Line.height() - 5, m_Line.width(), 1);
    }
    cDayLine m_Line;
};

TEST_F(DayLine, TheMinutesMarkIsBlackBetweenTwoWhiteLines) {
    const QImage line = Picture({{0, kMinutesOfDay}}, kMinutesOfDay / 2);
    const int middle = line.width() / 2;
    EXPECT_EQ(line.pixelColor(middle - 2, 0), QColor(Qt::white));
    EXPECT_EQ(line.pixelColor(middle - 1, 0), QColor(Qt::black));
    EXPECT_EQ(line.pixelColor(middle, 0), QColor(Qt::black));
    EXPECT_EQ(line.pixelColor(middle + 1, 0), QColor(Qt::white));
}

TEST_F(DayLine, APeriodHasItsColourFromItsBeginToItsEnd) {
    const QImage line = Picture({{6 * 60, 12 * 60}}, 0);
    // Half past each hour, where neither a line nor the mark is.
    const auto At = [&](double hour) {
        const double room = m_Line.fontMetrics().horizontalAdvance("00") / 2.0 + 1;
        return line.pixelColor(static_cast<int>(room + hour * (line.width() - 2 * room) / 24), 0);
    };
    const QColor active = At(6.5), ground = At(5.5);
    EXPECT_NE(active, ground);
    EXPECT_EQ(At(11.5), active);
    EXPECT_EQ(At(12.5), ground);
    EXPECT_EQ(At(23.5), ground);
}

}  // namespace
}  // namespace vigrel::testing
