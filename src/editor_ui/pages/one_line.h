#pragma once

#include <QString>

namespace vigrel {

// A text from the clipboard, or from a drag, as the one line in which a field shows it: line breaks, tabs and
// what else has no letter are a blank between words, and nothing at the ends.
QString OneLine(const QString& text);

}  // namespace vigrel
