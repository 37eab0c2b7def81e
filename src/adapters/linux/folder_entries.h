#pragma once

#include <dirent.h>

#include <functional>
#include <string>
#include <string_view>

namespace vigrel {

// Takes an entry of a folder, which is open as given, and its name as a path's part (common/path_text.h).
using TakeEntry = std::function<void(int folder, const dirent& entry, std::string name)>;

// The entries of a folder that fit the mask ("?" and "*"), hidden ones excepted; none of a folder that is not
// there. The folder's path is the machine's. Throws cFailure when the folder can't be read.
void ForEachEntry(const std::string& native, std::string_view mask, const TakeEntry& take);

// Of a file, or of a link to one.
bool IsRegular(int folder, const dirent& entry);

// Why an entry of a folder can't be read; empty when it can.
std::string WhyUnreadable(int folder, const char* name);

}  // namespace vigrel
