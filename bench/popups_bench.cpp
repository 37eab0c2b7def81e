// Opens and closes 1,000 popups in each mode and prints what that takes; docs/performance.md tells the
// figures. Runs on the display of the environment, or with QT_QPA_PLATFORM=offscreen without one.

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>

#include "receiver_ui/popups/popup_widget.h"
#include "signals/popups.h"
#include "support/popup_station.h"
#include "support/qt_wait.h"

namespace {

using namespace vigrel;

constexpr int kPopups = 1000;

struct cMode {
    const char* name;
    bool onlyOne;
    const char* categories;
    bool burst;  // all alarms within one handler; otherwise the event loop runs behind each
};

double Milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void Run(const cMode& mode) {
    testing::cPopupStation station;
    station.m_Settings.m_ViewOnlyOnePopupForm = mode.onlyOne;
    station.m_Settings.m_PopupFormTopMostCategory = mode.categories;
    station.m_Setting =
        testing::cPopupStation::Setting("BackColor_Active=200,0,0\nForeColor_Active=255,255,255\n");
    cOpenWindows windows;
    cPopupWidgetMaker maker(windows);
    cPopups popups(station.Services(windows, maker));

    QElapsedTimer timer;
    timer.start();
    double longest = 0;
    for (int i = 0; i < kPopups; ++i) {
        QElapsedTimer one;
        one.start();
        station.m_Clock.AddSeconds(1);
        popups.ShowPopup(station.Alarm(i % 3 == 0 ? "A" : "X"));
        if (!mode.burst) QApplication::processEvents();
        longest = std::max(longest, Milliseconds(one));
    }
    QApplication::processEvents();
    const double opened = Milliseconds(timer);

    timer.start();
    popups.ClosePopups();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    const double closed = Milliseconds(timer);
    testing::RunEvents(200);
    std::printf("%-40s open %7.0f ms (longest %5.1f ms), close %6.0f ms\n", mode.name, opened, longest,
                closed);
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    for (const cMode& mode :
         {cMode{"all show, burst", false, "", true}, cMode{"all show, one by one", false, "", false},
          cMode{"all show, with priorities, one by one", false, "A", false},
          cMode{"one shows, burst", true, "A", true}, cMode{"one shows, one by one", true, "A", false}}) {
        Run(mode);
    }
}
