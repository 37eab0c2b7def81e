#pragma once

#include <cstdint>
#include <string>

#include "common/failure.h"

namespace vigrel {

// Day types: 0 to 6 are Monday to Sunday, 7 to 22 the sixteen special types that a calendar can give to a
// date.
inline constexpr std::int16_t kDayTypes = 23;
inline constexpr std::int16_t kWeekDays = 7;

// A day type as an index of the tables by day type. One outside 0 to 22 is a programming fault.
inline std::size_t DayTypeIndex(std::int32_t dayType) {
    if (dayType < 0 || dayType >= kDayTypes) {
        throw cFailure(eFailure::OutOfBounds,
                       "day type " + std::to_string(dayType) + " is not one of 0 to 22");
    }
    return static_cast<std::size_t>(dayType);
}

}  // namespace vigrel
