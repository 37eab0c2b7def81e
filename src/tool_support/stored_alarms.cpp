#include "tool_support/stored_alarms.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/ini.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kMask = "A???????.alm";
// Well above the longest texts that an alarm can hold.
constexpr std::size_t kLargestAlarm = 4 << 20;
// So many files are read at once, by threads that are ahead, unless one of them fails.
constexpr std::ptrdiff_t kGroup = 4096;
constexpr std::array kStates = {"inactive", "active", "acked", "message"};

// An alarm that is read has no moment of its own.
class cNoClock : public cClock {
  public:
    DateTime Now() const override { return 0; }
    double Steady() const override { return 0; }
};

bool IsStoredName(const std::string& name) {
    return std::all_of(name.begin() + 1, name.begin() + 8, [](char c) { return c >= '0' && c <= '9'; });
}

cStoredAlarm Unread(std::string problem) {
    return {cVigrelRecieverAlarm(cNoClock(), kNoCategorySetting), std::move(problem)};
}

// What is wrong with the file that an alarm was read from.
std::string Problem(const cVigrelRecieverAlarm& alarm, const cBinaryReader& file, std::size_t size) {
    if (!file.Complete()) return "the file ends too early, at its byte " + std::to_string(size);
    if (file.Position() < size) return std::to_string(size - file.Position()) + " bytes lie behind the alarm";
    if (StateName(alarm.m_Alarm.m_Status).empty()) return "the status is not in 0 to 3";
    if (CatchFailure([&] { SplitDateTime(alarm.m_CreatedTime); }))
        return "the time of arrival is no date of the years 100 to 9999";
    return "";
}

cStoredAlarm StoredAlarmOf(const std::string& content) {
    if (content.size() > kLargestAlarm) return Unread("the file is too large for an alarm");
    cStoredAlarm stored = Unread("");
    cBinaryReader file(content);
    const auto failure = CatchFailure([&] { stored.alarm.ReadFromDisk(file); });
    stored.problem =
        failure ? WithPathsInCodePage(failure->what()) : Problem(stored.alarm, file, content.size());
    return stored;
}

cStoredAlarm ReadOne(const cFileReader& files, const std::string& path) {
    std::string content;
    const auto failure = CatchFailure([&] { content = files.ReadFile(path); });
    return failure ? Unread(WithPathsInCodePage(failure->what())) : StoredAlarmOf(content);
}

using Name = std::vector<std::string>::const_iterator;

// Up to the first that can't be read, which is returned.
Name ReadTogether(const cFileReader& files, const std::string& folder, Name first, Name end,
                  const TakeStoredAlarm& take) {
    bool reading = true;
    const auto failure = CatchFailure([&] {
        files.ReadFiles(folder, {first, end}, [&](std::size_t, const std::string& content) {
            reading = false;
            take(*first, StoredAlarmOf(content));
            reading = true;
            ++first;
        });
    });
    if (failure && !reading) throw *failure;
    return first;
}

}  // namespace

std::vector<std::string> AlarmFileNames(const cFileReader& files, const std::string& alarmFolder) {
    // What can't be read is told in its turn.
    std::vector<std::string> names = files.ListNames(alarmFolder, kMask);
    std::erase_if(names, [](const std::string& name) { return !IsStoredName(name); });
    std::sort(names.begin(), names.end());
    return names;
}

cAlarmFolder FindAlarmFolder(const cFileReader& files, const std::string& folder) {
    const bool separated = folder.ends_with('/') || folder.ends_with('\\');
    const std::string given = separated ? folder : folder + "/";
    for (const std::string& candidate : {given + "Alarms/", given}) {
        std::vector<std::string> names = AlarmFileNames(files, candidate);
        if (!names.empty()) return {candidate, std::move(names)};
    }
    // A station that has no alarms is no mistake.
    if (files.FileExists(given + std::string(kIniFile))) return {given + "Alarms/", {}};
    throw cFailure(eFailure::FileNotFound,
                   folder + ": there is no alarm file here, nor in its folder Alarms");
}

void ReadStoredAlarms(const cFileReader& files, const std::string& folder,
                      const std::vector<std::string>& names, const TakeStoredAlarm& take) {
    for (auto group = names.begin(); group != names.end();) {
        const auto end = group + std::min<std::ptrdiff_t>(kGroup, names.end() - group);
        group = ReadTogether(files, folder, group, end, take);
        std::for_each(group, end,
                      [&](const std::string& name) { take(name, ReadOne(files, folder + name)); });
        group = end;
    }
}

std::string StateName(std::int16_t status) {
    if (status < 0 || status >= static_cast<std::int16_t>(kStates.size())) return "";
    return kStates[static_cast<std::size_t>(status)];
}

std::optional<std::int16_t> StateFromName(std::string_view name) {
    for (std::size_t i = 0; i < kStates.size(); ++i) {
        if (EqualsNoCase(kStates[i], name)) return static_cast<std::int16_t>(i);
    }
    return std::nullopt;
}

}  // namespace vigrel
