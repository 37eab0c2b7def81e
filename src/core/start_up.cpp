// The start-up: one strict order. Texts come before the first log line, settings before the stored alarms,
// and the listening port opens last of all, when everything that an alarm needs is in place.

#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/path_text.h"
#include "common/setting_keys.h"
#include "common/text_files.h"
#include "common/window_procedures.h"
#include "core/form_geometry.h"
#include "core/read_settings.h"
#include "core/vigrel_receiver_main.h"

namespace vigrel {
namespace {

constexpr std::size_t kSeparatorLength = 120;

}  // namespace

bool cVigrelReceiverMain::HasSwitch(std::string_view name) const {
    return m_CommandLine.find(name) != std::string::npos;
}

eStartUp cVigrelReceiverMain::LoadInOrder() {
    m_Ports.random.Seed(m_Ports.clock.Now());
    PrepareFolders();
    if (!LoadLanguage()) return eStartUp::NoLanguage;
    m_Log.WriteLog(std::string(kSeparatorLength, '-'));
    m_Log.WriteLog(m_Texts.GetText(TextProgramStart));
    TellOfTexts();
    const std::int16_t devices = m_Light.ScanDevices();
    m_View.SetUpColumns(m_Settings);
    m_Ports.list.SetEmptyText("(" + m_Texts.GetText(TextNoAlarms) + ")");
    ReadCategories(devices);
    SetCaptions();
    if (!IsOnlyInstance()) return eStartUp::SecondInstance;
    // Not before: another instance could be writing one.
    RemoveLeftovers();
    CompleteTexts();
    if (!ReachSuiteLibrary()) return eStartUp::NoSuiteLibrary;
    SetTitle();
    ReadSettings(m_Ini, m_Settings, [this] { SetListFont(); });
    m_Sound.Prepare();
    m_Sound.OpenSound(m_Categories.m_DefaultCategorySetting);
    ApplyWindowSwitches();
    m_Ports.menus.SetVisible("Menu_Simulate", HasSwitch("/SIMULATE"));
    m_Tray.SetUp();
    m_Senders.ReadSenders();
    RequireReadSettings();
    m_Log.CleanLogFiles(kLogMask, m_Settings.m_KeepForDays);
    m_View.SetSortOrder();
    LoadAlarms();
    m_Senders.LogSenders();
    const eStartUp opened = OpenPort();
    if (opened != eStartUp::Running) return opened;
    m_LastWindowState = m_Ports.mainWindow.State();
    m_Log.WriteLog(m_Texts.GetText(TextStartFinished));
    m_Ports.runningApps.SetRunningApps(kApplication, -1);
    return eStartUp::Running;
}

void cVigrelReceiverMain::PrepareFolders() {
    CopyMissingFiles(m_Ports.files, m_ApplicationPath + "Templates\\", m_ApplicationPath, "*", "oni", "ini");
    SkipFailure([&] { m_Ports.files.MakeFolder(m_ApplicationPath + "LogFiles"); });
    m_Store.MakeFolder();
}

void cVigrelReceiverMain::RemoveLeftovers() {
    RemoveTemporaries(m_Ports.files, m_ApplicationPath);
    for (const std::string_view written : {"VigrelReceiver.ini", "Vigrel_Texts.*"})
        RemoveTemporariesOfLinks(m_Ports.files, m_ApplicationPath, written);
}

bool cVigrelReceiverMain::LoadLanguage() {
    if (m_Texts.LoadTexts()) return true;
    m_Ports.otherWindows.ShowLanguageWindow();
    return m_Texts.LoadTexts();
}

void cVigrelReceiverMain::CompleteTexts() {
    for (const std::string& line :
         CompleteTextFiles(m_Ports.files, m_ApplicationPath, m_Ports.deliveredTexts, m_Texts)) {
        m_Log.WriteLog(line);
    }
}

void cVigrelReceiverMain::TellOfTexts() {
    if (m_Texts.Problem().empty()) return;
    const std::string text = m_Texts.GetText(TextTextsUnreadable) + ": " + m_Texts.Problem();
    m_Log.WriteLog(WithPathsInCodePage(text));
    m_Ports.status.SetStatus(text);
}

void cVigrelReceiverMain::ReadCategories(std::int16_t devices) {
    m_Categories.ReadDefault(m_Ini);
    m_Ports.menus.SetVisible("Menu_StopLight", false);
    m_Ports.menus.SetEnabled("Menu_StopLight", false);
    m_Categories.ReadCategories(m_Ports.files, m_Ini);
    for (const cCategorySpecificSetting& setting : m_Categories.m_CategorySettings) {
        if (setting.USBLED_Enabled && devices > 0) m_Ports.menus.SetVisible("Menu_StopLight", true);
    }
    const cCategorySpecificSetting& general = m_Categories.m_DefaultCategorySetting;
    m_Ports.list.SetFontStyle(general.GetFontBold(0) != 0, general.GetFontItalic(0) != 0);
}

void cVigrelReceiverMain::SetCaptions() {
    cMenus& menus = m_Ports.menus;
    menus.SetCaption("Menu_File", m_Texts.GetText(TextFileMenu));
    menus.SetCaption("Menu_StopSound", m_Texts.GetText(TextStopSound));
    menus.SetCaption("Menu_StopLight", m_Texts.GetText(TextStopLight));
    menus.SetCaption("Menu_AckAll", m_Texts.GetText(TextAcknowledgeAll));
    menus.SetCaption("Menu_Exit", m_Texts.GetText(TextExit) + "\tAlt+F4");
    menus.SetCaption("Menu_Simulate", m_Texts.GetText(TextSimulateMenu));
    menus.SetCaption("Menu_SimAlarm", m_Texts.GetText(TextSimulateAlarm));
}

bool cVigrelReceiverMain::IsOnlyInstance() {
    if (!m_Ports.singleInstance.AnotherIsRunning()) {
        TellOfMissingLock(m_Ports.singleInstance.Problem());
        return true;
    }
    m_Ports.messageBox.Show(m_Texts.GetText(TextAlreadyRunning), eMessageIcon::Warning, eMessageButtons::Ok);
    return false;
}

void cVigrelReceiverMain::TellOfMissingLock(const std::string& problem) {
    if (problem.empty()) return;
    const std::string text = m_Texts.GetText(TextFolderNotLocked) + ": " + problem;
    m_Log.WriteLog(WithPathsInCodePage(text));
    m_Ports.status.SetStatus(text);
}

// Limits that had their defaults for once would remove alarms that are meant to stay, and at a default port
// nobody would call.
void cVigrelReceiverMain::RequireReadSettings() const {
    if (!m_Ini.Problem().empty()) throw cFailure(eFailure::InputOutput, m_Ini.Problem());
}

bool cVigrelReceiverMain::ReachSuiteLibrary() {
    // The answer doesn't matter; that there is one does.
    if (SkipFailure([&] { m_Ports.runningApps.GetRunningApps(kApplication); })) return true;
    m_Ports.messageBox.Show(m_Texts.GetText(TextNoSuiteLibrary), eMessageIcon::Stop, eMessageButtons::Ok);
    return false;
}

void cVigrelReceiverMain::SetTitle() {
    m_Ports.mainWindow.SetCaption(m_Texts.GetText(TextTitle) + " (" +
                                  cSettingReader(m_Ini, "General").Text("Object") + ") - Version " +
                                  kVersion);
}

void cVigrelReceiverMain::SetListFont() {
    m_Ports.list.SetFont(m_Settings.m_EventFontName, m_Settings.m_EventFontSize);
}

void cVigrelReceiverMain::ApplyWindowSwitches() {
    if (HasSwitch("/TOPMOST")) SetTopMost(m_Ports.mainWindow, true);
    if (HasSwitch("/DEBUG")) {
        m_Ports.otherWindows.ShowDebugWindow(m_Texts, m_State);
        m_State.m_DebugMode = true;
    }
    PlaceWindow();
}

void cVigrelReceiverMain::PlaceWindow() {
    if (HasSwitch("/MAXIMIZE")) {
        m_Ports.mainWindow.SetState(eWindowState::Maximised);
        return;
    }
    RestoreFormGeometry(m_Ports.mainWindow, m_Ini, m_Ports.screen);
    if (HasSwitch("/MINIMIZE") || m_Settings.m_ViewPopupForm) {
        ShowAbout();
        m_Ports.mainWindow.SetState(eWindowState::Minimised);
    }
}

void cVigrelReceiverMain::ShowAbout() {
    m_SplashShown = true;
    m_Ports.otherWindows.ShowAboutBox(m_Texts);
}

void cVigrelReceiverMain::LoadAlarms() {
    const cIniMoment moment(m_Ini);
    m_Alarms.LoadAlarms();
    // A folder that can't be read must not be taken for one without alarms.
    if (!m_Store.FolderProblem().empty())
        m_Ports.list.SetEmptyText("(" + m_Texts.GetText(TextFolderUnreadable) + ")");
}

eStartUp cVigrelReceiverMain::OpenPort() {
    const std::int32_t port = ReadPort(m_Ini);
    const std::string address = ReadAddress(m_Ini);
    RequireReadSettings();
    const std::string name = (address.empty() ? "" : address + " ") + std::to_string(port);
    const auto failure = CatchFailure([&] { m_Link.Listen(address, port); });
    if (!failure) {
        m_Log.WriteLog(m_Texts.GetText(TextPortOpen) + " " + name + " " + m_Texts.GetText(TextPortOpenEnd));
        m_StationStatus.SetPort(name);
        return eStartUp::Running;
    }
    const std::string text =
        m_Texts.GetText(TextPortRefused) + " (" + name + ") " + m_Texts.GetText(TextPortRefusedEnd);
    if (failure->Number() != eFailure::Unavailable) {
        m_Ports.messageBox.Show(text, eMessageIcon::Warning, eMessageButtons::Ok);
        return eStartUp::PortTaken;
    }
    m_Ports.messageBox.ShowForAWhile(text, eMessageIcon::Warning);
    return eStartUp::AddressMissing;
}

}  // namespace vigrel
