#pragma once

#include <cstddef>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "life/line_maker.h"

namespace vigrel::testing {

// Something that happens to a station.
struct cEvent {
    enum class eKind {
        Connect,
        Arrive,
        PeerCloses,
        TimePasses,
        ClockIsSet,
        PlayTick,
        PlayEnds,
        ClickIcon,
        StopSound,
        Acknowledge,
        AcknowledgeAll,
        AcknowledgeAllAndClose,
        ClosePopup,
        SaveTurn,
        Restart
    };
    eKind kind;
    std::string bytes;
    int number = 0;  // seconds, a row, a popup, or the seed of a plan
};
using cHistory = std::vector<cEvent>;

// "arrive 0 <STX>..."
std::string Told(const cEvent& event);

// Draws histories, mostly of lines that arrive.
class cHistoryMaker {
  public:
    explicit cHistoryMaker(unsigned seed) : m_Draw(seed) {}
    // The first event is a start.
    cHistory Make(int events);

  private:
    int Below(int limit) { return static_cast<int>(m_Draw() % static_cast<unsigned>(limit)); }
    void Append(cHistory& history);
    cEvent OperatorOrTime();
    void AppendArrivals(cHistory& history);

    std::mt19937 m_Draw;
    cLineMaker m_Lines{m_Draw};
};

// Leaves out events, many at a time and then one by one, as long as something remains. The first event stays.
cHistory Shortest(cHistory history, const std::function<bool(const cHistory&)>& remains);

// VIGREL_HISTORIES in the environment makes a campaign of it.
unsigned HistoriesToLive(unsigned usually);

}  // namespace vigrel::testing
