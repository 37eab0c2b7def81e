#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "life/naive_alarm.h"

namespace vigrel::testing {

// What comes over the link, and which senders are heard, as plain as it can be.
class cNaiveLink {
  public:
    struct cSender {
        std::string name;
        int minutes;
        double lastHeard = 0, lastHeardSteady = 0;
        bool lost = false, heard = false;
    };
    explicit cNaiveLink(std::vector<cSender> senders) : m_Senders(std::move(senders)) {}

    void Connect() {
        m_Open = true;
        m_Buffer.clear();
    }
    void PeerCloses() { m_Open = false; }
    // The replies to what arrives.
    std::string Arrive(const std::string& bytes);
    // Looks for senders that have fallen silent.
    void Tick();
    void Restart();

    std::function<void(const cNaiveAlarm&)> OnAlarm = [](const cNaiveAlarm&) {};
    double m_Now = 0;     // a date-time
    double m_Steady = 0;  // days, that no clock change touches
    bool m_AutoReset = true;
    std::string m_SystemCategory;

  private:
    // What a line is answered with; empty for none.
    std::string Answer(const std::string& line);
    void TakeRecord(const std::string& sender, int status, const std::string& text);
    void Raise(const cSender& sender, int status);
    cSender* Find(const std::string& name);
    void NoteHeard(cSender& sender) const;

    std::vector<cSender> m_Senders;
    std::string m_Buffer;
    bool m_Open = false;
};

}  // namespace vigrel::testing
