#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// The system's single-byte code page is Western European 1252; the five codes that it leaves open (0x81,
// 0x8D, 0x8F, 0x90, 0x9D) stand for the control characters of the same number, so that all 256 values map one
// to one.

// The Unicode code point of a character.
char32_t ToUnicode(char character);
// The character of a code point, or "?" for one that the code page lacks.
char FromUnicode(char32_t codePoint);
bool HasCharacter(char32_t codePoint);

std::string CodePageToUtf8(std::string_view text);
bool IsUtf8(std::string_view bytes);
// What the code page lacks, and bytes that are no UTF-8, become "?".
std::string Utf8ToCodePage(std::string_view utf8);

// Case by the code page, all of its letters; "ß", "ª" and "º" have no upper case.
char ToUpper(char character);
char ToLower(char character);
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

}  // namespace vigrel
