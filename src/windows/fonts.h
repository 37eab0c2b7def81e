#pragma once

#include <QFont>
#include <string_view>

namespace vigrel {

// The font that the settings name, in that size in points. Where the machine lacks it: what stands in for it
// there, such as a free font of the same measures, or else a plain sans font. A size that can't be read is
// raised to the smallest that can.
QFont FontOf(std::string_view name, double points);

}  // namespace vigrel
