#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "common/log.h"
#include "common/texts.h"
#include "events/vigrel_reciever_alarm.h"
#include "link/sender_table.h"

namespace vigrel {

// One line of the stream: checked as a frame, turned into an alarm or a log entry, counted for its sender and
// answered. A step that fails is skipped; nothing here stops the link.
class cRecordDecoder {
  public:
    struct cServices {
        const cClock& clock;
        cLog& log;
        const cTexts& texts;
        cSenderTable& senders;
        std::function<void(const AlarmPtr&)> ProcessAlarm;
        std::function<void(std::string_view)> SendReply;
    };
    explicit cRecordDecoder(cServices services) : m_Services(std::move(services)) {}

    void ProcessRecord(const std::string& line);

  private:
    // What a frame came to.
    struct cFrame {
        AlarmPtr alarm;
        std::string text;  // field 1, then the payload
        std::int16_t kind = -1;
        bool accepted = false;
    };
    void LogUnknown(const cFrame& frame, const std::string& sender);
    void ReadFrame(cFrame& frame, const std::string& line) const;
    void TakeRecord(cFrame& frame);
    void DecodeAlarm(const cFrame& frame);

    cServices m_Services;
};

}  // namespace vigrel
