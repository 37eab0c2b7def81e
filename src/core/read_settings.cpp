#include "core/read_settings.h"

#include <string>

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

// One section, value by value.
class cSection {
  public:
    cSection(const cIni& ini, std::string_view section) : m_Ini(ini), m_Section(section) {}

    std::string Text(std::string_view key, std::string_view defaultValue) const {
        return m_Ini.GetIniString(m_Section, key, defaultValue);
    }
    bool Flag(std::string_view key, std::string_view defaultValue) const {
        return Float(key, defaultValue) == 1;
    }
    double Float(std::string_view key, std::string_view defaultValue) const {
        return Val(Text(key, defaultValue));
    }
    std::int16_t Int16(std::string_view key, std::string_view defaultValue) const {
        return m_Ini.Int16(m_Section, key, Text(key, defaultValue));
    }
    std::int32_t Int32(std::string_view key, std::string_view defaultValue) const {
        return m_Ini.Int32(m_Section, key, Text(key, defaultValue));
    }

  private:
    const cIni& m_Ini;
    std::string m_Section;
};

void ReadGeneral(const cSection& general, cSettings& s, const std::function<void()>& fontRead) {
    s.m_PopupFormTopMostCategory = ToUpper(Trim(general.Text("PopupFormTopMostCategory", "")));
    s.m_ViewOnlyOnePopupForm = general.Flag("ViewOnlyOnePopupForm", "0");
    s.m_DateFormat = general.Text("DateFormat", "Short Date");
    s.m_TimeFormat = general.Text("TimeFormat", "Long Time");
    s.m_ShowInTaskBar = general.Flag("ShowInTaskBar", "1");
    s.m_AutoResetKeepAliveTimer = general.Flag("AutoResetKeepAliveTimer", "1");
    s.m_EventSoundFileDelay = general.Int32("EventSoundFileDelay", "0");
    s.m_EventRestore = general.Flag("EventRestore", "1");
    s.m_EventSignalOnlyForActive = general.Flag("EventSignalOnlyForActive", "0");
    s.m_EventSignalStopByNotifyClick = general.Flag("EventSignalStopByNotifyClick", "0");
    s.m_EventRestoreOnlyForActive = general.Flag("EventRestoreOnlyForActive", "0");
    s.m_ViewPopupForm = general.Flag("ViewPopupForm", "0");
    s.m_PopupFormOnlyForActive = general.Flag("PopupFormOnlyForActive", "0");
    s.m_AckEventWhenPopupFormIsClosed = general.Flag("AckEventWhenPopupFormIsClosed", "0");
    s.m_SystemErrorCategory = general.Text("SystemErrorCategory", "Vigrel");
    s.m_DisableShutdown = general.Flag("DisableShutdown", "0");
    s.m_EventSignalUntilNoMorePopupForms = general.Flag("EventSignalUntilNoMorePopupForms", "0");
    s.m_EventFontName = general.Text("EventFontName", "Arial");
    s.m_EventFontSize = general.Float("EventFontSize", "12");
    fontRead();
    s.m_ViewOnlyPopupFormForCategory = ToUpper(general.Text("ViewOnlyPopupFormForCategory", ""));
    if (!s.m_ViewOnlyPopupFormForCategory.empty()) {
        s.m_ViewOnlyPopupFormForCategory = "," + s.m_ViewOnlyPopupFormForCategory + ",";
    }
    s.m_PreventMinimize = general.Flag("PreventMinimize", "0");
    s.m_SortDescending = general.Flag("SortDescending", "0");
}

}  // namespace

void ReadSettings(const cIni& ini, cSettings& settings, const std::function<void()>& fontRead) {
    const cSection general(ini, "General");
    const cSection printer(ini, "Printer");
    settings.m_MaxEvents = general.Int32("MaxEvents", "1000");
    settings.m_MaxDays = general.Int32("MaxDays", "30");
    settings.m_PrinterPort = printer.Int16("Port", "1");
    settings.m_PrinterISOLatConv = printer.Int16("ISOLatConv", "1") != 0;
    settings.m_PrinterFormat = printer.Text("Format", "");
    ReadGeneral(general, settings, fontRead);
    settings.m_KeepForDays = general.Int16("KeepForDays", "0");
}

std::int32_t ReadPort(const cIni& ini) {
    return cSection(ini, "TCPIP").Int32("Port", "12412");
}

}  // namespace vigrel
