#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/binary.h"
#include "schedule/containers.h"
#include "schedule/day_types.h"
#include "schedule/paint_object.h"
#include "schedule/time_schedule_period.h"

namespace vigrel {

class cCalendar;

inline constexpr std::int16_t kMinutesOfDay = 1440;

// When something is in force during a day: the periods of each day type, with their graphical editing.
//
// A day type outside 0 to 22 throws cFailure (OutOfBounds). Operations on the selected day type do nothing
// while none is selected. Without a paint object nothing is drawn. Times are minutes after midnight.
class cTimeSchedule {
  public:
    cTimeSchedule();
    // Copying would share the periods: use ComposePeriodArray and ExtractPeriodArray.
    cTimeSchedule(const cTimeSchedule&) = delete;
    cTimeSchedule& operator=(const cTimeSchedule&) = delete;

    std::int16_t m_NumberOfAxisToPaint = 0;  // rows of the view
    Boolean16 m_UseCalendar = False16;       // whether the special day types are in play

    // --- model
    // The period behind the previous one, or the first; none for a day type that isn't active, behind the
    // last one, and when the previous period isn't in the list. Without a result start and stop keep their
    // values.
    PeriodPtr GetNextTimePeriod(std::int16_t dayType, std::int16_t& start, std::int16_t& stop,
                                const PeriodPtr& previous) const;
    void notused_ActivateUsedPeriods(const cCalendar& actualCalendar);
    // Remembers the selected day type for Paste.
    void Copy();
    // The section of docs/formats/schedule.md, at the end of what was written so far.
    void SaveToDisk(cBinaryWriter& file) const;
    // The same values as a text of two characters each, the high byte first.
    void ComposePeriodArray(std::string& periodArray) const;
    // Monday to Friday active, grouped, and each with one more period from 07:00 to 16:00.
    void SetDefaultPeriod();
    // What the text or the file lacks reads as zero; no more periods are made than it holds bytes for.
    void ExtractPeriodArray(std::string_view periodArray);
    void ReadFromDisk(cBinaryReader& file);
    // Any status but 0 is true.
    void SetActive(std::int16_t dayType, Boolean16 status);
    bool GetActive(std::int16_t dayType) const;

    // --- the popup menu, for the selected day type
    void Delete(cTimeScheduleContainer& parent, cPaintObject* paintObject);
    void SetTimeFrom00to24(cTimeScheduleContainer& parent, cPaintObject* paintObject);
    void InvertTimeSchedule(cTimeScheduleContainer& parent, cPaintObject* paintObject);
    void Group(cTimeScheduleContainer& parent, cPaintObject* paintObject);
    void GroupMonFri(cTimeScheduleContainer& parent, cPaintObject* paintObject);
    void Paste(cTimeScheduleContainer& parent, cPaintObject* paintObject);
    // Sets the entries' states, as a press of the right button does.
    void PreparePopupMenu(cTimeScheduleContainer& parent) const;

    // --- editing. Buttons: 1 left, 2 right. Positions are those of the surface.
    void MouseDown(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int16_t button,
                   std::int16_t shift, float x, float y);
    void MouseMove(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int16_t button,
                   std::int16_t shift, float x, float y);
    void MouseUp(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int16_t button,
                 std::int16_t shift, float x, float y);
    // The selected period takes the times of the two fields, which are rewritten as "hh:mm".
    void ExtractTimeFromTextboxes(cTimeScheduleContainer& parent, cPaintObject* paintObject);

    // --- painting
    // Lays out scroll bar and view and numbers the rows. The container's variable of the paint object takes
    // the given one when it has none yet.
    void RecalculateAndPrepareToPaint(cTimeScheduleContainer& parent, cPaintObject*& schedulePaintObject,
                                      cPaintObject* paintObject);
    void Paint(cTimeScheduleContainer& parent, cPaintObject* paintObject) const;
    // A small pointer on the axis of a row; here a minute is one unit wide.
    void PaintMarker(cPaintObject* paintObject, std::int32_t minute, std::int32_t row) const;

    // --- for containers
    std::int32_t SelectedDayType() const { return m_SelectedDayType; }  // -1 for none
    const PeriodPtr& SelectedPeriod() const { return m_SelectedPeriod; }
    // Nothing is selected any more, as in a new schedule; the time fields are cleared. For content that came
    // from elsewhere.
    void ClearSelection(cTimeScheduleContainer& parent);
    // Selects a day type, and one of its periods or none, without a click: nothing else changes. A period
    // that isn't in the day's list counts as none. The time fields show the period.
    void Select(cTimeScheduleContainer& parent, std::int32_t dayType, const PeriodPtr& period);
    bool IsDragging() const { return m_DragMode != eDragMode::None; }
    bool IsGrouped(std::int16_t dayType) const { return m_Grouped[DayTypeIndex(dayType)]; }
    // What lies at a position of the view; none outside the axis.
    struct cPosition {
        std::int32_t minute, row;
    };
    std::optional<cPosition> PositionAt(float x, float y) const;
    // None for a row that has no day type.
    std::optional<std::int32_t> DayTypeOfRow(std::int32_t row) const;

  private:
    enum class eDragMode : std::int16_t { None = 0, Start = 1, Stop = 2, New = 3 };

    std::vector<std::int16_t> Values() const;
    void ReadPeriods(std::int16_t dayType, cBinaryReader& file);

    const PeriodList& Periods(std::int32_t dayType) const;
    PeriodList& Periods(std::int32_t dayType);
    void AddPeriod(std::int32_t dayType, std::int16_t start, std::int16_t stop);
    void TakePeriods(std::int32_t dayType, std::int32_t source);
    void MergePeriods(std::int32_t dayType);
    bool MergePass(PeriodList& periods);
    void CopyToGroup(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int32_t dayType);
    bool IsMondayToFridayGrouped() const;

    std::optional<cPosition> PositionToMinute(cTimeScheduleContainer& parent, float x, float y) const;
    void SelectPeriodAt(std::int32_t minute);
    void BeginDrag(cPaintObject* paintObject, std::int32_t minute);
    bool GrabPeriod(const PeriodPtr& period, std::int32_t minute);
    void BeginNewPeriod(cPaintObject* paintObject);
    void FollowPointer(std::int16_t minute);

    // Does nothing for a day type that isn't active: it has no row.
    void RepaintRow(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int32_t dayType) const;
    void PaintAxis(cTimeScheduleContainer& parent, cPaintObject& paintObject, std::int32_t dayType) const;
    void PaintBar(cPaintObject& paintObject, const PeriodPtr& period, double y0) const;

    std::array<bool, kDayTypes> m_Active{};
    std::array<bool, kDayTypes> m_Grouped{};
    std::array<PeriodList, kDayTypes> m_Periods;
    std::array<std::int16_t, kDayTypes> m_AxisIndex{};  // the row of the view; saved with the schedule
    std::int32_t m_SelectedDayType = -1;
    PeriodPtr m_SelectedPeriod;
    std::int32_t m_CopiedDayType = -1;

    eDragMode m_DragMode = eDragMode::None;
    std::int32_t m_DragAnchor = 0;  // minute where the drag began, at a period's end when near one
    PeriodPtr m_DragPeriod;
    std::int32_t m_DragDayType = -1;
    float m_Scale = 1;
    std::int32_t m_EditStart = 0, m_EditStop = 0;  // minutes that the two time fields last showed
};

}  // namespace vigrel
