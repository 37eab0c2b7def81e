#include "editor_ui/schedule/schedule_frame.h"

#include <QCoreApplication>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "schedule/schedule_geometry.h"

namespace vigrel {
namespace {

constexpr int kViewWidth = kAxisLeft + kAxisWidth + 8;
constexpr int kViewHeight = kVisibleRows * kRowHeight + 4;

}  // namespace

cScheduleFrame::cScheduleFrame(QWidget* parent)
    : QFrame(parent), m_View("Picture_TimeSchedule", this), m_Scroll(Qt::Vertical, this) {
    setObjectName("Picture_TimeSchedule_Frame");
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_View.setAccessibleName(tr("Time schedule"));
    m_View.setAccessibleDescription(
        tr("Arrow keys choose a day and a period, Insert makes a period, Delete removes one"));
    m_Scroll.setObjectName("VScroll_Schedule");
    m_Scroll.setAccessibleName(tr("Rows of the time schedule"));
    m_Scroll.setSingleStep(kScrollStepsPerRow);
    m_Scroll.setPageStep(kVisibleRows * kScrollStepsPerRow);
    m_Scroll.resize(m_Scroll.sizeHint().width(), 1);
    connect(&m_Scroll, &QScrollBar::valueChanged, this, &cScheduleFrame::MoveView);
}

int cScheduleFrame::Pixels(double units) const {
    return static_cast<int>(std::lround(units * Zoom()));
}

QSize cScheduleFrame::DrawingSize() {
    return {kViewWidth, kViewHeight};
}

QSize cScheduleFrame::AroundDrawing() const {
    const int border = 2 * frameWidth();
    return {m_Scroll.width() + border, border};
}

void cScheduleFrame::SetZoom(double zoom) {
    m_View.Surface().SetZoom(zoom);
    setFixedSize(QSize(Pixels(kViewWidth), Pixels(kViewHeight)) + AroundDrawing());
}

void cScheduleFrame::SetScrollLeft(double left) {
    m_ScrollLeft = left;
    m_Scroll.move(contentsRect().left() + Pixels(left), m_Scroll.y());
}
void cScheduleFrame::SetScrollTop(double top) {
    m_Scroll.move(m_Scroll.x(), contentsRect().top() + Pixels(top));
}
void cScheduleFrame::SetScrollHeight(double height) {
    m_Scroll.resize(m_Scroll.width(), Pixels(height));
}

// The maximum is below 0 when fewer rows are shown than there is room for.
void cScheduleFrame::SetScrollMax(int max) {
    m_Scroll.setRange(0, std::max(max, 0));
    m_Scroll.setEnabled(max > 0);
}

void cScheduleFrame::SetViewLeft(double left) {
    m_View.move(contentsRect().left() + Pixels(left), m_View.y());
}
// The layout puts the view to the top; where the operator has scrolled to is kept.
void cScheduleFrame::SetViewTop(double top) {
    m_View.move(m_View.x(), contentsRect().top() + Pixels(top));
    MoveView();
}
void cScheduleFrame::SetViewWidth(double width) {
    m_View.resize(Pixels(width), m_View.height());
}
void cScheduleFrame::SetViewHeight(double height) {
    m_View.resize(m_View.width(), Pixels(height));
}

void cScheduleFrame::MoveView() {
    const double scrolled = static_cast<double>(m_Scroll.value()) * kRowHeight / kScrollStepsPerRow;
    m_View.move(m_View.x(), contentsRect().top() - Pixels(scrolled));
}

void cScheduleFrame::ShowRow(int row) {
    const int top = row * kScrollStepsPerRow;
    const int bottom = top - (kVisibleRows - 1) * kScrollStepsPerRow;
    m_Scroll.setValue(std::clamp(m_Scroll.value(), bottom, top));
}

void cScheduleFrame::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(&m_Scroll, event);
}

}  // namespace vigrel
