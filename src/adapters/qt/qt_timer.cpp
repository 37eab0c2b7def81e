#include "adapters/qt/qt_timer.h"

#include <algorithm>
#include <utility>

namespace vigrel {

cQtTimer::cQtTimer(int intervalMilliseconds, bool enabled) {
    m_Timer.setTimerType(Qt::PreciseTimer);
    m_Timer.setInterval(intervalMilliseconds);
    QObject::connect(&m_Timer, &QTimer::timeout, &m_Timer, [this] {
        if (!StoodStill() && OnTick) OnTick();
    });
    SetEnabled(enabled);
}

// Never twice on end: a loop that is always late has its ticks all the same.
bool cQtTimer::StoodStill() {
    constexpr double kMillisecond = 1.0 / 86'400'000, kLeast = 1000, kIntervals = 2;
    const double now = m_Clock.Steady();
    const double late = (now - std::exchange(m_LastTick, now)) / kMillisecond - Interval();
    m_LeftOut = !m_LeftOut && late > std::max(kLeast, kIntervals * Interval());
    return m_LeftOut;
}

void cQtTimer::SetEnabled(bool enabled) {
    if (enabled == m_Timer.isActive()) return;
    if (enabled) {
        m_LastTick = m_Clock.Steady();
        m_Timer.start();
    } else {
        m_Timer.stop();
    }
}

}  // namespace vigrel
