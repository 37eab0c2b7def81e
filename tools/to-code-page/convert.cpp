#include "to-code-page/convert.h"

#include <algorithm>
#include <vector>

#include "common/code_page.h"
#include "common/text.h"

namespace vigrel {
namespace {

// A character with the bytes that continue it.
std::string_view FirstCharacter(std::string_view utf8) {
    std::size_t length = 1;
    while (length < utf8.size() && (Code(utf8[length]) & 0xC0) == 0x80) ++length;
    return utf8.substr(0, length);
}

// What has no place in the code page doesn't come back from it as it was.
bool Fits(std::string_view utf8) {
    return CodePageToUtf8(Utf8ToCodePage(utf8)) == utf8;
}

}  // namespace

std::optional<cMisfit> FindMisfit(std::string_view utf8) {
    const std::vector<std::string> lines = SplitLines(utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::string_view rest = lines[i];
        for (std::size_t column = 1; !rest.empty(); ++column) {
            const std::string_view character = FirstCharacter(rest);
            if (!Fits(character)) return cMisfit{i + 1, column, std::string(character)};
            rest.remove_prefix(character.size());
        }
    }
    return std::nullopt;
}

std::string ToCodePageLines(std::string_view utf8) {
    std::string bytes;
    for (const std::string& line : SplitLines(utf8)) bytes += Utf8ToCodePage(line) + "\r\n";
    return bytes;
}

}  // namespace vigrel
