#include "common/printable.h"

#include <algorithm>

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

bool IsControl(char c) {
    const int code = Code(c);
    // The codes that the code page leaves open stand for control characters.
    return code < 0x20 || code == 0x7F || (ToUnicode(c) >= 0x80 && ToUnicode(c) < 0xA0);
}

std::string Escape(char c) {
    const std::string hex = HexText(static_cast<std::uint32_t>(Code(c)));
    return "\\x" + std::string(hex.size() < 2 ? "0" : "") + hex;
}

// Whether bytes can be shown as they are: text, without the control characters that the code page lacks.
bool IsShown(std::string_view utf8) {
    for (std::size_t at = utf8.find('\xC2'); at != std::string_view::npos; at = utf8.find('\xC2', at + 1)) {
        if (at + 1 < utf8.size() && Code(utf8[at + 1]) < 0xA0) return false;
    }
    const bool ascii =
        std::any_of(utf8.begin(), utf8.end(), [](char c) { return Code(c) < 0x80 && c != '\\'; });
    return IsUtf8(utf8) && !ascii;
}

// Whether these are the one byte of an escape that PathText makes. What a file or a peer holds of others is
// no path.
bool IsByteOfPath(std::string_view bytes) {
    return bytes.size() == 1 && (Code(bytes[0]) >= 0x80 || bytes[0] == '\\' || bytes[0] == kPathEscape);
}

// Escaped bytes that make no text, by the bytes that the machine has in their place.
std::string PrintableBytes(std::string_view escaped) {
    std::string shown;
    while (!escaped.empty()) {
        const std::string_view one = escaped.substr(0, kPathEscapeLength);
        const std::string bytes = WithPathsToUtf8(one);
        shown += IsByteOfPath(bytes) ? Escape(bytes[0]) : Printable(one);
        escaped.remove_prefix(one.size());
    }
    return shown;
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
            shown += Escape(c);
        } else {
            shown += CodePageToUtf8(std::string_view(&c, 1));
        }
    }
    return shown;
}

std::string PrintablePath(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        // A run of escaped bytes, if there is one, and what stands in front of it.
        const std::size_t run = std::min(text.find(kPathEscape), text.size());
        std::size_t end = run;
        while (end < text.size() && text[end] == kPathEscape)
            end = std::min(end + kPathEscapeLength, text.size());
        const std::string_view escaped = text.substr(run, end - run);
        const std::string utf8 = WithPathsToUtf8(escaped);
        shown += Printable(text.substr(0, run)) + (IsShown(utf8) ? utf8 : PrintableBytes(escaped));
        text.remove_prefix(end);
    }
    return shown;
}

}  // namespace vigrel
