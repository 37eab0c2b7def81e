#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "common/delivered_texts.h"
#include "common/receiver_state.h"
#include "common/texts.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/notification_area.h"
#include "platform/popup_window.h"
#include "platform/random.h"
#include "platform/report_list.h"
#include "platform/service_manager.h"
#include "platform/signal_light.h"
#include "platform/single_instance.h"
#include "platform/sockets.h"
#include "platform/status.h"
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
    // Shown without blocking, from now on fed by WriteTrace; its close clears m_DebugMode. What is referred
    // to outlives the window.
    virtual void ShowDebugWindow(const cTexts& texts, cReceiverState& state) = 0;
    virtual void WriteTrace(std::string_view text, std::int16_t kind) = 0;
    // Shown without blocking and painted at once.
    virtual void ShowAboutBox(const cTexts& texts) = 0;
    virtual void UnloadAboutBox() = 0;
    // A text that stays in sight until the operator puts it away or another one takes its place; empty: none.
    // Takes no keyboard.
    virtual void ShowNotice(std::string_view text) = 0;

    // Closes what asks the operator for an answer, boxes included, now and from now on, as if it had been
    // closed unanswered: the program is to end.
    virtual void RefuseDialogs() = 0;
    // Dialogs are asked again.
    virtual void AllowDialogs() = 0;

    // Something that these windows do has failed, and is about to be thrown.
    std::function<void()> OnFailing;
};

// Everything that the receiver needs of the machine. What is referred to outlives the receiver.
struct cReceiverPorts {
    cFiles& files;
    cFiles& ownFiles;  // the same, of exact names
    const cClock& clock;
    cRandom& random;
    const cLocale& locale;
    cSingleInstance& singleInstance;
    cListener& winsockConnect;
    cDataSocket& winsockData;
    cTimer& timerKeepAlive;
    cTimer& timerPlay;
    cTimer& timerSave;
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
    cStatus& status;
    const cDeliveredTexts& deliveredTexts;
    cServiceManager& serviceManager;
};

}  // namespace vigrel
