#include "core/vigrel_receiver_main.h"

#include "common/code_page.h"
#include "common/dates.h"
#include "common/file_procedures.h"
#include "core/form_geometry.h"

namespace vigrel {
namespace {

constexpr int kKeyEscape = 27;
constexpr int kKeyF9 = 120;

}  // namespace

cVigrelReceiverMain::cVigrelReceiverMain(const cReceiverPorts& ports, std::string applicationPath,
                                         const std::string& commandLine)
    : m_Ports(ports),
      m_ApplicationPath(std::move(applicationPath)),
      m_CommandLine(ToUpper(commandLine)),
      m_Forms(ports.locale.Forms()),
      m_Ini(ports.files, m_ApplicationPath),
      m_Texts(ports.files, m_Ini, &ports.deliveredTexts),
      m_Log(ports.files, ports.clock, m_Texts, m_ApplicationPath),
      m_AlarmMaker(ports.clock, m_Categories),
      m_View({ports.list, m_Ini, m_Texts, m_Settings, m_State, m_Forms, ports.screen, ports.clipboard}),
      m_Store({ports.files, ports.ownFiles, ports.clock, ports.random, m_Log, m_Texts, m_Settings,
               m_Categories, ports.timerSave},
              m_ApplicationPath),
      m_Alarms({m_Store, m_View, ports.list, m_Log, m_Texts, m_Settings, m_State}),
      m_Acknowledgement({m_Store, m_View, ports.list, m_Log, m_Texts, m_Settings, m_State}),
      m_EventText(m_Settings, m_Texts, m_Ini, m_Forms),
      m_Popups(
          {m_Settings, m_State, m_Ini, m_Texts, m_Log, ports.clock, ports.screen, ports.windows, ports.popups,
           [this](const cVigrelRecieverAlarm& alarm, std::string_view format, std::string_view extraText) {
               return m_EventText.ExpandEventText(alarm, format, extraText);
           },
           [this](const AlarmPtr& alarm) { m_Acknowledgement.AckAlarm(0, alarm); }}),
      m_Sound({ports.waveDevice, ports.timerPlay, ports.beeper, m_State, m_Settings, m_Texts, m_Log}),
      m_Light({ports.signalLight, ports.menus, m_Categories, m_State, m_Texts, m_Log}),
      m_Tray({ports.trayArea, ports.timerPlay, ports.list, ports.mainWindow, m_Store.m_Alarms, m_State,
              m_Settings}),
      m_Printing(ports.printerPorts, m_Settings),
      m_Intake({m_Alarms,
                m_View,
                ports.mainWindow,
                m_Log,
                m_Texts,
                m_Settings,
                {[this](const AlarmPtr& alarm) { m_Popups.ShowPopup(alarm); },
                 [this](const cCategorySpecificSetting& setting) { m_Sound.StartSignal(setting); },
                 [this](const cVigrelRecieverAlarm& alarm) { return PrintEvent(alarm); },
                 [this](const cVigrelRecieverAlarm& alarm) { m_Light.SignalUsbLight(alarm); }}}),
      m_Senders({ports.files, ports.clock, m_AlarmMaker, m_Ini, m_Texts, m_Log, m_Settings, m_Forms,
                 ports.messageBox, [this](const AlarmPtr& alarm) { ProcessAlarm(alarm); }}),
      m_Decoder({ports.clock, m_AlarmMaker, m_Log, m_Texts, m_Senders,
                 [this](const AlarmPtr& alarm) { ProcessAlarm(alarm); },
                 [this](std::string_view reply) { m_Link.SendReply(reply); }}),
      m_Link(ports.winsockConnect, ports.winsockData, m_State),
      m_UnsavedNotice({m_Store, m_Texts, m_Settings, m_Forms, ports.clock, ports.otherWindows, ports.status}),
      m_StationStatus({m_Store, m_Texts, ports.printerPorts, ports.serviceManager}) {
    ConnectEvents();
}

void cVigrelReceiverMain::ListKeyDown(int keyCode, int shift) {
    if (keyCode == kKeyEscape) m_Ports.list.ClearSelection();
    if (keyCode == kKeyF9) Menu_AckAll();
    m_View.HandleListShortcut(keyCode, shift);
}

void cVigrelReceiverMain::ProcessAlarm(const AlarmPtr& alarm) {
    const cIniMoment moment(m_Ini);
    m_Intake.ProcessAlarm(alarm);
}

bool cVigrelReceiverMain::PrintEvent(const cVigrelRecieverAlarm& alarm) {
    return m_Printing.PrintEventText(m_EventText.ExpandEventText(alarm, m_Settings.m_PrinterFormat, ""));
}

void cVigrelReceiverMain::Timer_KeepAlive_Tick() {
    m_Senders.Tick();
    // A log that can't be deleted ends the program.
    DailyHousekeeping();
    m_Store.RetryUnsaved();
    m_Log.WriteRepeats();
    m_StationStatus.Tick();
}

void cVigrelReceiverMain::DailyHousekeeping() {
    const DateTime today = DateOf(m_Ports.clock.Now());
    // The start has just done it.
    if (m_LastHousekeepingDate == 0) m_LastHousekeepingDate = today;
    if (m_LastHousekeepingDate == today) return;
    m_Log.CleanLogFiles(kLogMask, m_Settings.m_KeepForDays);
    m_Alarms.SweepOldAlarms();
    m_LastHousekeepingDate = today;
}

void cVigrelReceiverMain::Timer_Play_Tick() {
    m_UnsavedNotice.Tick();
    if (m_Sound.TickSound()) m_Tray.TickTray();
}

void cVigrelReceiverMain::Menu_File() {
    m_Ports.menus.SetEnabled("Menu_StopSound", m_State.m_SoundState != SoundSilent);
    m_Ports.menus.SetEnabled("Menu_AckAll_AndClosePopups", m_State.m_PopupFormCount > 0);
}

void cVigrelReceiverMain::Menu_AckAll_AndClosePopups() {
    m_Acknowledgement.Menu_AckAll_AndClosePopups([this] { m_Popups.ClosePopups(); });
}

// --- window rules

void cVigrelReceiverMain::Form_Activate() {
    if (m_SplashShown) {
        m_Ports.otherWindows.UnloadAboutBox();
        return;
    }
    if (HasSwitch("/MINIMIZE")) m_Ports.mainWindow.SetState(eWindowState::Minimised);
    ShowAbout();
}

void cVigrelReceiverMain::Form_Resize() {
    cWindow& window = m_Ports.mainWindow;
    if (m_Settings.m_PreventMinimize) {
        if (window.State() == eWindowState::Minimised) {
            if (m_LastWindowState == eWindowState::Minimised) m_LastWindowState = eWindowState::Normal;
            window.SetState(m_LastWindowState);
        } else {
            m_LastWindowState = window.State();
        }
    }
    if (window.State() == eWindowState::Minimised && !m_Settings.m_ShowInTaskBar) HideWhenMinimised();
}

void cVigrelReceiverMain::HideWhenMinimised() {
    if (m_Ports.trayArea.HostAvailable()) {
        m_Ports.mainWindow.Hide();
        return;
    }
    // Hidden where no icon can bring it back, the window would be lost to the operator.
    if (!m_ToldOfMissingTray) m_Log.WriteLog(m_Texts.GetText(TextNoTray));
    m_ToldOfMissingTray = true;
}

// A window that hides is reached by the icon alone.
void cVigrelReceiverMain::ShowWithoutTray() {
    cWindow& window = m_Ports.mainWindow;
    if (window.Visible()) return;
    m_Log.WriteLog(m_Texts.GetText(TextTrayGone));
    window.SetState(eWindowState::Normal);
    window.Show();
}

// Asked again while the question stands, nobody gets a second one: the first is still to be answered.
bool cVigrelReceiverMain::AskForTheEnd() {
    if (m_Asking) return false;
    m_Asking = true;
    const eMessageAnswer answer = m_Ports.messageBox.Show(m_Texts.GetText(TextCloseQuestion),
                                                          eMessageIcon::Question, eMessageButtons::YesNo);
    m_Asking = false;
    return answer == eMessageAnswer::Yes;
}

bool cVigrelReceiverMain::Form_QueryUnload(eCloseReason unloadMode) {
    if (!m_Life.Running()) return false;
    const bool sessionEnds = unloadMode == eCloseReason::SessionEnd;
    if (!sessionEnds) {
        if (m_Settings.m_DisableShutdown || !AskForTheEnd()) return false;
        // The session can end while the question stands.
        if (!m_Life.Running()) return false;
    }
    End();
    m_Log.WriteLog(m_Texts.GetText(sessionEnds ? TextEndBySession : TextEndByOperator));
    return true;
}

void cVigrelReceiverMain::Form_Unload() {
    SaveFormGeometry(m_Ports.mainWindow, m_Ini);
    m_Sound.Shutdown();
    m_Ports.trayArea.SetVisible(false);
    m_Ports.runningApps.SetRunningApps(kApplication, 0);
    m_Light.Menu_StopLight();
    // Each can acknowledge its alarm, and the machine's own end doesn't wait for thousands of single files.
    m_Store.GatherSaves();
    m_Popups.ClosePopups();
    SaveTheLast();
}

// What is in memory alone goes with the program: the disk may have room again since the last try.
void cVigrelReceiverMain::SaveTheLast() {
    m_Store.FinishSaves();
    m_UnsavedNotice.TellTheLast();
}

}  // namespace vigrel
