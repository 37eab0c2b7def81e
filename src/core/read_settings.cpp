#include "core/read_settings.h"

#include <string>

#include "common/code_page.h"
#include "common/setting_keys.h"
#include "common/text.h"

namespace vigrel {
namespace {

void ReadGeneral(const cSettingReader& general, cSettings& s, const std::function<void()>& fontRead) {
    s.m_PopupFormTopMostCategory = ToUpper(Trim(general.Text("PopupFormTopMostCategory")));
    s.m_ViewOnlyOnePopupForm = general.Flag("ViewOnlyOnePopupForm");
    s.m_DateFormat = general.Text("DateFormat");
    s.m_TimeFormat = general.Text("TimeFormat");
    s.m_ShowInTaskBar = general.Flag("ShowInTaskBar");
    s.m_AutoResetKeepAliveTimer = general.Flag("AutoResetKeepAliveTimer");
    s.m_EventSoundFileDelay = general.Int32("EventSoundFileDelay");
    s.m_EventRestore = general.Flag("EventRestore");
    s.m_EventSignalOnlyForActive = general.Flag("EventSignalOnlyForActive");
    s.m_EventSignalStopByNotifyClick = general.Flag("EventSignalStopByNotifyClick");
    s.m_EventRestoreOnlyForActive = general.Flag("EventRestoreOnlyForActive");
    s.m_ViewPopupForm = general.Flag("ViewPopupForm");
    s.m_PopupFormOnlyForActive = general.Flag("PopupFormOnlyForActive");
    s.m_AckEventWhenPopupFormIsClosed = general.Flag("AckEventWhenPopupFormIsClosed");
    s.m_SystemErrorCategory = general.Text("SystemErrorCategory");
    s.m_DisableShutdown = general.Flag("DisableShutdown");
    s.m_EventSignalUntilNoMorePopupForms = general.Flag("EventSignalUntilNoMorePopupForms");
    s.m_EventFontName = general.Text("EventFontName");
    s.m_EventFontSize = general.Decimal("EventFontSize");
    fontRead();
    s.m_ViewOnlyPopupFormForCategory = ToUpper(general.Text("ViewOnlyPopupFormForCategory"));
    if (!s.m_ViewOnlyPopupFormForCategory.empty()) {
        s.m_ViewOnlyPopupFormForCategory = "," + s.m_ViewOnlyPopupFormForCategory + ",";
    }
    s.m_PreventMinimize = general.Flag("PreventMinimize");
    s.m_SortDescending = general.Flag("SortDescending");
}

}  // namespace

void ReadSettings(const cIniReader& ini, cSettings& settings, const std::function<void()>& fontRead) {
    const cSettingReader general(ini, "General");
    const cSettingReader printer(ini, "Printer");
    settings.m_MaxEvents = general.Int32("MaxEvents");
    settings.m_MaxDays = general.Int32("MaxDays");
    settings.m_PrinterPort = printer.Int16("Port");
    settings.m_PrinterISOLatConv = printer.Int16("ISOLatConv") != 0;
    settings.m_PrinterFormat = printer.Text("Format");
    ReadGeneral(general, settings, fontRead);
    settings.m_KeepForDays = general.Int16("KeepForDays");
}

std::int32_t ReadPort(const cIniReader& ini) {
    return cSettingReader(ini, "TCPIP").Int32("Port");
}

std::string ReadAddress(const cIniReader& ini) {
    return Trim(cSettingReader(ini, "TCPIP").Text("Address"));
}

}  // namespace vigrel
