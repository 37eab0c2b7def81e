#pragma once

#include <string>

#include "common/phrase.h"

namespace vigrel {

// The operating system's words for a value of errno, in the language of the surroundings.
std::string SystemErrorText(int error);
// The same for windows that speak a language of their own: the usual errors of files can be said in it.
cPhrase SystemErrorPhrase(int error);

}  // namespace vigrel
