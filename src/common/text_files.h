#pragma once

#include <string>
#include <vector>

#include "common/delivered_texts.h"
#include "common/texts.h"
#include "platform/files.h"

namespace vigrel {

// Adds to every text file of the application folder what it lacks of the delivered texts; a file that can't
// be read is left alone. Gives a line for the log, of those texts, for each file that was completed, or could
// not be.
std::vector<std::string> CompleteTextFiles(cFiles& files, const std::string& applicationPath,
                                           const cDeliveredTexts& delivered, const cTexts& texts);

}  // namespace vigrel
