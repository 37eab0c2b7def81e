#include "adapters/linux/file_times.h"

#include <ctime>

namespace vigrel {
namespace {

constexpr std::int64_t kSettlesNs = 2'000'000'000;

}  // namespace

std::int64_t Nanoseconds(const timespec& time) {
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

bool IsSettled(const struct stat& status) {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now) - Nanoseconds(status.st_ctim) > kSettlesNs;
}

}  // namespace vigrel
