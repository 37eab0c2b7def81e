#pragma once

#include <functional>
#include <string>

#include "adapters/qt/sound_player.h"
#include "platform/wave_device.h"

namespace vigrel {

// Plays wave files through the desktop's sound server. The file is opened anew for each play, so that one
// that was missing is heard when it is there again.
class cQtWaveDevice : public cWaveDevice {
  public:
    // How the operating system knows a path of the system; called in the thread that plays.
    using PathMaker = std::function<std::string(std::string_view)>;

    explicit cQtWaveDevice(PathMaker nativePath);

    void SetDeviceType(std::string_view /*type*/) override {}
    std::string FileName() const override { return m_FileName; }
    void SetFileName(std::string_view path) override { m_FileName = path; }
    void Command(std::string_view command) override;
    void SetNotify(bool on) override { m_Notify = on; }
    void SetWait(bool /*on*/) override {}
    void SetShareable(bool /*on*/) override {}
    int Mode() const override { return m_Player.Playing() ? Playing : kStopped; }

  private:
    static constexpr int kStopped = 525;

    void Play();

    PathMaker m_NativePath;
    cSoundPlayer m_Player;
    std::string m_FileName, m_OpenFile;
    bool m_Notify = false;
};

}  // namespace vigrel
