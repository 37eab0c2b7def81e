#pragma once

#include <sys/stat.h>

#include <cstdint>

namespace vigrel {

std::int64_t Nanoseconds(const timespec& time);

// Whether what is changed from now on shows in the times: a file system's clock ticks slowly, and two changes
// within one tick, of a network drive within a second, have the same times.
bool IsSettled(const struct stat& status);

}  // namespace vigrel
