#pragma once

#include <string_view>

#include "vigrel-inspect/field_reader.h"

namespace vigrel {

// The records of docs/formats, field by field. Each reads from the reader's position; a reader that fails
// throws cFailure after it has noted the problem.

void ReadAlarmFields(cFieldReader& file, std::string_view fileName);
void ReadReceiverFields(cFieldReader& file, std::string_view fileName, cInspection& inspection);
void ReadProfileFields(cFieldReader& file, cInspection& inspection);
void ReadScheduleFields(cFieldReader& file);

// The calendar's days that have a type of their own; the others are many and say nothing.
void ReadCalendarFields(std::string_view content, cInspection& inspection);

// The number in the name of a file: the digits in front of its extension; -1 when there are none.
std::int64_t NumberInName(std::string_view fileName);

}  // namespace vigrel
