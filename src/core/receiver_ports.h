#pragma once

#include <functional>
#include <string_view>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/notification_area.h"
#include "platform/popup_window.h"
#include "platform/random.h"
#include "platform/report_list.h"
#include "platform/signal_light.h"
#include "platform/single_instance.h"
#include "platform/sockets.h"
#include "platform/suite_library.h"
#include "platform/timer.h"
#include "platform/wave_device.h"
#include "platform/windows.h"

namespace vigrel {

// The receiver's further windows.
class cOtherWindows {
  public:
    virtual ~cOtherWindows() = default;
    // Lets the operator choose a language; returns when that window is closed.
    virtual void ShowLanguageWindow() = 0;
    // Shown without blocking, from now on fed by WriteTrace.
    virtual void ShowDebugWindow() = 0;
    virtual void WriteTrace(std::string_view text, std::int16_t kind) = 0;
    // Shown without blocking and painted at once.
    virtual void ShowAboutBox() = 0;
    virtual void UnloadAboutBox() = 0;
};

// Everything that the receiver needs of the machine. What is referred to outlives the receiver.
struct cReceiverPorts {
    cFiles& files;
    const cClock& clock;
    cRandom& random;
    const cLocale& locale;
    cSingleInstance& singleInstance;
    cListener& winsockConnect;
    cDataSocket& winsockData;
    cTimer& timerKeepAlive;
    cTimer& timerPlay;
    cReportList& list;
    cWindow& mainWindow;
    cMenus& menus;
    cScreen& screen;
    cWindowList& windows;
    cPopupMaker& popups;
    cMessageBox& messageBox;
    cClipboard& clipboard;
    cBeeper& beeper;
    cWaveDevice& waveDevice;
    cNotificationArea& trayArea;
    cSignalLight& signalLight;
    cRunningApps& runningApps;
    cPrinterPorts& printerPorts;
    cOtherWindows& otherWindows;
};

}  // namespace vigrel
