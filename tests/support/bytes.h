#pragma once

#include <string>
#include <string_view>

namespace vigrel::testing {

// Bytes written out in hexadecimal, two digits each; anything between them that is no digit separates, and
// what stands in round brackets is a note: Bytes("05 00 (version) FF FF").
inline std::string Bytes(std::string_view hex) {
    const auto digit = [](char c) {
        if (c >= '0' && c <= '9') return c - '0';
        if (c >= 'A' && c <= 'F') return c - 'A' + 10;
        return -1;
    };
    std::string bytes;
    int high = -1;
    bool note = false;
    for (const char c : hex) {
        if (c == '(') note = true;
        if (c == ')') note = false;
        if (note || digit(c) < 0) continue;
        if (high < 0) {
            high = digit(c);
        } else {
            bytes.push_back(static_cast<char>(high * 16 + digit(c)));
            high = -1;
        }
    }
    return bytes;
}

}  // namespace vigrel::testing
