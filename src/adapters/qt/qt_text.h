#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vigrel {

// The edge between the system's text, in its code page, and the toolkit's Unicode.
QString ToQString(std::string_view text);
// What the code page lacks becomes its base letter ("ś" is "s"), a blank for the Unicode spaces, nothing for
// invisible marks, else "?".
std::string FromQString(const QString& text);
// Paths (common/path_text.h) as the toolkit has them; "/" separates.
QString PathToQString(std::string_view path);
std::string PathFromQString(const QString& path);
// A text that may name paths, such as a failure's description.
QString WithPathsToQString(std::string_view text);
// Whether nothing of the text is lost on the way to the code page and back.
bool FitsCodePage(const QString& text);

}  // namespace vigrel
