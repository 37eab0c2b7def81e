#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "common/log.h"
#include "common/texts.h"
#include "events/alarm_maker.h"
#include "link/sender_table.h"

namespace vigrel {

// One line of the stream: checked as a frame, turned into an alarm or a log entry, counted for its sender and
// answered. A step that fails is skipped; nothing here stops the link.
class cRecordDecoder {
  public:
    struct cServices {
        const cClock& clock;
        const cAlarmMaker& maker;
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
        std::string sender;
        std::string text;  // field 1, then the payload
        std::int16_t kind = -1;
        bool valid = false;
    };
    void LogUnknown(const cFrame& frame);
    static cFrame ReadFrame(const std::string& line);
    bool Take(cFrame& frame);
    void TakeRecord(cFrame& frame);
    void Decode(const cFrame& frame, cVigrelRecieverAlarm& alarm) const;

    cServices m_Services;
};

}  // namespace vigrel
