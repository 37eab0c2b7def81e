#pragma once

#include <QTimer>
#include <fstream>
#include <memory>
#include <string>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/standard_random.h"
#include "adapters/linux/system_clock.h"
#include "adapters/qt/qt_data_socket.h"
#include "adapters/qt/qt_listener.h"
#include "adapters/qt/qt_timer.h"
#include "bench/stored_alarms.h"
#include "core/vigrel_receiver_main.h"
#include "e2e/station.h"
#include "receiver_ui/main/main_window.h"
#include "receiver_ui/popups/popup_widget.h"
#include "support/fake_receiver.h"
#include "windows/desktop.h"

namespace vigrel::bench {

// A receiver in this process on real files, sockets, timers and windows; what signals besides windows is a
// fake.
class cWholeReceiver {
  public:
    cWholeReceiver(const std::string& general, int stored) : m_Port(testing::FreePort()) {
        StoreAlarms(m_Folder.Path() / "Alarms", stored);
        std::ofstream texts(m_Folder.Path() / "Vigrel_Texts.046", std::ios::binary);
        texts << "0=Test\r\n";
        for (int id = 10000; id < 10050; ++id) texts << id << "=T" << id << "\r\n";
        std::ofstream(m_Folder.Path() / "VigrelReceiver.INI", std::ios::binary)
            << "[General]\r\nLanguage=046\r\n"
            << general << "[TCPIP]\r\nPort=" << m_Port << "\r\n";
    }
    // False when it does not start.
    bool Start() {
        if (receiver.Form_Load() != eStartUp::Running) return false;
        mainWindow.resize(1000, 600);
        mainWindow.Show();
        return true;
    }
    std::filesystem::path Alarms() const { return m_Folder.Path() / "Alarms"; }

    testing::cTemporaryFolder m_Folder;
    int m_Port;
    testing::cTranscript transcript;
    cLinuxFiles files;
    cLinuxFiles ownFiles{cLinuxFiles::eNames::Exact};
    cSystemClock clock;
    cStandardRandom random;
    testing::cFakeLocale locale;
    testing::cFakeSingleInstance singleInstance;
    cQtListener listener;
    cQtDataSocket data{listener};
    cQtTimer timerKeepAlive{10000};
    cQtTimer timerPlay{500};
    cQtTimer timerSave{10, false};
    cOpenWindows windows;
    cMainWindow mainWindow{windows};
    cPopupWidgetMaker popups{windows};
    cQtScreen screen;
    testing::cFakeMessageBox messageBox{&transcript};
    testing::cFakeClipboard clipboard;
    testing::cFakeBeeper beeper{&transcript};
    testing::cFakeWaveDevice waveDevice;
    testing::cFakeNotificationArea trayArea{&transcript};
    testing::cFakeSignalLight light{&transcript};
    testing::cFakeRunningApps runningApps{&transcript};
    testing::cFakePrinterPorts printerPorts;
    testing::cFakeOtherWindows otherWindows{transcript};
    testing::cFakeStatus status;
    cDeliveredTexts deliveredTexts;
    testing::cFakeServiceManager serviceManager;
    cVigrelReceiverMain receiver{
        {files,        ownFiles,     clock,          random,         locale,        singleInstance,
         listener,     data,         timerKeepAlive, timerPlay,      timerSave,     mainWindow.List(),
         mainWindow,   mainWindow,   screen,         windows,        popups,        messageBox,
         clipboard,    beeper,       waveDevice,     trayArea,       light,         runningApps,
         printerPorts, otherWindows, status,         deliveredTexts, serviceManager},
        m_Folder.Folder(),
        ""};
};

// The longest time for which the event loop stood still while the object lives.
class cStandStill {
  public:
    cStandStill() {
        m_Timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_Timer, &QTimer::timeout, &m_Timer, [this] { Look(); });
        m_Since.start();
        m_Timer.start(1);
    }
    double Longest() {
        Look();
        return m_Longest;
    }

  private:
    void Look() {
        m_Longest = std::max(m_Longest, static_cast<double>(m_Since.nsecsElapsed()) / 1e6);
        m_Since.start();
    }
    QTimer m_Timer;
    QElapsedTimer m_Since;
    double m_Longest = 0;  // milliseconds
};

}  // namespace vigrel::bench
