#pragma once

#include "categories/user_color.h"

namespace vigrel {

// The least contrast of a rule's text to its three grounds.
double LeastContrast(const cUserColor& color);

// The text colour nearest to the rule's own, lighter or darker, that can be read on all three grounds. Where
// the grounds lie too far apart for any, black or white, whichever is read better.
Colour ReadableForeColor(const cUserColor& color);

}  // namespace vigrel
