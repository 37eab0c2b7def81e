#include "events/pending_saves.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "common/file_procedures.h"

namespace vigrel {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr const char* kNotSynced = "the disk has not taken what was written";

}  // namespace

void cPendingSaves::Add(const std::vector<AlarmPtr>& alarms) {
    m_Next.insert(m_Next.end(), alarms.begin(), alarms.end());
    if (m_Batch.empty()) Begin();
}

double cPendingSaves::EndOfTurn() const {
    return m_Services.clock.Steady() + kTurnSeconds / kSecondsPerDay;
}

void cPendingSaves::Begin() {
    m_Batch = std::exchange(m_Next, {});
    m_Step = eStep::Write;
}

bool cPendingSaves::Advance(Work work) {
    const double until = EndOfTurn();
    for (int files = 0; m_Done < m_Batch.size(); ++m_Done, ++files) {
        if (files == kTurnFiles || m_Services.clock.Steady() > until) return false;
        (this->*work)(m_Batch[m_Done]);
    }
    m_Done = 0;
    return true;
}

// An alarm whose file fails leaves the batch by losing its place in it.
void cPendingSaves::GiveUp(const AlarmPtr& alarm, const std::string& reason) {
    const std::string temporary = TemporaryName(m_Services.path(*alarm));
    SkipFailure([&] { m_Services.files.RemoveFile(temporary); });
    if (!alarm->m_Removed) m_Services.failed(alarm, reason);
    m_Batch[m_Done] = nullptr;
}

void cPendingSaves::Write(const AlarmPtr& alarm) {
    if (alarm->m_Removed) {
        m_Batch[m_Done] = nullptr;
        return;
    }
    const auto failure = CatchFailure([&] {
        const std::string bytes = m_Services.bytes(*alarm);
        m_Services.files.WriteFile(TemporaryName(m_Services.path(*alarm)), bytes, false);
    });
    if (failure) GiveUp(alarm, failure->what());
}

void cPendingSaves::Rename(const AlarmPtr& alarm) {
    if (!alarm) return;
    const std::string path = m_Services.path(*alarm);
    // No name may come to stand for bytes that the disk doesn't have.
    if (!m_Synced || alarm->m_Removed) return GiveUp(alarm, kNotSynced);
    const auto failure = CatchFailure([&] { m_Services.files.RenameFile(TemporaryName(path), path); });
    if (failure) GiveUp(alarm, failure->what());
}

void cPendingSaves::StartWait(eStep step) {
    m_Step = step;
    const auto first =
        std::find_if(m_Batch.begin(), m_Batch.end(), [](const AlarmPtr& alarm) { return alarm; });
    if (first == m_Batch.end()) return;
    const std::string folder = SplitPath(m_Services.path(**first)).folder;
    SkipFailure([&] { m_Sync = m_Services.files.StartSync(folder); });
}

bool cPendingSaves::Waited() {
    if (m_Sync && !m_Finishing && !m_Sync->Done()) return false;
    m_Synced = m_Sync && m_Sync->Wait();
    m_Sync.reset();
    return true;
}

void cPendingSaves::Step() {
    switch (m_Step) {
        case eStep::Write:
            if (Advance(&cPendingSaves::Write)) StartWait(eStep::WaitForBytes);
            break;
        case eStep::WaitForBytes:
            if (Waited()) m_Step = eStep::Rename;
            break;
        case eStep::Rename:
            if (Advance(&cPendingSaves::Rename)) StartWait(eStep::WaitForNames);
            break;
        case eStep::WaitForNames:
            if (!Waited()) break;
            // Whichever names are not durable: writing all once more does no harm.
            for (const AlarmPtr& alarm : m_Batch) {
                if (alarm && !m_Synced) m_Services.failed(alarm, kNotSynced);
            }
            Begin();
            break;
    }
}

void cPendingSaves::Turn() {
    if (!Empty()) Step();
}

void cPendingSaves::Finish() {
    m_Finishing = true;
    while (!Empty()) Step();
    m_Finishing = false;
}

}  // namespace vigrel
