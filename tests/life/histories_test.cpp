// Random histories, lived by the real station and by a plain second one: they must agree at every step. The
// first disagreement is told as the shortest history that shows it.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "common/text.h"
#include "life/history.h"
#include "life/naive_station.h"
#include "life/plan.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

using eKind = cEvent::eKind;

// The real station, on a disk that outlives it.
class cRealStation {
  public:
    cRealStation() {
        m_Disk.Put("C:\\App\\Vigrel_Texts.046",
                   "837=T837\r\n838=T838\r\n839=T839\r\n10031=T10031\r\n10032=T10032\r\n");
    }
    void Restart(const cPlan& plan) {
        if (m_Station) m_Station->mainWindow.CloseFor(eCloseReason::SessionEnd);
        m_Disk.Put("C:\\App\\VigrelReceiver.INI", IniOf(plan));
        auto next = std::make_unique<cFakeReceiver>(m_Disk);
        if (m_Station) next->clock = m_Station->clock;
        m_Station = std::move(next);
        m_Station->Start();
    }
    bool HasStarted() const { return m_Station != nullptr; }
    cFakeReceiver* operator->() { return m_Station.get(); }

    void Acknowledge(std::size_t row) {
        const std::vector<RecordId> rows = m_Station->list.Rows();
        if (row < rows.size()) m_Station->list.DoubleClick(rows[row]);
    }
    void ClosePopup(std::size_t open) {
        const std::vector<std::string> numbers = Split(m_Station->popups.Open(), ' ');
        if (open < numbers.size()) Popup(numbers[open]).CloseFor(eCloseReason::Control);
    }
    std::string Told() {
        return "rows: " + Rows() + "\npopups: " + Popups() +
               "\nicon: " + std::to_string(m_Station->trayArea.m_Image) + "\nsound: " + Sounded() +
               "printed: " + Printed();
    }

  private:
    static std::vector<std::string> Split(const std::string& text, char separator) {
        return text.empty() ? std::vector<std::string>{} : CutAt(text, separator);
    }
    cFakePopupWindow& Popup(const std::string& number) { return m_Station->popups[std::stoi(number)]; }
    std::string Rows() const {
        std::string rows;
        for (const std::string& row : SplitLines(m_Station->list.Screen()))
            rows += row.substr(row.find('|') + 1, row.size() - row.find('|') - 2) + " ";
        return rows;
    }
    std::string Popups() {
        std::string told;
        for (const std::string& number : Split(m_Station->popups.Stacked(), ' '))
            told += number + (Popup(number).m_TopMost ? " top " : " ") + Popup(number).m_LabelText + "; ";
        return told;
    }
    std::string Sounded() {
        std::string told;
        for (const std::string& line : Split(m_Station->transcript.Take(), '\n')) {
            if (line == "beep") told += "beep\n";
            if (line.starts_with("sound: ")) told += line.substr(7) + "\n";
        }
        return told;
    }
    std::string Printed() {
        std::string told;
        for (const std::string& line : m_Station->printerPorts.m_Lines) told += line;
        m_Station->printerPorts.m_Lines.clear();
        return told;
    }

    cFakeFiles m_Disk;
    std::unique_ptr<cFakeReceiver> m_Station;
};

// Both of them, side by side.
class cPair {
  public:
    // What they disagree on behind the event; empty for nothing.
    std::string Take(const cEvent& event) {
        if (m_Real.HasStarted()) TimePasses(0.001);
        const auto [realReplies, naiveReplies] = Happen(event);
        m_Real->waveDevice.RunEvents();
        m_Naive.EventIsOver();
        if (realReplies != naiveReplies)
            return Against("replies: " + realReplies, "replies: " + naiveReplies);
        const std::string real = m_Real.Told(), naive = m_Naive.Told();
        return real == naive ? "" : Against(real, naive);
    }

  private:
    struct cReplies {
        std::string real, naive;
    };
    static std::string Against(const std::string& real, const std::string& naive) {
        return cFakeDataSocket::Visible(real) + "\nagainst\n" + cFakeDataSocket::Visible(naive);
    }
    void TimePasses(double seconds) {
        m_Real->clock.AddSeconds(seconds);
        m_Naive.TimePasses(seconds);
    }
    cReplies Happen(const cEvent& event) {
        switch (event.kind) {
            case eKind::Connect:
                m_Real->listener.Knock(++m_Connections);
                m_Naive.Connect();
                break;
            case eKind::Arrive:
                m_Real->data.Arrive(event.bytes);
                return {m_Real->data.TakeSent(), m_Naive.Arrive(event.bytes)};
            case eKind::PeerCloses:
                m_Real->data.PeerCloses();
                m_Naive.PeerCloses();
                break;
            case eKind::TimePasses:
                TimePasses(event.number);
                m_Real->timerKeepAlive.Tick();
                m_Naive.Tick();
                break;
            case eKind::ClockIsSet:
                m_Real->clock.m_Now += event.number / 86400.0;
                m_Naive.SetClock(event.number);
                break;
            case eKind::SaveTurn:
                m_Real->timerSave.Tick();
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
                m_Real->timerPlay.Tick();
                m_Naive.PlayTick();
                break;
            case eKind::PlayEnds:
                m_Real->waveDevice.EndPlay();
                m_Naive.PlayEnds();
                break;
            case eKind::ClickIcon:
                m_Real->trayArea.OnFirstClick();
                m_Naive.ClickIcon();
                break;
            case eKind::StopSound:
                m_Real->menus.OnMenuStopSound();
                m_Naive.StopSound();
                break;
            case eKind::Acknowledge:
                m_Real.Acknowledge(place);
                m_Naive.Acknowledge(place);
                break;
            case eKind::AcknowledgeAll:
                m_Real->menus.OnMenuAckAll();
                m_Naive.AcknowledgeAll();
                break;
            case eKind::AcknowledgeAllAndClose:
                m_Real->menus.OnMenuAckAllAndClosePopups();
                m_Naive.AcknowledgeAllAndClose();
                break;
            default:
                m_Real.ClosePopup(place);
                m_Naive.ClosePopup(place);
        }
    }

    cRealStation m_Real;
    cNaiveStation m_Naive{cFakeClock().Now()};
    int m_Connections = 0;
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

// VIGREL_HISTORIES in the environment makes a campaign of it.
unsigned HowMany() {
    const char* number = std::getenv("VIGREL_HISTORIES");
    return number ? static_cast<unsigned>(std::stoul(number)) : 10;
}

TEST(Histories, AreLivedAlikeByAPlainSecondStation) {
    for (unsigned seed = 1; seed <= HowMany(); ++seed) {
        cHistory history = cHistoryMaker(seed).Make(3000);
        const cDisagreement found = Compare(history);
        if (found.at == history.size()) continue;
        history.resize(found.at + 1);
        const cHistory shortest =
            Shortest(history, [](const cHistory& shorter) { return Compare(shorter).at < shorter.size(); });
        std::string told;
        for (const cEvent& event : shortest) told += Told(event) + "\n";
        FAIL() << "seed " << seed << ", event " << found.at << ":\n"
               << told << Compare(shortest).on << "\n"
               << IniOf(MakePlan(static_cast<unsigned>(shortest.front().number)));
    }
}

TEST(Histories, AreShortenedToTheEventsThatMatter) {
    const cHistory history = cHistoryMaker(1).Make(400);
    const auto isAcknowledgeAll = [](const cEvent& event) { return event.kind == eKind::AcknowledgeAll; };
    const auto hasOne = [&](const cHistory& some) {
        return std::any_of(some.begin(), some.end(), isAcknowledgeAll);
    };
    ASSERT_TRUE(hasOne(history));
    EXPECT_EQ(Shortest(history, hasOne).size(), 2u);
}

}  // namespace
}  // namespace vigrel::testing
