#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/clock.h"

namespace vigrel {

// What was found in one binary file of the system: every field in file order, and what doesn't fit.

struct cDateValue {
    DateTime m_Value = 0;
    bool operator==(const cDateValue&) const = default;
};
// Nothing (an empty value), a whole number, a number, a flag, text in code page 1252, a date-time.
using cFieldValue = std::variant<std::monostate, std::int64_t, double, bool, std::string, cDateValue>;

struct cField {
    std::string name;
    std::size_t offset = 0, size = 0;  // bytes
    cFieldValue value;
};

struct cProblem {
    std::size_t offset = 0;
    std::string field;  // empty: the file as a whole
    std::string description;
};

struct cInspection {
    std::string kind;  // "alarm", "receiver", "profile", "schedule", "calendar"; "unknown"
    std::optional<int> version;
    std::size_t size = 0;
    std::vector<cField> fields;
    std::vector<cProblem> problems;
};

}  // namespace vigrel
