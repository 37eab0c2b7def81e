#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// A place of an event template that does something else than it looks like.
struct cTemplateSlip {
    std::string name;     // of the kind, for scripts
    std::string message;  // for the installer, with the nearest known name
};

// The slips of a template (docs: "Templates"): brackets without partner, names that are none, forms that
// vanish or don't nest, ranges that aren't numbers, modifiers that have no value to work on.
std::vector<cTemplateSlip> TemplateSlips(std::string_view text);

}  // namespace vigrel
