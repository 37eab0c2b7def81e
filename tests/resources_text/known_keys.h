#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vigrel::testing {

// How a value is read.
enum class eValueKind { Text, Flag, Int16, Int32, Decimal, Colour, Icons };

struct cKnownKey {
    std::string section, name;
    eValueKind kind;
    std::string defaultValue;
};

// Every key of VigrelReceiver.INI that has a fixed name and section; a category's keys stand under "General".
// Senders, category translations and printer ports have names of the installer's choice.
const std::vector<cKnownKey>& KnownKeys();
// The keys that a category section may hold.
const std::vector<cKnownKey>& CategoryKeys();

}  // namespace vigrel::testing
