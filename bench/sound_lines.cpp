#include "bench/sound_lines.h"

#include <QElapsedTimer>
#include <QProcess>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "bench/example_frame.h"
#include "e2e/station.h"
#include "sound/sound_server.h"
#include "support/qt_wait.h"
#include "vigrel-send/connection.h"

namespace vigrel::bench {
namespace {

constexpr int kSampleRate = 44100;
constexpr int kLoud = 1000;        // of 32,767
constexpr int kSoundLength = 200;  // milliseconds
constexpr int kTick = 500;         // milliseconds

// Hears what the sound server plays, and when it became loud.
class cHearing {
  public:
    cHearing() {
        m_Clock.start();
        QObject::connect(&m_Recorder, &QProcess::readyReadStandardOutput, &m_Recorder, [this] { Hear(); });
        m_Recorder.start("parec", {"-d", "nul.monitor", "--format=s16le", "--rate=44100", "--channels=1",
                                   "--raw", "--latency-msec=5"});
        if (!testing::WaitUntil([this] { return m_Heard; }, 5000))
            throw std::runtime_error("nothing is recorded");
    }
    ~cHearing() {
        m_Recorder.kill();
        m_Recorder.waitForFinished();
    }
    // Milliseconds since the object was made.
    double Now() const { return static_cast<double>(m_Clock.nsecsElapsed()) / 1e6; }
    // When the next sound begins, which is awaited.
    double WaitForSound() {
        m_Loud.reset();
        if (!testing::WaitUntil([this] { return m_Loud.has_value(); }, 5000))
            throw std::runtime_error("no sound is heard");
        return *m_Loud;
    }

  private:
    void Hear() {
        const double now = Now();
        const QByteArray bytes = m_Recorder.readAllStandardOutput();
        std::vector<std::int16_t> samples(static_cast<std::size_t>(bytes.size()) / 2);
        std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
        m_Heard = true;
        for (std::size_t i = 0; i < samples.size() && !m_Loud; ++i) {
            if (std::abs(int{samples[i]}) > kLoud)
                m_Loud = now - static_cast<double>(samples.size() - i) * 1000 / kSampleRate;
        }
    }

    QElapsedTimer m_Clock;
    QProcess m_Recorder;
    bool m_Heard = false;
    std::optional<double> m_Loud;
};

}  // namespace

std::vector<cLine> MeasureSound(const cSize& size) {
    testing::cSoundServer server;
    if (!server.Start()) throw std::runtime_error("the sound server does not start");
    testing::cStation station;
    const std::string file = (station.Folder() / "alarm.wav").string();
    std::ofstream(file, std::ios::binary) << testing::WaveFile(kSoundLength);
    station.Configure("[General]\r\nEventSignal=2\r\nEventSoundFile=" + file + "\r\n");
    if (!station.Start()) throw std::runtime_error("the station does not start: " + station.StandardError());
    send::cConnection connection("127.0.0.1", std::to_string(station.m_Port), 10);
    cHearing hearing;
    std::vector<double> milliseconds;
    for (int i = 0; i < size.sounds; ++i) {
        // At another place between two ticks each time, and when the last sound is over.
        testing::RunEvents(kSoundLength + kTick + i * 37 % kTick);
        const double sent = hearing.Now();
        connection.Send(kFrame);
        if (connection.ReadReply().size() != 5) throw std::runtime_error("no reply");
        milliseconds.push_back(hearing.WaitForSound() - sent);
    }
    PublishLatency("from an alarm's last byte to its sound's first sample", milliseconds);
    return {};
}

}  // namespace vigrel::bench
