#include "tool_support/json.h"

#include <cstdint>

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {

std::string JsonString(std::string_view text) {
    return JsonStringOfUtf8(CodePageToUtf8(text));
}

std::string JsonPath(std::string_view text) {
    const std::string utf8 = WithPathsToUtf8(text);
    return IsUtf8(utf8) ? JsonStringOfUtf8(utf8) : JsonString(text);
}

std::string JsonStringOfUtf8(std::string_view utf8) {
    std::string json = "\"";
    for (const char c : utf8) {
        if (c == '"' || c == '\\') json += '\\';
        if (Code(c) >= 0x20 && Code(c) != 0x7F) {
            json += c;
        } else {
            json += "\\u00" + std::string(Code(c) < 0x10 ? "0" : "") +
                    HexText(static_cast<std::uint32_t>(Code(c)));
        }
    }
    return json + "\"";
}

}  // namespace vigrel
