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
    painter.setPen(Qt::black);
    int place = 0;
    for (const std::int16_t value : used) {
        const cLegend legend = LegendAt(place++, static_cast<int>(used.size()));
        painter.fillRect(legend.box, ColourOf(value));
        painter.drawRect(legend.box);
        const QString name = ToQString(source.names.Entry(static_cast<std::int16_t>(value + 1)));
        painter.drawText(
            legend.name, Qt::AlignVCenter,
            painter.fontMetrics().elidedText(name, Qt::ElideMiddle, static_cast<int>(legend.name.width())));
    }
}

// In columns, as wide as there are types: few have room for long names, and of many none is left out.
cYearDrawing::cLegend cYearDrawing::LegendAt(int place, int of) const {
    const int columns = std::max((of + kLegendLines - 1) / kLegendLines, kMonthsBesideEachOther);
    const double height = m_Area.height() * kLegendShare, line = height / kLegendLines;
    const double width = m_Area.width() / columns, gap = m_Area.width() / kMonthsBesideEachOther * kGap;
    const int column = place / kLegendLines, row = place % kLegendLines;
    const QRectF cell(m_Area.left() + column * width, m_Area.bottom() - height + row * line, width, line);
    const QRectF sample = cell.adjusted(gap, line * 0.15, 0, -line * 0.15);
    const QRectF box(sample.topLeft(), QSizeF(sample.height() * 1.5, sample.height()));
    // The letters may be higher than the line.
    return {box, sample.adjusted(box.width() * 1.3, -line, 0, line)};
}

}  // namespace vigrel
