#pragma once

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <string>

#include "adapters/linux/native_path.h"
#include "adapters/qt/qt_wave_device.h"
#include "sound/sound_server.h"
#include "support/qt_wait.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {

// A wave device and its server, which a test starts.
class cSoundTest : public ::testing::Test {
  protected:
    cSoundTest() {
        m_Device.OnDone = [this] { ++m_Done; };
    }
    // Puts a file in place and gives its name as the system writes it.
    std::string File(const std::string& name, const std::string& bytes) {
        std::ofstream(m_Folder.Path() / name, std::ios::binary) << bytes;
        return m_Folder.Folder() + name;
    }
    void OpenFile(const std::string& file) {
        m_Device.Command("Close");
        m_Device.SetFileName(file);
        m_Device.Command("Open");
    }
    void Play() {
        m_Device.Command("Prev");
        m_Device.SetNotify(true);
        m_Device.Command("Play");
    }
    // Plays to the end. False when there is none in time.
    bool PlayToTheEnd(int milliseconds = 5000) {
        const int before = m_Done;
        Play();
        return WaitUntil([&] { return m_Done > before; }, milliseconds);
    }

    cSoundServer m_Server;
    cTemporaryFolder m_Folder;
    cQtWaveDevice m_Device{NativePath};
    int m_Done = 0;
};

// Notes the longest time for which the event loop did not turn.
class cGapMeter {
  public:
    cGapMeter() {
        m_Since.start();
        QObject::connect(&m_Timer, &QTimer::timeout, &m_Timer,
                         [this] { m_Longest = std::max(m_Longest, m_Since.restart()); });
        m_Timer.start(1);
    }
    // Milliseconds.
    qint64 Longest() const { return std::max(m_Longest, m_Since.elapsed()); }

  private:
    QElapsedTimer m_Since;
    QTimer m_Timer;
    qint64 m_Longest = 0;
};

}  // namespace vigrel::testing
