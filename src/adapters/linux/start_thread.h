#pragma once

#include <functional>
#include <thread>

namespace vigrel {

// A thread that does the work. Throws cFailure where the machine gives none, as it does at its limit of
// tasks: what a thread is wished for can fail, and the program goes on.
std::thread StartThread(std::function<void()> work);

}  // namespace vigrel
