// Random histories, lived by the real station and by a plain second one: they must agree at every step. The
// first disagreement is told as the shortest history that shows it.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "common/text.h"
#include "life/side_by_side.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

// The real station, on a disk that outlives it.
class cRealStation {
  public:
    cRealStation() {
        m_Disk.Put("C:\\App\\Vigrel_Texts.046",
                   "837=T837\r\n838=T838\r\n839=T839\r\n10031=T10031\r\n10032=T10032\r\n");
    }
    bool HasStarted() const { return m_Station != nullptr; }
    void Restart(const cPlan& plan) {
        if (m_Station) m_Station->mainWindow.CloseFor(eCloseReason::SessionEnd);
        m_Disk.Put("C:\\App\\VigrelReceiver.INI", IniOf(plan));
        auto next = std::make_unique<cFakeReceiver>(m_Disk);
        if (m_Station) next->clock = m_Station->clock;
        m_Station = std::move(next);
        m_Station->Start();
    }
    void EventIsOver() { m_Station->waveDevice.RunEvents(); }
    void TimePasses(double seconds) { m_Station->clock.AddSeconds(seconds); }
    void SetClock(double seconds) { m_Station->clock.m_Now += seconds / 86400; }
    void Connect() { m_Station->listener.Knock(++m_Connections); }
    std::string Arrive(const std::string& bytes) {
        m_Station->data.Arrive(bytes);
        return m_Station->data.TakeSent();
    }
    void PeerCloses() { m_Station->data.PeerCloses(); }
    void Tick() { m_Station->timerKeepAlive.Tick(); }
    void PlayTick() { m_Station->timerPlay.Tick(); }
    void PlayEnds() { m_Station->waveDevice.EndPlay(); }
    void SaveTurn() { m_Station->timerSave.Tick(); }
    void ClickIcon() { m_Station->trayArea.OnFirstClick(); }
    void StopSound() { m_Station->menus.OnMenuStopSound(); }
    void AcknowledgeAll() { m_Station->menus.OnMenuAckAll(); }
    bool AcknowledgeAllAndClose() {
        m_Station->menus.OnMenuAckAllAndClosePopups();
        return true;
    }
    void Acknowledge(std::size_t row) {
        const std::vector<RecordId> rows = m_Station->list.Rows();
        if (row < rows.size()) m_Station->list.DoubleClick(rows[row]);
    }
    // The number of the one that was closed; 0 for none.
    int ClosePopup(std::size_t open) {
        const std::vector<std::string> numbers = Split(m_Station->popups.Open(), ' ');
        if (open >= numbers.size()) return 0;
        Popup(numbers[open]).CloseFor(eCloseReason::Control);
        return std::stoi(numbers[open]);
    }
    static std::string AsShown(std::string told) { return told; }
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
    std::string Rows() {
        std::string rows;
        cFakeReportList& list = m_Station->list;
        for (const RecordId row : list.Rows()) {
            for (int column = 1; column < kIconColumn; ++column)
                rows += std::get<std::string>(list.Item(row, column).value) + "|";
            rows += "#" + std::to_string(list.Item(row, kIconColumn).icon) + " ";
        }
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
    int m_Connections = 0;
};

TEST(Histories, AreLivedAlikeByAPlainSecondStation) {
    EXPECT_EQ(FirstDisagreement<cRealStation>(HistoriesToLive(10), 3000), "");
}

TEST(Histories, AreShortenedToTheEventsThatMatter) {
    const cHistory history = cHistoryMaker(1).Make(400);
    const auto isAcknowledgeAll = [](const cEvent& event) {
        return event.kind == cEvent::eKind::AcknowledgeAll;
    };
    const auto hasOne = [&](const cHistory& some) {
        return std::any_of(some.begin(), some.end(), isAcknowledgeAll);
    };
    ASSERT_TRUE(hasOne(history));
    EXPECT_EQ(Shortest(history, hasOne).size(), 2u);
}

}  // namespace
}  // namespace vigrel::testing
