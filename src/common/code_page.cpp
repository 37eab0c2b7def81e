#include "common/code_page.h"

#include <algorithm>
#include <array>

namespace vigrel {
namespace {

// Code points of 0x80 to 0x9F; every other character stands for the code point of its own number.
constexpr std::array<char16_t, 32> kHigh = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

int Find(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<int>(codePoint);
    const auto found = std::find(kHigh.begin(), kHigh.end(), codePoint);
    return found == kHigh.end() ? -1 : 0x80 + static_cast<int>(found - kHigh.begin());
}

// Of what ASCII lacks.
void AppendUtf8(std::string& out, char32_t codePoint) {
    const auto byte = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
    if (codePoint < 0x800) {
        byte(0xC0 | (codePoint >> 6));
        byte(0x80 | (codePoint & 0x3F));
    } else {
        byte(0xE0 | (codePoint >> 12));
        byte(0x80 | ((codePoint >> 6) & 0x3F));
        byte(0x80 | (codePoint & 0x3F));
    }
}

// The code point at the front of the text, and its length in bytes; an invalid sequence is one byte long.
struct cDecoded {
    char32_t codePoint;
    std::size_t length;
};

constexpr char32_t kInvalid = 0xFFFD;

cDecoded Decode(std::string_view utf8) {
    const auto lead = static_cast<unsigned char>(utf8[0]);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 && lead < 0xF8 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || lead >= 0xF8 || utf8.size() < length) return {kInvalid, 1};
    char32_t codePoint = lead & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        if ((next & 0xC0) != 0x80) return {kInvalid, 1};
        codePoint = (codePoint << 6) | (next & 0x3Fu);
    }
    // A longer form than needed could smuggle a character past whoever looked for its short form.
    const bool overlong = codePoint < (length == 2 ? 0x80u : length == 3 ? 0x800u : 0x10000u);
    return overlong ? cDecoded{kInvalid, 1} : cDecoded{codePoint, length};
}

constexpr unsigned UpperCase(unsigned code) {
    if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) return code - 0x20;
    if (code == 0x9A || code == 0x9C || code == 0x9E) return code - 0x10;
    return code == 0xFF ? 0x9F : code;
}

constexpr std::array<char, 256> MakeUpperCase() {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < table.size(); ++code) table[code] = static_cast<char>(UpperCase(code));
    return table;
}

// Each upper-case letter's lower case is the one letter whose upper case it is.
constexpr std::array<char, 256> MakeLowerCase() {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < table.size(); ++code) table[code] = static_cast<char>(code);
    for (unsigned code = 0; code < table.size(); ++code) {
        if (UpperCase(code) != code) table[UpperCase(code)] = static_cast<char>(code);
    }
    return table;
}

constexpr std::array<char, 256> kUpperCase = MakeUpperCase();
constexpr std::array<char, 256> kLowerCase = MakeLowerCase();

}  // namespace

char32_t ToUnicode(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code >= 0x80 && code <= 0x9F ? kHigh[code - 0x80u] : code;
}

bool HasCharacter(char32_t codePoint) {
    return Find(codePoint) >= 0;
}

char FromUnicode(char32_t codePoint) {
    const int code = Find(codePoint);
    return code < 0 ? '?' : static_cast<char>(code);
}

std::string CodePageToUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto same = std::find_if(text.begin(), text.end(), [](unsigned char c) { return c >= 0x80; });
        out.append(text.begin(), same);
        text.remove_prefix(static_cast<std::size_t>(same - text.begin()));
        if (text.empty()) break;
        AppendUtf8(out, ToUnicode(text[0]));
        text.remove_prefix(1);
    }
    return out;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const cDecoded decoded = Decode(bytes);
        if (decoded.codePoint == kInvalid && decoded.length == 1) return false;
        bytes.remove_prefix(decoded.length);
    }
    return true;
}

std::string Utf8ToCodePage(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const cDecoded decoded = Decode(utf8);
        out.push_back(FromUnicode(decoded.codePoint));
        utf8.remove_prefix(decoded.length);
    }
    return out;
}

char ToUpper(char character) {
    return kUpperCase[static_cast<unsigned char>(character)];
}

char ToLower(char character) {
    return kLowerCase[static_cast<unsigned char>(character)];
}

std::string ToUpper(std::string_view text) {
    std::string out(text);
    for (char& character : out) character = ToUpper(character);
    return out;
}

std::string ToLower(std::string_view text) {
    std::string out(text);
    for (char& character : out) character = ToLower(character);
    return out;
}

}  // namespace vigrel
