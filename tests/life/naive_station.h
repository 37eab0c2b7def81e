#pragma once

#include <deque>
#include <string>
#include <vector>

namespace vigrel::testing {

// A second receiver, as plain as it can be: what comes over the link, which senders are heard, which alarms
// are kept. It shares nothing with the real one, and takes one moment after the other as seconds that go by.
class cNaiveStation {
  public:
    struct cSender {
        std::string name;
        int minutes;
        double lastHeard = 0;
        bool lost = false;
    };
    // Senders, and the most alarms to keep.
    cNaiveStation(std::vector<cSender> senders, std::size_t most)
        : m_Senders(std::move(senders)), m_Most(most) {}

    void Connect() {
        m_Open = true;
        m_Buffer.clear();
    }
    void PeerCloses() { m_Open = false; }
    // The replies to what arrives.
    std::string Arrive(const std::string& bytes);
    void TimePasses(double seconds) { m_Now += seconds; }
    // The ten-second tick.
    void Tick();
    // The oldest is row 0.
    void Acknowledge(std::size_t row);
    void AcknowledgeAll();
    void Restart();

    // The rows, the oldest first: "text|" and whether it is acknowledged.
    std::vector<std::string> Rows() const;

  private:
    struct cAlarm {
        std::string text;
        bool acknowledged = false;
    };
    // What a line is answered with; empty for none.
    std::string Answer(const std::string& line);
    void Keep(const std::string& text);
    cSender* Find(const std::string& name);

    std::vector<cSender> m_Senders;
    std::size_t m_Most;
    std::deque<cAlarm> m_Alarms;
    std::string m_Buffer;
    bool m_Open = false;
    double m_Now = 0;
};

}  // namespace vigrel::testing
