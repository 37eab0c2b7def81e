#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace vigrel::testing {

// Runs the event loop until the condition holds. False when it does not in time.
template <class Condition>
bool WaitUntil(Condition&& condition, int milliseconds = 20000) {
    QTimer wake;  // lets a loop without events come back
    wake.start(2);
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < milliseconds;) {
        if (condition()) return true;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return condition();
}

// Runs the event loop for a time.
inline void RunEvents(int milliseconds) {
    WaitUntil([] { return false; }, milliseconds);
}

}  // namespace vigrel::testing
