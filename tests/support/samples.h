#pragma once

#include <string>

namespace vigrel::testing {

// The path of a frozen file of tests/samples, and its content.
std::string SamplePath(const std::string& name);
std::string Sample(const std::string& name);

}  // namespace vigrel::testing
