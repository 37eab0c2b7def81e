#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/setting_keys.h"
#include "common/text.h"

namespace vigrel::testing {

// The lines of a page of the folder docs.
inline std::vector<std::string> ReadPage(const std::string& name) {
    std::ifstream file(std::string(VIGREL_DOCS_DIR) + "/" + name, std::ios::binary);
    if (!file) throw std::runtime_error("docs/" + name + " is missing");
    return SplitLines(std::string(std::istreambuf_iterator<char>(file), {}));
}

// The default as pages for people write it.
inline std::string DefaultInWords(const cSettingKey& key) {
    if (key.name == "ColumnText") return "the column's keyword";
    return key.defaultValue.empty() ? "empty" : key.defaultValue;
}

}  // namespace vigrel::testing
