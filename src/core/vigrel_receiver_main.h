#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "categories/category_specific_setting.h"
#include "common/ini.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/texts.h"
#include "core/life.h"
#include "core/receiver_ports.h"
#include "core/station_status.h"
#include "core/unsaved_notice.h"
#include "events/acknowledgement.h"
#include "events/alarm_list_view.h"
#include "events/alarm_maker.h"
#include "events/alarm_store.h"
#include "events/listed_alarms.h"
#include "link/alarm_intake.h"
#include "link/record_decoder.h"
#include "link/sender_table.h"
#include "link/server_link.h"
#include "signals/event_text.h"
#include "signals/light.h"
#include "signals/popups.h"
#include "signals/printing.h"
#include "signals/sound.h"
#include "signals/tray.h"

namespace vigrel {

// How Form_Load ended.
enum class eStartUp {
    Running,     // everything else happens in answer to events
    NoLanguage,  // ended without a word, since there are none
    SecondInstance,
    NoSuiteLibrary,
    PortTaken,
    AddressMissing,  // which can come by itself
    Stopped,         // told to end while it started
};

// The receiver: its main window's events, and through them everything that it does. The name is that of its
// window.
class cVigrelReceiverMain {
  public:
    // applicationPath ends in a backslash. commandLine is what stands behind the program's own name.
    cVigrelReceiverMain(const cReceiverPorts& ports, std::string applicationPath,
                        const std::string& commandLine);
    cVigrelReceiverMain(const cVigrelReceiverMain&) = delete;
    cVigrelReceiverMain& operator=(const cVigrelReceiverMain&) = delete;
    // Lets go of the machine's events, which outlive the receiver.
    ~cVigrelReceiverMain();

    // Loads the receiver and shows its window. Ended in any other way than Running, the operator has been
    // told, or it was the operator who stopped it, and the program is to end without more ado. A failure that
    // has no answer of its own is thrown as cFailure.
    eStartUp Start();
    // The program is told to end from outside its windows: by a signal, or by the end of the desktop's
    // session. While it starts, it gives up asking and obeys as soon as it can.
    void Stop(eCloseReason reason);
    // The program can't go on without the display that it has lost: its last word.
    void DisplayIsLost();

    // --- the window's events
    // The start up to the open port. From its good end on, and until a close is accepted, events count.
    eStartUp Form_Load();
    void Form_Activate();
    void Form_Resize();
    // Whether the close may go on.
    bool Form_QueryUnload(eCloseReason unloadMode);
    void Form_Unload();

    // --- the menus
    void Menu_File();
    void Menu_StopSound() { m_Sound.Menu_StopSound(); }
    void Menu_StopLight() { m_Light.Menu_StopLight(); }
    void Menu_AckAll() { m_Acknowledgement.Menu_AckAll(); }
    void Menu_AckAll_AndClosePopups();

    const cSettings& Settings() const { return m_Settings; }
    const cReceiverState& State() const { return m_State; }
    // For windows of the receiver that show texts or write logs of their own.
    const cTexts& Texts() const { return m_Texts; }
    cIni& Ini() { return m_Ini; }

  private:
    static constexpr std::int32_t kApplication = 8;  // this program's number among the suite's

    bool HasSwitch(std::string_view name) const;
    void ConnectEvents();
    void ConnectList();
    void ConnectMenus();
    template <class Visit>
    void ForEachEvent(Visit visit);
    // A failure of an event ends the program: what only memory holds is written before.
    template <class... Arguments>
    void SaveBehindFailure(std::function<void(Arguments...)>& event);
    void Run();
    void End();
    bool AskForTheEnd();

    // The steps of the start, in their order.
    eStartUp LoadInOrder();
    void PrepareFolders();
    // What a crash left of files that were being replaced.
    void RemoveLeftovers();
    bool LoadLanguage();
    void TellOfTexts();
    void CompleteTexts();
    void ReadCategories(std::int16_t devices);
    void SetCaptions();
    bool IsOnlyInstance();
    void TellOfMissingLock(const std::string& problem);
    bool ReachSuiteLibrary();
    void RequireReadSettings() const;
    void SetTitle();
    void SetListFont();
    void ApplyWindowSwitches();
    void PlaceWindow();
    void ShowAbout();
    void LoadAlarms();
    eStartUp OpenPort();

    void Timer_KeepAlive_Tick();
    void Timer_Play_Tick();
    void DailyHousekeeping();
    void SaveTheLast();
    void ListKeyDown(int keyCode, int shift);
    void ProcessAlarm(const AlarmPtr& alarm);
    bool PrintEvent(const cVigrelRecieverAlarm& alarm);
    void HideWhenMinimised();
    void ShowWithoutTray();

    cReceiverPorts m_Ports;
    cLife m_Life;
    std::optional<eCloseReason> m_StopWish;  // told while it started
    std::string m_ApplicationPath;
    std::string m_CommandLine;  // in upper case

    cSettings m_Settings;
    cReceiverState m_State;
    cLocaleForms m_Forms;
    cIni m_Ini;
    cTexts m_Texts;
    cLog m_Log;
    cCategorySettings m_Categories;
    cAlarmMaker m_AlarmMaker;
    cAlarmListView m_View;
    cAlarmStore m_Store;
    cListedAlarms m_Alarms;
    cAcknowledgement m_Acknowledgement;
    cEventText m_EventText;
    cPopups m_Popups;
    cSound m_Sound;
    cLight m_Light;
    cTray m_Tray;
    cPrinting m_Printing;
    cAlarmIntake m_Intake;
    cSenderTable m_Senders;
    cRecordDecoder m_Decoder;
    cServerLink m_Link;
    cUnsavedNotice m_UnsavedNotice;
    cStationStatus m_StationStatus;

    bool m_SplashShown = false;
    bool m_Asking = false;  // whether the program is to end
    eWindowState m_LastWindowState = eWindowState::Normal;
    DateTime m_LastHousekeepingDate = 0;
    bool m_ToldOfMissingTray = false;
};

}  // namespace vigrel
