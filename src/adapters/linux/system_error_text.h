#pragma once

#include <string>

namespace vigrel {

// The operating system's words for a value of errno, in the language of the surroundings.
std::string SystemErrorText(int error);

}  // namespace vigrel
