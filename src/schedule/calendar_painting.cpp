#include "common/dates.h"
#include "common/numbers.h"
#include "common/text.h"
#include "common/text_ids.h"
#include "schedule/calendar.h"
#include "schedule/calendar_geometry.h"

namespace vigrel {
namespace {

constexpr std::int32_t kBarEnd = Rgb(128, 128, 128);
constexpr int kHeadingRoom = 4;  // more than the height of a line
constexpr int kNumberGap = 2;    // between a week's number and the grid
constexpr int kBandWidth = 14;
constexpr int kBandHeightWithAxis = 16;
constexpr int kBandStep = 3;
constexpr int kHolidayLight = 192;
constexpr int kTodayLight = 255;
constexpr int kAxisLines = 5;
constexpr int kAxisTop = kBoxHeight - kAxisLines;
constexpr int kSunday = 6;

// The lines of the grid in one colour, moved by a unit for the light ones.
void PaintGrid(cPaintObject& paintObject, double top, int moved, std::int32_t colour) {
    for (int i = 0; i <= kGridColumns; ++i) {
        const int x = i * kCellWidth + kGridLeft + moved;
        paintObject.Line(x, top + moved, x, kGridBottom + moved, colour);
    }
    for (int i = 0; i <= kGridRows; ++i) {
        const int y = i * kCellHeight + kGridTop + moved;
        paintObject.Line(kGridLeft + moved, y, kGridRight + moved, y, colour);
    }
    paintObject.Line(kGridLeft + moved, top + moved, kGridRight + moved, top + moved, colour);
}

bool IsSpecial(std::int16_t value) {
    return value > kWeekDays && value <= kDayTypes;
}

}  // namespace

int cCalendar::BandHeight() const {
    return m_ShowTimeAxis != False16 ? kBandHeightWithAxis : kBoxHeight;
}

void cCalendar::Paint(cCalendarContainer& parent, cPaintObject* paintObject) const {
    if (paintObject == nullptr) return;
    PaintFrame(*paintObject);
    PaintHeadings(*paintObject);
    parent.Set_Text_Calendar_Month(
        FormatDateTime(DateSerial(m_SelectedYear, m_SelectedMonth, 1), "mmmm yyyy", m_Surroundings.m_Forms));
    PaintWeekNumbers(*paintObject);
    for (std::int32_t day = 0; day < m_DaysInActualMonth; ++day) PaintDateBox(parent, paintObject, day);
}

// Light lines under black ones that lie up and left of them make the grid look raised.
void cCalendar::PaintFrame(cPaintObject& paintObject) const {
    const double top = kGridTop - paintObject.TextHeight("8") - kHeadingRoom;
    PaintGrid(paintObject, top, 1, kWhite);
    PaintGrid(paintObject, top, 0, kBlack);
}

void cCalendar::PaintHeadings(cPaintObject& paintObject) const {
    for (int column = 0; column < kGridColumns; ++column) {
        const std::string heading = Mid(m_Surroundings.GetText(TextMonday + column), 1, 3);
        const double x = kGridLeft + column * kCellWidth + (kCellWidth - paintObject.TextWidth(heading)) / 2;
        paintObject.SetCurrentPosition(x, kGridTop - paintObject.TextHeight("8") - kHeadingRoom / 2.0);
        paintObject.Print(heading);
    }
}

// Every row has a number, also where its date rolls into the next month. A number takes the place of as many
// digits 8.
void cCalendar::PaintWeekNumbers(cPaintObject& paintObject) const {
    const double digitWidth = paintObject.TextWidth("88") / 2;
    const double y = kGridTop + (kCellHeight - paintObject.TextHeight("A")) / 2;
    for (int row = 0; row < kGridRows; ++row) {
        const std::string number =
            Digits(WeekOfYear(DateSerial(m_SelectedYear, m_SelectedMonth, row * 7 + 1),
                              m_Surroundings.m_Forms.firstDayOfWeek, m_Surroundings.m_Forms.firstWeekOfYear),
                   1);
        paintObject.SetCurrentPosition(
            kGridLeft - kNumberGap - digitWidth * static_cast<double>(number.size()), y + row * kCellHeight);
        paintObject.Print(number);
    }
}

void cCalendar::PaintDateBox(cCalendarContainer& parent, cPaintObject* paintObject, std::int32_t day) const {
    if (paintObject == nullptr) return;
    const std::int32_t cell = day + m_FirstWeekDayInActualMonth;
    const std::int32_t column = cell % kGridColumns, row = cell / kGridColumns;
    const double x = column * kCellWidth + kGridLeft + kBoxOffset;
    const double y = row * kCellHeight + kGridTop + kBoxOffset;
    paintObject->FillBox(x, y, x + kBoxWidth, y + kBoxHeight, paintObject->BackColour());
    PaintBands(*paintObject, day, x, y);
    paintObject->SetCurrentPosition(x, y);
    paintObject->Print(Digits(day + 1, 1));
    PaintDayType(parent, *paintObject, GetDayType(m_ActualMonthOffset + day), x, y);
    PaintTimeAxis(*paintObject, day, x, y);
}

// Red for Sundays and holidays; today's green lies over it.
void cCalendar::PaintBands(cPaintObject& paintObject, std::int32_t day, double x, double y) const {
    const std::int32_t index = m_ActualMonthOffset + day;
    const cHolidayLabel* label = m_Surroundings.m_Holidays.LabelOf(index);
    const bool holiday = label != nullptr && label->m_ViewInCalendar != False16;
    const bool sunday = (day + m_FirstWeekDayInActualMonth) % 7 == kSunday;
    for (int i = 0; i < BandHeight() && (sunday || holiday); ++i) {
        const int light = kHolidayLight - i * kBandStep;
        paintObject.Line(x, y + i, x + kBandWidth, y + i, Rgb(255, light, light));
    }
    for (int i = 0; i < BandHeight() && index == m_TodaysDayOffset; ++i) {
        paintObject.Line(x, y + i, x + kBandWidth, y + i, Rgb(0, kTodayLight - i * kBandStep, 0));
    }
}

// The image stands in the middle of the box's right half, clear of the day's number and of the time axis.
void cCalendar::PaintDayType(cCalendarContainer& parent, cPaintObject& paintObject, std::int16_t value,
                             double x, double y) const {
    if (value >= 1 && value <= kWeekDays) {
        const std::string& name = parent.DayNames().m_ShortNames[static_cast<std::size_t>(value) - 1];
        paintObject.SetCurrentPosition(x + kBoxWidth - paintObject.TextWidth(name), y);
        paintObject.Print(name);
    } else if (IsSpecial(value)) {
        parent.Draw_ImageList_ListImages(paintObject.GetDeviceContext(),
                                         static_cast<std::int16_t>(value - kWeekDays),
                                         x + kBoxWidth * 0.75 - parent.Get_ImageList_ImageWidth() / 2,
                                         y + (BandHeight() - parent.Get_ImageList_ImageHeight()) / 2);
    }
}

void cCalendar::PaintTimeAxis(cPaintObject& paintObject, std::int32_t day, double x, double y) const {
    if (m_ShowTimeAxis == False16 || m_AssociatedTimeSchedule == nullptr) return;
    const double top = y + kAxisTop;
    for (int i = 0; i < kAxisLines; ++i) {
        const int grey = 220 - i * 20;
        paintObject.Line(x, top + i, x + kBoxWidth, top + i, Rgb(grey, grey, grey));
    }
    const std::int16_t dayType = ResolveDayType(m_ActualMonthOffset + day, *m_AssociatedTimeSchedule);
    std::int16_t start = 0, stop = 0;
    PeriodPtr period;
    while ((period = m_AssociatedTimeSchedule->GetNextTimePeriod(dayType, start, stop, period))) {
        const double x1 = x + static_cast<double>(start) * kBoxWidth / kMinutesOfDay;
        const double x2 = x + static_cast<double>(stop) * kBoxWidth / kMinutesOfDay;
        for (int i = 0; i < kAxisLines; ++i) {
            paintObject.Line(x1, top + i, x2, top + i, Rgb(0, 240 - i * 19, 0));
        }
        paintObject.Line(x1, top, x1, top + kAxisLines, kBarEnd);
        paintObject.Line(x2, top, x2, top + kAxisLines, kBarEnd);
    }
}

}  // namespace vigrel
