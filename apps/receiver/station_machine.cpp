#include "receiver/station_machine.h"

#include <QApplication>

#include "adapters/linux/application_folder.h"
#include "adapters/linux/native_path.h"
#include "common/standard_error.h"

namespace vigrel {

cStationMachine::cStationMachine(const cGround& from)
    : ground(from),
      waveDevice(NativePath),
      beeper([this] {
          tone.Play();
          return true;
      }),
      printerPorts(ground.ini, clock,
                   [name = ground.programName](const std::string& text) { PrintError(name, text); }),
      otherWindows({ground.files, clock, ground.locale, screen, settingStore, windows, ground.application,
                    ground.messageBox},
                   from.applicationPath) {
    // The bell is for stations that can play no sound.
    tone.OnSilent = [] { QApplication::beep(); };
}

cReceiverPorts cStationMachine::Ports() {
    return {.files = ground.files,
            .ownFiles = ownFiles,
            .clock = clock,
            .random = random,
            .locale = ground.locale,
            .singleInstance = singleInstance,
            .winsockConnect = winsockConnect,
            .winsockData = winsockData,
            .timerKeepAlive = timerKeepAlive,
            .timerPlay = timerPlay,
            .timerSave = timerSave,
            .list = mainWindow.List(),
            .mainWindow = mainWindow,
            .menus = mainWindow,
            .screen = screen,
            .windows = windows,
            .popups = popups,
            .messageBox = ground.messageBox,
            .clipboard = clipboard,
            .beeper = beeper,
            .waveDevice = waveDevice,
            .trayArea = trayArea,
            .signalLight = signalLight,
            .runningApps = runningApps,
            .printerPorts = printerPorts,
            .otherWindows = otherWindows,
            .status = status,
            .deliveredTexts = deliveredTexts,
            .serviceManager = ground.serviceManager};
}

}  // namespace vigrel
