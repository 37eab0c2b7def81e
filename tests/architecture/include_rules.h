#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel::testing {

// What each folder of the sources may include, as docs/ARCHITECTURE.md lists it.
struct cIncludeRules {
    // Folders by folder; a folder may always include itself.
    std::map<std::string, std::set<std::string>> edges;
    // Headers from outside by folder, beyond those of the C++ standard library: "Qt", "machine" (the
    // operating system's and its libraries'), or a single header.
    std::map<std::string, std::set<std::string>> outside;
};

// Reads the two tables of the page. A page without them gives rules that allow nothing.
cIncludeRules ReadIncludeRules(std::string_view page);

// One line for each include that isn't allowed, each folder without a row, and each entry of the rules that
// nothing uses.
std::vector<std::string> CheckIncludes(const std::filesystem::path& sources, const cIncludeRules& rules);

}  // namespace vigrel::testing
