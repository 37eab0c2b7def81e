#include "resources_text/known_keys.h"

#include "categories/cCategorySpecificSetting.h"
#include "events/alarm_list_view.h"

namespace vigrel::testing {
namespace {

using enum eValueKind;

std::vector<cKnownKey> MakeCategoryKeys() {
    struct cStateKey {
        std::string name;
        eValueKind kind;
        std::string defaultValue;
    };
    const std::vector<cStateKey> stateKeys{
        {"Icon_", Icons, "0,0"},
        {"BackColor_", Colour, "0,0,0"},
        {"ForeColor_", Colour, "0,0,0"},
        {"FontBold_", Int16, "0"},
        {"FontItalic_", Int16, "0"},
        {"USBLED_DeviceName_", Text, "empty"},
        {"USBLED_Control_", Text, "empty"},
        {"USBLED_FreqDuty_", Text, "50,50/50,50/50,50/50,50"},
        {"USBLED_InitialPhaseDelay_", Text, "empty"},
        {"USBLED_Power_", Text, "100/100/100/100"},
        {"USBLED_PreScalar_", Int16, "10"},
        {"USBLED_SyncLeds_", Int16, "0"},
    };
    std::vector<cKnownKey> keys;
    for (const cStateKey& key : stateKeys) {
        for (const std::string_view state : kStateSuffixes) {
            keys.push_back({"General", key.name + std::string(state), key.kind, key.defaultValue});
        }
    }
    keys.push_back({"General", "EventPopupFormat", Text, "empty"});
    keys.push_back({"General", "EventSignal", Int16, "0"});
    keys.push_back({"General", "EventSoundFile", Text, "empty"});
    keys.push_back({"General", "ExtraText", Text, "empty"});
    return keys;
}

std::vector<cKnownKey> MakeKnownKeys() {
    std::vector<cKnownKey> keys{
        {"General", "ColumnResizable", Flag, "1"},
        {"General", "ColumnSortable", Flag, "1"},
        {"General", "ColumnWidthStore", Flag, "1"},
        {"General", "Columns", Text, "empty"},
        {"General", "Object", Text, "none"},
        {"General", "MaxEvents", Int32, "1000"},
        {"General", "MaxDays", Int32, "30"},
        {"General", "PopupFormTopMostCategory", Text, "empty"},
        {"General", "ViewOnlyOnePopupForm", Flag, "0"},
        {"General", "DateFormat", Text, "Short Date"},
        {"General", "TimeFormat", Text, "Long Time"},
        {"General", "ShowInTaskBar", Flag, "1"},
        {"General", "AutoResetKeepAliveTimer", Flag, "1"},
        {"General", "EventSoundFileDelay", Int32, "0"},
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
        {"General", "EventFontSize", Decimal, "12"},
        {"General", "ViewOnlyPopupFormForCategory", Text, "empty"},
        {"General", "PreventMinimize", Flag, "0"},
        {"General", "SortDescending", Flag, "0"},
        {"General", "KeepForDays", Int16, "0"},
        {"General", "Language", Text, "empty"},
        {"General", "CountryFilter", Text, "empty"},
        {"General", "Vigrel_Receiver_Main.Top", Decimal, "100"},
        {"General", "Vigrel_Receiver_Main.Left", Decimal, "100"},
        {"General", "Vigrel_Receiver_Main.Height", Decimal, "5000"},
        {"General", "Vigrel_Receiver_Main.Width", Decimal, "8000"},
        {"Printer", "Port", Int16, "1"},
        {"Printer", "ISOLatConv", Int16, "1"},
        {"Printer", "Format", Text, "empty"},
        {"PrinterPorts", "1", Text, "empty"},
        {"TCPIP", "Port", Int32, "12412"},
        {"PopupForm", "X_Size", Int32, "-1"},
        {"PopupForm", "Y_Size", Int32, "-1"},
        {"PopupForm", "WindowPosition", Text, "Default"},
        {"PopupForm", "X_Start", Int32, "50"},
        {"PopupForm", "Y_Start", Int32, "50"},
        {"PopupForm", "X_Step", Int32, "50"},
        {"PopupForm", "Y_Step", Int32, "50"},
        {"PopupForm", "X_Stop", Int32, "50"},
        {"PopupForm", "Y_Stop", Int32, "50"},
        {"PopupForm", "FontName", Text, "MS Sans Serif"},
        {"PopupForm", "FontSize", Decimal, "8"},
        {"PopupForm", "FontBold", Int32, "0"},
        {"PopupForm", "FontItalic", Int32, "0"},
    };
    keys.insert(keys.end(), CategoryKeys().begin(), CategoryKeys().end());
    for (const std::string_view column : kColumnKeywords) {
        keys.push_back({std::string(column), "ColumnText", Text, "the column's keyword"});
        keys.push_back({std::string(column), "ColumnWidth", Int32, "100"});
    }
    return keys;
}

}  // namespace

const std::vector<cKnownKey>& CategoryKeys() {
    static const std::vector<cKnownKey> keys = MakeCategoryKeys();
    return keys;
}

const std::vector<cKnownKey>& KnownKeys() {
    static const std::vector<cKnownKey> keys = MakeKnownKeys();
    return keys;
}

}  // namespace vigrel::testing
