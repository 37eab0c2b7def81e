#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// The steps (a character put in, taken out or changed, or two neighbours swapped) from one name to another,
// case apart.
std::size_t NameDistance(std::string_view a, std::string_view b);
// The name that was most likely meant: the nearest one, when it is so near that a slip of the hand explains
// it.
std::optional<std::string> NearestName(std::string_view name, const std::vector<std::string>& known);
// What to put behind a message: "; is \"MaxEvents\" meant?", or nothing.
std::string MeantPerhaps(std::string_view name, const std::vector<std::string>& known);

// The parts of a text between the separators, at least one, as they stand.
std::vector<std::string> SplitAt(std::string_view text, char separator);

}  // namespace vigrel
