#pragma once

#include <string>
#include <string_view>

namespace vigrel::report {

// UTF-8 as text or attribute of a page: what would be markup is written as a character.
inline std::string Escaped(std::string_view utf8) {
    std::string escaped;
    for (const char c : utf8) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            case '\'':
                escaped += "&#39;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

}  // namespace vigrel::report
