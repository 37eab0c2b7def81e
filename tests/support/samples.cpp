#include "support/samples.h"

#include <fstream>
#include <iterator>

namespace vigrel::testing {

std::string SamplePath(const std::string& name) {
    return VIGREL_SAMPLES "/" + name;
}

std::string Sample(const std::string& name) {
    std::ifstream file(SamplePath(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace vigrel::testing
