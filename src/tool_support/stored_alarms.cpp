#include "tool_support/stored_alarms.h"

#include <algorithm>
#include <array>

#include "common/dates.h"
#include "common/failure.h"
#include "common/ini.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kMask = "A???????.alm";
// Well above the longest texts that an alarm can hold; nothing larger is taken into memory.
constexpr std::int64_t kLargestAlarm = 4 << 20;
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

}  // namespace

std::vector<std::string> AlarmFileNames(const cFileReader& files, const std::string& alarmFolder) {
    auto [names, unreadable, problem] = files.List(alarmFolder, kMask);
    if (!problem.empty()) throw cFailure(eFailure::PathAccess, problem);
    // Each is told as one that can't be read, in its turn.
    for (const auto& [name, reason] : unreadable) names.push_back(name);
    std::erase_if(names, [](const std::string& name) { return !IsStoredName(name); });
    std::sort(names.begin(), names.end());
    return names;
}

std::string FindAlarmFolder(const cFileReader& files, const std::string& folder) {
    const bool separated = folder.ends_with('/') || folder.ends_with('\\');
    const std::string given = separated ? folder : folder + "/";
    for (const std::string& candidate : {given + "Alarms/", given}) {
        if (!AlarmFileNames(files, candidate).empty()) return candidate;
    }
    // A station that has no alarms is no mistake.
    if (files.FileExists(given + std::string(kIniFile))) return given + "Alarms/";
    throw cFailure(eFailure::FileNotFound,
                   folder + ": there is no alarm file here, nor in its folder Alarms");
}

cStoredAlarm ReadStoredAlarm(const cFileReader& files, const std::string& path) {
    cStoredAlarm stored{cVigrelRecieverAlarm(cNoClock(), kNoCategorySetting), ""};
    cVigrelRecieverAlarm& alarm = stored.alarm;
    std::string& problem = stored.problem;
    const auto failure = CatchFailure([&] {
        if (files.Stamp(path).size > kLargestAlarm) {
            problem = "the file is too large for an alarm";
            return;
        }
        const std::string content = files.ReadFile(path);
        cBinaryReader file(content);
        alarm.ReadFromDisk(file);
        if (!file.Complete()) {
            problem = "the file ends too early, at its byte " + std::to_string(content.size());
        } else if (file.Position() < content.size()) {
            problem = std::to_string(content.size() - file.Position()) + " bytes lie behind the alarm";
        } else if (StateName(alarm.m_Alarm.m_Status).empty()) {
            problem = "the status is not in 0 to 3";
        } else if (CatchFailure([&] { SplitDateTime(alarm.m_CreatedTime); })) {
            problem = "the time of arrival is no date of the years 100 to 9999";
        }
    });
    if (failure) problem = WithPathsInCodePage(failure->what());
    return stored;
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
