#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/fake_receiver.h"
#include "support/faulty_files.h"

namespace vigrel::testing {

// Rows of the list, oldest alarm first: text, detail, whether it is acknowledged.
using cRows = std::vector<std::string>;

// One life of a station over fakes, from its first start through everything that touches its files to an end,
// and a second run over what the first one left.
class cStationLife {
  public:
    // On a new disk, or on what another life left, at its time. Days: how long alarms stay, 0 for good.
    explicit cStationLife(int days = 3);
    cStationLife(const cFakeFiles& left, const cFakeClock& now) : m_Disk(left), m_Clock(now) {}

    // A step of the life. It does nothing while no station runs, but for the one that starts it.
    struct cStep {
        std::string name;
        std::function<void()> take;
    };
    std::vector<cStep> Steps();
    // Takes a step as the program does: a failure that nobody takes ends it, and the service starts it again.
    void Take(const cStep& step);
    // Starts the station, again and again where that fails, as a service does.
    void Begin();
    // The program is gone; nothing of it runs any more.
    void Die();
    bool Runs() const { return m_Station != nullptr; }
    cFakeReceiver& Station() { return *m_Station; }
    cFakeClock Now() const { return Runs() ? m_Station->clock : m_Clock; }

    // The list as an operator sees it; empty while no station runs.
    cRows Rows() const;
    // The texts of those frames that were answered positively, in their order.
    const std::vector<std::string>& Answered() const { return m_Answered; }

    cFakeFiles m_Disk;
    cFaultyFiles m_Faulty{m_Disk};
    std::vector<std::string> m_Failures;  // that ended the program
    int m_RefusedStarts = 0;              // that ended without one

  private:
    void Send(const std::string& sender);
    void Acknowledge(std::size_t row);
    void CloseNewestPopup();
    void TickSaves();
    void TimePasses(double seconds);
    void End();

    cFakeClock m_Clock;  // while no station runs
    std::unique_ptr<cFakeReceiver> m_Station;
    std::vector<std::string> m_Answered;
    int m_Sent = 0;
};

// Rows as they are, but for the acknowledgement.
cRows WithoutMarks(cRows rows);
// One row a line.
std::string Listed(const cRows& rows);
// What a station lists that starts on what is on a disk, all of which can be read.
cRows NextStart(const cFakeFiles& disk, const cFakeClock& now);

}  // namespace vigrel::testing
