#include "vigrel-report/machine_zone.h"

#include <ctime>

namespace vigrel::report {
namespace {

Seconds AheadAt(Moment moment) {
    const std::time_t time = moment;
    std::tm local{};
    localtime_r(&time, &local);
    return local.tm_gmtoff;
}

// The first second with the later offset.
Moment FindChange(Moment from, Moment to) {
    const Seconds before = AheadAt(from);
    while (to - from > 1) {
        const Moment middle = from + (to - from) / 2;
        (AheadAt(middle) == before ? from : to) = middle;
    }
    return to;
}

}  // namespace

cTimeZone MachineZone() {
    constexpr Moment kFirst = 631152000, kLast = 2840140800;  // 1990, 2060
    constexpr Seconds kStep = 7 * kDay;                       // shorter than any time between two changes
    tzset();
    std::vector<cTimeZone::cChange> changes;
    for (Moment at = kFirst; at < kLast; at += kStep) {
        if (AheadAt(at) == AheadAt(at + kStep)) continue;
        const Moment change = FindChange(at, at + kStep);
        changes.push_back({change, AheadAt(change)});
    }
    return cTimeZone(AheadAt(kFirst), std::move(changes));
}

}  // namespace vigrel::report
