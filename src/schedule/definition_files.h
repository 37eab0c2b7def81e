#pragma once

#include <optional>
#include <string_view>

#include "common/phrase.h"
#include "platform/files.h"
#include "schedule/calendar.h"
#include "schedule/time_schedule.h"

namespace vigrel {

// Schedules and calendars in files of their own, for an operator who can open any file by mistake. The
// readers of the classes take what they find; here a file that is not what it should be is refused.

enum class eDefinitionKind { Schedule, Calendar };

// A calendar's file has its one size, which a schedule's never has.
inline constexpr std::size_t kCalendarFileSize = std::size_t{2} * kCalendarDays;
inline constexpr std::size_t kSmallestScheduleFileSize = 186;
eDefinitionKind KindOfDefinition(std::size_t fileSize);

// What is wrong with the content of a file, in a sentence; none when all of it is as it should be.
std::optional<cPhrase> FaultOfScheduleFile(std::string_view content);
std::optional<cPhrase> FaultOfCalendarFile(std::string_view content);

// Throw cFailure (TypeMismatch) with the path and the fault, or the failure of the disk. The object is left
// alone then.
void LoadScheduleFile(const cFileReader& files, std::string_view path, cTimeSchedule& schedule);
void LoadCalendarFile(const cFileReader& files, std::string_view path, cCalendar& calendar);
// Replaces the file as a whole. A failure of the disk is thrown.
void SaveScheduleFile(cFiles& files, std::string_view path, const cTimeSchedule& schedule);

}  // namespace vigrel
