#include "common/kept_lines.h"

namespace vigrel {

bool IsCommentLine(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first == std::string_view::npos || line[first] == '#';
}

}  // namespace vigrel
