#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace vigrel::testing {

// The bytes of a file of the share folder, by its name relative to that folder.
inline std::string ReadShareFile(const std::string& name) {
    std::ifstream file(std::string(VIGREL_SHARE_DIR) + "/" + name, std::ios::binary);
    if (!file) throw std::runtime_error(name + " is not in the share folder");
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace vigrel::testing
