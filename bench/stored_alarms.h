#pragma once

#include <filesystem>

namespace vigrel::bench {

// Writes alarm files of 365 bytes, with eight columns' worth of text and times in no order, as a station has
// them after a while.
void StoreAlarms(const std::filesystem::path& folder, int count);

}  // namespace vigrel::bench
