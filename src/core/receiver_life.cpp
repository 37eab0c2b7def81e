// What reaches the receiver, and when: its events in one list, and the two moments between which they count.

#include <utility>

#include "common/failure.h"
#include "core/vigrel_receiver_main.h"

namespace vigrel {

template <class... Arguments>
void cVigrelReceiverMain::SaveBehindFailure(std::function<void(Arguments...)>& event) {
    if (!event) return;
    event = [this, handler = std::move(event)](Arguments... arguments) {
        CleanUpBehind([&] { handler(arguments...); }, [this] { SaveTheLast(); });
    };
}

void cVigrelReceiverMain::ConnectEvents() {
    m_Link.ProcessRecord = [this](const std::string& line) { m_Decoder.ProcessRecord(line); };
    m_Link.WriteTrace = [this](std::string_view text, std::int16_t kind) {
        m_Ports.otherWindows.WriteTrace(text, kind);
    };
    m_Ports.timerKeepAlive.OnTick = [this] { Timer_KeepAlive_Tick(); };
    m_Ports.timerPlay.OnTick = [this] { Timer_Play_Tick(); };
    m_Ports.timerSave.OnTick = [this] { m_Store.Timer_Save_Tick(); };
    m_Ports.trayArea.OnHostGone = [this] { ShowWithoutTray(); };
    cWindow& window = m_Ports.mainWindow;
    window.OnActivate = [this] { Form_Activate(); };
    window.OnResize = [this] { Form_Resize(); };
    window.OnQueryUnload = [this](eCloseReason reason) { return Form_QueryUnload(reason); };
    window.OnUnload = [this] { Form_Unload(); };
    ConnectList();
    ConnectMenus();
    SaveBehindFailure(window.OnUnload);
    ForEachEvent([this](auto& event) {
        SaveBehindFailure(event);
        m_Life.Gate(event);
    });
    m_Ports.otherWindows.OnFailing = [this] { SaveTheLast(); };
    // A timer's first interval begins when the start has ended.
    m_Ports.timerKeepAlive.SetEnabled(false);
    m_Ports.timerPlay.SetEnabled(false);
}

void cVigrelReceiverMain::ConnectList() {
    cReportList& list = m_Ports.list;
    list.OnRowDoubleClick = [this](RecordId row) { m_Acknowledgement.AckAlarm(row, nullptr); };
    list.OnBeforeDrawRow = [this](RecordId row, cReportList::cFontStyle& style) {
        m_View.BeforeDrawRow(row, style);
    };
    list.OnRowHeight = [this] { return m_View.RowHeight(); };
    list.OnColumnWidthChanged = [this](int column) { m_View.ColumnWidthChanged(column); };
    list.OnKeyDown = [this](int keyCode, int shift) { ListKeyDown(keyCode, shift); };
    list.OnFocusChange = [this] { m_View.FocusChange(); };
}

void cVigrelReceiverMain::ConnectMenus() {
    cMenus& menus = m_Ports.menus;
    menus.OnMenuFileOpens = [this] { Menu_File(); };
    menus.OnMenuStopSound = [this] { Menu_StopSound(); };
    menus.OnMenuStopLight = [this] { Menu_StopLight(); };
    menus.OnMenuAckAll = [this] { Menu_AckAll(); };
    menus.OnMenuAckAllAndClosePopups = [this] { Menu_AckAll_AndClosePopups(); };
    menus.OnMenuExit = [this] { m_Ports.mainWindow.CloseFor(eCloseReason::Code); };
}

// Everything by which the machine reaches the receiver while it runs. The list's questions about how a row is
// drawn are none: they may be asked at any time and change nothing. The close query and the unload have their
// own place in the life.
template <class Visit>
void cVigrelReceiverMain::ForEachEvent(Visit visit) {
    visit(m_Ports.timerKeepAlive.OnTick);
    visit(m_Ports.timerPlay.OnTick);
    visit(m_Ports.timerSave.OnTick);
    visit(m_Ports.winsockConnect.OnConnectionRequest);
    visit(m_Ports.winsockData.OnDataArrival);
    visit(m_Ports.winsockData.OnClosed);
    visit(m_Ports.winsockData.OnError);
    visit(m_Ports.waveDevice.OnDone);
    visit(m_Ports.trayArea.OnFirstClick);
    visit(m_Ports.trayArea.OnSecondClick);
    visit(m_Ports.trayArea.OnOpen);
    visit(m_Ports.trayArea.OnHostGone);
    visit(m_Ports.mainWindow.OnActivate);
    visit(m_Ports.mainWindow.OnResize);
    visit(m_Ports.list.OnRowDoubleClick);
    visit(m_Ports.list.OnColumnWidthChanged);
    visit(m_Ports.list.OnKeyDown);
    visit(m_Ports.list.OnFocusChange);
    visit(m_Ports.menus.OnMenuFileOpens);
    visit(m_Ports.menus.OnMenuStopSound);
    visit(m_Ports.menus.OnMenuStopLight);
    visit(m_Ports.menus.OnMenuAckAll);
    visit(m_Ports.menus.OnMenuAckAllAndClosePopups);
    visit(m_Ports.menus.OnMenuExit);
}

cVigrelReceiverMain::~cVigrelReceiverMain() {
    ForEachEvent([](auto& event) { event = nullptr; });
    m_Ports.list.OnBeforeDrawRow = nullptr;
    m_Ports.list.OnRowHeight = nullptr;
    m_Ports.mainWindow.OnQueryUnload = nullptr;
    m_Ports.mainWindow.OnUnload = nullptr;
    m_Ports.otherWindows.OnFailing = nullptr;
}

eStartUp cVigrelReceiverMain::Start() {
    const eStartUp started = Form_Load();
    m_Ports.otherWindows.AllowDialogs();
    if (started == eStartUp::Running) m_Ports.mainWindow.Show();
    if (!m_StopWish) return started;
    // Running for a moment, it ends as one that has run; only what may be refused can keep it.
    const bool refused = m_Life.Running() && !m_Ports.mainWindow.CloseFor(*m_StopWish);
    return refused ? eStartUp::Running : eStartUp::Stopped;
}

eStartUp cVigrelReceiverMain::Form_Load() {
    const eStartUp started = LoadInOrder();
    started == eStartUp::Running ? Run() : End();
    return started;
}

void cVigrelReceiverMain::Run() {
    m_Life.Run();
    m_Ports.timerKeepAlive.SetEnabled(true);
    m_Ports.timerPlay.SetEnabled(true);
    // For what was done to the window in the start.
    Form_Resize();
    m_StationStatus.Tick();
    m_Ports.serviceManager.Ready();
}

void cVigrelReceiverMain::End() {
    m_Life.End();
    m_Ports.serviceManager.Stopping();
    m_Ports.timerKeepAlive.SetEnabled(false);
    m_Ports.timerPlay.SetEnabled(false);
}

void cVigrelReceiverMain::Stop(eCloseReason reason) {
    if (m_Life.Running()) m_Ports.mainWindow.CloseFor(reason);
    if (!m_Life.Starting()) return;
    if (m_StopWish != eCloseReason::SessionEnd) m_StopWish = reason;
    m_Ports.otherWindows.RefuseDialogs();
}

void cVigrelReceiverMain::DisplayIsLost() {
    const bool wasEnded = m_Life.Ended();
    if (!wasEnded) End();
    // It can go in the middle of an end, too.
    SaveTheLast();
    if (!wasEnded) m_Log.WriteLog(m_Texts.GetText(TextDisplayGone));
}

}  // namespace vigrel
