#include "bench/system_calls.h"

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

namespace vigrel::bench {
namespace {

constexpr int kTrap = SIGTRAP | 0x80;  // a stop at the begin or the end of a call

// Lets the stopped process run on; a signal of its own goes to it, a stop of ours does not.
bool Resume(pid_t process, int status) {
    const int signal = WSTOPSIG(status);
    const bool ours = signal == kTrap || status >> 16 != 0;
    return ptrace(PTRACE_SYSCALL, process, 0, ours ? 0 : signal) == 0;
}

}  // namespace

long CountSystemCalls(pid_t process, const std::function<void()>& steps) {
    std::atomic<bool> attached{false}, failed{false}, counting{false}, over{false};
    long stops = 0;
    // All requests must come from the thread that attached.
    std::thread tracer([&] {
        if (ptrace(PTRACE_SEIZE, process, 0, PTRACE_O_TRACESYSGOOD) != 0 ||
            ptrace(PTRACE_INTERRUPT, process, 0, 0) != 0) {
            failed = true;
            return;
        }
        int status = 0;
        while (waitpid(process, &status, __WALL) == process && WIFSTOPPED(status)) {
            attached = true;
            if (over) break;
            if (counting && WSTOPSIG(status) == kTrap) ++stops;
            if (!Resume(process, status)) break;
        }
        ptrace(PTRACE_DETACH, process, 0, 0);
    });
    while (!attached && !failed) std::this_thread::yield();
    if (!failed) {
        counting = true;
        steps();
        counting = false;
        over = true;
    }
    tracer.join();
    return failed ? -1 : stops / 2;
}

}  // namespace vigrel::bench
