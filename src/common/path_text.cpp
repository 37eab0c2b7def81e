#include "common/path_text.h"

#include <algorithm>
#include <optional>

#include "common/code_page.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

// As many bytes as the first one announces of a character that the code page could have.
std::size_t CharacterLength(std::string_view bytes) {
    const int lead = Code(bytes[0]);
    return std::min<std::size_t>(lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : 3, bytes.size());
}

// The character of the code page that stands for exactly these bytes, if any.
std::optional<char> CharacterOf(std::string_view bytes) {
    const std::string text = Utf8ToCodePage(bytes);
    if (text.size() != 1 || CodePageToUtf8(text) != bytes) return std::nullopt;
    if (text[0] == '\\' || text[0] == kPathEscape) return std::nullopt;
    return text[0];
}

// How many bytes at the front stand for themselves: nearly always all, and folders can have many names.
std::size_t PlainLength(std::string_view bytes) {
    const auto special = std::find_if(bytes.begin(), bytes.end(),
                                      [](char byte) { return byte < ' ' || byte > '~' || byte == '\\'; });
    return static_cast<std::size_t>(special - bytes.begin());
}

void AppendEscaped(std::string& path, char byte) {
    const auto code = static_cast<std::size_t>(Code(byte));
    path += {kPathEscape, kDigits[code >> 4], kDigits[code & 15]};
}

// The byte that is escaped where a text begins with the character of escapes; that can stand for itself.
std::optional<char> EscapedByte(std::string_view text) {
    if (text.size() < kPathEscapeLength) return std::nullopt;
    const std::size_t high = kDigits.find(ToUpper(text[1]));
    const std::size_t low = kDigits.find(ToUpper(text[2]));
    // A path ends at a zero, whatever follows.
    if (high == std::string_view::npos || low == std::string_view::npos || high + low == 0)
        return std::nullopt;
    return static_cast<char>(high << 4 | low);
}

}  // namespace

std::string PathText(std::string_view bytes) {
    std::string path;
    while (true) {
        const std::size_t plain = PlainLength(bytes);
        path += bytes.substr(0, plain);
        bytes.remove_prefix(plain);
        if (bytes.empty()) break;
        const std::size_t length = CharacterLength(bytes);
        const auto character = CharacterOf(bytes.substr(0, length));
        if (character) {
            path += *character;
        } else {
            AppendEscaped(path, bytes[0]);
        }
        bytes.remove_prefix(character ? length : 1);
    }
    return path;
}

std::string WithPathsToUtf8(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find(kPathEscape), text.size());
        bytes += CodePageToUtf8(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) break;
        const auto byte = EscapedByte(text);
        bytes += byte.value_or(kPathEscape);
        text.remove_prefix(byte ? kPathEscapeLength : 1);
    }
    return bytes;
}

std::string WithPathsInCodePage(std::string_view text) {
    return Utf8ToCodePage(WithPathsToUtf8(text));
}

std::string PathBytes(std::string_view path) {
    // An escaped backslash belongs to a name.
    std::string separated(path);
    std::replace(separated.begin(), separated.end(), '\\', '/');
    return WithPathsToUtf8(separated);
}

}  // namespace vigrel
