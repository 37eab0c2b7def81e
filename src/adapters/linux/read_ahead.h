#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

namespace vigrel {

// Reads the files of a folder in the order of their names, with threads that are some files ahead: what the
// caller does with one file and what the operating system does for the next go on at once.
void ReadAhead(const cFileReader& files, const std::string& folder, const std::vector<std::string>& names,
               const cFileReader::TakeContent& take);

}  // namespace vigrel
