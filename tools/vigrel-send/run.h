#pragma once

#include <string>
#include <vector>

namespace vigrel::send {

// The whole program; the exit code is told in HelpText.
int Run(const std::vector<std::string>& arguments);

}  // namespace vigrel::send
