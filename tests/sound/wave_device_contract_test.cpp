#include "contract/wave_device_contract.h"

#include "sound/sound_fixture.h"

namespace vigrel::testing {
namespace {

class cQtWaveDeviceRig {
  public:
    cQtWaveDeviceRig() {
        EXPECT_TRUE(m_Server.Start());
        std::ofstream(m_Folder.Path() / "sound.wav", std::ios::binary) << WaveFile(150, 440);
    }
    cWaveDevice& Device() { return m_Device; }
    std::string SoundFile() const { return m_Folder.Folder() + "sound.wav"; }
    void WaitForEnd() {
        EXPECT_TRUE(WaitUntil([this] { return m_Device.Mode() != cWaveDevice::Playing; }));
    }
    void RunEvents() { testing::RunEvents(50); }

  private:
    cSoundServer m_Server;
    cTemporaryFolder m_Folder;
    cQtWaveDevice m_Device{NativePath};
};

INSTANTIATE_TYPED_TEST_SUITE_P(NullSink, WaveDeviceContract, cQtWaveDeviceRig);

}  // namespace
}  // namespace vigrel::testing
