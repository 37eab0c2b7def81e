#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// What libFuzzer, or run_corpus.cpp in its place, calls with each input. The result is always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vigrel::fuzz {

// Ends the program when a property doesn't hold for the input.
inline void Require(bool holds, const char* property) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// The first lines of an input, without their line feeds, and last what stands behind them. What is missing is
// empty.
inline std::vector<std::string> HeadLines(std::string_view input, std::size_t count) {
    std::vector<std::string> parts;
    while (parts.size() < count) {
        const std::size_t end = input.find('\n');
        parts.emplace_back(input.substr(0, end));
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    }
    parts.emplace_back(input);
    return parts;
}

}  // namespace vigrel::fuzz
