#include "common/text.h"

#include <algorithm>
#include <array>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"

namespace vigrel {
namespace {

// Position of find at or behind start, 0 for none.
std::size_t FindFrom(std::string_view text, std::string_view find, std::size_t start) {
    const std::size_t found = text.find(find, start - 1);
    if (found == std::string_view::npos) return 0;
    return static_cast<std::size_t>(PositionAt(found));
}

}  // namespace

std::int16_t PositionAt(std::size_t offset) {
    if (offset >= kLastPosition) throw cFailure(eFailure::Overflow, "a text position is beyond 32767");
    return static_cast<std::int16_t>(offset + 1);
}

std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return ToUpper(x) == ToUpper(y); });
}

bool cLessNoCase::operator()(std::string_view a, std::string_view b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return ToUpper(x) < ToUpper(y); });
}

std::size_t FindNoCase(std::string_view text, std::string_view find) {
    const auto found = std::search(text.begin(), text.end(), find.begin(), find.end(),
                                   [](char x, char y) { return ToUpper(x) == ToUpper(y); });
    if (found == text.end()) return 0;
    return static_cast<std::size_t>(found - text.begin()) + 1;
}

std::string Mid(std::string_view text, std::size_t position, std::size_t length) {
    if (position < 1) throw cFailure(eFailure::InvalidCall, "a text position is below 1");
    if (position > text.size()) return {};
    return std::string(text.substr(position - 1, length));
}

std::string GetField(std::string_view text, std::int16_t index, std::string& separator) {
    if (separator.empty()) {
        if (text.find('\t') != std::string_view::npos) {
            separator = "\t";
        } else if (text.find(';') != std::string_view::npos) {
            separator = ";";
        }
    }
    std::size_t start = 1;
    std::size_t end = FindFrom(text, separator, start);
    while (index > 0 && end > 0) {
        start = end + separator.size();
        end = FindFrom(text, separator, start);
        --index;
        // An empty separator never moves on; every index ends in the empty text.
        if (separator.empty()) return {};
    }
    if (index != 0) return {};
    if (end == 0) return Mid(text, start);
    return Mid(text, start, end - start);
}

std::string GetField(std::string_view text, std::int16_t index, std::string&& separator) {
    return GetField(text, index, separator);
}

void ReplaceText(std::string& text, std::string_view find, std::string_view replacement) {
    // One pass into a new text: a replacement in place would move the tail at every occurrence. The position
    // that counts for the 16-bit limit is that in the text as it stands with the replacements so far.
    if (find.empty()) return;
    std::string out;
    std::size_t from = 0;
    for (std::size_t found = text.find(find); found != std::string::npos; found = text.find(find, from)) {
        out.append(text, from, found - from);
        PositionAt(out.size());
        out.append(replacement);
        from = found + find.size();
    }
    if (from == 0) return;
    out.append(text, from);
    text = std::move(out);
}

std::int16_t TimeTextToMinutes(std::string_view text) {
    double minutes = 0;
    const std::size_t split = [&] {
        for (const char separator : std::string_view(":., -+")) {
            const std::size_t found = text.find(separator);
            if (found != std::string_view::npos) return found;
        }
        return std::string_view::npos;
    }();
    if (split != std::string_view::npos) {
        minutes = Val(text.substr(split + 1)) + 60 * Val(text.substr(0, split));
    } else {
        std::string digits(text);
        if (!digits.empty() && digits[0] != '0' && digits.size() < 3) digits += "00";
        digits = LastDigits(digits, 4);
        minutes = 60 * Val(digits.substr(0, 2)) + Val(digits.substr(2, 2));
    }
    return ToInt16(std::clamp(RoundEven(minutes), 0.0, 1440.0));
}

std::string Int16ToChars(std::int16_t value) {
    const auto bits = static_cast<std::uint16_t>(value);
    return {static_cast<char>(bits >> 8), static_cast<char>(bits & 0xFF)};
}

std::int16_t CharsToInt16(std::string_view text) {
    if (text.size() < 2)
        throw cFailure(eFailure::InvalidCall, "two characters are needed for a 16-bit value");
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(Code(text[0]) * 256 + Code(text[1])));
}

std::vector<cLineSpan> FindLines(std::string_view content) {
    std::vector<cLineSpan> lines;
    for (std::size_t begin = 0; begin < content.size(); begin = lines.back().next) {
        const std::size_t end = std::min(content.find_first_of("\r\n", begin), content.size());
        const std::size_t length = content.substr(end, 2) == "\r\n" ? 2 : 1;
        lines.push_back({begin, end, std::min(end + length, content.size())});
    }
    return lines;
}

std::vector<std::string> SplitLines(std::string_view content) {
    std::vector<std::string> lines;
    for (const cLineSpan& line : FindLines(content)) {
        lines.emplace_back(content.substr(line.begin, line.end - line.begin));
    }
    return lines;
}

}  // namespace vigrel
