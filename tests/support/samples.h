#pragma once

#include <string>

namespace vigrel::testing {

// The path of a frozen file of tests/samples, and its content.
std::string SamplePath(const std::string& name);
std::string Sample(const std::string& name);
// The content of a file that is installed, named below the folder resources.
std::string Resource(const std::string& name);

}  // namespace vigrel::testing
