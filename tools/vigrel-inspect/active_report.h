#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace vigrel {

// What a profile or a schedule has in force at a moment, and why, for people; UTF-8. The calendar is the
// content of its file and its name. Throws cFailure for content that is neither a profile nor a schedule, for
// a calendar that is none, and for a date that the calendar doesn't have.
struct cNamedContent {
    std::string name, content;
};
std::string ActiveReport(const cNamedContent& file, const std::optional<cNamedContent>& calendar,
                         DateTime moment);

}  // namespace vigrel
