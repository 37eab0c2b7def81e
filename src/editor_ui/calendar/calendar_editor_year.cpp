#include <set>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"
#include "editor_ui/calendar/calendar_editor.h"

namespace vigrel {
namespace {

constexpr QSize kSmallestYear(370, 250);
constexpr QSizeF kPaperYear(4, 3), kPaperMonth(318, 176);

}  // namespace

void cCalendarEditor::ConnectYear() {
    m_YearView.setMinimumSize(kSmallestYear);
    m_YearView.setAccessibleName(tr("Year"));
    m_YearView.setAccessibleDescription(m_View.accessibleDescription());
    m_YearView.OnPaint = [this](QPainter& painter) { PaintYear(painter); };
    m_YearView.OnMouseDown = [this](std::int16_t button, std::int16_t, QPoint place) {
        if (button == 1 && !m_Painting) PaintInYear(place);
    };
    m_YearView.OnMouseMove = [this](std::int16_t, std::int16_t, QPoint place) { YearMouseMove(place); };
    m_YearView.OnMouseUp = [this](auto... event) { MouseUp(event...); };
    m_YearView.OnPopupMenu = [this](QPoint place) { ShowPopupMenu(place); };
    m_YearView.OnKey = [this](const QKeyEvent& event) { return Key(event); };
}

void cCalendarEditor::ShowYear(bool year) {
    FinishStroke();
    m_Stack.setCurrentIndex(year ? 1 : 0);
    setFocusProxy(year ? &m_YearView : &m_View);
    m_MonthNames.setEnabled(!year);
    ShowMonth(m_Calendar.m_SelectedYear, m_Calendar.m_SelectedMonth);
}

cYearDrawing cCalendarEditor::YearDrawing() const {
    return {QRectF(m_YearView.rect()).adjusted(0, 0, -1, -1), m_Calendar.m_SelectedYear};
}

cYearDrawing::cSource cCalendarEditor::YearSource() const {
    return {m_Calendar, m_Holidays, m_Services.m_Forms, m_Services.m_DayTypeNames};
}

void cCalendarEditor::PaintYear(QPainter& painter) {
    const cYearDrawing drawing = YearDrawing();
    drawing.Paint(painter, YearSource());
    if (!m_YearView.hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(drawing.CellOf(m_Calendar.m_ActualMonthOffset + m_Day));
}

// Begins a stroke, which is one step of undo, as in the month.
void cCalendarEditor::PaintInYear(QPoint place) {
    m_Painting = true;
    BeginEdit();
    if (const auto day = YearDrawing().DayAt(place)) {
        const cDateParts date = SplitDateTime(*day + kFirstCalendarDay);
        m_Day = date.day - 1;
        if (date.month != m_Calendar.m_SelectedMonth) ShowMonth(date.year, date.month);
        SetPaintedDay(*day);
    }
}

void cCalendarEditor::YearMouseMove(QPoint place) {
    const auto day = YearDrawing().DayAt(place);
    m_YearView.setToolTip(day ? TipOf(*day) : QString());
    if (day && m_Painting) SetPaintedDay(*day);
}

void cCalendarEditor::SetPaintedDay(std::int32_t day) {
    m_Calendar.SetDayType(day, ChosenValue());
    Redraw();
}

// The date, its day type and its holiday.
QString cCalendarEditor::TipOf(std::int32_t day) const {
    QString tip = ToQString(FormatDateTime(day + kFirstCalendarDay, "yyyy\\-mm\\-dd", {}));
    const std::int16_t value = m_Calendar.GetDayType(day);
    if (value > 0 && value <= kDayTypes)
        tip += ": " + ToQString(m_Services.m_DayTypeNames.Entry(static_cast<std::int16_t>(value + 1)));
    const cHolidayLabel* label = m_Holidays.LabelOf(day);
    return label == nullptr ? tip : tip + " (" + ToQString(label->m_Label) + ")";
}

void cCalendarEditor::Redraw() {
    m_View.update();
    m_YearView.update();
}

std::optional<cPrintout> cCalendarEditor::Printout() {
    if (ShowsYear()) {
        return cPrintout{QString::number(m_Calendar.m_SelectedYear),
                         kPaperYear,
                         [this](QPainter& painter, const QRectF& place) {
                             cYearDrawing(place, m_Calendar.m_SelectedYear).Paint(painter, YearSource());
                         },
                         {}};
    }
    return cPrintout{m_Month.text(), kPaperMonth,
                     [this](QPainter& painter, const QRectF& place) {
                         painter.save();
                         painter.translate(place.topLeft());
                         const double scale = place.width() / m_View.width();
                         painter.scale(scale, scale);
                         m_IsPrinting = true;
                         m_View.render(&painter, {}, {}, QWidget::DrawWindowBackground);
                         m_IsPrinting = false;
                         painter.restore();
                     },
                     LegendOfMonth()};
}

// Of the special day types that the month has.
QList<cPrintout::cSign> cCalendarEditor::LegendOfMonth() const {
    std::set<std::int16_t> used;
    for (std::int32_t day = 0; day < m_Calendar.m_DaysInActualMonth; ++day)
        used.insert(m_Calendar.GetDayType(m_Calendar.m_ActualMonthOffset + day));
    QList<cPrintout::cSign> legend;
    for (const std::int16_t value : used) {
        if (value > kWeekDays && value <= kDayTypes)
            legend.append(SignOf(static_cast<std::int16_t>(value - 1), m_Services));
    }
    return legend;
}

}  // namespace vigrel
