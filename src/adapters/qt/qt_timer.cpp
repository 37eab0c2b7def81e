#include "adapters/qt/qt_timer.h"

namespace vigrel {

cQtTimer::cQtTimer(int intervalMilliseconds, bool enabled) {
    m_Timer.setTimerType(Qt::PreciseTimer);
    m_Timer.setInterval(intervalMilliseconds);
    QObject::connect(&m_Timer, &QTimer::timeout, &m_Timer, [this] {
        if (OnTick) OnTick();
    });
    SetEnabled(enabled);
}

void cQtTimer::SetEnabled(bool enabled) {
    if (enabled == m_Timer.isActive()) return;
    if (enabled) {
        m_Timer.start();
    } else {
        m_Timer.stop();
    }
}

}  // namespace vigrel
