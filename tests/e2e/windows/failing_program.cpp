// A program of ours in which a failure escapes an event, and nobody sits at the screen. With an argument the
// desktop's session ends while the failure is shown.

#include <QTimer>
#include <chrono>
#include <cstdio>
#include <thread>

#include "common/failure.h"
#include "windows/application.h"

int main(int argc, char** argv) {
    vigrel::cApplication application(argc, argv);
    application.SetFailureBoxTime(1500);
    application.OnSessionEnds = [] { std::fputs("the program runs on\n", stderr); };
    // No timer of the program ticks by then.
    std::thread session([&application, ends = argc > 1] {
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        if (ends) QCoreApplication::postEvent(&application, new QEvent(QEvent::Quit));
    });
    session.detach();
    QTimer::singleShot(0, [] { throw vigrel::cFailure(vigrel::eFailure::Overflow, "an event failed"); });
    return vigrel::cApplication::exec();
}
