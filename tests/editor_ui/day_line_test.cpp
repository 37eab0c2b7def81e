#include "editor_ui/calendar/day_line.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <string>

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
    // Where an hour stands, from the left.
    double XOf(double hour) const {
        const double room = m_Line.fontMetrics().horizontalAdvance("00") / 2.0 + 1;
        return room + hour * (m_Line.width() - 2 * room) / 24;
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
    const auto At = [&](double hour) { return line.pixelColor(static_cast<int>(XOf(hour)), 0); };
    const QColor active = At(6.5), ground = At(5.5);
    EXPECT_NE(active, ground);
    EXPECT_EQ(At(11.5), active);
    EXPECT_EQ(At(12.5), ground);
    EXPECT_EQ(At(23.5), ground);
}

TEST_F(DayLine, EveryThirdHourIsNamedInTwoDigitsOverItsLine) {
    m_Line.resize(600, m_Line.sizeHint().height());
    m_Line.Show({}, 0);
    QImage image(m_Line.size(), QImage::Format_RGB32);
    m_Line.render(&image);
    const QImage labels = image.copy(0, 0, image.width(), m_Line.fontMetrics().height());
    QImage expected(labels.size(), QImage::Format_RGB32);
    expected.fill(labels.pixelColor(static_cast<int>(XOf(1.5)), 0));
    QPainter painter(&expected);
    painter.setFont(m_Line.font());
    painter.setPen(m_Line.palette().color(QPalette::WindowText));
    for (const char* hour : {"00", "03", "06", "09", "12", "15", "18", "21", "24"}) {
        const double left = XOf(std::stoi(hour)) - m_Line.fontMetrics().horizontalAdvance(hour) / 2.0;
        painter.drawText(QPointF(left, m_Line.fontMetrics().ascent()), hour);
    }
    painter.end();
    EXPECT_EQ(labels, expected);
}

}  // namespace
}  // namespace vigrel::testing
