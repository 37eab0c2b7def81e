#include "life/station_life.h"

#include "link/frame.h"

namespace vigrel::testing {
namespace {

constexpr double kDay = 86400;
constexpr const char* kGeneral =
    "Columns=StateIcon,t0,t4,Observed\r\nColumnWidthStore=1\r\nMaxEvents=6\r\nKeepForDays=0\r\n"
    "ViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\nEventSignal=3\r\nDateFormat=yyyy-mm-dd\r\n"
    "TimeFormat=hh:nn:ss\r\n";
constexpr const char* kSections =
    "[Senders]\r\nPLC1=1\r\nPLC2=0\r\n[CategorySpecificSetting_Fire]\r\nEventSignal=2\r\n";

}  // namespace

cStationLife::cStationLife(int days) {
    // Few texts, since every start reads them.
    m_Disk.Put("C:\\App\\Vigrel_Texts.046", "10040=T10040\r\n10041=T10041\r\n");
    m_Disk.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nLanguage=046\r\nMaxDays=" + std::to_string(days) +
                                                  "\r\n" + kGeneral + kSections);
    // What a first start begins with, and no later one must come back to.
    m_Disk.Put("C:\\App\\Templates\\VigrelReceiver.oni", "[General]\r\nLanguage=046\r\n");
}

cRows cStationLife::Rows() const {
    return Runs() ? SplitLines(m_Station->list.Screen()) : cRows{};
}

cRows WithoutMarks(cRows rows) {
    for (std::string& row : rows) row.resize(row.rfind('#'));
    return rows;
}

std::string Listed(const cRows& rows) {
    std::string text;
    for (const std::string& row : rows) text += "  " + row + "\n";
    return text;
}

cRows NextStart(const cFakeFiles& disk, const cFakeClock& now) {
    cStationLife next(disk, now);
    next.Begin();
    return next.Rows();
}

void cStationLife::Begin() {
    for (int tries = 0; tries < 3 && !Runs(); ++tries) {
        m_Station = std::make_unique<cFakeReceiver>(m_Faulty);
        m_Station->clock = m_Clock;
        // No two things are done at the same moment.
        m_Faulty.m_OnCall = [this] { m_Station->clock.AddSeconds(0.001); };
        try {
            if (m_Station->Make().Start() == eStartUp::Running) return;
            ++m_RefusedStarts;
        } catch (const cFailure& failure) {
            m_Failures.emplace_back(failure.what());
        }
        Die();
    }
}

// What a process leaves behind is what it has written; its end here runs on files that are then put back.
void cStationLife::Die() {
    if (!Runs()) return;
    m_Clock = m_Station->clock;
    m_Faulty.m_OnCall = nullptr;
    const cFakeFiles left = m_Disk;
    m_Station.reset();
    m_Disk = left;
}

void cStationLife::Take(const cStep& step) {
    try {
        step.take();
    } catch (const cFailure& failure) {
        m_Failures.emplace_back(failure.what());
        Die();
        Begin();
    }
}

void cStationLife::Send(const std::string& sender) {
    const std::string text = "a" + std::to_string(++m_Sent);
    m_Station->clock.AddSeconds(1);
    if (m_Station->data.State() == 0) m_Station->listener.Knock(m_Sent);
    m_Station->data.Arrive(MakeFrame(sender, "S1||" + text + "||Fire"));
    if (m_Station->data.TakeSent() == std::string(kPositive) + std::string(kReplyEnd))
        m_Answered.push_back(text);
}

void cStationLife::Acknowledge(std::size_t row) {
    const auto rows = m_Station->list.Rows();
    if (row < rows.size()) m_Station->list.DoubleClick(rows[row]);
}

void cStationLife::CloseNewestPopup() {
    const std::string open = m_Station->popups.Open();
    if (open.empty()) return;
    m_Station->popups[std::stoi(open.substr(open.rfind(' ') + 1))].CloseFor(eCloseReason::Control);
}

void cStationLife::TickSaves() {
    for (int turn = 0; turn < 20; ++turn) m_Station->timerSave.Tick();
}

void cStationLife::TimePasses(double seconds) {
    m_Station->clock.AddSeconds(seconds);
    m_Station->timerKeepAlive.Tick();
    m_Station->timerPlay.Tick();
}

void cStationLife::End() {
    m_Station->mainWindow.CloseFor(eCloseReason::SessionEnd);
    Die();
}

std::vector<cStationLife::cStep> cStationLife::Steps() {
    std::vector<cStep> steps;
    const auto add = [&](const std::string& name, const std::function<void()>& take) {
        steps.push_back({name, [this, take] {
                             if (Runs()) take();
                         }});
    };
    const auto alarms = [&](int count) {
        for (int i = 0; i < count; ++i) add("alarm", [this] { Send("PLC1"); });
    };
    const auto begin = [&] { steps.push_back({"start", [this] { Begin(); }}); };
    // With acknowledgements that still wait for the disk, and no popup left whose end would be one.
    const auto endAcknowledged = [&] {
        add("tick", [this] { TimePasses(10); });
        add("acknowledge all, close popups", [this] { m_Station->menus.OnMenuAckAllAndClosePopups(); });
        add("end", [this] { End(); });
    };
    begin();
    alarms(3);
    add("acknowledge one", [this] { Acknowledge(1); });
    add("close a popup", [this] { CloseNewestPopup(); });
    alarms(5);
    add("acknowledge all", [this] { m_Station->menus.OnMenuAckAll(); });
    add("save turns", [this] { TickSaves(); });
    add("silence", [this] { TimePasses(90); });
    alarms(1);
    add("drag a column", [this] { m_Station->list.DragColumn(0, 77); });
    add("a day passes", [this] { TimePasses(kDay); });
    alarms(2);
    add("days pass", [this] { TimePasses(2.5 * kDay); });
    alarms(2);
    endAcknowledged();
    begin();
    alarms(2);
    add("acknowledge one", [this] { Acknowledge(2); });
    endAcknowledged();
    return steps;
}

}  // namespace vigrel::testing
