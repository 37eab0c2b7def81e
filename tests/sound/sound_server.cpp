#include "sound/sound_server.h"

#include <signal.h>

#include <QDir>
#include <QFile>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numbers>

#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

constexpr int kRate = 44100;
constexpr int kSamplesPerMillisecond = kRate / 1000;
constexpr int kLoudness = 1000;  // of 32,767
constexpr int kGapMilliseconds = 60;

// One folder for the whole program: libraries read the environment once.
const cTemporaryFolder& RuntimeFolder() {
    static const cTemporaryFolder folder;
    return folder;
}

std::string SocketPath() {
    return (RuntimeFolder().Path() / "native").string();
}

std::vector<std::int16_t> Samples(const QByteArray& bytes) {
    std::vector<std::int16_t> samples(static_cast<std::size_t>(bytes.size()) / 2);
    std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
    return samples;
}

// Runs a command on the server. Whether it was carried out.
bool Control(const QStringList& command) {
    QProcess control;
    control.start("pactl", command);
    return control.waitForFinished() && control.exitCode() == 0;
}

}  // namespace

cSoundServer::cSoundServer() {
    setenv("XDG_RUNTIME_DIR", RuntimeFolder().Path().c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + SocketPath()).c_str(), 1);
    setenv("HOME", RuntimeFolder().Path().c_str(), 1);
}

cSoundServer::~cSoundServer() {
    m_Recorder.kill();
    m_Recorder.waitForFinished();
    GoOn();
    Kill();
}

bool cSoundServer::Start() {
    QFile::remove(QString::fromStdString(SocketPath()));
    m_Server.setStandardErrorFile(QString::fromStdString((RuntimeFolder().Path() / "server.log").string()));
    m_Server.start(
        "pulseaudio",
        {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "-L",
         QString::fromStdString("module-native-protocol-unix auth-anonymous=1 socket=" + SocketPath()), "-L",
         "module-null-sink sink_name=nul rate=44100 channels=2 norewinds=1"});
    return m_Server.waitForStarted() && WaitUntil([] { return Control({"get-default-sink"}); });
}

void cSoundServer::Kill() {
    m_Server.kill();
    m_Server.waitForFinished();
}
void cSoundServer::Hang() {
    kill(static_cast<pid_t>(m_Server.processId()), SIGSTOP);
}
void cSoundServer::GoOn() {
    if (m_Server.processId() > 0) kill(static_cast<pid_t>(m_Server.processId()), SIGCONT);
}

bool cSoundServer::Unplug() {
    return Control({"unload-module", "module-null-sink"});
}
bool cSoundServer::PlugIn() {
    return Control(
        {"load-module", "module-null-sink", "sink_name=nul", "rate=44100", "channels=2", "norewinds=1"});
}

bool cSoundServer::StartRecording() {
    m_Recorder.start("parec", {"-d", "nul.monitor", "--format=s16le", "--rate=44100", "--channels=1", "--raw",
                               "--latency-msec=20"});
    return WaitUntil([this] { return m_Recorder.bytesAvailable() > 0; });
}

std::vector<cSoundServer::cSound> cSoundServer::StopRecording() {
    RunEvents(100);
    m_Recorder.terminate();
    m_Recorder.waitForFinished();
    const std::vector<std::int16_t> samples = Samples(m_Recorder.readAllStandardOutput());
    std::vector<cSound> sounds;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (std::abs(int{samples[i]}) < kLoudness) continue;
        const int at = static_cast<int>(i) / kSamplesPerMillisecond;
        if (sounds.empty() || at > sounds.back().start + sounds.back().length + kGapMilliseconds) {
            sounds.push_back({at, 0, 1});
        }
        cSound& sound = sounds.back();
        if (at > sound.start + sound.length) ++sound.loud;
        sound.length = at - sound.start;
    }
    return sounds;
}

int cSoundServer::StopRecordingLoud() {
    int loud = 0;
    for (const cSound& sound : StopRecording()) loud += sound.loud;
    return loud;
}

std::string WaveFile(int milliseconds, double hertz) {
    std::string samples;
    for (int i = 0; i < kSamplesPerMillisecond * milliseconds; ++i) {
        const auto sample =
            static_cast<std::int16_t>(16000 * std::sin(2 * std::numbers::pi * hertz * i / kRate));
        samples += static_cast<char>(sample & 0xFF);
        samples += static_cast<char>(sample >> 8 & 0xFF);
    }
    const auto number = [](std::size_t value) {
        std::string bytes;
        for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
        return bytes;
    };
    return "RIFF" + number(36 + samples.size()) + "WAVEfmt " + number(16) + std::string("\1\0\1\0", 4) +
           number(kRate) + number(2 * kRate) + std::string("\2\0\x10\0", 4) + "data" +
           number(samples.size()) + samples;
}

}  // namespace vigrel::testing
