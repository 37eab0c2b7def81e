#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "common/ini.h"
#include "common/settings.h"

namespace vigrel {

// Reads the settings of sections "General" and "Printer" (but for the columns', which the list reads). A flag
// is true only when its number is exactly 1. A number beyond its range throws cFailure (Overflow) that names
// file, key and value. fontRead is called as soon as the list's font is known.
void ReadSettings(const cIniReader& ini, cSettings& settings, const std::function<void()>& fontRead);

// The listening port, and the number of the address that it is opened at; empty: at all of them.
std::int32_t ReadPort(const cIniReader& ini);
std::string ReadAddress(const cIniReader& ini);

}  // namespace vigrel
