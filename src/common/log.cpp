#include "common/log.h"

#include <utility>

#include "common/code_page.h"
#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

std::string FileDate(const cDateParts& now) {
    return Digits(now.year, 4) + Digits(now.month, 2) + Digits(now.day, 2);
}

std::string TimeOfDay(const cDateParts& now) {
    return Digits(now.hour, 2) + ":" + Digits(now.minute, 2) + ":" + Digits(now.second, 2);
}

}  // namespace

cLog::cLog(cFiles& files, const cClock& clock, const cTexts& texts, std::string applicationPath)
    : m_Files(files), m_Clock(clock), m_Texts(texts), m_Folder(std::move(applicationPath) + "LogFiles\\") {}

void cLog::WriteLog(std::string_view text) {
    WriteRepeats();
    m_Refusal.clear();
    Append(text);
}

bool cLog::TakesRefusal() {
    constexpr double kMinute = 1.0 / 1440;
    const double now = m_Clock.Steady();
    if (now - m_MinuteStart >= kMinute) {
        m_MinuteStart = now;
        m_InMinute = 0;
    }
    return m_InMinute < kRefusalsAMinute;
}

void cLog::WriteRefusal(std::string_view text) {
    if (!TakesRefusal()) {
        ++m_Counted;
        return;
    }
    if (text != m_Refusal) {
        WriteRepeats();
        m_Refusal = text;
        m_Written = 0;
    }
    if (m_Written == kRefusalsInFull) {
        ++m_Counted;
    } else {
        ++m_Written;
        ++m_InMinute;
        Append(text);
    }
}

void cLog::WriteRepeats() {
    const std::int64_t count = std::exchange(m_Counted, 0);
    if (count > 0) Append("... " + std::to_string(count) + " " + m_Texts.GetText(TextMoreAlike));
}

void cLog::Append(std::string_view text) {
    SkipFailure([&] {
        const std::string name = FileDate(SplitDateTime(m_Clock.Now()));
        // The time is read anew: a call that runs across midnight may stamp 00:00:00 into the old day's file.
        const std::string line = TimeOfDay(SplitDateTime(m_Clock.Now())) + " " + std::string(text);
        m_Files.AppendFile(m_Folder + name + ".Log", line + "\r\n");
    });
}

// The write protection is taken away only where it stands in the way: whoever may remove a file need not be
// the one who may change it. False for a log that somebody else has removed meanwhile.
bool cLog::RemoveLog(const std::string& path) {
    if (SkipFailure([&] { m_Files.RemoveFile(path); })) return true;
    SkipFailure([&] { m_Files.SetNormalAttributes(path); });
    const auto failure = CatchFailure([&] { m_Files.RemoveFile(path); });
    if (failure && failure->Number() != eFailure::FileNotFound) throw *failure;
    return !failure;
}

void cLog::CleanLogFiles(std::string_view mask, std::int16_t keepForDays) {
    for (const std::string& found : m_Files.ListFiles(m_Folder, mask)) {
        const std::string name = ToUpper(found);
        const std::string stem = name.substr(0, name.find(".LOG"));
        if (stem.size() != 8 || !IsNumeric(stem)) continue;
        const cDateParts now = SplitDateTime(m_Clock.Now());
        const double age = (now.year - Val(Mid(stem, 1, 4))) * 365 + (now.month - Val(Mid(stem, 5, 2))) * 30 +
                           (now.day - Val(Mid(stem, 7, 2)));
        if (age <= keepForDays) continue;
        const std::string path = m_Folder + stem + ".LOG";
        if (!RemoveLog(path)) continue;
        WriteLog(m_Texts.GetText(TextLogDeleted) + " " + WithPathsInCodePage(path) + ")");
    }
}

}  // namespace vigrel
