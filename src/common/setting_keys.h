#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/ini.h"

namespace vigrel {

// --- words of the configuration file that keys and sections are made of

// The suffixes of the keys that are set for each state, by status.
inline constexpr std::array<std::string_view, 4> kStateSuffixes{"Inactive", "Active", "Acked", "Message"};
// A category's section is named by this and the category, in any case.
inline constexpr std::string_view kCategorySectionPrefix = "CategorySpecificSetting_";
// What a column of the list can show; each names a section of its own.
inline constexpr std::array<std::string_view, 16> kColumnKeywords{
    "StateIcon", "StateText", "AlarmDate", "AlarmTime", "AlarmDateTime",
    "Date",      "Time",      "DateTime",  "t0",        "t1",
    "t2",        "t3",        "t4",        "t5",        "ExtraText",
    "Observed"};
// Of every column, those of other names included, in pixels.
inline constexpr std::string_view kDefaultColumnWidth = "100";
// The image strip has pictures 0 to this.
inline constexpr int kLastIcon = 47;

// --- the table

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

// Reads the keys of one section with the defaults of the table, so that who asks for a key need not know its
// default. A key that the table does not have throws cFailure (InvalidCall).
class cSettingReader {
  public:
    cSettingReader(const cIniReader& ini, std::string_view section) : m_Ini(ini), m_Section(section) {}

    std::string Text(std::string_view key) const;
    bool Flag(std::string_view key) const { return Decimal(key) == 1; }
    double Decimal(std::string_view key) const;
    // Rounded. A number beyond the bits throws cFailure (Overflow) that names file, section, key and text.
    std::int16_t Int16(std::string_view key) const { return m_Ini.Int16(m_Section, key, Text(key)); }
    std::int32_t Int32(std::string_view key) const { return m_Ini.Int32(m_Section, key, Text(key)); }

  private:
    const cIniReader& m_Ini;
    std::string m_Section;
};

// Whether the section is that of a category.
bool IsCategorySection(std::string_view section);

}  // namespace vigrel
