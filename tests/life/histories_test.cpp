// Random histories, lived by the real station and by a plain second one: they must agree at every step. The
// first disagreement is told as the shortest history that shows it.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>

#include "life/line_maker.h"
#include "life/naive_station.h"
#include "support/fake_receiver.h"
#include "support/faulty_files.h"

namespace vigrel::testing {
namespace {

constexpr std::size_t kMost = 12;

struct cEvent {
    enum class eKind {
        Connect,
        Arrive,
        PeerCloses,
        TimePasses,
        Acknowledge,
        AcknowledgeAll,
        SaveTurn,
        Restart
    };
    eKind kind;
    std::string bytes;
    int number = 0;  // seconds, or a row
};
using cHistory = std::vector<cEvent>;

// The real station, on a disk that outlives it.
class cRealStation {
  public:
    cRealStation() {
        m_Disk.Put("C:\\App\\Vigrel_Texts.046", "10040=T10040\r\n");
        m_Disk.Put("C:\\App\\VigrelReceiver.INI",
                   "[General]\r\nLanguage=046\r\nColumns=StateIcon,t0,Observed\r\nMaxDays=0\r\nMaxEvents=" +
                       std::to_string(kMost) + "\r\n[Senders]\r\nPLC1=1\r\nPLC2=3\r\nPLC3=0\r\n");
        Start();
    }
    void Restart() {
        m_Station->mainWindow.CloseFor(eCloseReason::SessionEnd);
        Start();
    }
    cFakeReceiver& operator*() { return *m_Station; }
    cFakeReceiver* operator->() { return m_Station.get(); }
    // "text|#26" of each row.
    cHistory::size_type Count() const { return m_Station->list.Rows().size(); }
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        for (const std::string& row : SplitLines(m_Station->list.Screen()))
            rows.push_back(row.substr(row.find('|') + 1, row.size() - row.find('|') - 2));
        return rows;
    }

  private:
    void Start() {
        auto next = std::make_unique<cFakeReceiver>(m_Files);
        if (m_Station) next->clock = m_Station->clock;
        m_Station.reset();
        m_Station = std::move(next);
        // No two alarms come into being at the same moment.
        m_Files.m_OnCall = [this] { m_Station->clock.AddSeconds(0.00001); };
        m_Station->Start();
    }
    cFakeFiles m_Disk;
    cFaultyFiles m_Files{m_Disk};  // none of whose calls fail
    std::unique_ptr<cFakeReceiver> m_Station;
};

// Both of them, side by side.
class cPair {
  public:
    // What they disagree on behind the event; empty for nothing.
    std::string Take(const cEvent& event) {
        std::string realReplies, naiveReplies;
        TimePasses(0.001);
        switch (event.kind) {
            case cEvent::eKind::Connect:
                m_Real->listener.Knock(++m_Connections);
                m_Naive.Connect();
                break;
            case cEvent::eKind::Arrive:
                m_Real->data.Arrive(event.bytes);
                realReplies = m_Real->data.TakeSent();
                naiveReplies = m_Naive.Arrive(event.bytes);
                break;
            case cEvent::eKind::PeerCloses:
                m_Real->data.PeerCloses();
                m_Naive.PeerCloses();
                break;
            case cEvent::eKind::TimePasses:
                TimePasses(event.number);
                m_Real->timerKeepAlive.Tick();
                m_Naive.Tick();
                break;
            case cEvent::eKind::Acknowledge:
                if (static_cast<std::size_t>(event.number) < m_Real.Count())
                    m_Real->list.DoubleClick(m_Real->list.Rows()[static_cast<std::size_t>(event.number)]);
                m_Naive.Acknowledge(static_cast<std::size_t>(event.number));
                break;
            case cEvent::eKind::AcknowledgeAll:
                m_Real->menus.OnMenuAckAll();
                m_Naive.AcknowledgeAll();
                break;
            case cEvent::eKind::SaveTurn:
                m_Real->timerSave.Tick();
                break;
            case cEvent::eKind::Restart:
                m_Real.Restart();
                m_Naive.Restart();
                break;
        }
        return Difference(realReplies, naiveReplies);
    }

  private:
    void TimePasses(double seconds) {
        m_Real->clock.AddSeconds(seconds);
        m_Naive.TimePasses(seconds);
    }
    std::string Difference(const std::string& realReplies, const std::string& naiveReplies) {
        if (realReplies != naiveReplies)
            return "replies " + cFakeDataSocket::Visible(realReplies) + " against " +
                   cFakeDataSocket::Visible(naiveReplies);
        const auto listed = [](const std::vector<std::string>& rows) {
            std::string text;
            for (const std::string& row : rows) text += " " + cFakeDataSocket::Visible(row);
            return text;
        };
        if (m_Real.Rows() == m_Naive.Rows()) return "";
        return "rows" + listed(m_Real.Rows()) + "\nagainst" + listed(m_Naive.Rows());
    }

    cRealStation m_Real;
    cNaiveStation m_Naive{{{"PLC1", 1}, {"PLC2", 3}, {"PLC3", 0}}, kMost};
    int m_Connections = 0;
};

std::string Told(const cEvent& event) {
    constexpr const char* kNames[] = {"connect",     "arrive",          "peer closes", "time passes",
                                      "acknowledge", "acknowledge all", "save turn",   "restart"};
    return std::string(kNames[static_cast<int>(event.kind)]) + " " + std::to_string(event.number) + " " +
           cFakeDataSocket::Visible(event.bytes);
}

// Makes histories, mostly of lines that arrive.
class cHistoryMaker {
  public:
    explicit cHistoryMaker(unsigned seed) : m_Draw(seed) {}

    cHistory Make(int events) {
        cHistory history;
        while (static_cast<int>(history.size()) < events) Append(history);
        return history;
    }

  private:
    using eKind = cEvent::eKind;
    int Below(int limit) { return static_cast<int>(m_Draw() % static_cast<unsigned>(limit)); }

    void Append(cHistory& history) {
        const int choice = Below(100);
        if (choice < 70) return AppendArrivals(history);
        if (choice < 76) return history.push_back({eKind::Connect, ""});
        if (choice < 78) return history.push_back({eKind::PeerCloses, ""});
        if (choice < 86) return history.push_back({eKind::TimePasses, "", 5 + Below(120)});
        if (choice < 92) return history.push_back({eKind::Acknowledge, "", Below(14)});
        if (choice < 94) return history.push_back({eKind::AcknowledgeAll, ""});
        if (choice < 99) return history.push_back({eKind::SaveTurn, ""});
        history.push_back({eKind::Restart, ""});
    }
    // Some lines, cut into chunks anywhere.
    void AppendArrivals(cHistory& history) {
        std::string bytes;
        for (int lines = 1 + Below(3); lines > 0; --lines) bytes += m_Lines.Line() + m_Lines.LineEnd();
        while (!bytes.empty()) {
            const std::size_t count = Below(3) == 0 ? 1 + m_Draw() % bytes.size() : bytes.size();
            history.push_back({eKind::Arrive, bytes.substr(0, count)});
            bytes.erase(0, count);
        }
    }
    std::mt19937 m_Draw;
    cLineMaker m_Lines{m_Draw};
};

// Where they disagree, and on what; the history's length for nowhere.
struct cDisagreement {
    std::size_t at;
    std::string on;
};
cDisagreement Compare(const cHistory& history) {
    cPair pair;
    for (std::size_t i = 0; i < history.size(); ++i) {
        const std::string difference = pair.Take(history[i]);
        if (!difference.empty()) return {i, difference};
    }
    return {history.size(), ""};
}

// Leaves out events, many at a time and then one by one, as long as a disagreement remains.
cHistory Shortest(cHistory history, const std::function<bool(const cHistory&)>& disagrees) {
    for (std::size_t size = history.size() / 2; size > 0; size /= 2) {
        for (std::size_t at = 0; at < history.size();) {
            cHistory shorter = history;
            const std::size_t end = std::min(at + size, shorter.size());
            shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(at),
                          shorter.begin() + static_cast<std::ptrdiff_t>(end));
            if (disagrees(shorter)) {
                history = std::move(shorter);
            } else {
                at += size;
            }
        }
    }
    return history;
}

TEST(Histories, AreLivedAlikeByAPlainSecondStation) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        cHistory history = cHistoryMaker(seed).Make(3000);
        const cDisagreement found = Compare(history);
        if (found.at == history.size()) continue;
        history.resize(found.at + 1);
        const cHistory shortest =
            Shortest(history, [](const cHistory& shorter) { return Compare(shorter).at < shorter.size(); });
        std::string told;
        for (const cEvent& event : shortest) told += Told(event) + "\n";
        FAIL() << "seed " << seed << ", event " << found.at << ":\n" << told << Compare(shortest).on;
    }
}

TEST(Histories, AreShortenedToTheEventsThatMatter) {
    const cHistory history = cHistoryMaker(1).Make(200);
    const auto hasRestart = [](const cHistory& some) {
        return std::any_of(some.begin(), some.end(),
                           [](const cEvent& event) { return event.kind == cEvent::eKind::Restart; });
    };
    ASSERT_TRUE(hasRestart(history));
    EXPECT_EQ(Shortest(history, hasRestart).size(), 1u);
}

}  // namespace
}  // namespace vigrel::testing
