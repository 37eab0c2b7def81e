#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// How a value is read.
enum class eValueKind {
    Text,
    Flag,     // on when the number is exactly 1
    Int16,    // the number at the beginning, rounded to 16 bits
    Int32,    // the same, to 32 bits
    Decimal,  // the number at the beginning
    Rgb,      // "red,green,blue"
    Icons,    // "before,after" acknowledgement
    Leds,     // four numbers, one for each LED: "0/2/0/0"
    LedPairs  // four pairs: "50,50/50,50/50,50/50,50"
};

// One key of VigrelReceiver.INI: the one table that the program, its manual, the delivered configuration and
// vigrel-receiver-check are held to by tests.
struct cSettingKey {
    std::string section, name;
    eValueKind kind = eValueKind::Text;
    std::string defaultValue;  // what a missing key means
    double low = 0, high = 0;  // the numbers that mean something; other numbers are read all the same
};

// Every key with a fixed name and section; a category's keys stand under "General". Senders, translations and
// printer ports have names of the installer's choice: of those only the first printer port is here.
const std::vector<cSettingKey>& SettingKeys();
// The keys that a category section may hold; section is "General".
const std::vector<cSettingKey>& CategoryKeys();
// The key of a section, category sections included, in any case; none for one that nobody reads.
const cSettingKey* FindSettingKey(std::string_view section, std::string_view name);

// Whether the section is that of a category.
bool IsCategorySection(std::string_view section);

}  // namespace vigrel
