#include "common/printable.h"

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

bool IsControl(char c) {
    const int code = Code(c);
    // The codes that the code page leaves open stand for control characters.
    return code < 0x20 || code == 0x7F || (ToUnicode(c) >= 0x80 && ToUnicode(c) < 0xA0);
}

}  // namespace

std::string Printable(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        if (c == '\n') {
            shown += "\\n";
        } else if (c == '\r') {
            shown += "\\r";
        } else if (c == '\t') {
            shown += "\\t";
        } else if (IsControl(c)) {
            const std::string hex = HexText(static_cast<std::uint32_t>(Code(c)));
            shown += "\\x" + std::string(hex.size() < 2 ? "0" : "") + hex;
        } else {
            shown += CodePageToUtf8(std::string_view(&c, 1));
        }
    }
    return shown;
}

}  // namespace vigrel
