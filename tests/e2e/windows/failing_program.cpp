// A program of ours in which a failure escapes an event, and nobody sits at the screen. With the argument
// session the desktop's session ends while the failure is shown, with menu a menu is open when it comes.

#include <unistd.h>

#include <QMenu>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <thread>

#include "common/failure.h"
#include "windows/application.h"

int main(int argc, char** argv) {
    constexpr unsigned kLongestSeconds = 30;
    alarm(kLongestSeconds);
    const std::string_view argument = argc > 1 ? argv[1] : "";
    vigrel::cApplication application(argc, argv);
    application.SetFailureBoxTime(1500);
    const auto runOn = [] { std::fputs("the program runs on\n", stderr); };
    application.OnSessionEnds = runOn;
    // No timer of the program ticks by then.
    std::thread session([&application, ends = argument == "session"] {
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        if (ends) QCoreApplication::postEvent(&application, new QEvent(QEvent::Quit));
    });
    session.detach();
    QMenu menu;
    menu.addAction("Entry");
    QObject::connect(&menu, &QMenu::aboutToHide, runOn);
    if (argument == "menu") menu.popup({100, 100});
    QTimer::singleShot(0, [] { throw vigrel::cFailure(vigrel::eFailure::Overflow, "an event failed"); });
    return vigrel::cApplication::exec();
}
