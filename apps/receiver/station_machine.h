#pragma once

#include <cstdio>
#include <string>

#include "adapters/linux/folder_lock.h"
#include "adapters/linux/hid_signal_light.h"
#include "adapters/linux/linux_files.h"
#include "adapters/linux/linux_printer_ports.h"
#include "adapters/linux/local_running_apps.h"
#include "adapters/linux/standard_random.h"
#include "adapters/linux/stream_status.h"
#include "adapters/linux/system_clock.h"
#include "adapters/qt/qt_data_socket.h"
#include "adapters/qt/qt_listener.h"
#include "adapters/qt/qt_setting_store.h"
#include "adapters/qt/qt_timer.h"
#include "adapters/qt/qt_wave_device.h"
#include "adapters/qt/tone_player.h"
#include "core/receiver_ports.h"
#include "receiver_ui/dialogs/other_windows.h"
#include "receiver_ui/main/main_window.h"
#include "receiver_ui/popups/popup_widget.h"
#include "receiver_ui/tray/notification_icon.h"
#include "windows/application.h"
#include "windows/built_in_texts.h"
#include "windows/desktop.h"

namespace vigrel {

// What stands behind the receiver's ports on this machine; each part has the name of its port. They are made
// in this order, and end in the reverse one.
struct cStationMachine {
    // What is there before, and outlives the machine.
    struct cGround {
        cApplication& application;
        cLinuxFiles& files;
        cIni& ini;
        const cLocale& locale;
        cMessageBox& messageBox;
        cServiceManager& serviceManager;
        const char* programName;
        const std::string& applicationPath;
    };
    explicit cStationMachine(const cGround& ground);
    cReceiverPorts Ports();

    static constexpr int kKeepAliveInterval = 10000;  // milliseconds
    static constexpr int kPlayInterval = 500;         // milliseconds
    static constexpr int kSaveInterval = 10;          // milliseconds, while many files are written

    cGround ground;
    cLinuxFiles ownFiles{cLinuxFiles::eNames::Exact};
    cSystemClock clock;
    cStandardRandom random;
    cFolderLock singleInstance{ground.applicationPath};
    cQtListener winsockConnect;
    cQtDataSocket winsockData{winsockConnect};
    cQtTimer timerKeepAlive{kKeepAliveInterval};
    cQtTimer timerPlay{kPlayInterval};
    cQtTimer timerSave{kSaveInterval, false};
    cOpenWindows windows;
    cMainWindow mainWindow{windows};
    cPopupWidgetMaker popups{windows};
    cQtScreen screen;
    cQtClipboard clipboard;
    cQtWaveDevice waveDevice;
    cTonePlayer tone;
    cQtBeeper beeper;
    cNotificationIcon trayArea;
    cHidSignalLight signalLight{clock};
    cLocalRunningApps runningApps;
    cLinuxPrinterPorts printerPorts;
    cQtSettingStore settingStore;
    cQtOtherWindows otherWindows;
    cStreamStatus status{stderr, ground.programName};
    cDeliveredTexts deliveredTexts = BuiltInTexts();
};

}  // namespace vigrel
