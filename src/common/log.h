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
    // Removes the logs whose age in days, by years of 365 and months of 30 days, exceeds keepForDays. Throws
    // cFailure when a file can't be deleted.
    void CleanLogFiles(std::string_view mask, std::int16_t keepForDays);

  private:
    void RemoveLog(const std::string& path);

    cFiles& m_Files;
    const cClock& m_Clock;
    const cTexts& m_Texts;
    std::string m_Folder;
};

inline constexpr std::string_view kLogMask = "????????.log";

}  // namespace vigrel
