#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/text.h"

namespace vigrel::testing {

// The lines of a page of the folder docs.
inline std::vector<std::string> ReadPage(const std::string& name) {
    std::ifstream file(std::string(VIGREL_DOCS_DIR) + "/" + name, std::ios::binary);
    if (!file) throw std::runtime_error("docs/" + name + " is missing");
    return SplitLines(std::string(std::istreambuf_iterator<char>(file), {}));
}

}  // namespace vigrel::testing
