#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// Text is a sequence of single-byte characters of the code page (common/code_page.h). Positions count from 1.

// Positions that a search gives are 16 bits wide: what begins behind this one is not found. A step that would
// need it fails with Overflow, and who skips failures goes on as if nothing were there.
inline constexpr std::size_t kLastPosition = 32767;
// The position of an offset from 0; throws cFailure (Overflow) behind the last one.
std::int16_t PositionAt(std::size_t offset);

// Without the blanks (character 32) at its beginning and end.
std::string Trim(std::string_view text);
bool EqualsNoCase(std::string_view a, std::string_view b);
// An order of texts in which case plays no part, for containers.
struct cLessNoCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};
// Position of the first occurrence, 0 for none.
std::size_t FindNoCase(std::string_view text, std::string_view find);
// Up to length characters from a position; empty behind the end.
std::string Mid(std::string_view text, std::size_t position, std::size_t length = std::string::npos);
// The code of a character, 0 to 255.
inline int Code(char character) {
    return static_cast<unsigned char>(character);
}

// The field with the zero-based index of a text cut at the separator; empty where there are fewer fields. An
// empty separator is replaced, in the caller's variable too, by a TAB when the text holds one, else by ";"
// when it holds one; a text that holds neither gives an empty field for every index. Throws cFailure
// (Overflow) at the first separator that begins behind position 32,767.
std::string GetField(std::string_view text, std::int16_t index, std::string& separator);
std::string GetField(std::string_view text, std::int16_t index, std::string&& separator);

// Replaces every occurrence from left to right; what was put in is not searched again. An empty text to find
// changes nothing. Throws cFailure (Overflow) at an occurrence behind position 32,767 of the text as it then
// stands; the caller's text is unchanged then.
void ReplaceText(std::string& text, std::string_view find, std::string_view replacement);

// Minutes after midnight, 0 to 1440, from a time of day as an operator types it: "8", "0830", "8:30", "8.30".
std::int16_t TimeTextToMinutes(std::string_view text);

// A 16-bit value as two characters, the high byte first, and back.
std::string Int16ToChars(std::int16_t value);
std::int16_t CharsToInt16(std::string_view text);

// The lines of a file's content; CR LF, LF and a lone CR end a line. A last line needs no end. Offsets count
// from 0.
struct cLineSpan {
    std::size_t begin, end;  // of the line without its end
    std::size_t next;        // where the line's end is over
};
std::vector<cLineSpan> FindLines(std::string_view content);
std::vector<std::string> SplitLines(std::string_view content);

}  // namespace vigrel
