#include "contract/printer_contract.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "adapters/linux/linux_printer_ports.h"
#include "adapters/linux/system_clock.h"
#include "support/fake_files.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

// Each printer is a file in a folder of its own; without the folder it is broken.
class cLinuxPrinterRig {
  public:
    cLinuxPrinterRig() {
        m_Files.PutFolder("C:\\App\\");
        m_Files.Put("C:\\App\\VigrelReceiver.INI",
                    "[PrinterPorts]\r\n1=" + File(0).string() + "\r\n2=" + File(1).string() + "\r\n");
        SetBroken(0, false);
        SetBroken(1, false);
    }
    cPrinterPorts& Ports() { return m_Ports; }
    std::string Printed(int port) const {
        std::ifstream file(File(port), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void SetBroken(int port, bool broken) {
        if (broken) {
            std::filesystem::remove_all(File(port).parent_path());
        } else {
            std::filesystem::create_directories(File(port).parent_path());
        }
    }

  private:
    std::filesystem::path File(int port) const { return m_Folder.Path() / std::to_string(port) / "printed"; }

    cTemporaryFolder m_Folder;
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cSystemClock m_Clock;
    cLinuxPrinterPorts m_Ports{m_Ini, m_Clock};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Files, PrinterContract, cLinuxPrinterRig);

}  // namespace
}  // namespace vigrel::testing
