// Input: the date-time as a number, then the locale's short date, long date and long time form on a line
// each, then the pattern.

#include "fuzz/fuzz_target.h"

#include <algorithm>

#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"

namespace {

using namespace vigrel;

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char character : text) escaped += {'\\', character};
    return escaped;
}

void CheckPattern(DateTime value, const std::string& pattern, const cLocaleForms& forms) {
    // A symbol makes at most one text of 16 characters, or a date and a time of the locale's forms.
    const std::size_t longest =
        16 * (2 + std::max(forms.shortDate.size(), forms.longDate.size()) + forms.longTime.size());
    const std::string text = FormatDateTime(value, pattern, forms);
    fuzz::Require(text.size() <= (pattern.size() + 1) * longest, "the text is bounded");
    if (pattern.empty()) return;
    fuzz::Require(FormatDateTime(value, Escaped(pattern), forms) == pattern, "an escaped text stays");
    if (pattern.find('"') != std::string::npos) return;
    fuzz::Require(FormatDateTime(value, '"' + pattern + '"', forms) == pattern, "a quoted text stays");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto parts = fuzz::HeadLines(fuzz::Text(data, size), 4);
    cLocaleForms forms;
    forms.shortDate = parts[1];
    forms.longDate = parts[2];
    forms.longTime = parts[3];
    const double value = Val(parts[0]);
    bool formatted = true;
    try {
        CheckPattern(value, parts[4], forms);
    } catch (const cFailure& failure) {
        fuzz::Require(failure.Number() == eFailure::Overflow, "only a year out of range fails");
        formatted = false;
    }
    fuzz::Require(formatted || !(value >= DateSerial(100, 1, 1) && value <= DateSerial(9999, 12, 31)),
                  "every date from 100 to 9999 is formatted");
    return 0;
}
