#pragma once

#include <sys/types.h>

#include <functional>

namespace vigrel::bench {

// The system calls that the main thread of a child process makes while the steps run here; -1 where the
// machine does not let us look.
long CountSystemCalls(pid_t process, const std::function<void()>& steps);

}  // namespace vigrel::bench
