#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/texts.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace vigrel {

// The daily log: one text file a day in the folder LogFiles, "HH:NN:SS", a blank and the text on each line.
class cLog {
  public:
    // m_ApplicationPath ends in a backslash.
    cLog(cFiles& files, const cClock& clock, const cTexts& texts, std::string applicationPath);

    // Appends one line. Never fails: a line that can't be written is lost.
    void WriteLog(std::string_view text);
    // Appends a line that any peer can bring about as often as it likes. The first equal ones in a row are
    // written, the others counted; so are all of them beyond a number in a minute, since what they say can
    // change from one to the next.
    void WriteRefusal(std::string_view text);
    // Writes how many were counted since the last call. Happens also when anything else is written.
    void WriteRepeats();
    // Removes the logs whose age in days, by years of 365 and months of 30 days, exceeds keepForDays. Throws
    // cFailure when a file can't be deleted.
    void CleanLogFiles(std::string_view mask, std::int16_t keepForDays);

  private:
    bool TakesRefusal();
    void Append(std::string_view text);
    bool RemoveLog(const std::string& path);

    cFiles& m_Files;
    const cClock& m_Clock;
    const cTexts& m_Texts;
    std::string m_Folder;
    std::string m_Refusal;        // the last line, when it was a refusal
    std::int64_t m_Written = 0;   // times that it was written in a row
    std::int64_t m_Counted = 0;   // refusals that were only counted
    double m_MinuteStart = 0;     // by the steady clock, days
    std::int64_t m_InMinute = 0;  // refusals written since then
};

// A sender that is set up wrongly repeats its frame; one that floods the log repeats it without end.
inline constexpr std::int64_t kRefusalsInFull = 10;
// A hundred senders that are set up wrongly leave their names; a flood leaves 20 MB a day.
inline constexpr std::int64_t kRefusalsAMinute = 100;

inline constexpr std::string_view kLogMask = "????????.log";

}  // namespace vigrel
