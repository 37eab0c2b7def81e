#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"
#include "editor_ui/calendar/calendar_editor.h"
#include "editor_ui/pages/editor_action.h"
#include "schedule/calendar_geometry.h"
#include "schedule/calendar_year.h"

namespace vigrel {

void cCalendarEditor::MakeActions() {
    m_Actions = {
        MakeAction("HolidaysOfYear", tr("Give the year's &holidays the chosen day type"),
                   QKeySequence("Ctrl+H"), [this] { TakeSelectedType(false); }),
        MakeAction("HolidaysOfAllYears", tr("Give &all years' holidays the chosen day type"), {},
                   [this] { TakeSelectedType(true); }),
        nullptr,
        MakeAction("CopyYear", tr("Cop&y the year to the next"), {}, [this] { CopyYear(); }),
        MakeAction("ClearYear", tr("&Clear the year"), {}, [this] { ClearYear(); }),
    };
    // Beside a profile the window's menu speaks of profiles.
    m_Popup.setObjectName("Menu_CalendarPopup");
    AddEntries(m_Popup, m_Actions);
}

QAction* cCalendarEditor::MakeAction(const char* name, const QString& text, const QKeySequence& keys,
                                     const std::function<void()>& chosen) {
    QAction* action = MakeEditorAction(*this, QString("Menu_Calendar_") + name, text, keys);
    connect(action, &QAction::triggered, this, chosen);
    return action;
}

QList<QAction*> cCalendarEditor::EditActions() const {
    return m_Actions;
}

void cCalendarEditor::ConnectView() {
    m_View.setAccessibleName(tr("Month"));
    m_View.setAccessibleDescription(tr("Arrow keys choose a day, Space paints the day type"));
    m_View.OnPaint = [this](QPainter& painter) {
        m_Calendar.Paint(*this, &m_View.Surface());
        if (!m_IsPrinting) PaintFocus(painter);
    };
    m_View.OnMouseDown = [this](auto... event) { MouseDown(event...); };
    m_View.OnMouseUp = [this](auto... event) { MouseUp(event...); };
    m_View.OnMouseMove = [this](std::int16_t button, std::int16_t shift, QPoint unit) {
        m_Calendar.MouseMove(*this, &m_View.Surface(), button, shift, static_cast<float>(unit.x()),
                             static_cast<float>(unit.y()));
    };
    m_View.OnPopupMenu = [this](QPoint place) { ShowPopupMenu(place); };
    m_View.OnKey = [this](const QKeyEvent& event) { return Key(event); };
}

void cCalendarEditor::ShowPopupMenu(QPoint place) {
    if (!m_Painting) m_Popup.popup(place);
}

// A stroke is one step of undo. It is the left button's.
void cCalendarEditor::MouseDown(std::int16_t button, std::int16_t shift, QPoint unit) {
    if (button != 1 || m_Painting) return;
    m_Painting = true;
    m_Day = DayAt(unit).value_or(m_Day);
    BeginEdit();
    m_Calendar.MouseDown(*this, &m_View.Surface(), button, shift, static_cast<float>(unit.x()),
                         static_cast<float>(unit.y()));
}

void cCalendarEditor::MouseUp(std::int16_t button, std::int16_t shift, QPoint unit) {
    if (button != 1 || !m_Painting) return;
    m_Painting = false;
    m_Calendar.MouseUp(*this, &m_View.Surface(), button, shift, static_cast<float>(unit.x()),
                       static_cast<float>(unit.y()));
    EndEdit(tr("painting days"));
    ForgetPointer();
}

// The last cell of the grid is blank in every month.
void cCalendarEditor::ForgetPointer() {
    m_Calendar.MouseMove(*this, &m_View.Surface(), 0, 0, kGridRight - kCellWidth / 2.0,
                         kGridBottom - kCellHeight / 2.0);
}

bool cCalendarEditor::Key(const QKeyEvent& event) {
    if (m_Painting) return true;
    switch (event.key()) {
        case Qt::Key_Left:
            MoveDay(-1);
            return true;
        case Qt::Key_Right:
            MoveDay(1);
            return true;
        case Qt::Key_Up:
            MoveDay(-kGridColumns);
            return true;
        case Qt::Key_Down:
            MoveDay(kGridColumns);
            return true;
        case Qt::Key_PageUp:
            MoveMonth(-1);
            return true;
        case Qt::Key_PageDown:
            MoveMonth(1);
            return true;
        case Qt::Key_Home:
            ShowToday();
            return true;
        case Qt::Key_Space:
            PaintChosenDay();
            return true;
        default:
            return false;
    }
}

// Over the month's ends into its neighbours.
void cCalendarEditor::MoveDay(int days) {
    const std::int32_t index = m_Calendar.m_ActualMonthOffset + m_Day + days;
    if (index < 0 || index >= kCalendarDays) return;
    const cDateParts date = SplitDateTime(index + kFirstCalendarDay);
    m_Day = date.day - 1;
    if (date.month != m_Calendar.m_SelectedMonth) ShowMonth(date.year, date.month);
    const QPoint cell = CellOf(m_Day);
    m_Calendar.MouseMove(*this, &m_View.Surface(), 0, 0, static_cast<float>(cell.x()),
                         static_cast<float>(cell.y()));
    emit Message(m_View.toolTip());
    Redraw();
}

// The middle of a day's cell.
QPoint cCalendarEditor::CellOf(int day) const {
    const int cell = day + m_Calendar.m_FirstWeekDayInActualMonth;
    return {kGridLeft + cell % kGridColumns * kCellWidth + kCellWidth / 2,
            kGridTop + cell / kGridColumns * kCellHeight + kCellHeight / 2};
}

// The day of the month whose cell that is.
std::optional<int> cCalendarEditor::DayAt(QPoint unit) const {
    if (unit.x() < kGridLeft || unit.x() >= kGridRight || unit.y() < kGridTop) return std::nullopt;
    const int cell = (unit.y() - kGridTop) / kCellHeight * kGridColumns + (unit.x() - kGridLeft) / kCellWidth;
    const int day = cell - m_Calendar.m_FirstWeekDayInActualMonth;
    if (day < 0 || day >= m_Calendar.m_DaysInActualMonth) return std::nullopt;
    return day;
}

void cCalendarEditor::PaintChosenDay() {
    const QPoint cell = CellOf(m_Day);
    MouseDown(1, 0, cell);
    MouseUp(1, 0, cell);
}

// Of the days that are marked in the month, not of those that only have a name.
void cCalendarEditor::TakeSelectedType(bool allYears) {
    if (m_Holidays.m_HolidayLabels.empty()) {
        emit Message(tr("There are no holidays: choose their country, or write your own."));
        return;
    }
    int count = 0;
    Edit(tr("painting holidays"), [&] {
        for (const cHolidayLabel& label : m_Holidays.m_HolidayLabels) {
            if (label.m_ViewInCalendar == False16 || (!allYears && !IsShownYear(label.m_Day))) continue;
            m_Calendar.SetDayType(label.m_Day, ChosenValue());
            ++count;
        }
    });
    Redraw();
    emit Message(tr("Painted holidays: %1 (%2)").arg(count).arg(m_DayTypes.currentItem()->text()));
}

void cCalendarEditor::Clear() {
    Edit(tr("clearing the calendar"), [&] {
        for (std::int32_t i = 0; i < kCalendarDays; ++i) m_Calendar.SetDayType(i, 0);
    });
    Redraw();
}

void cCalendarEditor::ClearYear() {
    Edit(tr("clearing a year"), [&] {
        for (std::int32_t i = 0; i < kCalendarDays; ++i) {
            if (IsShownYear(i)) m_Calendar.SetDayType(i, 0);
        }
    });
    Redraw();
}

void cCalendarEditor::CopyYear() {
    const int year = m_Calendar.m_SelectedYear;
    if (year == kLastCalendarYear) {
        emit Message(tr("%1 is the last year of a calendar: there is none to copy it to.").arg(year));
        return;
    }
    Edit(tr("copying a year"), [&] { CopyToNextYear(m_Calendar, m_Holidays, year); });
    ShowMonth(year + 1, m_Calendar.m_SelectedMonth);
}

bool cCalendarEditor::IsShownYear(std::int32_t day) const {
    return SplitDateTime(day + kFirstCalendarDay).year == m_Calendar.m_SelectedYear;
}

// Shows the keyboard's day.
void cCalendarEditor::PaintFocus(QPainter& painter) {
    if (!m_View.hasFocus()) return;
    const QPoint cell = CellOf(m_Day);
    painter.save();
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
    painter.drawRect(QRectF(cell.x() - kCellWidth / 2.0 + kBoxOffset - 0.5,
                            cell.y() - kCellHeight / 2.0 + kBoxOffset - 0.5, kBoxWidth, kBoxHeight));
    painter.restore();
}

}  // namespace vigrel
