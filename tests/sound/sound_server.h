#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace vigrel::testing {

// A sound server of the test's own, over a sink that plays into nothing. Programs find it through the
// environment. The place stays the same for the whole test program, the server can go and come back.
class cSoundServer {
  public:
    cSoundServer();
    ~cSoundServer();

    bool Start();
    // It dies, as in a crash.
    void Kill();
    // It hangs: takes connections and answers nothing, until it goes on.
    void Hang();
    void GoOn();
    // Takes away the only device, and gives it back.
    bool Unplug();
    bool PlugIn();

    // Records all that is played, from the call on. False when the server can't be heard.
    bool StartRecording();
    struct cSound {
        int start, length;  // milliseconds
        int loud;           // milliseconds of it that are not silent
    };
    // Ends the recording; the sounds in it, kept apart by 60 ms of silence and more.
    std::vector<cSound> StopRecording();
    // Ends the recording; the milliseconds in it that are not silent, however close its sounds are.
    int StopRecordingLoud();

  private:
    QProcess m_Server, m_Recorder;
};

// A wave file with a plain tone: 16 bits, one channel, 44,100 samples a second.
std::string WaveFile(int milliseconds, double hertz = 1000);

}  // namespace vigrel::testing
