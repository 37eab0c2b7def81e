#pragma once

#include <cstdint>
#include <string>

namespace vigrel {

// What the configuration file says, each value under the name of its key: read once at start, then only
// looked at. The defaults here are those of a missing file.
struct cSettings {
    bool m_ColumnResizable = true;
    bool m_ColumnSortable = true;
    bool m_ColumnWidthStore = true;

    std::int32_t m_MaxEvents = 1000;  // most alarms kept; 0 or less: no limit
    std::int32_t m_MaxDays = 30;      // most days an alarm is kept; 0 or less: no limit
    std::string m_PopupFormTopMostCategory;
    bool m_ViewOnlyOnePopupForm = false;
    std::string m_DateFormat = "Short Date";
    std::string m_TimeFormat = "Long Time";
    bool m_ShowInTaskBar = true;
    bool m_AutoResetKeepAliveTimer = true;
    std::int32_t m_EventSoundFileDelay = 0;  // milliseconds
    bool m_EventRestore = true;
    bool m_EventSignalOnlyForActive = false;
    bool m_EventSignalStopByNotifyClick = false;
    bool m_EventRestoreOnlyForActive = false;
    bool m_ViewPopupForm = false;
    bool m_PopupFormOnlyForActive = false;
    bool m_AckEventWhenPopupFormIsClosed = false;
    std::string m_SystemErrorCategory = "Vigrel";
    bool m_DisableShutdown = false;
    bool m_EventSignalUntilNoMorePopupForms = false;
    std::string m_EventFontName = "Arial";
    double m_EventFontSize = 12;                 // points
    std::string m_ViewOnlyPopupFormForCategory;  // upper case, enclosed in commas; empty: all
    bool m_PreventMinimize = false;
    bool m_SortDescending = false;
    std::int16_t m_PrinterPort = 1;  // counted from 1; 0 or less: no printing
    bool m_PrinterISOLatConv = true;
    std::string m_PrinterFormat;
    std::int16_t m_KeepForDays = 0;  // days that logs are kept

    bool operator==(const cSettings&) const = default;
};

// The version of the program, as it shows and logs it.
inline constexpr const char* kProductName = "Vigrel Alarm Receiver";
inline constexpr const char* kVersion = "3.00.04";

}  // namespace vigrel
