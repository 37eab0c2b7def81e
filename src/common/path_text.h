#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// A path of the machine is bytes, in whatever script its user writes; names inside the application folder are
// text of the code page. Both are one text here, which is cut, joined and compared like every other: a
// character of the code page stands for itself, and every byte of a path that has none is escaped, by the
// character of code 26 (substitute) and two hexadecimal digits. No byte is lost on the way in and out.

inline constexpr char kPathEscape = 26;
inline constexpr std::size_t kPathEscapeLength = 3;

// The text of a path of the machine (UTF-8 where it is text at all).
std::string PathText(std::string_view bytes);
// The bytes that a path stands for; both separators become "/".
std::string PathBytes(std::string_view path);

// A text that may name paths, such as a failure's description, for whoever reads UTF-8.
std::string WithPathsToUtf8(std::string_view text);
// The same for a reader in the code page: "?" for each character that it lacks.
std::string WithPathsInCodePage(std::string_view text);

}  // namespace vigrel
