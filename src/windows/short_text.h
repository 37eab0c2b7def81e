#pragma once

#include <QString>

namespace vigrel {

// What is shown can come from files and senders, and be of any length. A box, a label or a menu that has to
// hold all of it grows over the edges of the screen, with its buttons.
//
// The text without its middle, where it has more than so many lines (at least 3) or characters.
QString Shortened(const QString& text, qsizetype lines, qsizetype characters);
// What a message box has room for on any screen.
QString BoxText(const QString& text);
// What a label beside the rest of a page has room for.
QString FewLines(const QString& text);
// The same in one line.
QString ShortLine(const QString& text, qsizetype characters);
// A name, of which the ends are enough to know it by.
QString ShortName(const QString& name);

}  // namespace vigrel
