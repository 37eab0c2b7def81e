#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vigrel {

// Expands the forms "{WORD?text}" of an event template: the text stays when the word, in any case, is that of
// the status (ACTIVE 1, INACTIVE 0, ACKED 2, MESSAGE 3), and goes with the form otherwise. Forms don't nest:
// a "{" that another "{" follows in front of its "}", or whose "?" is missing, is plain text.
std::string ExpandConditionalForms(std::string_view text, std::int16_t status);

}  // namespace vigrel
