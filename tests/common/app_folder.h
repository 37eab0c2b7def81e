#pragma once

#include <string>

namespace vigrel::testing {

inline const std::string kFolder = "C:\\App\\";

}  // namespace vigrel::testing
