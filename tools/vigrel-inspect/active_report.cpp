#include "vigrel-inspect/active_report.h"

#include <algorithm>

#include "common/date_text.h"
#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/printable.h"
#include "schedule/active_day.h"
#include "schedule/definition_files.h"
#include "vigrel-inspect/inspect.h"
#include "vigrel-inspect/print.h"
#include "vigrel-inspect/week_days.h"

namespace vigrel {
namespace {

std::string NameOfDayType(std::int16_t dayType) {
    if (dayType < kWeekDays) return std::string(kWeekDayNames[static_cast<std::size_t>(dayType)]);
    return "special day type " + std::to_string(dayType - kWeekDays + 1);
}

std::string TimeText(int minute) {
    return Digits(minute / 60, 2) + ":" + Digits(minute % 60, 2);
}

const cField* FieldOf(const cInspection& inspection, std::string_view name) {
    const auto found = std::find_if(inspection.fields.begin(), inspection.fields.end(),
                                    [name](const cField& field) { return field.name == name; });
    return found == inspection.fields.end() ? nullptr : &*found;
}

// The section of the schedule, which a profile holds behind its record.
struct cScheduleIn {
    cTimeSchedule schedule;
    std::string name;
    bool unused = false;  // a profile that doesn't use its schedule
};

void ReadSchedule(const cNamedContent& file, cScheduleIn& found) {
    const auto kind = KindOfFile(file.name, file.content);
    if (kind != eFileKind::Profile && kind != eFileKind::Schedule) {
        throw cFailure(eFailure::TypeMismatch, file.name + " is neither a profile nor a time schedule");
    }
    const cInspection inspection = Inspect(*kind, file.name, file.content);
    const auto first = std::find_if(inspection.fields.begin(), inspection.fields.end(),
                                    [](const cField& field) { return field.name.ends_with(" active"); });
    if (!inspection.problems.empty() || first == inspection.fields.end()) {
        throw cFailure(eFailure::TypeMismatch,
                       file.name + " is damaged; look at it with vigrel-inspect " + file.name);
    }
    if (const cField* name = FieldOf(inspection, "name")) found.name = std::get<std::string>(name->value);
    if (const cField* use = FieldOf(inspection, "use schedule")) found.unused = !std::get<bool>(use->value);
    cBinaryReader section(std::string_view(file.content).substr(first->offset));
    found.schedule.ReadFromDisk(section);
}

std::int16_t ValueOf(const cNamedContent& calendar, DateTime moment) {
    if (const auto fault = FaultOfCalendarFile(calendar.content)) {
        throw cFailure(eFailure::TypeMismatch,
                       calendar.name + " is not a calendar: " + fault->English() + ".");
    }
    const std::int32_t index = CalendarIndex(DateOf(moment));
    if (index < 0 || index >= kCalendarDays) {
        throw cFailure(eFailure::OutOfBounds, "the calendar has the years 2000 to 2039 only");
    }
    cBinaryReader file(calendar.content);
    file.Seek(static_cast<std::size_t>(index) * 2);
    return file.Int16();
}

std::string ReasonText(const cActiveDay& day, const std::optional<cNamedContent>& calendar) {
    using eReason = cActiveDay::eReason;
    if (!calendar) return "by the weekday; no calendar was named";
    if (day.reason == eReason::Weekday)
        return "by the weekday; " + calendar->name + " says nothing of the date";
    if (day.reason == eReason::Calendar) return "by " + calendar->name;
    return "by the weekday; " + calendar->name + " says " +
           NameOfDayType(static_cast<std::int16_t>(day.calendarValue - 1)) +
           ", which the schedule doesn't use";
}

std::string PeriodsText(const cActiveDay& day) {
    if (!day.used) return "none, the schedule doesn't use this day type";
    std::string text;
    for (const auto& [start, stop] : day.periods) {
        text += (text.empty() ? "" : ", ") + TimeText(start) + "-" + TimeText(stop);
    }
    return text.empty() ? "none" : text;
}

std::string GroupText(const cActiveDay& day) {
    std::string text;
    for (const std::int16_t dayType : day.group) text += (text.empty() ? "" : ", ") + NameOfDayType(dayType);
    return text.empty() ? "" : "In a group with: " + text + "\n";
}

}  // namespace

std::string ActiveReport(const cNamedContent& file, const std::optional<cNamedContent>& calendar,
                         DateTime moment) {
    cScheduleIn in;
    ReadSchedule(file, in);
    const std::int16_t weekDay = WeekDayOf(moment);
    const cActiveDay day =
        ActiveDay(in.schedule, calendar ? ValueOf(*calendar, moment) : std::int16_t{0}, weekDay);
    const cDateParts parts = SplitDateTime(moment);
    const int minute = parts.hour * 60 + parts.minute;
    const bool active = day.IsActiveAt(minute);
    const int change = day.NextChange(minute);
    std::string text = PrintablePath(file.name + (in.name.empty() ? "" : " (" + in.name + ")")) + "\n";
    text += "When: " + DateTimeText(moment).substr(0, 16) + ", " + NameOfDayType(weekDay) + "\n";
    text +=
        "Day type: " + NameOfDayType(day.dayType) + ", " + PrintablePath(ReasonText(day, calendar)) + "\n";
    text += GroupText(day);
    text += "Periods: " + PeriodsText(day) + "\n";
    text += std::string("Active: ") + (active ? "yes" : "no") + ", until " + TimeText(change) +
            (change == kMinutesOfDay ? " at least" : "") + "\n";
    if (in.unused) text += "The profile does not use its schedule.\n";
    return text;
}

}  // namespace vigrel
