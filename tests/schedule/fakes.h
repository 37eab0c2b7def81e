#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "common/failure.h"
#include "common/numbers.h"
#include "schedule/containers.h"
#include "schedule/paint_object.h"
#include "support/transcript.h"

namespace vigrel::testing {

inline std::string ColourText(std::int32_t colour) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", static_cast<unsigned>(colour) & 0xFFu,
                  static_cast<unsigned>(colour) >> 8 & 0xFFu, static_cast<unsigned>(colour) >> 16 & 0xFFu);
    return text;
}

inline std::string Numbers(std::initializer_list<double> values) {
    std::string text;
    for (const double value : values) text += " " + NumberText(value);
    return text;
}

// Notes what is drawn as a list of primitives. Each character is 6 wide and 13 high.
class cFakePaintObject : public cPaintObject {
  public:
    explicit cFakePaintObject(cTranscript& transcript) : m_Transcript(transcript) {}

    void Line(double x1, double y1, double x2, double y2, std::int32_t colour) override {
        m_Transcript.Add("line" + Numbers({x1, y1, x2, y2}) + " " + ColourText(colour));
    }
    void FillBox(double x1, double y1, double x2, double y2, std::int32_t colour) override {
        m_Transcript.Add("box" + Numbers({x1, y1, x2, y2}) + " " + ColourText(colour));
    }
    double TextWidth(std::string_view text) const override { return 6 * static_cast<double>(text.size()); }
    double TextHeight(std::string_view) const override { return 13; }
    void SetCurrentPosition(double x, double y) override { m_X = x, m_Y = y; }
    void Print(std::string_view text) override {
        m_Transcript.Add("print" + Numbers({m_X, m_Y}) + " " + std::string(text));
    }
    std::int32_t BackColour() const override { return Rgb(240, 240, 240); }
    void SetMousePointer(eMousePointer pointer) override {
        m_Transcript.Add("pointer " + std::to_string(static_cast<int>(pointer)));
    }
    void SetToolTipText(std::string_view text) override { m_ToolTip = text; }
    DeviceContext GetDeviceContext() const override { return 77; }

    std::string m_ToolTip;

  private:
    cTranscript& m_Transcript;
    double m_X = 0, m_Y = 0;
};

// The names and images of both containers.
template <class Port>
class cFakeDayTypes : public Port {
  public:
    explicit cFakeDayTypes(cTranscript& transcript) : m_Transcript(transcript) {}
    const cDayNames& DayNames() const override { return m_DayNames; }
    double Get_ImageList_ImageHeight() const override { return 16; }
    double Get_ImageList_ImageWidth() const override { return 16; }
    void Draw_ImageList_ListImages(DeviceContext context, std::int16_t image, double x, double y) override {
        m_Transcript.Add("image " + std::to_string(context) + " " + std::to_string(image) + Numbers({x, y}));
    }

    cDayNames m_DayNames{{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"},
                         {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}};

  protected:
    cTranscript& m_Transcript;
};

class cFakeScheduleContainer : public cFakeDayTypes<cTimeScheduleContainer> {
  public:
    using cFakeDayTypes::cFakeDayTypes;
    bool Get_Check_TimeSchedule_ViewDayType() const override { return m_ViewDayType; }
    bool Get_Menu_TimeSchedulePopup_Grouped_MonFri_Checked() const override { return m_MonFriChecked; }
    double Get_Picture_TimeSchedule_Frame_ScaleHeight() const override { return 179; }
    double Get_Picture_TimeSchedule_Frame_ScaleWidth() const override { return 340; }
    std::string Get_Text_Schedule_Period_Start() const override { return m_Start; }
    std::string Get_Text_Schedule_Period_Stop() const override { return m_Stop; }
    double Get_VScroll_Schedule_Left() const override { return m_ScrollLeft; }
    double Get_VScroll_Schedule_Width() const override { return 17; }

    void Set_Menu_TimeSchedulePopup_Delete_Enabled(bool on) override { Note("delete enabled", on); }
    void Set_Menu_TimeSchedulePopup_Grouped_Checked(bool on) override { Note("grouped checked", on); }
    void Set_Menu_TimeSchedulePopup_Grouped_MonFri_Checked(bool on) override {
        m_MonFriChecked = on;
        Note("monfri checked", on);
    }
    void Set_Menu_TimeSchedulePopup_Paste_Enabled(bool on) override { Note("paste enabled", on); }
    void Set_Picture_TimeSchedule_Height(double height) override { Note("view height", height); }
    void Set_Picture_TimeSchedule_Left(double left) override { Note("view left", left); }
    void Set_Picture_TimeSchedule_Top(double top) override { Note("view top", top); }
    void Set_Picture_TimeSchedule_Width(double width) override { Note("view width", width); }
    void Set_Text_Schedule_Period_Start(std::string_view text) override { m_Start = text; }
    void Set_Text_Schedule_Period_Stop(std::string_view text) override { m_Stop = text; }
    void Set_Text_Schedule_Time(std::string_view text) override { m_Time = text; }
    void Set_VScroll_Schedule_Height(double height) override { Note("scroll height", height); }
    void Set_VScroll_Schedule_Left(double left) override {
        m_ScrollLeft = left;
        Note("scroll left", left);
    }
    void Set_VScroll_Schedule_Max(std::int16_t max) override { Note("scroll max", max); }
    void Set_VScroll_Schedule_Top(double top) override { Note("scroll top", top); }

    bool m_ViewDayType = false, m_MonFriChecked = false;
    double m_ScrollLeft = 0;
    std::string m_Start = "?", m_Stop = "?", m_Time = "?";

  private:
    void Note(const std::string& what, double value) { m_Transcript.Add(what + Numbers({value})); }
};

// The list of day types holds "none", Monday to Sunday and "type 1" to "type 16".
class cFakeCalendarContainer : public cFakeDayTypes<cCalendarContainer> {
  public:
    using cFakeDayTypes::cFakeDayTypes;
    std::optional<std::string> Get_Combo_Calendar_DayType_SelectedItem() const override {
        if (m_Selected == 0) return std::nullopt;
        return Get_Combo_Calendar_DayType_ComboItems(m_Selected);
    }
    std::int16_t Get_Combo_Calendar_DayType_SelectedItem_Index() const override { return m_Selected; }
    std::string Get_Combo_Calendar_DayType_ComboItems(std::int16_t number) const override {
        if (number < 1 || number > 24) throw cFailure(eFailure::OutOfBounds, "no such entry");
        if (number == 1) return "none";
        const auto day = static_cast<std::size_t>(number) - 2;
        return day < 7 ? m_DayNames.m_LongNames[day] : "type " + std::to_string(number - 8);
    }
    void Set_Text_Calendar_Month(std::string_view text) override {
        m_Transcript.Add("month " + std::string(text));
    }

    std::int16_t m_Selected = 0;  // number of the entry, 0 for none
};

}  // namespace vigrel::testing
