#include "editor_ui/calendar/year_drawing.h"

#include <QFontMetricsF>
#include <algorithm>
#include <set>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"

namespace vigrel {
namespace {

constexpr int kMonthsBesideEachOther = 4, kMonthRows = 3, kMonths = 12;
// The month's name, the heads of the weekdays, six weeks.
constexpr int kRows = 8, kHeadRow = 1, kFirstWeekRow = 2, kColumns = 7;
constexpr double kLegendShare = 0.1;  // of the area's height
constexpr double kGap = 0.04;         // of a month's place, on each side
constexpr int kSunday = 6;
constexpr int kLegendLines = 3;

bool IsMarked(const cYearDrawing::cSource& source, std::int32_t day) {
    const cHolidayLabel* label = source.holidays.LabelOf(day);
    return WeekDayOfIndex(day) == kSunday || (label != nullptr && label->m_ViewInCalendar != False16);
}

}  // namespace

cYearDrawing::cYearDrawing(const QRectF& area, int year)
    : m_Area(area),
      m_First(CalendarIndex(DateSerial(year, 1, 1))),
      m_End(CalendarIndex(DateSerial(year + 1, 1, 1))) {}

// Sixteen hues far from each other, light enough for black figures. The types that are like weekdays are
// greys.
QColor cYearDrawing::ColourOf(std::int16_t value) {
    if (value <= 0 || value > kDayTypes) return Qt::white;
    if (value <= kWeekDays) return QColor::fromHsl(0, 0, 225 - value * 6);
    const int type = value - kWeekDays - 1;
    return QColor::fromHsl(type * 67 % 360, type % 2 == 0 ? 230 : 150, type % 2 == 0 ? 170 : 200);
}

QRectF cYearDrawing::MonthArea(int month) const {
    const double width = m_Area.width() / kMonthsBesideEachOther;
    const double height = m_Area.height() * (1 - kLegendShare) / kMonthRows;
    const int place = month - 1;
    const int row = place / kMonthsBesideEachOther;
    const int column = place % kMonthsBesideEachOther;
    const QRectF whole(m_Area.left() + column * width, m_Area.top() + row * height, width, height);
    return whole.adjusted(width * kGap, height * kGap, -width * kGap, -height * kGap);
}

QRectF cYearDrawing::Cell(int month, int row, int column) const {
    const QRectF area = MonthArea(month);
    const double width = area.width() / kColumns, height = area.height() / kRows;
    return {area.left() + column * width, area.top() + row * height, width, height};
}

QRectF cYearDrawing::CellOf(std::int32_t day) const {
    const cDateParts date = SplitDateTime(day + kFirstCalendarDay);
    const std::int32_t first = day - (date.day - 1);
    const int place = date.day - 1 + WeekDayOfIndex(first);
    return Cell(date.month, kFirstWeekRow + place / kColumns, place % kColumns);
}

std::optional<std::int32_t> cYearDrawing::DayAt(QPointF place) const {
    for (std::int32_t day = m_First; day < m_End; ++day) {
        if (CellOf(day).contains(place)) return day;
    }
    return std::nullopt;
}

void cYearDrawing::Paint(QPainter& painter, const cSource& source) const {
    painter.save();
    painter.fillRect(m_Area, Qt::white);
    const QRectF cell = Cell(1, 0, 0);
    QFont font = painter.font();
    font.setPixelSize(std::max(static_cast<int>(std::min(cell.height() * 0.75, cell.width() * 0.55)), 1));
    painter.setFont(font);
    painter.setPen(Qt::black);
    for (int month = 1; month <= kMonths; ++month) PaintMonth(painter, source, month);
    for (std::int32_t day = m_First; day < m_End; ++day) PaintDay(painter, source, day);
    PaintLegend(painter, source);
    painter.restore();
}

void cYearDrawing::PaintMonth(QPainter& painter, const cSource& source, int month) const {
    QFont bold = painter.font();
    const QFont usual = bold;
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(Cell(month, 0, 0).united(Cell(month, 0, kColumns - 1)), Qt::AlignCenter,
                     ToQString(source.forms.monthNames[static_cast<std::size_t>(month - 1)]));
    painter.setFont(usual);
    for (int column = 0; column < kColumns; ++column) {
        const std::string& name = source.names.DayNames().m_ShortNames[static_cast<std::size_t>(column)];
        painter.drawText(Cell(month, kHeadRow, column), Qt::AlignCenter, ToQString(name.substr(0, 2)));
    }
}

void cYearDrawing::PaintDay(QPainter& painter, const cSource& source, std::int32_t day) const {
    const QRectF cell = CellOf(day);
    painter.fillRect(cell, ColourOf(source.calendar.GetDayType(day)));
    painter.setPen(QColor(190, 190, 190));
    painter.drawRect(cell);
    painter.setPen(IsMarked(source, day) ? QColor(176, 0, 0) : QColor(Qt::black));
    painter.drawText(cell, Qt::AlignCenter, QString::number(SplitDateTime(day + kFirstCalendarDay).day));
}

// Of the day types that the year has, in columns.
void cYearDrawing::PaintLegend(QPainter& painter, const cSource& source) const {
    std::set<std::int16_t> used;
    for (std::int32_t day = m_First; day < m_End; ++day) used.insert(source.calendar.GetDayType(day));
    used.erase(0);
    const double height = m_Area.height() * kLegendShare;
    const double line = height / kLegendLines;
    constexpr int kLegendColumns = (kDayTypes + kLegendLines - 1) / kLegendLines;
    const double width = m_Area.width() / kLegendColumns;
    const double perColumn = std::max(width, m_Area.width() / kMonthsBesideEachOther);
    int place = 0;
    painter.setPen(Qt::black);
    for (const std::int16_t value : used) {
        const int column = place / kLegendLines;
        const int row = place % kLegendLines;
        const QRectF cell(m_Area.left() + column * perColumn, m_Area.bottom() - height + row * line,
                          perColumn, line);
        if (cell.right() > m_Area.right() + 1) break;
        const QRectF sample = cell.adjusted(perColumn * kGap, line * 0.15, 0, -line * 0.15);
        const QRectF box(sample.topLeft(), QSizeF(sample.height() * 1.5, sample.height()));
        painter.fillRect(box, ColourOf(value));
        painter.drawRect(box);
        painter.drawText(sample.adjusted(box.width() * 1.3, -line, 0, line), Qt::AlignVCenter,
                         ToQString(source.names.Entry(static_cast<std::int16_t>(value + 1))));
        ++place;
    }
}

}  // namespace vigrel
