#include "fuzz/fuzzed_station.h"

#include <algorithm>
#include <vector>

#include "common/failure.h"
#include "common/text.h"
#include "fuzz/fuzz_target.h"
#include "link/frame.h"

namespace vigrel::fuzz {
namespace {

constexpr const char* kIni = "C:\\App\\VigrelReceiver.INI";
constexpr int kControl = 2, kKeyA = 65, kKeyC = 67;
constexpr double kDay = 86400;

}  // namespace

int cInput::Byte() {
    const std::string_view byte = Take(1);
    return byte.empty() ? 0 : static_cast<unsigned char>(byte[0]);
}

std::string_view cInput::ManyBytes() {
    const auto high = static_cast<std::size_t>(Byte());
    return Take(high * 256 + static_cast<std::size_t>(Byte()));
}

std::string_view cInput::Take(std::size_t count) {
    const std::string_view taken = m_Rest.substr(0, count);
    m_Rest.remove_prefix(taken.size());
    return taken;
}

// Few texts, since every start reads them.
void cFuzzedStation::Configure(const std::string& configuration) {
    m_Disk.Put("C:\\App\\Vigrel_Texts.046", "10040=T10040\r\n10041=T10041\r\n");
    m_Disk.Put(kIni, configuration);
}

void cFuzzedStation::Begin() {
    for (int tries = 0; tries < 2 && !Runs(); ++tries) {
        m_Station = std::make_unique<testing::cFakeReceiver>(m_Disk);
        m_Station->clock = m_Clock;
        m_Station->listener.m_PortInUse = m_PortInUse;
        m_Station->messageBox.m_OnShow = [this] { StepsInABox(); };
        m_Station->otherWindows.m_OnLanguageWindow = [this] { StepsInABox(); };
        // No two alarms come into being at the same moment.
        m_Disk.m_OnCall = [this](std::string_view, std::string_view) { m_Station->clock.AddSeconds(0.001); };
        bool runs = false;
        SkipFailure([&] { runs = m_Station->Make().Start() == eStartUp::Running; });
        if (!runs) Die();
    }
}

// What a process leaves behind is what it has written; its end here runs on files that are then put back.
void cFuzzedStation::Die() {
    m_Disk.m_OnCall = nullptr;
    m_Clock = m_Station->clock;
    const testing::cFakeFiles left = m_Disk;
    m_Station.reset();
    m_Disk = left;
}

// While a box stands the machine goes on. A box in a box is answered at once.
void cFuzzedStation::StepsInABox() {
    if (m_BoxesOpen > 0) return;
    ++m_BoxesOpen;
    for (int steps = m_Input.Byte() % 8; steps > 0; --steps) Do(m_Input.Byte());
    m_Station->messageBox.m_Answers.push_back(m_Input.Byte() % 2 == 0 ? eMessageAnswer::Yes
                                                                      : eMessageAnswer::No);
    --m_BoxesOpen;
}

// A failure that nobody takes ends the program, and the service starts it again.
void cFuzzedStation::Step() {
    const bool lives = SkipFailure([&] { Do(m_Input.Byte()); });
    if (!lives || !m_Station->mainWindow.m_Open) {
        Die();
        Begin();
    }
    if (!Runs()) return;
    CheckReplies();
    CheckRows();
}

void cFuzzedStation::Do(int kind) {
    testing::cFakeDataSocket& data = m_Station->data;
    switch (kind % 16) {
        case 0:
        case 1:
            return data.Arrive(m_Input.ManyBytes());
        case 2:
        case 3:
        case 4: {
            const std::string_view sender = m_Input.Byte() % 2 == 0 ? "PLC1" : "plc2";
            return data.Arrive(MakeFrame(sender, m_Input.Bytes()));
        }
        case 5:
            m_Station->listener.Knock(++m_Connections);
            return;
        case 6:
            return m_Input.Byte() % 2 == 0 ? data.PeerCloses() : data.PeerFails();
        case 7:
            return TimePasses(m_Input.Byte());
        case 8:
        case 9:
            return DoMachine(m_Input.Byte());
        default:
            return DoOperator(m_Input.Byte());
    }
}

void cFuzzedStation::DoMachine(int kind) {
    switch (kind % 8) {
        case 0:
            return TimePasses(kDay * (1 + m_Input.Byte() % 4));
        case 1:
            // Somebody sets the clock.
            m_Station->clock.m_Now += (m_Input.Byte() - 128) / 24.0;
            return;
        case 2:
            m_DiskFailed = true;
            m_Disk.m_DiskFull = !m_Disk.m_DiskFull;
            return;
        case 3:
            m_DiskFailed = true;
            m_Disk.m_FailCall = m_Disk.m_Calls + m_Input.Byte() % 16;
            return;
        case 4:
            m_Station->data.m_SendFails = !m_Station->data.m_SendFails;
            return;
        case 5:
            return m_Station->receiver->Stop(eCloseReason::SessionEnd);
        case 6:
            return m_Station->receiver->Stop(eCloseReason::Code);
        default:
            for (int turns = m_Input.Byte() % 8; turns > 0; --turns) m_Station->timerSave.Tick();
    }
}

void cFuzzedStation::DoOperator(int kind) {
    switch (kind % 14) {
        case 0:
            return Acknowledge(static_cast<std::size_t>(m_Input.Byte()));
        case 1:
            return m_Station->menus.OnMenuAckAll();
        case 2:
            return m_Station->menus.OnMenuAckAllAndClosePopups();
        case 3:
            return CloseAPopup();
        case 4:
            return m_Station->list.PressKey(m_Input.Byte(), m_Input.Byte() % 4);
        case 5:
            return DragColumn(m_Input.Byte(), m_Input.Byte());
        case 6:
            return Sort(m_Input.Byte(), m_Input.Byte() % 2 == 0);
        case 7:
            return m_Station->menus.OnMenuExit();
        case 8:
            return m_Station->menus.OnMenuStopSound();
        case 9:
            return m_Station->menus.OnMenuFileOpens();
        case 10:
            return m_Station->menus.OnMenuStopLight();
        default:
            return DoWindows(m_Input.Byte());
    }
}

// What a start that asks has not connected yet does nothing.
void cFuzzedStation::DoWindows(int kind) {
    const auto happen = [](const auto& event) {
        if (event) event();
    };
    switch (kind % 6) {
        case 0:
            return happen(m_Station->trayArea.OnFirstClick);
        case 1:
            return happen(m_Station->trayArea.OnSecondClick);
        case 2:
            return happen(m_Station->trayArea.OnHostGone);
        case 3:
            return happen(m_Station->mainWindow.OnResize);
        case 4:
            return happen(m_Station->mainWindow.OnActivate);
        default:
            return m_Station->waveDevice.EndPlay();
    }
}

void cFuzzedStation::TimePasses(double seconds) {
    m_Station->clock.AddSeconds(seconds);
    m_Station->timerKeepAlive.Tick();
    m_Station->timerPlay.Tick();
}

// A start that asks has no columns yet.
void cFuzzedStation::DragColumn(int column, int width) {
    const int columns = m_Station->list.ColumnCount();
    if (columns > 0) m_Station->list.DragColumn(column % columns, width);
}

void cFuzzedStation::Sort(int column, bool ascending) {
    if (m_Station->list.ColumnCount() == 0) return;
    m_Station->list.ClearSortOrder();
    m_Station->list.AddSortColumn(column % m_Station->list.ColumnCount(), ascending);
    m_Station->list.TakeOverRecords();
}

void cFuzzedStation::Acknowledge(std::size_t row) {
    const auto rows = m_Station->list.Rows();
    if (row < rows.size()) m_Station->list.DoubleClick(rows[row]);
}

void cFuzzedStation::CloseAPopup() {
    const std::string open = m_Station->popups.Open();
    if (open.empty()) return;
    m_Station->popups[std::stoi(open.substr(open.rfind(' ') + 1))].CloseFor(eCloseReason::Control);
}

// The link speaks in whole replies alone.
void cFuzzedStation::CheckReplies() {
    const std::string sent = m_Station->data.TakeSent();
    for (std::size_t at = 0; at < sent.size(); at += 5) {
        const std::string_view reply = std::string_view(sent).substr(at, 5);
        Require(reply.substr(3) == kReplyEnd, "a reply ends as one");
        Require(reply.substr(0, 3) == kPositive || reply.substr(0, 3) == kNegative, "a reply is one of two");
    }
}

// A row for each record, none without an alarm that can be drawn.
void cFuzzedStation::CheckRows() {
    const auto rows = m_Station->list.Rows();
    Require(static_cast<int>(rows.size()) <= m_Station->list.RecordCount(), "a row has a record");
    const std::int32_t most = m_Station->receiver->Settings().m_MaxEvents;
    Require(most <= 0 || static_cast<int>(rows.size()) <= most, "the limit holds");
    for (const RecordId row : rows) m_Station->list.DrawnStyle(row);
}

bool cFuzzedStation::StoresWhatItLists() const {
    return m_DiskFailed || !Runs() ||
           m_Disk.ListFiles("C:\\App\\Alarms\\", "*.alm").size() == m_Station->list.Rows().size();
}

void cFuzzedStation::DoAll() {
    for (int column = 0; column < m_Station->list.ColumnCount(); ++column) Sort(column, column % 2 == 0);
    m_Station->list.PressKey(kKeyA, kControl);
    m_Station->list.PressKey(kKeyC, kControl);
    Acknowledge(0);
    m_Station->menus.OnMenuAckAll();
    for (int turn = 0; turn < 4; ++turn) m_Station->timerSave.Tick();
    TimePasses(10);
    TimePasses(kDay);
    CheckRows();
}

bool cFuzzedStation::ListsTheSameAgain() {
    // The disk is in order again, and what waited for it gets there.
    m_Disk.m_DiskFull = false;
    m_Disk.m_FailCall = -1;
    m_PortInUse = false;
    if (!Runs()) return true;
    const auto listed = [this] {
        std::vector<std::string> rows = SplitLines(m_Station->list.Screen());
        std::sort(rows.begin(), rows.end());
        return rows;
    };
    // The start removes what has become too old since the last change of the day, which the first tick of a
    // run doesn't see, and popups that the end closes may acknowledge. An odd time, so that no alarm becomes
    // too old just then.
    TimePasses(1);
    TimePasses(1.37 * kDay);
    m_Station->menus.OnMenuAckAllAndClosePopups();
    const std::vector<std::string> before = listed();
    m_Station->mainWindow.CloseFor(eCloseReason::SessionEnd);
    Die();
    Begin();
    Require(Runs(), "the next start comes up");
    return listed() == before;
}

}  // namespace vigrel::fuzz
