#include "adapters/qt/stop_signals.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <utility>

#include "common/failure.h"

namespace vigrel {
namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// A signal handler can reach nothing but statics: it writes to the first end, the event loop reads the
// second.
std::array<int, 2> ends{-1, -1};

void Handle(int signal) {
    const int error = errno;
    const char byte = static_cast<char>(signal);
    // A full pair has signals enough in it.
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &byte, 1);
    errno = error;
}

void SetHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : kSignals) sigaction(signal, &action, nullptr);
}

}  // namespace

cStopSignals::cStopSignals() {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw cFailure(eFailure::Device, "No socket pair for the signals that stop the program");
    }
    m_Notifier = std::make_unique<QSocketNotifier>(ends[1], QSocketNotifier::Read);
    QObject::connect(m_Notifier.get(), &QSocketNotifier::activated, m_Notifier.get(), [this] {
        char byte = 0;
        while (::read(ends[1], &byte, 1) == 1) {
            if (OnStop) OnStop(byte == SIGINT ? eCloseReason::Interrupt : eCloseReason::SessionEnd);
        }
    });
    SetHandler(Handle);
}

cStopSignals::~cStopSignals() {
    SetHandler(SIG_DFL);
    m_Notifier.reset();
    for (int& end : ends) ::close(std::exchange(end, -1));
}

}  // namespace vigrel
