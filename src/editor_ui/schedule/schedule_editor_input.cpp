#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "adapters/qt/qt_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "editor_ui/schedule/schedule_editor.h"
#include "schedule/schedule_geometry.h"

namespace vigrel {
namespace {

constexpr int kNewPeriod = 60;  // minutes
constexpr int kClearance = 15;  // of a new period from the others, so that it doesn't grab their ends
constexpr int kFirstHour = 8;   // where a new period is tried first

float XOf(int minute) {
    return kAxisLeft + static_cast<float>(minute) / kMinutesPerUnit;
}
int Middle(const cTimeSchedulePeriod& period) {
    return (period.m_StartMinute + period.m_StopMinute) / 2;
}
// The height of a row at which its number can't be mistaken.
float YOf(int row) {
    return static_cast<float>(row * kRowHeight + kBarTop + 1);
}

}  // namespace

void cScheduleEditor::MouseDown(std::int16_t button, std::int16_t shift, QPoint unit) {
    if (m_Schedule.IsDragging()) return;
    BeginEdit();
    m_Schedule.MouseDown(*this, m_SchedulePaintObject, button, shift, static_cast<float>(unit.x()),
                         static_cast<float>(unit.y()));
    m_Frame.View().update();
    Refresh();
}

void cScheduleEditor::MouseUp(std::int16_t button, std::int16_t shift, QPoint unit) {
    if (!m_Schedule.IsDragging() || button != 1) return;
    m_Schedule.MouseUp(*this, m_SchedulePaintObject, button, shift, static_cast<float>(unit.x()),
                       static_cast<float>(unit.y()));
    EndEdit(tr("dragging a period"));
    m_Frame.View().update();
    Refresh();
}

void cScheduleEditor::ShowPopupMenu(QPoint place) {
    if (!m_Schedule.IsDragging()) m_Popup.popup(place);
}

bool cScheduleEditor::Key(const QKeyEvent& event) {
    if (m_Schedule.IsDragging()) return true;
    const bool shift = event.modifiers() & Qt::ShiftModifier, ctrl = event.modifiers() & Qt::ControlModifier;
    const int side = event.key() == Qt::Key_Left ? -1 : 1;
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            ChooseRow(event.key() == Qt::Key_Up ? -1 : 1);
            return true;
        case Qt::Key_Left:
        case Qt::Key_Right:
            if (shift || ctrl) {
                MoveEnd(shift ? m_Stop : m_Start, side * kMinutesPerUnit);
            } else {
                ChoosePeriod(side);
            }
            return true;
        case Qt::Key_Insert:
            NewPeriod();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            m_Start.setFocus();
            m_Start.selectAll();
            return true;
        default:
            return false;
    }
}

// A click, so that the schedule selects as it does by mouse.
void cScheduleEditor::Choose(int row, int minute) {
    BeginEdit();
    m_Schedule.MouseDown(*this, m_SchedulePaintObject, 1, 0, XOf(minute), YOf(row));
    m_Schedule.MouseUp(*this, m_SchedulePaintObject, 1, 0, XOf(minute), YOf(row));
    EndEdit(tr("merging periods"));
    m_Frame.ShowRow(row);
    m_Frame.View().update();
    Refresh();
}

void cScheduleEditor::ChooseRow(int step) {
    const int rows = m_Schedule.m_NumberOfAxisToPaint;
    const int row = std::clamp(RowOf(m_Schedule.SelectedDayType()) + step, 0, rows - 1);
    ChooseRowAgain(row);
}

// Selects a row and its first period, if any.
void cScheduleEditor::ChooseRowAgain(int row) {
    const int dayType = DayTypeOfRow(row);
    if (dayType < 0) return;
    const PeriodList periods = PeriodsOf(dayType);
    Choose(row, periods.empty() ? 0 : Middle(*periods.front()));
}

void cScheduleEditor::ChoosePeriod(int step) {
    const int dayType = m_Schedule.SelectedDayType();
    if (dayType < 0) return ChooseRow(1);
    const PeriodList periods = PeriodsOf(dayType);
    if (periods.empty()) return;
    const auto selected = std::find(periods.begin(), periods.end(), m_Schedule.SelectedPeriod());
    const auto last = static_cast<std::ptrdiff_t>(periods.size()) - 1;
    const std::ptrdiff_t now = selected == periods.end() ? -1 : selected - periods.begin();
    const auto next = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(now + step, 0, last));
    Choose(RowOf(dayType), Middle(*periods[next]));
}

void cScheduleEditor::MoveEnd(QLineEdit& field, int minutes) {
    if (!m_Schedule.SelectedPeriod()) return;
    const int moved =
        std::clamp(TimeTextToMinutes(FromQString(field.text())) + minutes, 0, int{kMinutesOfDay});
    field.setText(ToQString(Digits(moved / 60, 2) + ":" + Digits(moved % 60, 2)));
    Run(tr("moving an end"), &cTimeSchedule::ExtractTimeFromTextboxes);
}

// An hour in the first gap that has room for it, from the morning on, else from midnight on.
void cScheduleEditor::NewPeriod() {
    const int dayType = m_Schedule.SelectedDayType();
    if (dayType < 0) return;
    const PeriodList periods = PeriodsOf(dayType);
    const auto isFree = [&](int start) {
        return std::none_of(periods.begin(), periods.end(), [start](const PeriodPtr& period) {
            return period->m_StartMinute < start + kNewPeriod + kClearance &&
                   period->m_StopMinute > start - kClearance;
        });
    };
    for (int i = 0; i < 24; ++i) {
        const int start = (kFirstHour + i) % 24 * 60;
        if (!isFree(start)) continue;
        const float y = YOf(RowOf(dayType));
        Edit(tr("a new period"), [&] {
            m_Schedule.MouseDown(*this, m_SchedulePaintObject, 1, 0, XOf(start), y);
            m_Schedule.MouseMove(*this, m_SchedulePaintObject, 1, 0, XOf(start + kNewPeriod), y);
            m_Schedule.MouseUp(*this, m_SchedulePaintObject, 1, 0, XOf(start + kNewPeriod), y);
        });
        Refresh();
        return;
    }
    emit Message(tr("The day has no gap for another period."));
}

int cScheduleEditor::RowOf(std::int32_t dayType) const {
    int row = dayType < 0 ? -1 : 0;
    for (std::int32_t i = 0; i < dayType; ++i) row += m_Schedule.GetActive(static_cast<std::int16_t>(i));
    return row;
}

int cScheduleEditor::DayTypeOfRow(int row) const {
    for (std::int16_t i = 0; i < kDayTypes && row >= 0; ++i) {
        if (m_Schedule.GetActive(i) && row-- == 0) return i;
    }
    return -1;
}

// In the order of time, which the schedule's own list need not have.
PeriodList cScheduleEditor::PeriodsOf(std::int32_t dayType) const {
    PeriodList periods;
    std::int16_t start = 0, stop = 0;
    PeriodPtr period;
    while ((period = m_Schedule.GetNextTimePeriod(static_cast<std::int16_t>(dayType), start, stop, period))) {
        periods.push_back(period);
    }
    std::sort(periods.begin(), periods.end(),
              [](const PeriodPtr& a, const PeriodPtr& b) { return a->m_StartMinute < b->m_StartMinute; });
    return periods;
}

// Shows the keyboard's row.
void cScheduleEditor::PaintFocus(QPainter& painter) {
    const int row = RowOf(m_Schedule.SelectedDayType());
    if (row < 0 || !m_Frame.View().hasFocus()) return;
    painter.save();
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
    painter.drawRect(QRectF(0.5, row * kRowHeight + 1.5, kAxisLeft - 2, kRowHeight - 5));
    painter.restore();
}

}  // namespace vigrel
