#include "events/alarm_store.h"

#include <algorithm>
#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/missing_file.h"
#include "common/numbers.h"
#include "common/path_text.h"
#include "common/text.h"
#include "common/text_ids.h"
#include "events/alarm_maker.h"
#include "events/insertion_order.h"

namespace vigrel {
namespace {

constexpr std::string_view kMask = "A???????.Alm";
constexpr double kLargestFileId = 9'999'999;

std::string OwnName(std::int32_t fileId) {
    return "A" + LastDigits(std::to_string(fileId), 7) + ".alm";
}

int CompareTimes(DateTime a, DateTime b) {
    return Earlier(a, b) ? -1 : Earlier(b, a) ? 1 : 0;
}

// One look at the clock for a whole folder.
class cStoppedClock : public cClock {
  public:
    explicit cStoppedClock(const cClock& clock) : m_Now(clock.Now()), m_Steady(clock.Steady()) {}
    DateTime Now() const override { return m_Now; }
    double Steady() const override { return m_Steady; }

  private:
    DateTime m_Now;
    double m_Steady;
};

}  // namespace

cAlarmStore::cAlarmStore(const cServices& services, std::string applicationPath)
    : m_Services(services),
      m_ApplicationPath(std::move(applicationPath)),
      m_Folder(m_ApplicationPath + "Alarms\\"),
      m_Pending({services.ownFiles, services.clock,
                 [this](cVigrelRecieverAlarm& alarm) { return Bytes(alarm); },
                 [this](const cVigrelRecieverAlarm& alarm) { return FileName(alarm.m_FileId); },
                 [this](const AlarmPtr& alarm, const std::string& reason) {
                     m_UnsavedReason = reason;
                     NoteUnsaved(alarm);
                 }}) {
    m_Services.timerSave.SetEnabled(false);
}

cAlarmStore::~cAlarmStore() {
    m_Pending.Finish();
}

std::string cAlarmStore::FileName(std::int32_t fileId) const {
    const auto spelled = m_Spellings.find(fileId);
    return m_Folder + (spelled == m_Spellings.end() ? OwnName(fileId) : spelled->second);
}

// Several names can stand for one number: some differ in case only, some are numeric in their own way. The
// number is that one's which the files give for the store's own name; to save or to remove another would hit
// its file.
void cAlarmStore::NoteName(const std::string& name, cVigrelRecieverAlarm& alarm,
                           std::set<std::int32_t>& oddlyNamed) {
    const std::string own = OwnName(alarm.m_FileId);
    if (name == own) return;
    const std::string path = m_Services.files.Spelling(m_Folder + own);
    if (path == m_Folder + name) {
        m_Spellings.emplace(alarm.m_FileId, name);
    } else if (!oddlyNamed.insert(alarm.m_FileId).second || IsThere(m_Services.ownFiles, path)) {
        RenameToFreeNumber(name, alarm);
    }
}

void cAlarmStore::RenameToFreeNumber(const std::string& name, cVigrelRecieverAlarm& alarm) {
    DrawFileId(alarm);
    SkipFailure([&] { m_Services.ownFiles.RenameFile(m_Folder + name, FileName(alarm.m_FileId)); });
}

bool cAlarmStore::IsTooOld(const cVigrelRecieverAlarm& alarm, DateTime now) const {
    const std::int32_t days = m_Services.settings.m_MaxDays;
    return days > 0 && Earlier(alarm.m_CreatedTime + days, now);
}

// Empty for an alarm that has none.
std::string cAlarmStore::ForgetFile(const cVigrelRecieverAlarm& alarm) {
    const auto isThis = [&](const AlarmPtr& other) { return other.get() == &alarm; };
    const auto unsaved = std::erase_if(m_Unsaved, isThis) + std::erase_if(m_Retried, isThis);
    // Without a number yet it has no file; that of number 0 is another alarm's.
    if (unsaved > 0 && alarm.m_FileId == 0) return {};
    std::string file = FileName(alarm.m_FileId);
    m_Spellings.erase(alarm.m_FileId);
    return file;
}

void cAlarmStore::RemoveAlarmFile(const std::string& file) const {
    if (!file.empty()) SkipFailure([&] { m_Services.ownFiles.RemoveFile(file); });
}

void cAlarmStore::DeleteAlarmFile(const cVigrelRecieverAlarm& alarm) {
    RemoveAlarmFile(ForgetFile(alarm));
}

void cAlarmStore::TellGivenUp(cVigrelRecieverAlarm& alarm) const {
    alarm.m_Removed = true;
    if (OnGivenUp) OnGivenUp(alarm);
}

void cAlarmStore::GiveUp(cVigrelRecieverAlarm& alarm) {
    DeleteAlarmFile(alarm);
    TellGivenUp(alarm);
}

void cAlarmStore::RemoveOldest() {
    const AlarmPtr oldest = m_Alarms.front();
    m_Alarms.pop_front();
    GiveUp(*oldest);
}

// An alarm that is not on disk yet has its number all the same, and so has one whose file is still to go:
// given to another one, one of the two would take the other's file. Throws where the disk doesn't tell.
bool cAlarmStore::IsTaken(std::int32_t fileId) const {
    const auto hasIt = [&](const AlarmPtr& unsaved) { return unsaved->m_FileId == fileId; };
    return IsThere(m_Services.ownFiles, FileName(fileId)) || m_OldFiles.contains(fileId) ||
           std::any_of(m_Unsaved.begin(), m_Unsaved.end(), hasIt) ||
           std::any_of(m_Retried.begin(), m_Retried.end(), hasIt);
}

void cAlarmStore::DrawFileId(cVigrelRecieverAlarm& alarm) {
    std::int32_t drawn = 0;
    do {
        drawn = ToInt32(m_Services.random.Next() * kLargestFileId);
    } while (IsTaken(drawn));
    alarm.m_FileId = drawn;
}

std::string cAlarmStore::Bytes(cVigrelRecieverAlarm& alarm) {
    if (alarm.m_FileId == 0) DrawFileId(alarm);
    cBinaryWriter file;
    alarm.WriteToDisk(file);
    return file.Bytes();
}

bool cAlarmStore::TrySave(cVigrelRecieverAlarm& alarm) {
    const auto failure = CatchFailure([&] {
        const std::string bytes = Bytes(alarm);
        ReplaceOwnFile(m_Services.ownFiles, FileName(alarm.m_FileId), bytes);
    });
    if (failure) m_UnsavedReason = failure->what();
    return !failure;
}

void cAlarmStore::SaveAlarm(const AlarmPtr& alarm) {
    // Its number may be another alarm's by now.
    if (alarm->m_Removed) return;
    if (m_Gathers) return m_Pending.Add({alarm});
    if (TrySave(*alarm)) {
        std::erase(m_Unsaved, alarm);
        std::erase(m_Retried, alarm);
    } else {
        NoteUnsaved(alarm);
    }
}

void cAlarmStore::SaveAlarms(const std::vector<AlarmPtr>& alarms) {
    if (alarms.empty()) return;
    if (alarms.size() == 1) return SaveAlarm(alarms.front());
    m_Pending.Add(alarms);
    m_Services.timerSave.SetEnabled(true);
}

void cAlarmStore::Timer_Save_Tick() {
    m_Pending.Turn();
    if (m_Pending.Empty()) m_Retried.clear();
    RemoveOldFiles(m_Pending.EndOfTurn());
    if (m_Pending.Empty() && m_OldFiles.empty()) m_Services.timerSave.SetEnabled(false);
}

void cAlarmStore::FinishSaves() {
    m_Gathers = false;
    FinishPending();
    if (!m_Unsaved.empty()) {
        // The last chance: each is tried, whatever becomes of another.
        MakeFolder();
        RetryTheRest();
        FinishPending();
    }
    // Last of all, and no longer than a turn: what stays is too old for the next start, too.
    RemoveOldFiles(m_Pending.EndOfTurn());
    m_Services.timerSave.SetEnabled(false);
}

void cAlarmStore::FinishPending() {
    m_Pending.Finish();
    m_Retried.clear();
}

void cAlarmStore::NoteUnsaved(const AlarmPtr& alarm) {
    if (std::find(m_Unsaved.begin(), m_Unsaved.end(), alarm) != m_Unsaved.end()) return;
    if (UnsavedCount() == 0) m_UnsavedSince = m_Services.clock.Now();
    std::erase(m_Retried, alarm);
    m_Unsaved.push_back(alarm);
}

void cAlarmStore::MakeFolder() const {
    SkipFailure([&] {
        m_Services.files.MakeFolder(m_Folder);
        m_Services.files.SyncFolder(m_ApplicationPath);
    });
}

void cAlarmStore::RetryUnsaved() {
    if (m_Unsaved.empty() || !m_Retried.empty()) return;
    // The folder can be what is missing: the disk was full when it was to be made.
    MakeFolder();
    const double until = m_Pending.EndOfTurn();
    auto next = m_Unsaved.begin();
    bool taken = true;
    while (taken && next != m_Unsaved.end() && m_Services.clock.Steady() <= until) {
        taken = TrySave(**next);
        if (taken) ++next;
    }
    m_Unsaved.erase(m_Unsaved.begin(), next);
    // What stopped one file mostly stops them all; the rest waits for the next round. That begins behind the
    // one that failed, lest a single file that can never be written keeps all others from the disk.
    if (!taken) std::rotate(m_Unsaved.begin(), m_Unsaved.begin() + 1, m_Unsaved.end());
    if (taken && !m_Unsaved.empty()) RetryTheRest();
}

// A disk that was full for a night has thousands waiting, and alarms come in meanwhile.
void cAlarmStore::RetryTheRest() {
    m_Retried = std::exchange(m_Unsaved, {});
    m_Pending.Add(m_Retried);
    m_Services.timerSave.SetEnabled(true);
}

std::size_t cAlarmStore::FindPlace(const cVigrelRecieverAlarm& alarm) const {
    return FindInsertionPlace(m_Alarms.size(), [&](std::size_t other) {
        return CompareTimes(alarm.m_CreatedTime, m_Alarms[other]->m_CreatedTime);
    });
}

bool cAlarmStore::InsertAlarm(const AlarmPtr& alarm, std::int32_t maxEvents) {
    if (IsTooOld(*alarm, m_Services.clock.Now())) {
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
    for (; !m_Alarms.empty() && IsTooOld(*m_Alarms.front(), m_Services.clock.Now()); ++removed) {
        const AlarmPtr oldest = m_Alarms.front();
        m_Alarms.pop_front();
        std::string file = ForgetFile(*oldest);
        if (!file.empty()) m_OldFiles.emplace(oldest->m_FileId, std::move(file));
        TellGivenUp(*oldest);
    }
    RemoveOldFiles(m_Pending.EndOfTurn());
    if (!m_OldFiles.empty()) m_Services.timerSave.SetEnabled(true);
    return removed;
}

void cAlarmStore::RemoveOldFiles(double until) {
    while (!m_OldFiles.empty() && m_Services.clock.Steady() <= until) {
        RemoveAlarmFile(m_OldFiles.begin()->second);
        m_OldFiles.erase(m_OldFiles.begin());
    }
}

// The number of a file of the mask; nothing for one that is no alarm.
std::optional<std::int32_t> cAlarmStore::FileIdOf(const std::string& name) {
    const std::string digits = name.substr(1, 7);
    if (!IsNumeric(digits)) return std::nullopt;
    std::optional<std::int32_t> fileId;
    SkipFailure([&] { fileId = ToInt32(Val(digits)); });
    // 9e00009 is numeric too; a file that nobody can have meant as an alarm must not keep the rest away.
    if (!fileId) {
        m_Services.log.WriteLog("Alarms\\" + name + " " + m_Services.texts.GetText(TextNoAlarmFile));
    }
    return fileId;
}

std::int32_t cAlarmStore::ReadFiles(std::vector<std::string> names, std::vector<AlarmPtr>& alarms) {
    std::vector<std::int32_t> fileIds;
    std::erase_if(names, [&](const std::string& name) {
        const auto fileId = FileIdOf(name);
        if (fileId) fileIds.push_back(*fileId);
        return !fileId;
    });
    const cStoppedClock clock(m_Services.clock);
    const cAlarmMaker maker(clock, m_Services.categories);
    std::int32_t removed = 0;
    std::set<std::int32_t> oddlyNamed;
    m_Services.ownFiles.ReadFiles(m_Folder, names, [&](std::size_t i, const std::string& content) {
        AlarmPtr alarm = maker.Make([&](cVigrelRecieverAlarm& read) {
            cBinaryReader file(content);
            read.ReadFromDisk(file);
            // The name decides, since it is what the next save replaces.
            read.m_FileId = fileIds[i];
        });
        NoteName(names[i], *alarm, oddlyNamed);
        if (IsTooOld(*alarm, clock.Now())) {
            GiveUp(*alarm);
            ++removed;
        } else {
            alarms.push_back(std::move(alarm));
        }
    });
    return removed;
}

// As if they were inserted one by one, each making room for itself where the limit is reached.
std::int32_t cAlarmStore::InsertAll(const std::vector<AlarmPtr>& alarms) {
    const auto most = static_cast<std::size_t>(std::max(m_Services.settings.m_MaxEvents, 0));
    const std::size_t surplus = most > 0 && alarms.size() > most ? alarms.size() - most : 0;
    std::vector<DateTime> times;
    times.reserve(alarms.size());
    for (const AlarmPtr& alarm : alarms) times.push_back(alarm->m_CreatedTime);
    const cInsertionOrder placed = OrderByInsertion(times);
    if (surplus > 0 && placed.hasEqualTimes) return InsertOneByOne(alarms);
    for (std::size_t i = 0; i < placed.order.size(); ++i) {
        const AlarmPtr& alarm = alarms[placed.order[i]];
        // Where no two are of one time, the oldest go, whatever order they came in.
        if (i < surplus) {
            GiveUp(*alarm);
        } else {
            m_Alarms.push_back(alarm);
        }
    }
    return static_cast<std::int32_t>(surplus);
}

std::int32_t cAlarmStore::InsertOneByOne(const std::vector<AlarmPtr>& alarms) {
    std::int32_t removed = 0;
    for (const AlarmPtr& alarm : alarms) {
        if (!InsertAlarm(alarm, m_Services.settings.m_MaxEvents)) ++removed;
    }
    return removed;
}

// Names what can't be read among the alarms, so that it can be looked after. Any number of them takes one
// line.
void cAlarmStore::TellUnreadable(const std::vector<cFileReader::cUnreadable>& unreadable) const {
    constexpr std::size_t kMostNamed = 20;
    std::size_t count = 0;
    std::string list;
    for (const auto& [name, reason] : unreadable) {
        if (!IsNumeric(name.substr(1, 7)) || ++count > kMostNamed) continue;
        list += (list.empty() ? " " : ", ") + name + " (" + reason + ")";
    }
    if (count > kMostNamed) list += "... (+" + std::to_string(count - kMostNamed) + ")";
    if (count > 0)
        m_Services.log.WriteLog(std::to_string(count) + " " +
                                m_Services.texts.GetText(TextAlarmFilesUnreadable) + list);
}

std::int32_t cAlarmStore::LoadAlarms() {
    for (const AlarmPtr& replaced : m_Alarms) replaced->m_Removed = true;
    m_Alarms.clear();
    m_Spellings.clear();
    m_Folder = m_Services.files.Spelling(m_Folder);
    RemoveTemporaries(m_Services.files, m_Folder);
    cFileReader::cListing listing = m_Services.files.List(m_Folder, kMask);
    m_FolderProblem = std::move(listing.problem);
    if (!m_FolderProblem.empty()) {
        m_Services.log.WriteLog(m_Services.texts.GetText(TextFolderUnreadable) + " (" +
                                WithPathsInCodePage(m_FolderProblem) + ")");
    }
    TellUnreadable(listing.unreadable);
    std::vector<AlarmPtr> alarms;
    const std::int32_t removed = ReadFiles(std::move(listing.names), alarms);
    return removed + InsertAll(alarms);
}

}  // namespace vigrel
