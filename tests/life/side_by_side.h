#pragma once

#include <cstddef>
#include <string>

#include "life/history.h"
#include "life/naive_station.h"
#include "life/plan.h"
#include "support/fake_clock.h"
#include "support/fake_sockets.h"

namespace vigrel::testing {

// A real station, over fakes or with windows, and the plain one. Real is default-constructible and has what
// is called below; ClosePopup and AcknowledgeAllAndClose tell what they came to, since not all that a history
// wishes can be done by an operator.
template <class Real>
class cSideBySide {
  public:
    // What they disagree on behind the event; empty for nothing.
    std::string Take(const cEvent& event) {
        if (m_Real.HasStarted()) TimePasses(0.001);
        const auto [realReplies, naiveReplies] = Happen(event);
        m_Real.EventIsOver();
        m_Naive.EventIsOver();
        if (realReplies != naiveReplies)
            return Against("replies: " + realReplies, "replies: " + naiveReplies);
        const std::string real = m_Real.Told(), naive = Real::AsShown(m_Naive.Told());
        return real == naive ? "" : Against(real, naive);
    }

  private:
    using eKind = cEvent::eKind;
    struct cReplies {
        std::string real, naive;
    };
    static std::string Against(const std::string& real, const std::string& naive) {
        return cFakeDataSocket::Visible(real) + "\nagainst\n" + cFakeDataSocket::Visible(naive);
    }
    void TimePasses(double seconds) {
        m_Real.TimePasses(seconds);
        m_Naive.TimePasses(seconds);
    }
    cReplies Happen(const cEvent& event) {
        switch (event.kind) {
            case eKind::Connect:
                m_Real.Connect();
                m_Naive.Connect();
                break;
            case eKind::Arrive:
                return {m_Real.Arrive(event.bytes), m_Naive.Arrive(event.bytes)};
            case eKind::PeerCloses:
                m_Real.PeerCloses();
                m_Naive.PeerCloses();
                break;
            case eKind::TimePasses:
                TimePasses(event.number);
                m_Real.Tick();
                m_Naive.Tick();
                break;
            case eKind::ClockIsSet:
                m_Real.SetClock(event.number);
                m_Naive.SetClock(event.number);
                break;
            case eKind::SaveTurn:
                m_Real.SaveTurn();
                break;
            case eKind::Restart:
                m_Real.Restart(MakePlan(static_cast<unsigned>(event.number)));
                m_Naive.Restart(MakePlan(static_cast<unsigned>(event.number)));
                break;
            default:
                Operate(event);
        }
        return {};
    }
    void Operate(const cEvent& event) {
        const auto place = static_cast<std::size_t>(event.number);
        switch (event.kind) {
            case eKind::PlayTick:
                m_Real.PlayTick();
                m_Naive.PlayTick();
                break;
            case eKind::PlayEnds:
                m_Real.PlayEnds();
                m_Naive.PlayEnds();
                break;
            case eKind::ClickIcon:
                m_Real.ClickIcon();
                m_Naive.ClickIcon();
                break;
            case eKind::StopSound:
                m_Real.StopSound();
                m_Naive.StopSound();
                break;
            case eKind::Acknowledge:
                m_Real.Acknowledge(place);
                m_Naive.Acknowledge(place);
                break;
            case eKind::AcknowledgeAll:
                m_Real.AcknowledgeAll();
                m_Naive.AcknowledgeAll();
                break;
            case eKind::AcknowledgeAllAndClose:
                if (m_Real.AcknowledgeAllAndClose()) m_Naive.AcknowledgeAllAndClose();
                break;
            default:
                m_Naive.ClosePopup(m_Real.ClosePopup(place));
        }
    }

    Real m_Real;
    cNaiveStation m_Naive{cFakeClock().Now()};
};

// Where the two disagree, and on what; the history's length for nowhere.
struct cDisagreement {
    std::size_t at;
    std::string on;
};
template <class Real>
cDisagreement Live(const cHistory& history) {
    cSideBySide<Real> both;
    for (std::size_t i = 0; i < history.size(); ++i) {
        const std::string difference = both.Take(history[i]);
        if (!difference.empty()) return {i, difference};
    }
    return {history.size(), ""};
}

// Histories of so many events, one for each seed from 1 on. The first disagreement, told as the shortest
// history that shows it; empty for none.
template <class Real>
std::string FirstDisagreement(unsigned histories, int events) {
    for (unsigned seed = 1; seed <= histories; ++seed) {
        cHistory history = cHistoryMaker(seed).Make(events);
        const cDisagreement found = Live<Real>(history);
        if (found.at == history.size()) continue;
        history.resize(found.at + 1);
        const cHistory shortest = Shortest(
            history, [](const cHistory& shorter) { return Live<Real>(shorter).at < shorter.size(); });
        std::string told = "seed " + std::to_string(seed) + ", event " + std::to_string(found.at) + ":\n";
        for (const cEvent& event : shortest) told += Told(event) + "\n";
        return told + Live<Real>(shortest).on + "\n" +
               IniOf(MakePlan(static_cast<unsigned>(shortest.front().number)));
    }
    return "";
}

}  // namespace vigrel::testing
