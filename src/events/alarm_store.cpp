#include "events/alarm_store.h"

#include <algorithm>
#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kMask = "A???????.Alm";
constexpr double kLargestFileId = 9'999'999;

}  // namespace

cAlarmStore::cAlarmStore(const cServices& services, std::string applicationPath)
    : m_Services(services), m_Folder(std::move(applicationPath) + "Alarms\\") {}

std::string cAlarmStore::FileName(std::int32_t fileId) const {
    const std::string number = "00000000" + std::to_string(fileId);
    return m_Folder + "A" + number.substr(number.size() - 7) + ".alm";
}

bool cAlarmStore::IsTooOld(const cVigrelRecieverAlarm& alarm) const {
    const std::int32_t days = m_Services.settings.m_MaxDays;
    return days > 0 && alarm.m_CreatedTime + days < m_Services.clock.Now();
}

void cAlarmStore::RemoveRow(cVigrelRecieverAlarm& alarm) {
    if (alarm.m_Record != 0) m_Services.list.RemoveRecord(std::exchange(alarm.m_Record, 0));
}

void cAlarmStore::DeleteAlarmFile(const cVigrelRecieverAlarm& alarm) {
    std::erase_if(m_Unsaved, [&](const AlarmPtr& unsaved) { return unsaved.get() == &alarm; });
    SkipFailure([&] { m_Services.files.RemoveFile(FileName(alarm.m_FileId)); });
}

void cAlarmStore::GiveUp(cVigrelRecieverAlarm& alarm) {
    DeleteAlarmFile(alarm);
    alarm.m_Removed = true;
    RemoveRow(alarm);
}

void cAlarmStore::RemoveOldest() {
    const AlarmPtr oldest = m_Alarms.front();
    m_Alarms.pop_front();
    GiveUp(*oldest);
}

void cAlarmStore::DrawFileId(cVigrelRecieverAlarm& alarm) {
    do {
        alarm.m_FileId = ToInt32(m_Services.random.Next() * kLargestFileId);
    } while (m_Services.files.FileExists(FileName(alarm.m_FileId)));
}

std::string cAlarmStore::Bytes(cVigrelRecieverAlarm& alarm) {
    if (alarm.m_FileId == 0) SkipFailure([&] { DrawFileId(alarm); });
    cBinaryWriter file;
    alarm.WriteToDisk(file);
    return file.Bytes();
}

bool cAlarmStore::TrySave(cVigrelRecieverAlarm& alarm) {
    const auto failure = CatchFailure([&] {
        const std::string bytes = Bytes(alarm);
        ReplaceOwnFile(m_Services.files, FileName(alarm.m_FileId), bytes);
    });
    if (failure) m_UnsavedReason = failure->what();
    return !failure;
}

void cAlarmStore::SaveAlarm(const AlarmPtr& alarm) {
    // Its number may be another alarm's by now.
    if (alarm->m_Removed) return;
    if (m_Collecting) {
        m_Collected.push_back(alarm);
        return;
    }
    const bool saved = TrySave(*alarm);
    const auto unsaved = std::find(m_Unsaved.begin(), m_Unsaved.end(), alarm);
    if (saved && unsaved != m_Unsaved.end()) m_Unsaved.erase(unsaved);
    if (saved || unsaved != m_Unsaved.end()) return;
    if (m_Unsaved.empty()) m_UnsavedSince = m_Services.clock.Now();
    m_Unsaved.push_back(alarm);
}

void cAlarmStore::SaveTogether(const std::function<void()>& steps) {
    m_Collecting = true;
    CleanUpBehind(steps, [this] { SaveCollected(); });
    SaveCollected();
}

void cAlarmStore::SaveCollected() {
    m_Collecting = false;
    const std::vector<AlarmPtr> collected = std::exchange(m_Collected, {});
    if (collected.size() == 1) return SaveAlarm(collected.front());
    cReplaceBatch batch(m_Services.files, m_Folder);
    bool saved = true;
    for (const AlarmPtr& alarm : collected) {
        bool added = false;
        SkipFailure([&] {
            const std::string bytes = Bytes(*alarm);
            added = batch.Add(FileName(alarm->m_FileId), bytes);
        });
        saved = saved && added;
    }
    // Whichever of them failed: writing all of them once more does no harm.
    if (!collected.empty() && !(batch.Commit() && saved)) {
        for (const AlarmPtr& alarm : collected) SaveAlarm(alarm);
    }
}

void cAlarmStore::RetryUnsaved() {
    // What stopped one file mostly stops them all; the rest waits for the next round.
    const auto stillUnsaved = std::find_if_not(m_Unsaved.begin(), m_Unsaved.end(),
                                               [&](const AlarmPtr& alarm) { return TrySave(*alarm); });
    m_Unsaved.erase(m_Unsaved.begin(), stillUnsaved);
    // That round begins behind the one that failed, lest a single file that can never be written keeps all
    // others from the disk.
    if (!m_Unsaved.empty()) std::rotate(m_Unsaved.begin(), m_Unsaved.begin() + 1, m_Unsaved.end());
}

// A binary search that comes back to the neighbour it came from; among equal times the newcomer stands behind
// the alarm that the search met first.
std::size_t cAlarmStore::FindPlace(const cVigrelRecieverAlarm& alarm) const {
    const std::size_t count = m_Alarms.size();
    if (count == 0) return 0;
    std::size_t low = 0;
    std::size_t high = count;
    auto mid = static_cast<std::size_t>(RoundEven(static_cast<double>(count) / 2));
    while (true) {
        const DateTime other = m_Alarms[mid]->m_CreatedTime;
        const bool earlier = Earlier(alarm.m_CreatedTime, other);
        if (!earlier && !Earlier(other, alarm.m_CreatedTime)) return mid + 1;
        std::size_t& bound = earlier ? high : low;
        if (bound == mid) return earlier ? high : low + 1;
        bound = mid;
        mid = low + (high - low) / 2;
    }
}

bool cAlarmStore::InsertAlarm(const AlarmPtr& alarm, std::int32_t maxEvents) {
    if (IsTooOld(*alarm)) {
        GiveUp(*alarm);
        return false;
    }
    m_Alarms.insert(m_Alarms.begin() + static_cast<std::ptrdiff_t>(FindPlace(*alarm)), alarm);
    if (maxEvents <= 0 || m_Alarms.size() <= static_cast<std::size_t>(maxEvents)) return true;
    RemoveOldest();
    return false;
}

std::int32_t cAlarmStore::SweepOldAlarms() {
    std::int32_t removed = 0;
    for (; !m_Alarms.empty() && IsTooOld(*m_Alarms.front()); ++removed) RemoveOldest();
    return removed;
}

AlarmPtr cAlarmStore::ReadAlarm(const std::string& name) {
    auto alarm = std::make_shared<cVigrelRecieverAlarm>(m_Services.clock);
    const std::string content = m_Services.files.ReadFile(m_Folder + name);
    cBinaryReader file(content);
    alarm->ReadFromDisk(file);
    // The name decides, since it is what the next save replaces.
    alarm->m_FileId = ToInt32(Val(name.substr(1, 7)));
    return alarm;
}

// Names what can't be read among the alarms, so that it can be looked after. Any number of them takes one
// line.
std::set<std::string> cAlarmStore::TellUnreadable() const {
    constexpr std::size_t kMostNamed = 20;
    std::set<std::string> names;
    std::string list;
    for (const auto& [name, reason] : m_Services.files.ListUnreadable(m_Folder, kMask)) {
        if (!IsNumeric(name.substr(1, 7)) || !names.insert(name).second) continue;
        if (names.size() <= kMostNamed) list += (list.empty() ? " " : ", ") + name + " (" + reason + ")";
    }
    if (names.size() > kMostNamed) list += " and " + std::to_string(names.size() - kMostNamed) + " more";
    if (!names.empty()) {
        m_Services.log.WriteLog(std::to_string(names.size()) + " alarm file(s) can't be read:" + list);
    }
    return names;
}

void cAlarmStore::LoadAlarms(const std::function<void(const AlarmPtr&)>& addAlarmRow) {
    m_Services.list.SetVisible(false);
    m_Services.list.RemoveAllRecords();
    for (const AlarmPtr& replaced : m_Alarms) replaced->m_Removed = true;
    m_Alarms.clear();
    RemoveTemporaries(m_Services.files, m_Folder);
    const std::set<std::string> unreadable = TellUnreadable();
    std::int32_t removed = 0;
    for (const std::string& name : m_Services.files.ListFiles(m_Folder, kMask)) {
        if (!IsNumeric(name.substr(1, 7)) || unreadable.contains(name)) continue;
        // 9e00009 is numeric too; a file that nobody can have meant as an alarm must not keep the rest away.
        if (!SkipFailure([&] { ToInt32(Val(name.substr(1, 7))); })) {
            m_Services.log.WriteLog("Alarms\\" + name + " is no alarm file: its number is out of range");
            continue;
        }
        if (!InsertAlarm(ReadAlarm(name), m_Services.settings.m_MaxEvents)) ++removed;
    }
    for (const AlarmPtr& alarm : m_Alarms) addAlarmRow(alarm);
    m_Services.list.TakeOverRecords();
    m_Services.list.ClearSelection();
    m_Services.list.SetVisible(true);
    const auto report = [&](std::size_t count, std::int32_t text) {
        m_Services.log.WriteLog(std::to_string(count) + " " + m_Services.texts.GetText(text));
    };
    if (removed > 0) report(static_cast<std::size_t>(removed), 10036);
    report(m_Alarms.size(), 10041);
    m_Services.state.m_ListChanged = true;
}

}  // namespace vigrel
