#pragma once

#include <string>
#include <vector>

#include "life/naive_link.h"
#include "life/naive_popups.h"
#include "life/naive_sound.h"
#include "life/naive_store.h"
#include "life/plan.h"

namespace vigrel::testing {

// A second receiver, as plain as it can be: what comes over the link, which senders are heard, which alarms
// are kept, what pops up, sounds and is printed. It shares nothing with the real one.
class cNaiveStation {
  public:
    explicit cNaiveStation(double now);

    void Connect() { m_Link.Connect(); }
    void PeerCloses() { m_Link.PeerCloses(); }
    // The replies to what arrives.
    std::string Arrive(const std::string& bytes) { return m_Link.Arrive(bytes); }
    void TimePasses(double seconds);
    // The clock is set; time doesn't pass.
    void SetClock(double seconds) { m_Link.m_Now += seconds / 86400; }
    // The ten-second tick, and the one of twice a second.
    void Tick();
    void PlayTick();
    void PlayEnds() { m_Sound.PlayEnds(); }
    void ClickIcon();
    void StopSound() { m_Sound.Silence(); }
    // Rows count from 0, as they are listed.
    void Acknowledge(std::size_t row);
    void AcknowledgeAll();
    void AcknowledgeAllAndClose();
    // By number, from 1; another number is none.
    void ClosePopup(int number);
    void Restart(const cPlan& plan);
    void EventIsOver() { m_Sound.EventIsOver(); }

    // All that an operator would notice, a line each: rows, popups, the icon. What sounded and was printed is
    // that of the time since the last call.
    std::string Told();

  private:
    void Take(const cNaiveAlarm& alarm);
    void Acknowledge(const cNaiveStore::Alarm& alarm);
    void SilenceUnlessPopups();
    void Close(const cNaivePopups::cPopup& popup);
    void Print(const cNaiveAlarm& alarm);

    cPlan m_Plan;
    cNaiveLink m_Link;
    cNaiveStore m_Store;
    cNaivePopups m_Popups;
    cNaiveSound m_Sound;
    std::string m_Printed;
    long m_LastDay = 0;
    bool m_Changed = false, m_Flash = false;
    std::size_t m_Unseen = 0;
    int m_Icon = 0;
};

}  // namespace vigrel::testing
