#pragma once

#include <QColor>
#include <QIcon>

namespace vigrel {

// A sample of a colour for a row of a list. Its border tells white from a light ground and black from a dark
// one; a row that is chosen shows it as it is.
QIcon Swatch(const QColor& colour);

}  // namespace vigrel
