#include "editor_ui/calendar/day_line.h"

#include <QPainter>

#include "schedule/time_schedule.h"

namespace vigrel {
namespace {

constexpr int kHoursBetweenLabels = 3;
constexpr QColor kGround(220, 220, 220), kActive(0, 150, 60), kFrame(128, 128, 128);

}  // namespace

cDayLine::cDayLine(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture_ActiveDay");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void cDayLine::Show(std::vector<std::pair<int, int>> periods, int minute) {
    m_Periods = std::move(periods);
    m_Minute = minute;
    update();
}

QSize cDayLine::sizeHint() const {
    const int letter = fontMetrics().horizontalAdvance("00");
    return {letter * 16, fontMetrics().height() * 3};
}

// Half a label's room at either end.
double cDayLine::XOf(int minute) const {
    const double room = fontMetrics().horizontalAdvance("00") / 2.0 + 1;
    return room + minute * (width() - 2 * room) / kMinutesOfDay;
}

void cDayLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double top = fontMetrics().height(), bottom = height() - 2.0;
    painter.fillRect(QRectF(QPointF(XOf(0), top), QPointF(XOf(kMinutesOfDay), bottom)), kGround);
    for (const auto& [start, stop] : m_Periods) {
        painter.fillRect(QRectF(QPointF(XOf(start), top), QPointF(XOf(stop), bottom)), kActive);
    }
    for (int hour = 0; hour <= 24; ++hour) {
        const double x = XOf(hour * 60);
        painter.setPen(kFrame);
        painter.drawLine(QPointF(x, top), QPointF(x, bottom));
        if (hour % kHoursBetweenLabels != 0) continue;
        const QString label = QString("%1").arg(hour, 2, 10, QChar('0'));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QPointF(x - fontMetrics().horizontalAdvance(label) / 2.0, fontMetrics().ascent()),
                         label);
    }
    // Black and white, to be seen on both grounds.
    painter.fillRect(QRectF(XOf(m_Minute) - 2, top, 4, bottom - top), Qt::white);
    painter.fillRect(QRectF(XOf(m_Minute) - 1, top, 2, bottom - top), Qt::black);
}

}  // namespace vigrel
