#pragma once

#include <QPainter>
#include <QRectF>
#include <cstdint>
#include <optional>

#include "editor_ui/drawing/day_type_names.h"
#include "schedule/calendar.h"
#include "schedule/holidays.h"

namespace vigrel {

// Twelve months of a year in an area of any size, four beside each other, and under them what the colours
// mean. Lengths are in units of the area.
class cYearDrawing {
  public:
    cYearDrawing(const QRectF& area, int year);

    // The cell of a day of the year, by its index in the calendar.
    QRectF CellOf(std::int32_t day) const;
    // The day whose cell holds a place.
    std::optional<std::int32_t> DayAt(QPointF place) const;

    // The place of a type in the legend, from 0, of so many: the box of its colour and its name.
    struct cLegend {
        QRectF box, name;
    };
    cLegend LegendAt(int place, int of) const;

    struct cSource {
        const cCalendar& calendar;
        const cHolidays& holidays;
        const cLocaleForms& forms;
        const cDayTypeNames& names;
    };
    void Paint(QPainter& painter, const cSource& source) const;

    // The ground of a day by its value in the calendar; white for 0.
    static QColor ColourOf(std::int16_t value);

  private:
    QRectF MonthArea(int month) const;  // 1 to 12
    QRectF Cell(int month, int row, int column) const;
    void PaintMonth(QPainter& painter, const cSource& source, int month) const;
    void PaintDay(QPainter& painter, const cSource& source, std::int32_t day) const;
    void PaintLegend(QPainter& painter, const cSource& source) const;
    bool IsOfYear(std::int32_t day) const { return day >= m_First && day < m_End; }

    QRectF m_Area;
    std::int32_t m_First, m_End;  // the year's days
};

}  // namespace vigrel
