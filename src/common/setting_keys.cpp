#include "common/setting_keys.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

using enum eValueKind;

constexpr double kInt16Low = std::numeric_limits<std::int16_t>::min();
constexpr double kInt16High = std::numeric_limits<std::int16_t>::max();
constexpr double kInt32Low = std::numeric_limits<std::int32_t>::min();
constexpr double kInt32High = std::numeric_limits<std::int32_t>::max();
constexpr double kLargestFont = 1000;  // points
constexpr double kTwips = 1e6;

struct cRow {
    std::string_view section, name;
    eValueKind kind;
    std::string_view defaultValue;
    double low = 0, high = 0;
};

// A flag is on at exactly 1.
constexpr double HighOf(const cRow& row) {
    return row.kind == Flag ? 1 : row.high;
}

constexpr cRow kRows[] = {
    {"General", "ColumnResizable", Flag, "1"},
    {"General", "ColumnSortable", Flag, "1"},
    {"General", "ColumnWidthStore", Flag, "1"},
    {"General", "Columns", Text, ""},
    {"General", "Object", Text, "none"},
    {"General", "MaxEvents", Int32, "1000", kInt32Low, kInt32High},
    {"General", "MaxDays", Int32, "30", kInt32Low, kInt32High},
    {"General", "PopupFormTopMostCategory", Text, ""},
    {"General", "ViewOnlyOnePopupForm", Flag, "0"},
    {"General", "DateFormat", Text, "Short Date"},
    {"General", "TimeFormat", Text, "Long Time"},
    {"General", "ShowInTaskBar", Flag, "1"},
    {"General", "AutoResetKeepAliveTimer", Flag, "1"},
    {"General", "EventSoundFileDelay", Int32, "0", 0, kInt32High},
    {"General", "EventRestore", Flag, "1"},
    {"General", "EventSignalOnlyForActive", Flag, "0"},
    {"General", "EventSignalStopByNotifyClick", Flag, "0"},
    {"General", "EventRestoreOnlyForActive", Flag, "0"},
    {"General", "ViewPopupForm", Flag, "0"},
    {"General", "PopupFormOnlyForActive", Flag, "0"},
    {"General", "AckEventWhenPopupFormIsClosed", Flag, "0"},
    {"General", "SystemErrorCategory", Text, "Vigrel"},
    {"General", "DisableShutdown", Flag, "0"},
    {"General", "EventSignalUntilNoMorePopupForms", Flag, "0"},
    {"General", "EventFontName", Text, "Arial"},
    {"General", "EventFontSize", Decimal, "12", 1, kLargestFont},
    {"General", "ViewOnlyPopupFormForCategory", Text, ""},
    {"General", "PreventMinimize", Flag, "0"},
    {"General", "SortDescending", Flag, "0"},
    {"General", "KeepForDays", Int16, "0", 0, kInt16High},
    {"General", "Language", Text, ""},
    {"General", "CountryFilter", Text, ""},
    {"General", "Vigrel_Receiver_Main.Top", Decimal, "100", -kTwips, kTwips},
    {"General", "Vigrel_Receiver_Main.Left", Decimal, "100", -kTwips, kTwips},
    {"General", "Vigrel_Receiver_Main.Height", Decimal, "5000", 0, kTwips},
    {"General", "Vigrel_Receiver_Main.Width", Decimal, "8000", 0, kTwips},
    {"Printer", "Port", Int16, "1", kInt16Low, kInt16High},
    {"Printer", "ISOLatConv", Int16, "1", kInt16Low, kInt16High},
    {"Printer", "Format", Text, ""},
    {"PrinterPorts", "1", Text, ""},
    {"TCPIP", "Port", Int32, "12412", 1, 65535},
    {"TCPIP", "Address", Text, ""},
    {"PopupForm", "X_Size", Int32, "-1", kInt32Low, kInt32High},
    {"PopupForm", "Y_Size", Int32, "-1", kInt32Low, kInt32High},
    {"PopupForm", "WindowPosition", Text, "Default"},
    {"PopupForm", "X_Start", Int32, "50", kInt32Low, kInt32High},
    {"PopupForm", "Y_Start", Int32, "50", kInt32Low, kInt32High},
    {"PopupForm", "X_Step", Int32, "50", kInt32Low, kInt32High},
    {"PopupForm", "Y_Step", Int32, "50", kInt32Low, kInt32High},
    {"PopupForm", "X_Stop", Int32, "50", kInt32Low, kInt32High},
    {"PopupForm", "Y_Stop", Int32, "50", kInt32Low, kInt32High},
    {"PopupForm", "FontName", Text, "MS Sans Serif"},
    {"PopupForm", "FontSize", Decimal, "8", 1, kLargestFont},
    {"PopupForm", "FontBold", Int32, "0", kInt32Low, kInt32High},
    {"PopupForm", "FontItalic", Int32, "0", kInt32Low, kInt32High},
};

// Each of these names once with every state behind it.
constexpr cRow kStateRows[] = {
    {"General", "Icon_", Icons, "0,0", 0, kLastIcon},
    {"General", "BackColor_", Rgb, "0,0,0", 0, 255},
    {"General", "ForeColor_", Rgb, "0,0,0", 0, 255},
    {"General", "FontBold_", Int16, "0", kInt16Low, kInt16High},
    {"General", "FontItalic_", Int16, "0", kInt16Low, kInt16High},
    {"General", "USBLED_DeviceName_", Text, ""},
    {"General", "USBLED_Control_", Leds, "", 0, 2},
    {"General", "USBLED_FreqDuty_", LedPairs, "50,50/50,50/50,50/50,50", 0, 255},
    {"General", "USBLED_InitialPhaseDelay_", Leds, "", 0, 255},
    {"General", "USBLED_Power_", Leds, "100/100/100/100", 0, 100},
    {"General", "USBLED_PreScalar_", Int16, "10", 1, 255},
    {"General", "USBLED_SyncLeds_", Int16, "0", kInt16Low, kInt16High},
};

constexpr cRow kSignalRows[] = {
    {"General", "EventPopupFormat", Text, ""},
    {"General", "EventSignal", Int16, "0", 0, 3},
    {"General", "EventSoundFile", Text, ""},
    {"General", "ExtraText", Text, ""},
};

cSettingKey KeyOf(const cRow& row, std::string_view suffix = "") {
    return {std::string(row.section),
            std::string(row.name) + std::string(suffix),
            row.kind,
            std::string(row.defaultValue),
            row.low,
            HighOf(row)};
}

std::vector<cSettingKey> MakeCategoryKeys() {
    std::vector<cSettingKey> keys;
    for (const cRow& row : kStateRows) {
        for (const std::string_view state : kStateSuffixes) keys.push_back(KeyOf(row, state));
    }
    for (const cRow& row : kSignalRows) keys.push_back(KeyOf(row));
    return keys;
}

std::vector<cSettingKey> MakeSettingKeys() {
    std::vector<cSettingKey> keys;
    for (const cRow& row : kRows) keys.push_back(KeyOf(row));
    std::copy(CategoryKeys().begin(), CategoryKeys().end(), std::back_inserter(keys));
    for (const std::string_view column : kColumnKeywords) {
        keys.push_back({std::string(column), "ColumnText", Text, std::string(column)});
        keys.push_back(
            {std::string(column), "ColumnWidth", Int32, std::string(kDefaultColumnWidth), 1, kInt16High});
    }
    return keys;
}

}  // namespace

const std::vector<cSettingKey>& CategoryKeys() {
    static const std::vector<cSettingKey> keys = MakeCategoryKeys();
    return keys;
}

const std::vector<cSettingKey>& SettingKeys() {
    static const std::vector<cSettingKey> keys = MakeSettingKeys();
    return keys;
}

const cSettingKey* FindSettingKey(std::string_view section, std::string_view name) {
    const bool category = IsCategorySection(section);
    const std::vector<cSettingKey>& keys = category ? CategoryKeys() : SettingKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const cSettingKey& key) {
        return EqualsNoCase(key.name, name) && (category || EqualsNoCase(key.section, section));
    });
    return found == keys.end() ? nullptr : &*found;
}

std::string cSettingReader::Text(std::string_view key) const {
    const cSettingKey* known = FindSettingKey(m_Section, key);
    if (known == nullptr) {
        throw cFailure(eFailure::InvalidCall,
                       "no key " + std::string(key) + " is known in section " + m_Section);
    }
    return m_Ini.GetIniString(m_Section, key, known->defaultValue);
}

double cSettingReader::Decimal(std::string_view key) const {
    return Val(Text(key));
}

bool IsCategorySection(std::string_view section) {
    return EqualsNoCase(section.substr(0, kCategorySectionPrefix.size()), kCategorySectionPrefix);
}

}  // namespace vigrel
