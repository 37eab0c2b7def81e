#include "contract/signal_light_contract.h"

#include <cstdlib>
#include <fstream>

#include "adapters/linux/hid_signal_light.h"
#include "adapters/linux/system_clock.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

class cHidSignalLightRig {
  public:
    cHidSignalLightRig() {
        setenv("VIGREL_TEST_LIGHTS", m_Folder.Path().c_str(), 1);
        PlugIn("/dev/hidraw0 0 good\n/dev/hidraw1 77 good\n");
    }
    cSignalLight& Library() { return m_Library; }
    void PullOut() { PlugIn(""); }

  private:
    void PlugIn(const std::string& lights) { std::ofstream(m_Folder.Path() / "lights") << lights; }

    cTemporaryFolder m_Folder;
    cSystemClock m_Clock;
    cHidSignalLight m_Library{m_Clock, m_Folder.Path() / "sys"};
};

INSTANTIATE_TYPED_TEST_SUITE_P(StandIn, SignalLightContract, cHidSignalLightRig);

}  // namespace
}  // namespace vigrel::testing
