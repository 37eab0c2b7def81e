#pragma once

#include <string>
#include <string_view>

#include "common/settings.h"
#include "platform/suite_library.h"

namespace vigrel {

// The Swedish letters as code page 437 has them, each a single character; everything else stays.
std::string ConvertToPrinterChars(std::string_view text);

// Prints event texts, in lines of 80 characters, on the port of the settings.
class cPrinting {
  public:
    cPrinting(cPrinterPorts& ports, const cSettings& settings) : m_Ports(ports), m_Settings(settings) {}

    // True when the last line was printed, or nothing was to be printed.
    bool PrintEventText(std::string_view text);

  private:
    cPrinterPorts& m_Ports;
    const cSettings& m_Settings;
};

}  // namespace vigrel
