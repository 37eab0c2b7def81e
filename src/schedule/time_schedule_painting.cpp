#include "common/numbers.h"
#include "schedule/schedule_geometry.h"
#include "schedule/time_schedule.h"

namespace vigrel {
namespace {

constexpr std::int32_t kHourLine = Rgb(148, 148, 148);
constexpr int kAxisRight = kAxisLeft + kAxisWidth;
constexpr int kNameGap = 2;           // between a row's name and the axis
constexpr int kFadeStep = 7;          // of each line of a bar
constexpr int kAxisLight = 220;       // of the uppermost line
constexpr int kPeriodLight = 240;     // the same of a period
constexpr int kSelectedLighter = 64;  // what the selected period adds

void PrintCentred(cPaintObject& paintObject, const std::string& text, double x, double y0) {
    paintObject.SetCurrentPosition(x, y0 + (kBarHeight - paintObject.TextHeight(text)) / 2);
    paintObject.Print(text);
}

void PaintBackground(cPaintObject& paintObject, double y0) {
    for (int i = 0; i < kBarHeight; ++i) {
        const int grey = kAxisLight - i * kFadeStep;
        paintObject.Line(kAxisLeft, y0 + i, kAxisRight, y0 + i, Rgb(grey, grey, grey));
    }
}

void PaintDayName(const cTimeScheduleContainer& parent, cPaintObject& paintObject, std::size_t day,
                  double y0) {
    const std::string& shortName = parent.DayNames().m_ShortNames[day];
    PrintCentred(paintObject, shortName, kAxisLeft - kNameGap - paintObject.TextWidth(shortName), y0);
    if (!parent.Get_Check_TimeSchedule_ViewDayType()) return;
    const std::string& longName = parent.DayNames().m_LongNames[day];
    PrintCentred(paintObject, longName, kAxisLeft + (kAxisWidth - paintObject.TextWidth(longName)) / 2, y0);
}

void PaintDayTypeImage(cTimeScheduleContainer& parent, const cPaintObject& paintObject, std::int32_t dayType,
                       double y0) {
    parent.Draw_ImageList_ListImages(paintObject.GetDeviceContext(),
                                     static_cast<std::int16_t>(dayType - kWeekDays + 1),
                                     kAxisLeft - kNameGap - parent.Get_ImageList_ImageWidth(),
                                     y0 + (kBarHeight - parent.Get_ImageList_ImageHeight()) / 2);
}

void PaintGroupMark(cPaintObject& paintObject, double y0) {
    for (int i = 0; i < 5; ++i) {
        const int grey = 255 - 10 * i;
        paintObject.Line(kAxisRight - 1, y0 + i, kAxisRight - 1 - (5 - i), y0 + i, Rgb(grey, grey, grey));
    }
}

}  // namespace

void cTimeSchedule::RecalculateAndPrepareToPaint(cTimeScheduleContainer& parent,
                                                 cPaintObject*& schedulePaintObject,
                                                 cPaintObject* paintObject) {
    if (schedulePaintObject == nullptr) schedulePaintObject = paintObject;
    parent.Set_VScroll_Schedule_Top(0);
    parent.Set_VScroll_Schedule_Left(parent.Get_Picture_TimeSchedule_Frame_ScaleWidth() -
                                     parent.Get_VScroll_Schedule_Width());
    parent.Set_VScroll_Schedule_Height(parent.Get_Picture_TimeSchedule_Frame_ScaleHeight());
    std::int16_t active = 0;
    for (std::size_t i = 0; i < m_Active.size(); ++i) {
        m_AxisIndex[i] = active;
        if (m_Active[i]) ++active;
    }
    m_NumberOfAxisToPaint = m_UseCalendar == False16 ? kWeekDays : active;
    parent.Set_VScroll_Schedule_Max(
        static_cast<std::int16_t>((m_NumberOfAxisToPaint - kVisibleRows) * kScrollStepsPerRow));
    m_Scale = static_cast<float>(kMinutesOfDay) / 24 / 60;
    parent.Set_Picture_TimeSchedule_Left(0);
    parent.Set_Picture_TimeSchedule_Top(0);
    parent.Set_Picture_TimeSchedule_Width(parent.Get_VScroll_Schedule_Left());
    parent.Set_Picture_TimeSchedule_Height(m_NumberOfAxisToPaint * kRowHeight + 4);
}

void cTimeSchedule::Paint(cTimeScheduleContainer& parent, cPaintObject* paintObject) const {
    if (paintObject == nullptr) return;
    for (int hour = 0; hour <= 24; ++hour) {
        const int x = kAxisLeft + kUnitsPerHour * hour;
        paintObject->Line(x, 0, x, m_NumberOfAxisToPaint * kRowHeight, kHourLine);
    }
    for (int row = 0; row < m_NumberOfAxisToPaint; ++row) {
        const int y = row * kRowHeight + kRowHeight - 1;
        paintObject->Line(kAxisLeft, y, kAxisRight, y, kBlack);
        paintObject->Line(kAxisLeft, y + 1, kAxisRight, y + 1, kWhite);
    }
    for (std::int32_t dayType = 0; dayType < kDayTypes; ++dayType) RepaintRow(parent, paintObject, dayType);
}

void cTimeSchedule::RepaintRow(cTimeScheduleContainer& parent, cPaintObject* paintObject,
                               std::int32_t dayType) const {
    if (paintObject != nullptr && m_Active[DayTypeIndex(dayType)]) PaintAxis(parent, *paintObject, dayType);
}

void cTimeSchedule::PaintAxis(cTimeScheduleContainer& parent, cPaintObject& paintObject,
                              std::int32_t dayType) const {
    const std::size_t day = DayTypeIndex(dayType);
    const double y0 = m_AxisIndex[day] * kRowHeight + kBarTop;
    PaintBackground(paintObject, y0);
    for (const PeriodPtr& period : m_Periods[day]) PaintBar(paintObject, period, y0);
    if (dayType < kWeekDays) {
        PaintDayName(parent, paintObject, day, y0);
    } else {
        PaintDayTypeImage(parent, paintObject, dayType, y0);
    }
    if (m_Grouped[day]) PaintGroupMark(paintObject, y0);
}

void cTimeSchedule::PaintBar(cPaintObject& paintObject, const PeriodPtr& period, double y0) const {
    const double scale = static_cast<double>(m_Scale);
    const double x1 = kAxisLeft + RoundEven(period->m_StartMinute * scale / kMinutesPerUnit);
    const double x2 = kAxisLeft + RoundEven((period->m_StopMinute + 1) * scale / kMinutesPerUnit);
    const int lighter = period == m_SelectedPeriod ? kSelectedLighter : 0;
    for (int i = 0; i < kBarHeight; ++i) {
        paintObject.Line(x1, y0 + i, x2, y0 + i,
                         Rgb(lighter, kPeriodLight - i * kFadeStep + lighter, lighter));
    }
    paintObject.Line(x1, y0, x1, y0 + kBarHeight, kBlack);
    paintObject.Line(x2, y0, x2, y0 + kBarHeight, kBlack);
}

void cTimeSchedule::PaintMarker(cPaintObject* paintObject, std::int32_t minute, std::int32_t row) const {
    if (paintObject == nullptr) return;
    const double x = static_cast<double>(m_Scale) * minute + kAxisLeft;
    const double y = row * kRowHeight + kBarHeight;
    for (int i = 0; i < 5; ++i) paintObject->Line(x - 4 + i, y + i, x + 5 - i, y + i, kBlack);
    paintObject->Line(x, y, x, y + 5, kHourLine);
}

}  // namespace vigrel
