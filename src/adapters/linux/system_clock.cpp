#include "adapters/linux/system_clock.h"

#include <algorithm>

#include "common/dates.h"

namespace vigrel {

// A date-time nearer than this to the next second can't be told from it.
constexpr long kLastNanosecond = 999'800'000;

namespace {

// Of a whole second.
DateTime LocalSecond(time_t second) {
    // The station runs for months: a time zone that is changed meanwhile is taken over.
    tzset();
    tm local{};
    localtime_r(&second, &local);
    return DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
           TimeSerial(local.tm_hour, local.tm_min, local.tm_sec);
}

DateTime PartOfSecond(const timespec& now) {
    return static_cast<double>(std::min(now.tv_nsec, kLastNanosecond)) / 86400e9;
}

}  // namespace

DateTime LocalDateTime(const timespec& now) {
    return LocalSecond(now.tv_sec) + PartOfSecond(now);
}

DateTime cSystemClock::Now() const {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (now.tv_sec != m_Second) {
        m_Second = now.tv_sec;
        m_LocalSecond = LocalSecond(m_Second);
    }
    return m_LocalSecond + PartOfSecond(now);
}

double cSystemClock::Steady() const {
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return (static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9) / 86400;
}

}  // namespace vigrel
