#include "life/naive_station.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "life/naive_template.h"

namespace vigrel::testing {

cNaiveStation::cNaiveStation(double now) : m_Link({{"PLC1", 1}, {"PLC2", 3}, {"PLC3", 0}}) {
    m_Link.m_Now = now;
    m_Link.OnAlarm = [this](const cNaiveAlarm& alarm) { Take(alarm); };
}

void cNaiveStation::TimePasses(double seconds) {
    m_Link.m_Now += seconds / 86400;
    m_Link.m_Steady += seconds / 86400;
}

void cNaiveStation::Take(const cNaiveAlarm& alarm) {
    const cNaiveStore::Alarm taken = m_Store.Add(alarm, m_Link.m_Now);
    m_Changed = true;
    m_Popups.Open(taken, m_Link.m_Now);
    m_Sound.Signal(CategoryOf(m_Plan, *taken), taken->status);
    Print(*taken);
}

void cNaiveStation::Print(const cNaiveAlarm& alarm) {
    if (m_Plan.printerPort == 0) return;
    std::string text = NaiveExpanded(alarm, m_Plan.printerFormat, "", m_Plan.object);
    for (char& c : text) {
        if (m_Plan.printerLetters && c == '\xC4') c = '\x8E';
    }
    for (; !text.empty(); text.erase(0, 80))
        m_Printed += std::to_string(m_Plan.printerPort - 1) + ":" + text.substr(0, 80) + "\r\n";
}

void cNaiveStation::Tick() {
    m_Link.Tick();
    const long day = std::lround(std::floor(m_Link.m_Now));
    if (m_LastDay != 0 && m_LastDay != day) m_Store.RemoveOld(m_Link.m_Now);
    m_LastDay = day;
}

void cNaiveStation::PlayTick() {
    if (!m_Sound.Tick()) return;
    if (std::exchange(m_Changed, false)) m_Unseen = m_Store.CountUnseen();
    m_Icon = m_Unseen > 0 && m_Flash ? 1 : 2;
    m_Flash = !m_Flash;
}

void cNaiveStation::ClickIcon() {
    if (m_Plan.stopByClick) m_Sound.Silence();
}

void cNaiveStation::SilenceUnlessPopups() {
    if (!m_Plan.untilNoMorePopups || m_Popups.m_Open.empty()) m_Sound.Silence();
}

void cNaiveStation::Acknowledge(const cNaiveStore::Alarm& alarm) {
    SilenceUnlessPopups();
    if (!alarm->acknowledged) m_Store.Acknowledge(alarm);
    m_Changed = true;
}

void cNaiveStation::Acknowledge(std::size_t row) {
    const std::vector<cNaiveStore::Alarm> rows = m_Store.Rows();
    if (row < rows.size()) Acknowledge(rows[row]);
}

void cNaiveStation::AcknowledgeAll() {
    for (const cNaiveStore::Alarm& alarm : m_Store.Rows()) {
        if (!alarm->acknowledged) Acknowledge(alarm);
    }
    SilenceUnlessPopups();
}

void cNaiveStation::Close(const cNaivePopups::cPopup& popup) {
    const cNaivePopups::cPopup closed = popup;
    if (!m_Plan.untilNoMorePopups || m_Popups.m_Open.size() == 1) m_Sound.Silence();
    if (m_Plan.acknowledgeAtClose) Acknowledge(closed.alarm);
    m_Popups.Close(closed.number, m_Link.m_Now);
}

void cNaiveStation::ClosePopup(int number) {
    const auto found = std::find_if(m_Popups.m_Open.begin(), m_Popups.m_Open.end(),
                                    [number](const auto& popup) { return popup.number == number; });
    if (found != m_Popups.m_Open.end()) Close(*found);
}

void cNaiveStation::AcknowledgeAllAndClose() {
    AcknowledgeAll();
    while (!m_Popups.m_Open.empty()) Close(m_Popups.m_Open.front());
    SilenceUnlessPopups();
}

void cNaiveStation::Restart(const cPlan& plan) {
    while (!m_Popups.m_Open.empty()) Close(m_Popups.m_Open.front());
    m_Plan = plan;
    m_Link.m_AutoReset = plan.autoReset;
    m_Link.m_SystemCategory = plan.systemCategory;
    m_Link.Restart();
    m_Popups.Restart(plan);
    m_Sound.Restart(plan);
    m_Store.Restart(plan.maxEvents, plan.maxDays, m_Link.m_Now);
    m_Printed.clear();
    m_LastDay = 0;
    m_Changed = true;
    m_Flash = false;
    m_Unseen = 0;
    m_Icon = 0;
}

std::string cNaiveStation::Told() {
    std::string rows;
    for (const cNaiveStore::Alarm& alarm : m_Store.Rows()) {
        for (const std::string& text : alarm->texts) rows += text + "|";
        rows += NaiveDate(alarm->sourced) + " " + NaiveTime(alarm->sourced) +
                (alarm->acknowledged ? "|#27 " : "|#26 ");
    }
    return "rows: " + rows + "\npopups: " + m_Popups.Told() + "\nicon: " + std::to_string(m_Icon) +
           "\nsound: " + m_Sound.Take() + "printed: " + std::exchange(m_Printed, {});
}

}  // namespace vigrel::testing
