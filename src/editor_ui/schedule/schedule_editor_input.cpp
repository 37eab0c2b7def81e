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

constexpr std::int16_t kRightButton = 2;
constexpr int kNewPeriod = 60;  // minutes
constexpr int kClearance = 15;  // of a new period from the others, so that it doesn't grab their ends
constexpr int kFirstHour = 8;   // where a new period is tried first

float XOf(int minute) {
    return kAxisLeft + static_cast<float>(minute) / kMinutesPerUnit;
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
    if (button == kRightButton) ChooseAt(unit);
    m_Frame.View().update();
    Refresh();
}

// The schedule itself lets a right press choose the day only; a menu that opens over a period speaks of it.
void cScheduleEditor::ChooseAt(QPoint unit) {
    const bool overName = unit.x() < kAxisLeft;
    const auto place = m_Schedule.PositionAt(overName ? kAxisLeft : static_cast<float>(unit.x()),
                                             static_cast<float>(unit.y()));
    const auto dayType = place ? m_Schedule.DayTypeOfRow(place->row) : std::nullopt;
    if (!dayType) return m_Schedule.ClearSelection(*this);
    const PeriodList periods = overName ? PeriodList{} : PeriodsOf(*dayType);
    const auto under = std::find_if(periods.begin(), periods.end(), [&](const PeriodPtr& period) {
        return period->m_StartMinute <= place->minute && place->minute <= period->m_StopMinute;
    });
    m_Schedule.Select(*this, *dayType, under == periods.end() ? nullptr : *under);
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

// Choosing changes nothing, whatever days of a group differ in.
void cScheduleEditor::Choose(std::int32_t dayType, const PeriodPtr& period) {
    m_Schedule.Select(*this, dayType, period);
    m_Frame.ShowRow(RowOf(dayType));
    m_Frame.View().update();
    Refresh();
}

void cScheduleEditor::ChooseRow(int step) {
    if (ShownRows() == 0) return;
    ChooseRowAgain(std::clamp(RowOf(m_Schedule.SelectedDayType()) + step, 0, ShownRows() - 1));
}

// Selects a row and its first period, if any.
void cScheduleEditor::ChooseRowAgain(int row) {
    const auto dayType = m_Schedule.DayTypeOfRow(row);
    if (!dayType || row >= ShownRows()) return;
    const PeriodList periods = PeriodsOf(*dayType);
    Choose(*dayType, periods.empty() ? nullptr : periods.front());
}

void cScheduleEditor::ChoosePeriod(int step) {
    const int dayType = m_Schedule.SelectedDayType();
    if (dayType < 0) return ChooseRow(1);
    const PeriodList periods = PeriodsOf(dayType);
    if (periods.empty()) return;
    const auto selected = std::find(periods.begin(), periods.end(), m_Schedule.SelectedPeriod());
    const auto last = static_cast<std::ptrdiff_t>(periods.size()) - 1;
    const std::ptrdiff_t now = selected == periods.end() ? -1 : selected - periods.begin();
    Choose(dayType, periods[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(now + step, 0, last))]);
}

void cScheduleEditor::MoveEnd(QLineEdit& field, int minutes) {
    const PeriodPtr period = m_Schedule.SelectedPeriod();
    if (!period) return;
    Edit(tr("moving an end"), [&] {
        // The other end stays as the schedule has it, whatever was left half typed.
        m_Typed.erase(TypedName(m_Schedule.SelectedDayType(), *period));
        TakeBackTyping();
        const int moved =
            std::clamp(TimeTextToMinutes(FromQString(field.text())) + minutes, 0, int{kMinutesOfDay});
        field.setText(ToQString(Digits(moved / 60, 2) + ":" + Digits(moved % 60, 2)));
        m_Schedule.ExtractTimeFromTextboxes(*this, m_SchedulePaintObject);
    });
    m_Frame.View().update();
    Refresh();
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

// Without special day types there is room for seven rows, whatever is active.
int cScheduleEditor::ShownRows() const {
    return std::min(RowOf(kDayTypes), int{m_Schedule.m_NumberOfAxisToPaint});
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
