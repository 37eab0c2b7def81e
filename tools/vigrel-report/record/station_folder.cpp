#include "vigrel-report/record/station_folder.h"

#include <algorithm>
#include <cmath>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "tool_support/stored_alarms.h"
#include "vigrel-report/record/log_reader.h"

namespace vigrel::report {
namespace {

constexpr std::string_view kLogFolder = "LogFiles/";
constexpr std::size_t kSectionBuffer = 1 << 16;

// Settings whose language is the one that is asked for, so that every text file can be loaded as the station
// does.
class cOneLanguage : public cIniReader {
  public:
    cOneLanguage(const cFileReader& files, std::string folder, std::string number)
        : cIniReader(files, std::move(folder)), m_Number(std::move(number)) {}
    std::string GetIniString(std::string_view, std::string_view, std::string_view,
                             std::string_view) const override {
        return m_Number;
    }

  private:
    std::string m_Number;
};

// Whether the newest events of a list hold the same one.
bool IsTold(const std::vector<cSenderEvent>& events, const cSenderEvent& event) {
    constexpr Seconds kSame = 2 * kMinute;
    for (auto other = events.rbegin(); other != events.rend() && event.time - other->time < kSame; ++other) {
        if (other->sender == event.sender && other->lost == event.lost) return true;
    }
    return false;
}

class cFolderReader {
  public:
    cFolderReader(const cFileReader& files, const std::string& folder, cLogForms forms, const cTimeZone& zone,
                  cAlarmNames& names)
        : m_Files(files), m_Folder(folder), m_Zone(zone), m_Names(names), m_Forms(std::move(forms)) {}

    cStationRecord Read(const OnFile& onFile) {
        m_Record.folder = m_Folder;
        const auto logs = ListLogs();
        const std::string alarmFolder = m_Folder + "Alarms/";
        const std::vector<std::string> alarms = AlarmFileNames(m_Files, alarmFolder);
        RefuseStrangeFolder(!logs.empty() || !alarms.empty());
        ReadConfiguration();
        const std::size_t all = logs.size() + alarms.size();
        std::size_t done = 0;
        ReadStoredAlarms(m_Files, alarmFolder, alarms, [&](const std::string&, const cStoredAlarm& stored) {
            TakeAlarm(stored);
            onFile(++done, all);
        });
        cLogReader reader(m_Zone, m_Forms, m_Names, m_Record);
        for (const auto& [day, name] : logs) {
            ReadLog(reader, day, name);
            onFile(++done, all);
        }
        reader.Finish(std::move(m_Stored));
        SortSenderEvents();
        return std::move(m_Record);
    }

  private:
    // What the folder tells as unreadable is missing from the report, which says so.
    std::vector<std::pair<WallTime, std::string>> ListLogs() {
        std::vector<std::pair<WallTime, std::string>> logs;
        const auto listing = m_Files.List(m_Folder + std::string(kLogFolder), "*.log");
        if (!listing.problem.empty()) throw cFailure(eFailure::PathAccess, listing.problem);
        for (const std::string& name : listing.names) {
            if (const auto day = DayOfLog(name)) logs.emplace_back(*day, name);
        }
        for (const auto& [name, reason] : listing.unreadable) {
            if (!DayOfLog(name)) continue;
            m_Record.faults.unreadableFiles.push_back(m_Folder + std::string(kLogFolder) + name + ": " +
                                                      reason);
        }
        std::sort(logs.begin(), logs.end());
        return logs;
    }

    void RefuseStrangeFolder(bool hasRecords) const {
        if (hasRecords || m_Files.FileExists(m_Folder + std::string(kIniFile))) return;
        throw cFailure(eFailure::FileNotFound,
                       m_Folder +
                           ": no station's folder: there is neither VigrelReceiver.INI, nor a log in "
                           "LogFiles, nor an alarm in Alarms");
    }

    void ReadConfiguration() {
        const cIniReader ini(m_Files, m_Folder);
        const cSettingReader general(ini, "General");
        SkipFailure([&] {
            m_Record.name = general.Text("Object");
            m_Names.LearnCategory(general.Text("SystemErrorCategory"));
        });
        if (EqualsNoCase(m_Record.name, "none")) m_Record.name.clear();
        for (const std::string& section : Entries("")) {
            if (!IsCategorySection(section)) continue;
            m_Names.LearnCategory(Trim(section.substr(section.find('_') + 1)));
        }
        for (const std::string& entry : Entries("Senders")) {
            if (entry.empty()) break;  // the station's table ends there
            TakeSender(ini, entry);
        }
    }

    std::vector<std::string> Entries(std::string_view section) const {
        return ReadIniEntries(m_Files, section, kSectionBuffer, m_Folder + std::string(kIniFile)).entries;
    }

    // A line "name=minutes". What a start said of the sender in the log counts more: the configuration can
    // have been changed since.
    void TakeSender(const cIniReader& ini, const std::string& entry) {
        if (entry.find('=') == std::string::npos || Trim(entry).starts_with(';')) return;
        const std::string name = GetField(entry, 0, "=");
        const std::uint32_t sender = m_Names.Sender(name);
        auto& rows = m_Record.supervisions;
        const bool known = std::any_of(rows.begin(), rows.end(),
                                       [&](const cSupervision& row) { return row.sender == sender; });
        if (known) return;  // the station takes the first line of a name, too
        SkipFailure([&] { rows.push_back({sender, ini.Int16("Senders", name, GetField(entry, 1, "="))}); });
    }

    void TakeAlarm(const cStoredAlarm& stored) {
        const cVigrelRecieverAlarm& alarm = stored.alarm;
        const bool hasTime = alarm.m_CreatedTime > 1 && alarm.m_CreatedTime < 2e6;
        if (!stored.problem.empty() || !hasTime) {
            ++m_Record.faults.damagedAlarms;
            return;
        }
        AlarmFields fields;
        for (int i = 0; i < 5; ++i) fields[static_cast<std::size_t>(i)] = alarm.m_Alarm.GetCondition(i);
        const Moment time = m_Zone.ToMoments(WallTimeOf(alarm.m_CreatedTime)).first;
        AddStored(time, alarm, fields);
    }

    void AddStored(Moment time, const cVigrelRecieverAlarm& alarm, const AlarmFields& fields) {
        if (fields[0] == kOwnAlarm) {
            m_Record.senderEvents.push_back(
                {time, m_Names.Sender(alarm.m_Sender), alarm.m_Alarm.m_Status == 1});
            return;
        }
        const std::string text = alarm.SysLogText();
        const auto stated = SplitAlarm(text);
        if (!stated) return;
        const std::uint32_t body = m_Names.Body(stated->body);
        m_Names.Learn(body, fields);
        m_Stored.push_back({time, time, m_Names.Sender(alarm.m_Sender), body, stated->state,
                            alarm.m_Observed != 0, alarm.m_Observed == 0});
        ExtendStored(time);
    }

    void ExtendStored(Moment time) {
        if (m_Record.stored.empty()) m_Record.stored.push_back({time, time + 1});
        m_Record.stored[0].begin = std::min(m_Record.stored[0].begin, time);
        m_Record.stored[0].end = std::max(m_Record.stored[0].end, time + 1);
    }

    void ReadLog(cLogReader& reader, WallTime day, const std::string& name) {
        std::string content;
        const auto failure =
            CatchFailure([&] { content = m_Files.ReadFile(m_Folder + std::string(kLogFolder) + name); });
        if (failure) return m_Record.faults.unreadableFiles.push_back(failure->what());
        if (!reader.ReadDay(day, content) && !content.empty()) m_Record.faults.foreignFiles.push_back(name);
    }

    // A popup's line and a stored alarm can tell of the same event.
    void SortSenderEvents() {
        auto& events = m_Record.senderEvents;
        std::stable_sort(events.begin(), events.end(),
                         [](const cSenderEvent& a, const cSenderEvent& b) { return a.time < b.time; });
        std::vector<cSenderEvent> kept;
        for (const cSenderEvent& event : events) {
            if (!IsTold(kept, event)) kept.push_back(event);
        }
        events = std::move(kept);
    }

    const cFileReader& m_Files;
    std::string m_Folder;
    const cTimeZone& m_Zone;
    cAlarmNames& m_Names;
    cLogForms m_Forms;
    cStationRecord m_Record;
    std::vector<cAlarmEvent> m_Stored;
};

}  // namespace

std::vector<cLogPhrases> ReadPhrases(const cFileReader& files, const std::string& folder) {
    std::vector<std::string> names = files.ListFiles(folder, std::string(kTextFile) + "???");
    std::sort(names.begin(), names.end());
    std::vector<cLogPhrases> phrases;
    for (const std::string& name : names) {
        const std::string number = name.substr(kTextFile.size());
        if (!IsNumeric(number)) continue;
        const cOneLanguage ini(files, folder, number);
        cTexts texts(files, ini);
        bool loaded = false;
        SkipFailure([&] { loaded = texts.LoadTexts(); });
        if (loaded) phrases.push_back(PhrasesOf(texts));
    }
    return phrases;
}

std::optional<WallTime> DayOfLog(std::string_view fileName) {
    const bool digits = fileName.size() == 12 && fileName.find_first_not_of("0123456789") == 8;
    if (!digits || !EqualsNoCase(fileName.substr(8), ".log")) return std::nullopt;
    const int number = static_cast<int>(Val(fileName.substr(0, 8)));
    const int year = number / 10000, month = number / 100 % 100, day = number % 100;
    if (year < 1970 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    const WallTime midnight = WallTimeFromParts(year, month, day);
    return SplitWallTime(midnight).day == day ? std::optional(midnight) : std::nullopt;
}

cStationRecord ReadStation(const cFileReader& files, const std::string& folder,
                           const std::vector<cLogPhrases>& installedPhrases, const cTimeZone& zone,
                           cAlarmNames& names, const OnFile& onFile) {
    const bool separated = folder.ends_with('/') || folder.ends_with('\\');
    const std::string path = separated ? folder : folder + "/";
    std::vector<cLogPhrases> phrases = ReadPhrases(files, path);
    for (const cLogPhrases& installed : installedPhrases) {
        if (std::find(phrases.begin(), phrases.end(), installed) == phrases.end())
            phrases.push_back(installed);
    }
    // Without words every line would be unknown, and a report would say that nothing happened.
    if (phrases.empty()) {
        throw cFailure(eFailure::FileNotFound, path + ": no text file (" + std::string(kTextFile) +
                                                   "NNN) is here or in the installation; no log can be read");
    }
    return cFolderReader(files, path, cLogForms(std::move(phrases)), zone, names).Read(onFile);
}

}  // namespace vigrel::report
