#include "support/samples.h"

#include <fstream>
#include <iterator>

namespace vigrel::testing {

namespace {

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string SamplePath(const std::string& name) {
    return VIGREL_SOURCES "/tests/samples/" + name;
}

std::string Sample(const std::string& name) {
    return Content(SamplePath(name));
}

std::string Resource(const std::string& name) {
    return Content(VIGREL_SOURCES "/resources/" + name);
}

}  // namespace vigrel::testing
