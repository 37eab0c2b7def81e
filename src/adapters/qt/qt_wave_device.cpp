#include "adapters/qt/qt_wave_device.h"

#include <utility>

#include "common/failure.h"

namespace vigrel {

cQtWaveDevice::cQtWaveDevice(PathMaker nativePath) : m_NativePath(std::move(nativePath)) {
    m_Player.OnEnded = [this](bool /*failed*/) {
        if (m_Notify && OnDone) OnDone();
    };
}

void cQtWaveDevice::Command(std::string_view command) {
    if (command == "Open") {
        m_OpenFile = m_FileName;
    } else if (command == "Play") {
        Play();
    } else if (command == "Prev" || command == "Stop") {
        m_Player.Stop();
    } else if (command == "Close") {
        m_Player.Stop();
        m_OpenFile.clear();
    } else {
        throw cFailure(eFailure::InvalidCall, "sound: unknown command " + std::string(command));
    }
}

void cQtWaveDevice::Play() {
    m_Player.Play([path = m_OpenFile, nativePath = m_NativePath]() -> SourcePtr {
        SourcePtr source;
        if (!path.empty()) SkipFailure([&] { source = OpenWaveFile(nativePath(path)); });
        return source;
    });
}

}  // namespace vigrel
