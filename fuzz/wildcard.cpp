// Input: a line with a pattern, and a text.

#include "common/wildcard.h"
#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vigrel;
    const std::vector<std::string> parts = fuzz::HeadLines(fuzz::Text(data, size), 1);
    const std::string& pattern = parts[0];
    const std::string& text = parts[1];
    const bool fits = WildcardMatch(text, pattern) != False16;
    const bool isPlain = pattern.find_first_of("*?") == std::string::npos;
    if (isPlain && !text.empty()) fuzz::Require(fits == (text == pattern), "a plain pattern is the text");
    fuzz::Require(WildcardMatch(text, "*") != False16, "everything fits *");
    if (text.empty()) fuzz::Require(fits == (pattern == "*"), "no text fits * alone");
    const std::string marks(text.size(), '?');
    if (!text.empty()) fuzz::Require(WildcardMatch(text, marks) != False16, "as many ? as characters fit");
    return 0;
}
