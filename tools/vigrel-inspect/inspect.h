#pragma once

#include <optional>
#include <string_view>

#include "vigrel-inspect/inspection.h"

namespace vigrel {

enum class eFileKind { Alarm, Receiver, Profile, Schedule, Calendar };

// The kind that a word of the command line names, or that a file shows by its name, size or form.
std::optional<eFileKind> KindFromWord(std::string_view word);
std::optional<eFileKind> KindOfFile(std::string_view fileName, std::string_view content);

// Never throws for what the content holds: a file that can't be read further ends with a problem. The name
// (without folder) is compared with the numbers inside.
cInspection Inspect(eFileKind kind, std::string_view fileName, std::string_view content);
// A file whose kind can't be told.
cInspection InspectUnknown(std::string_view content);

}  // namespace vigrel
