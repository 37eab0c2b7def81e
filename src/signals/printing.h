#pragma once

#include <string>
#include <string_view>

#include "common/settings.h"
#include "platform/suite_library.h"

namespace vigrel {

// The Swedish letters as their bytes of code page 437, which printers know; every other character stays, so
// the length does too.
std::string ConvertToPrinterChars(std::string_view text);

// Prints event texts on the port of the settings.
class cPrinting {
  public:
    cPrinting(cPrinterPorts& ports, const cSettings& settings) : m_Ports(ports), m_Settings(settings) {}

    // Sends a text in lines of 80 characters, each ended by CR LF. Lines break by count alone: a line end
    // within the text counts as two characters and starts no new count. True when the last line was printed,
    // or there was nothing to print; a line that failed before it is not reported, and none is sent again.
    bool PrintEventText(std::string_view text);

  private:
    cPrinterPorts& m_Ports;
    const cSettings& m_Settings;
};

}  // namespace vigrel
