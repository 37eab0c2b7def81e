#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vigrel {

// The first place of a text that the code page can't hold.
struct cMisfit {
    std::size_t line;       // from 1
    std::size_t column;     // in characters, from 1
    std::string character;  // as the text has it; the bytes of one that is no UTF-8
};

std::optional<cMisfit> FindMisfit(std::string_view utf8);

// The text in the system's code page; every line ends in CR LF, the last one too. Call it only for a text
// without a misfit.
std::string ToCodePageLines(std::string_view utf8);

}  // namespace vigrel
