#include "schedule/definition_files.h"

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"

namespace vigrel {
namespace {

using Fault = std::optional<std::string>;

std::string Number(std::int64_t value) {
    return std::to_string(value);
}

bool IsBoolean(std::int16_t value) {
    return value == True16 || value == False16;
}

std::string OfDayType(std::int16_t dayType) {
    return " of day type " + Number(dayType);
}

Fault FaultOfPeriod(cBinaryReader& file, std::int16_t dayType, std::int16_t number) {
    const std::int16_t start = file.Int16(), stop = file.Int16();
    if (start >= 0 && start <= stop && stop <= kMinutesOfDay) return std::nullopt;
    return "period " + Number(number) + OfDayType(dayType) + " goes from minute " + Number(start) +
           " to minute " + Number(stop);
}

Fault FaultOfDayType(cBinaryReader& file, std::int16_t dayType) {
    const std::int16_t active = file.Int16(), grouped = file.Int16();
    if (!IsBoolean(active)) return "the active flag" + OfDayType(dayType) + " is " + Number(active);
    if (!IsBoolean(grouped)) return "the group flag" + OfDayType(dayType) + " is " + Number(grouped);
    const std::int16_t count = file.Int16();
    if (count < 0) return "the number of periods" + OfDayType(dayType) + " is " + Number(count);
    for (std::int16_t i = 1; i <= count; ++i) {
        if (Fault fault = FaultOfPeriod(file, dayType, i)) return fault;
        if (!file.Complete()) {
            return "it ends within the " + Number(count) + " periods" + OfDayType(dayType);
        }
    }
    const std::int16_t row = file.Int16();
    if (row < 0 || row >= kDayTypes) return "the row" + OfDayType(dayType) + " is " + Number(row);
    return std::nullopt;
}

[[noreturn]] void Refuse(std::string_view path, std::string_view kind, const std::string& fault) {
    throw cFailure(eFailure::TypeMismatch,
                   std::string(path) + " is not a " + std::string(kind) + ": " + fault + ".");
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
        return "it has " + Number(static_cast<std::int64_t>(content.size())) +
               " bytes, and a schedule at least 186";
    }
    cBinaryReader file(content);
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        if (Fault fault = FaultOfDayType(file, dayType)) return fault;
    }
    const std::int16_t useCalendar = file.Int16();
    if (!file.Complete()) return "its end is missing";
    if (!IsBoolean(useCalendar)) return "the calendar flag is " + Number(useCalendar);
    if (file.Position() == content.size()) return std::nullopt;
    return "it goes on behind the schedule's " + Number(static_cast<std::int64_t>(file.Position())) +
           " bytes";
}

Fault FaultOfCalendarFile(std::string_view content) {
    if (content.size() != kCalendarFileSize) {
        return "it has " + Number(static_cast<std::int64_t>(content.size())) + " bytes in place of 29220";
    }
    cBinaryReader file(content);
    for (std::int32_t i = 0; i < kCalendarDays; ++i) {
        const std::int16_t value = file.Int16();
        if (value < 0 || value > kDayTypes) {
            return "the value of " + DateText(i) + " is " + Number(value) + ", not one of 0 to 23";
        }
    }
    return std::nullopt;
}

void LoadScheduleFile(const cFileReader& files, std::string_view path, cTimeSchedule& schedule) {
    const std::string content = files.ReadFile(path);
    if (const Fault fault = FaultOfScheduleFile(content)) Refuse(path, "time schedule", *fault);
    cBinaryReader file(content);
    schedule.ReadFromDisk(file);
}

void LoadCalendarFile(const cFileReader& files, std::string_view path, cCalendar& calendar) {
    const std::string content = files.ReadFile(path);
    if (const Fault fault = FaultOfCalendarFile(content)) Refuse(path, "calendar", *fault);
    cBinaryReader file(content);
    for (std::int32_t i = 0; i < kCalendarDays; ++i) calendar.SetDayType(i, file.Int16());
}

void SaveScheduleFile(cFiles& files, std::string_view path, const cTimeSchedule& schedule) {
    cBinaryWriter file;
    schedule.SaveToDisk(file);
    ReplaceFile(files, path, file.Bytes());
}

}  // namespace vigrel
