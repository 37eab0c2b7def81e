#pragma once

#include <string>

#include "vigrel-inspect/inspection.h"

namespace vigrel {

// Output is UTF-8.

// One inspection as a table for people.
std::string InspectionText(const std::string& file, const cInspection& inspection);

// One inspection as a JSON object: file, kind, version, size, fields (name, offset, size, value), problems
// (offset, field, description). A date is its text, what has no value is null.
std::string InspectionJson(const std::string& file, const cInspection& inspection);

}  // namespace vigrel
