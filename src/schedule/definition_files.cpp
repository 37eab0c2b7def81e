#include "schedule/definition_files.h"

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"

namespace vigrel {
namespace {

using Fault = std::optional<cPhrase>;

std::string Number(std::int16_t value) {
    return std::to_string(value);
}

bool IsBoolean(std::int16_t value) {
    return value == True16 || value == False16;
}

// What is wrong with a value of a day type: the pattern has the place of the day type, then of the value.
cPhrase WrongValue(const cPattern& pattern, std::int16_t dayType, std::int16_t value) {
    return {pattern, {Number(dayType), Number(value)}};
}

Fault FaultOfPeriod(cBinaryReader& file, std::int16_t dayType, std::int16_t number) {
    const std::int16_t start = file.Int16(), stop = file.Int16();
    if (start >= 0 && start <= stop && stop <= kMinutesOfDay) return std::nullopt;
    return cPhrase{Pattern("Reasons", "period %1 of day type %2 goes from minute %3 to minute %4"),
                   {Number(number), Number(dayType), Number(start), Number(stop)}};
}

Fault FaultOfDayType(cBinaryReader& file, std::int16_t dayType) {
    const std::int16_t active = file.Int16(), grouped = file.Int16();
    if (!IsBoolean(active)) {
        return WrongValue(Pattern("Reasons", "the active flag of day type %1 is %2"), dayType, active);
    }
    if (!IsBoolean(grouped)) {
        return WrongValue(Pattern("Reasons", "the group flag of day type %1 is %2"), dayType, grouped);
    }
    const std::int16_t count = file.Int16();
    if (count < 0) {
        return WrongValue(Pattern("Reasons", "the number of periods of day type %1 is %2"), dayType, count);
    }
    for (std::int16_t i = 1; i <= count; ++i) {
        if (Fault fault = FaultOfPeriod(file, dayType, i)) return fault;
        if (!file.Complete()) {
            return WrongValue(Pattern("Reasons", "it ends within the %2 periods of day type %1"), dayType,
                              count);
        }
    }
    const std::int16_t row = file.Int16();
    if (row < 0 || row >= kDayTypes) {
        return WrongValue(Pattern("Reasons", "the row of day type %1 is %2"), dayType, row);
    }
    return std::nullopt;
}

[[noreturn]] void Refuse(const cPattern& pattern, std::string_view path, const cPhrase& fault) {
    throw cFailure(eFailure::TypeMismatch, {pattern, {std::string(path), fault}});
}

std::string DateText(std::int32_t index) {
    return FormatDateTime(index + kFirstCalendarDay, "yyyy\\-mm\\-dd", {});
}

}  // namespace

eDefinitionKind KindOfDefinition(std::size_t fileSize) {
    return fileSize == kCalendarFileSize ? eDefinitionKind::Calendar : eDefinitionKind::Schedule;
}

Fault FaultOfScheduleFile(std::string_view content) {
    if (content.size() < kSmallestScheduleFileSize) {
        return cPhrase{Pattern("Reasons", "it has %1 bytes, and a schedule at least 186"),
                       {std::to_string(content.size())}};
    }
    cBinaryReader file(content);
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        if (Fault fault = FaultOfDayType(file, dayType)) return fault;
    }
    const std::int16_t useCalendar = file.Int16();
    if (!file.Complete()) return Pattern("Reasons", "its end is missing");
    if (!IsBoolean(useCalendar)) {
        return cPhrase{Pattern("Reasons", "the calendar flag is %1"), {Number(useCalendar)}};
    }
    if (file.Position() == content.size()) return std::nullopt;
    return cPhrase{Pattern("Reasons", "it goes on behind the schedule's %1 bytes"),
                   {std::to_string(file.Position())}};
}

Fault FaultOfCalendarFile(std::string_view content) {
    if (content.size() != kCalendarFileSize) {
        return cPhrase{Pattern("Reasons", "it has %1 bytes in place of 29220"),
                       {std::to_string(content.size())}};
    }
    cBinaryReader file(content);
    for (std::int32_t i = 0; i < kCalendarDays; ++i) {
        const std::int16_t value = file.Int16();
        if (value < 0 || value > kDayTypes) {
            return cPhrase{Pattern("Reasons", "the value of %1 is %2, not one of 0 to 23"),
                           {DateText(i), Number(value)}};
        }
    }
    return std::nullopt;
}

void LoadScheduleFile(const cFileReader& files, std::string_view path, cTimeSchedule& schedule) {
    const std::string content = files.ReadFile(path);
    if (const Fault fault = FaultOfScheduleFile(content)) {
        Refuse(Pattern("Reasons", "%1 is not a time schedule: %2."), path, *fault);
    }
    cBinaryReader file(content);
    schedule.ReadFromDisk(file);
}

void LoadCalendarFile(const cFileReader& files, std::string_view path, cCalendar& calendar) {
    const std::string content = files.ReadFile(path);
    if (const Fault fault = FaultOfCalendarFile(content)) {
        Refuse(Pattern("Reasons", "%1 is not a calendar: %2."), path, *fault);
    }
    cBinaryReader file(content);
    for (std::int32_t i = 0; i < kCalendarDays; ++i) calendar.SetDayType(i, file.Int16());
}

void SaveScheduleFile(cFiles& files, std::string_view path, const cTimeSchedule& schedule) {
    cBinaryWriter file;
    schedule.SaveToDisk(file);
    ReplaceFile(files, path, file.Bytes());
}

}  // namespace vigrel
