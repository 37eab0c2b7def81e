#include "life/history.h"

#include <algorithm>
#include <cstdlib>

#include "support/fake_sockets.h"

namespace vigrel::testing {

using eKind = cEvent::eKind;

std::string Told(const cEvent& event) {
    constexpr const char* kNames[] = {"connect",     "arrive",          "peer closes",
                                      "time passes", "clock is set",    "play tick",
                                      "play ends",   "click icon",      "stop sound",
                                      "acknowledge", "acknowledge all", "acknowledge all and close popups",
                                      "close popup", "save turn",       "restart"};
    return std::string(kNames[static_cast<int>(event.kind)]) + " " + std::to_string(event.number) + " " +
           cFakeDataSocket::Visible(event.bytes);
}

cHistory cHistoryMaker::Make(int events) {
    cHistory history{{eKind::Restart, "", Below(1000000)}};
    while (static_cast<int>(history.size()) < events) Append(history);
    return history;
}

void cHistoryMaker::Append(cHistory& history) {
    const int choice = Below(100);
    if (choice < 45) return AppendArrivals(history);
    if (choice < 51) return history.push_back({eKind::Connect, ""});
    history.push_back(OperatorOrTime());
}

cEvent cHistoryMaker::OperatorOrTime() {
    const int choice = Below(100);
    if (choice < 2) return {eKind::PeerCloses, ""};
    if (choice < 14) return {eKind::TimePasses, "", 5 + Below(120)};
    if (choice < 16) return {eKind::TimePasses, "", 20000 + Below(90000)};
    if (choice < 18) return {eKind::ClockIsSet, "", Below(2) == 0 ? -3600 : Below(200) - 100};
    if (choice < 50) return {eKind::PlayTick, ""};
    if (choice < 60) return {eKind::PlayEnds, ""};
    if (choice < 62) return {eKind::ClickIcon, ""};
    if (choice < 64) return {eKind::StopSound, ""};
    if (choice < 75) return {eKind::Acknowledge, "", Below(14)};
    if (choice < 78) return {eKind::AcknowledgeAll, ""};
    if (choice < 80) return {eKind::AcknowledgeAllAndClose, ""};
    if (choice < 92) return {eKind::ClosePopup, "", Below(6)};
    if (choice < 98) return {eKind::SaveTurn, ""};
    return {eKind::Restart, "", Below(1000000)};
}

// Some lines, cut into chunks anywhere.
void cHistoryMaker::AppendArrivals(cHistory& history) {
    std::string bytes;
    for (int lines = 1 + Below(3); lines > 0; --lines) bytes += m_Lines.Line() + m_Lines.LineEnd();
    while (!bytes.empty()) {
        const std::size_t count = Below(3) == 0 ? 1 + m_Draw() % bytes.size() : bytes.size();
        history.push_back({eKind::Arrive, bytes.substr(0, count)});
        bytes.erase(0, count);
    }
}

cHistory Shortest(cHistory history, const std::function<bool(const cHistory&)>& remains) {
    for (std::size_t size = history.size() / 2; size > 0; size /= 2) {
        for (std::size_t at = 1; at < history.size();) {
            cHistory shorter = history;
            const std::size_t end = std::min(at + size, shorter.size());
            shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(at),
                          shorter.begin() + static_cast<std::ptrdiff_t>(end));
            if (remains(shorter)) {
                history = std::move(shorter);
            } else {
                at += size;
            }
        }
    }
    return history;
}

unsigned HistoriesToLive(unsigned usually) {
    const char* number = std::getenv("VIGREL_HISTORIES");
    return number ? static_cast<unsigned>(std::stoul(number)) : usually;
}

}  // namespace vigrel::testing
