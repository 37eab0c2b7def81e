#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "common/ini.h"
#include "common/log.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/alarm_maker.h"
#include "platform/locale.h"
#include "platform/windows.h"

namespace vigrel {

// The lines of section "Senders" are read into a buffer of this size (ReadIniSection).
inline constexpr std::size_t kSenderBuffer = 4096;
// The rows of the table that are ever filled.
inline constexpr std::int16_t kMostSenders = 100;

// Who a frame came from.
enum class eHeard {
    Unknown,   // no sender of the table
    Known,     // one of them
    KeepAlive  // one of them, to say that it lives: accepted whatever the frame's checksum
};

// The senders that the station expects to hear from. One that stays silent for longer than its minutes raises
// an alarm of the station's own; its next frame, valid or not, brings the matching inactive one.
class cSenderTable {
  public:
    struct cServices {
        const cFileReader& files;
        const cClock& clock;
        const cAlarmMaker& maker;
        const cIniReader& ini;
        const cTexts& texts;
        cLog& log;
        const cSettings& settings;
        const cLocaleForms& forms;
        cMessageBox& messageBox;
        std::function<void(const AlarmPtr&)> ProcessAlarm;
    };
    explicit cSenderTable(cServices services) : m_Services(std::move(services)) {}

    struct cSender {
        std::string SenderName;             // as configured, blanks included
        DateTime LastSeen = 0;              // last heard, or last reported lost
        double LastSeenSteady = 0;          // the same moment on the steady clock, days
        std::int16_t KeepAliveMinutes = 0;  // longest allowed silence; 0: not supervised
        bool NotYetSeen = true;             // no frame since start-up
        bool AlarmRaised = false;           // reported lost, and no frame since
    };
    // Rows 0 to m_SenderCount - 1 are in use; at most 100 of them are ever filled.
    std::array<cSender, 101> m_Senders;
    std::int16_t m_SenderCount = 0;

    // Fills the table from section "Senders". Minutes beyond 16 bits throw cFailure (Overflow), and so does a
    // configuration that is there and can't be read.
    void ReadSenders();
    // Logs each sender with its minutes.
    void LogSenders();
    // Raises the alarms of the senders whose time is over.
    void Tick();
    // A frame of the name came in, valid or not. An empty text is a keep-alive, which is logged. Raises the
    // alarm that tells of a lost sender's return.
    eHeard Heard(std::string_view name, std::string_view text);

  private:
    void AddSender(const std::string& entry);
    void WarnTooMany();
    void MarkSeen(cSender& sender) const;
    bool IsDue(const cSender& sender) const;
    std::string StateText(const cSender& sender) const;
    void Raise(const cSender& sender, std::int16_t status);

    cServices m_Services;
};

}  // namespace vigrel
