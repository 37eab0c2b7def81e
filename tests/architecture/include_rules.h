#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "architecture/source_tree.h"

namespace vigrel::testing {

// What each folder may include, as docs/ARCHITECTURE.md lists it; a folder of src goes by its name in there.
// The row of a folder counts for the folders in it that have none.
struct cIncludeRules {
    // Folders by folder, "*" for all; a folder may always include itself.
    std::map<std::string, std::set<std::string>> edges;
    // Headers from outside by folder, beyond those of the C++ standard library: "Qt", "machine" (the
    // operating system's and its libraries'), or a single header.
    std::map<std::string, std::set<std::string>> outside;
};

// Reads the two tables of the page. A page without them gives rules that allow nothing.
cIncludeRules ReadIncludeRules(std::string_view page);

// One line for each include that isn't allowed, each folder without a row, and each entry of the rules that
// nothing uses.
std::vector<std::string> CheckIncludes(const cSourceTree& tree, const cIncludeRules& rules);

}  // namespace vigrel::testing
