#pragma once

// Devices that this build has no adapter for yet: present, and doing nothing.
#include "platform/suite_library.h"
namespace vigrel {
struct cNoPrinter : cPrinterPorts {
    std::int16_t SendPRN(std::string_view, std::int16_t) override { return 0; }
};
}  // namespace vigrel
