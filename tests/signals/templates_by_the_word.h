#pragma once

#include <cstdint>
#include <string>

#include "common/code_page.h"

namespace vigrel::testing {

// The two walks over an event template written down as they are told: one text that is searched and changed
// in place, with positions from 1. Slow, and for templates below 32,767 characters only. Tests compare the
// real ones with these.

inline std::size_t PositionOf(const std::string& text, char character, std::size_t from) {
    const std::size_t found = text.find(character, from - 1);
    return found == std::string::npos ? 0 : found + 1;
}

inline std::string FormsByTheWord(std::string text, std::int16_t status) {
    std::size_t i = 1;
    while (i <= text.size()) {
        const std::size_t close = PositionOf(text, '}', i + 1);
        const std::size_t next = PositionOf(text, '{', i + 1);
        const std::size_t mark = PositionOf(text, '?', i + 1);
        if (text[i - 1] != '{' || close == 0 || (next != 0 && next < close) || mark == 0 || mark > close) {
            ++i;
            continue;
        }
        const std::string word = ToUpper(text.substr(i, mark - i));
        const bool isTrue = (word == "ACTIVE?" && status == 1) || (word == "INACTIVE?" && status == 0) ||
                            (word == "ACKED?" && status == 2) || (word == "MESSAGE?" && status == 3);
        const std::string kept = isTrue ? text.substr(mark, close - mark - 1) : "";
        text = text.substr(0, i - 1) + kept + text.substr(close);
    }
    return text;
}

// Tokens through expand: gives what stands in the token's place, or false for an unknown token.
template <class Expand>
std::string TokensByTheWord(std::string text, Expand expand) {
    std::size_t i = 1;
    while (i <= text.size()) {
        const std::size_t close = PositionOf(text, ']', i + 1);
        const std::size_t next = PositionOf(text, '[', i + 1);
        std::string value;
        if (text[i - 1] != '[' || close == 0 || (next != 0 && next < close) ||
            !expand(text.substr(i, close - i - 1), value)) {
            ++i;
            continue;
        }
        text = text.substr(0, i - 1) + value + text.substr(close);
        i += value.size();
    }
    return text;
}

}  // namespace vigrel::testing
