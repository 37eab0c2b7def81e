#include "support/fake_devices.h"

#include "contract/printer_contract.h"
#include "contract/signal_light_contract.h"
#include "contract/wave_device_contract.h"

namespace vigrel::testing {
namespace {

class cFakeWaveDeviceRig {
  public:
    cWaveDevice& Device() { return m_Device; }
    std::string SoundFile() const { return "C:\\App\\sound.wav"; }
    void WaitForEnd() { m_Device.EndPlay(); }
    void RunEvents() { m_Device.RunEvents(); }

  private:
    cFakeWaveDevice m_Device;
};

class cFakeSignalLightRig {
  public:
    cFakeSignalLightRig() {
        m_Library.m_Version = 1;
        m_Library.m_Devices = {{1, {"A"}}, {3, {"B"}}};
    }
    cSignalLight& Library() { return m_Library; }
    void PullOut() { m_Library.m_Devices.clear(); }

  private:
    cFakeSignalLight m_Library;
};

class cFakePrinterRig {
  public:
    cPrinterPorts& Ports() { return m_Ports; }
    std::string Printed(int port) const {
        std::string printed;
        const std::string start = std::to_string(port) + ":";
        for (const std::string& line : m_Ports.m_Lines) {
            if (line.starts_with(start) && !IsLost(line)) printed += line.substr(start.size());
        }
        return printed;
    }
    // The fake fails lines by their numbers.
    void SetBroken(int /*port*/, bool broken) {
        if (broken) m_Ports.m_FailLines = {m_Ports.m_Lines.size() + 1};
    }

  private:
    bool IsLost(const std::string& line) const {
        for (const std::size_t number : m_Ports.m_FailLines) {
            if (m_Ports.m_Lines.at(number - 1) == line) return true;
        }
        return false;
    }
    cFakePrinterPorts m_Ports;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WaveDeviceContract, cFakeWaveDeviceRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, SignalLightContract, cFakeSignalLightRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, PrinterContract, cFakePrinterRig);

}  // namespace
}  // namespace vigrel::testing
