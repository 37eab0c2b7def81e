#pragma once

#include <QFont>
#include <string_view>

namespace vigrel {

// The font that the settings name, in that size in points, or a plain sans font in its stead where the
// machine lacks it. A size that can't be read is raised to the smallest that can.
QFont FontOf(std::string_view name, double points);

}  // namespace vigrel
