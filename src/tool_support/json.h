#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// JSON, in UTF-8.

// A text of the code page, or one in UTF-8, as a JSON string, quotes included.
std::string JsonString(std::string_view text);
std::string JsonStringOfUtf8(std::string_view utf8);
// The same of a text that may name paths (common/path_text.h).
std::string JsonPath(std::string_view text);

// The items of a list inside an object, each on a line of its own.
template <class Items, class Write>
std::string JsonList(const Items& items, Write write) {
    std::string json = "[";
    for (std::size_t i = 0; i < items.size(); ++i) json += (i == 0 ? "\n    " : ",\n    ") + write(items[i]);
    return json + (items.empty() ? "]" : "\n  ]");
}

}  // namespace vigrel
