#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "schedule/paint_object.h"

namespace vigrel {

// The names of the weekdays, Monday first. The container fills them, in the desktop's language.
struct cDayNames {
    std::array<std::string, 7> m_ShortNames;
    std::array<std::string, 7> m_LongNames;
};

// What a window shows of day types: the names of the weekdays and a small image for each of the sixteen
// special types, numbered from 1.
class cDayTypeContainer {
  public:
    virtual ~cDayTypeContainer() = default;
    virtual const cDayNames& DayNames() const = 0;
    virtual double Get_ImageList_ImageHeight() const = 0;
    virtual double Get_ImageList_ImageWidth() const = 0;
    // The position is the image's upper left corner.
    virtual void Draw_ImageList_ListImages(DeviceContext context, std::int16_t image, double x, double y) = 0;
};

// The window around the view of a time schedule. Lengths are in units of the drawing (paint_object.h).
class cTimeScheduleContainer : public cDayTypeContainer {
  public:
    // Whether the rows show the long names of the weekdays.
    virtual bool Get_Check_TimeSchedule_ViewDayType() const = 0;
    virtual bool Get_Menu_TimeSchedulePopup_Grouped_MonFri_Checked() const = 0;
    // Inside of the frame around the view and its scroll bar.
    virtual double Get_Picture_TimeSchedule_Frame_ScaleHeight() const = 0;
    virtual double Get_Picture_TimeSchedule_Frame_ScaleWidth() const = 0;
    virtual std::string Get_Text_Schedule_Period_Start() const = 0;
    virtual std::string Get_Text_Schedule_Period_Stop() const = 0;
    virtual double Get_VScroll_Schedule_Left() const = 0;
    virtual double Get_VScroll_Schedule_Width() const = 0;

    virtual void Set_Menu_TimeSchedulePopup_Delete_Enabled(bool enabled) = 0;
    virtual void Set_Menu_TimeSchedulePopup_Grouped_Checked(bool checked) = 0;
    virtual void Set_Menu_TimeSchedulePopup_Grouped_MonFri_Checked(bool checked) = 0;
    virtual void Set_Menu_TimeSchedulePopup_Paste_Enabled(bool enabled) = 0;
    virtual void Set_Picture_TimeSchedule_Height(double height) = 0;
    virtual void Set_Picture_TimeSchedule_Left(double left) = 0;
    virtual void Set_Picture_TimeSchedule_Top(double top) = 0;
    virtual void Set_Picture_TimeSchedule_Width(double width) = 0;
    virtual void Set_Text_Schedule_Period_Start(std::string_view text) = 0;
    virtual void Set_Text_Schedule_Period_Stop(std::string_view text) = 0;
    // The time under the pointer.
    virtual void Set_Text_Schedule_Time(std::string_view text) = 0;
    virtual void Set_VScroll_Schedule_Height(double height) = 0;
    virtual void Set_VScroll_Schedule_Left(double left) = 0;
    // Four steps for each row that doesn't fit; below 0 when there is room for more rows.
    virtual void Set_VScroll_Schedule_Max(std::int16_t max) = 0;
    virtual void Set_VScroll_Schedule_Top(double top) = 0;
};

// The window around the month of a calendar.
class cCalendarContainer : public cDayTypeContainer {
  public:
    // The text of the entry selected in the list of day types, or none. Entry 1 stands for "no special type",
    // entry k for the calendar value k - 1.
    virtual std::optional<std::string> Get_Combo_Calendar_DayType_SelectedItem() const = 0;
    // Its number, from 1.
    virtual std::int16_t Get_Combo_Calendar_DayType_SelectedItem_Index() const = 0;
    // The text of an entry, the day type's name. A number that the list lacks throws cFailure.
    virtual std::string Get_Combo_Calendar_DayType_ComboItems(std::int16_t number) const = 0;
    virtual void Set_Text_Calendar_Month(std::string_view text) = 0;
};

}  // namespace vigrel
