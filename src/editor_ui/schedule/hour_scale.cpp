#include "editor_ui/schedule/hour_scale.h"

#include <QFontInfo>
#include <cmath>

#include "schedule/schedule_geometry.h"

namespace vigrel {
namespace {

constexpr int kHoursBetweenLabels = 3;

}  // namespace

cHourScale::cHourScale(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture_TimeSchedule_Hours");
    setFixedHeight(fontMetrics().height());
}

void cHourScale::Follow(double zoom, int viewLeft) {
    m_Zoom = zoom;
    m_ViewLeft = viewLeft;
    update();
}

void cHourScale::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintOn(painter, m_Zoom, m_ViewLeft, palette().color(QPalette::WindowText));
}

void cHourScale::PaintOn(QPainter& painter, double zoom, int viewLeft, const QColor& colour) const {
    // In this widget's pixels: a printer would make its points many times as large.
    QFont letters = font();
    letters.setPixelSize(QFontInfo(letters).pixelSize());
    painter.setFont(letters);
    painter.setPen(colour);
    for (int hour = 0; hour <= 24; hour += kHoursBetweenLabels) {
        const QString label = QString("%1").arg(hour, 2, 10, QChar('0'));
        const double x = viewLeft + (kAxisLeft + kUnitsPerHour * hour + 0.5) * zoom;
        const int width = fontMetrics().horizontalAdvance(label);
        painter.drawText(static_cast<int>(std::lround(x - width / 2.0)), fontMetrics().ascent(), label);
    }
}

}  // namespace vigrel
