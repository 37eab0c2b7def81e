#pragma once

#include <array>
#include <string_view>

namespace vigrel {

// In the order of day types.
inline constexpr std::array<std::string_view, 7> kWeekDayNames = {
    "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

}  // namespace vigrel
