#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <vector>

namespace vigrel::testing {

// The system calls that the main thread of a child process makes while the steps run here, by their numbers,
// in order; nothing where the machine does not let us look.
std::optional<std::vector<long>> SystemCallsOf(pid_t process, const std::function<void()>& steps);

}  // namespace vigrel::testing
