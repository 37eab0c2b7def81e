#include "e2e/system_calls.h"

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

namespace vigrel::testing {
namespace {

constexpr int kTrap = SIGTRAP | 0x80;  // a stop at the begin or the end of a call

// Lets the stopped process run on; a signal of its own goes to it, a stop of ours does not.
bool Resume(pid_t process, int status) {
    const int signal = WSTOPSIG(status);
    const bool ours = signal == kTrap || status >> 16 != 0;
    return ptrace(PTRACE_SYSCALL, process, 0, ours ? 0 : signal) == 0;
}

// The number of the call that the stopped process begins; nothing at the end of one.
std::optional<long> BegunCall(pid_t process) {
    __ptrace_syscall_info info{};
    if (ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info) <= 0 ||
        info.op != PTRACE_SYSCALL_INFO_ENTRY)
        return std::nullopt;
    return static_cast<long>(info.entry.nr);
}

}  // namespace

std::optional<std::vector<long>> SystemCallsOf(pid_t process, const std::function<void()>& steps) {
    std::atomic<bool> attached{false}, failed{false}, noting{false}, over{false};
    std::vector<long> calls;
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
            if (noting && WSTOPSIG(status) == kTrap) {
                if (const auto call = BegunCall(process)) calls.push_back(*call);
            }
            if (!Resume(process, status)) break;
        }
        ptrace(PTRACE_DETACH, process, 0, 0);
    });
    while (!attached && !failed) std::this_thread::yield();
    if (!failed) {
        noting = true;
        steps();
        noting = false;
        over = true;
    }
    tracer.join();
    if (failed) return std::nullopt;
    return calls;
}

}  // namespace vigrel::testing
