#pragma once

#include <string>
#include <vector>

#include "vigrel-send/options.h"

namespace vigrel::send {

// The frames that the options ask for, once, each with its line end. fileContent is that of options.file; now
// is "YYYY-MM-DD HH:MM:SS". Throws cUsageError for a file whose text the link can't carry.
std::vector<std::string> MakeFrames(const cOptions& options, const std::string& fileContent,
                                    const std::string& now);

// How many replies a station gives to these bytes: one to each line that is neither empty nor a reply's.
int RepliesTo(const std::string& bytes);

}  // namespace vigrel::send
