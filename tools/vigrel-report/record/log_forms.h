#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/texts.h"

namespace vigrel::report {

enum class eLine {
    Unknown,       // of no language, or of another program
    Known,         // the station's, and of no use here
    Start,         // the first line of a start, which may come to nothing
    Started,       // the start is finished
    EndBySession,  // the desktop's session ends, or a stop signal came
    EndByOperator,
    Alarm,      // sender, alarm
    Message,    // sender
    KeepAlive,  // sender
    UnknownSender,
    Acknowledged,  // alarm
    PopupOpened,   // alarm
    PopupClosed,   // alarm
    PrintFailed,   // alarm; or a popup was closed by the system: both have the same words
    Removed,       // number of alarms that a limit removed
    SenderRow,     // sender, number of minutes; 0: not supervised
};

struct cLogLine {
    eLine kind = eLine::Unknown;
    std::string_view sender;
    std::string_view alarm;  // "Active - t0 (t1/t2/t3/t4)"
    std::int64_t number = 0;
};

// The words of one language that lines are made of, with the blanks around them. Empty ones are in no line.
struct cLogPhrases {
    bool operator==(const cLogPhrases&) const = default;
    std::string start, started, endBySession, endByOperator;  // whole lines
    std::string acknowledged, popupOpened, popupClosed, printFailed, port, light, lightLibrary,
        deleted;                                                                     // at the beginning
    std::string soundStopped, noLight;                                               // whole lines
    std::string alarm, message;                                                      // behind the sender
    std::string keepAlive, unknownSender, removed, loaded, unsupervised, moreAlike;  // at the end
    std::string supervised, minutes;                                                 // around the minutes
    std::vector<std::string> notices;                                                // at the beginning
    std::string noAlarmFile;                                                         // at the end
    std::string unreadable;                                                          // behind a number
    std::string lost, neverHeard;  // behind the name in the text of an alarm about a sender
};
cLogPhrases PhrasesOf(const cTexts& texts);

// Reads lines of a log by the words of several languages. The language of the line before is tried first.
class cLogForms {
  public:
    explicit cLogForms(std::vector<cLogPhrases> languages);
    // The views of the result are parts of the text.
    cLogLine Read(std::string_view text);
    // The sender whose loss an alarm's text tells ("PLC1 - no contact since ..."); empty for any other text.
    std::string_view LostSender(std::string_view text) const;

  private:
    std::vector<cLogPhrases> m_Languages;
    std::size_t m_Last = 0;
};

// "Active - Fan (A/Fire//)" is the state 1 and "Fan (A/Fire//)"; nothing for a text that isn't of that form
// or that is cut short.
struct cStatedAlarm {
    std::int8_t state = 0;
    std::string_view body;
};
std::optional<cStatedAlarm> SplitAlarm(std::string_view alarm);

}  // namespace vigrel::report
