#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "events/vigrel_reciever_alarm.h"
#include "platform/files.h"

namespace vigrel {

// Replaces the files of many alarms in turns, so that everything else goes on meanwhile: first all
// temporaries are written, then one wait for the disk, which goes on beside the program, then they are
// renamed, then another wait. At any moment each file is the old one or the new one, whole; a crash loses
// nothing that was on the disk.
//
// An alarm that the store removes on the way (m_Removed) gets no file back.
class cPendingSaves {
  public:
    struct cServices {
        cFiles& files;
        const cClock& clock;
        std::function<std::string(cVigrelRecieverAlarm&)> bytes;       // may throw cFailure
        std::function<std::string(const cVigrelRecieverAlarm&)> path;  // of its file
        // Its file could not be replaced, for that reason.
        std::function<void(const AlarmPtr&, const std::string& reason)> failed;
    };
    // The longest that a turn lasts, but for what its last file takes; and the most files of one.
    static constexpr double kTurnSeconds = 0.02;
    static constexpr int kTurnFiles = 1000;

    explicit cPendingSaves(cServices services) : m_Services(std::move(services)) {}

    void Add(const std::vector<AlarmPtr>& alarms);
    // Of one that begins now, on the steady clock.
    double EndOfTurn() const;
    bool Empty() const { return m_Batch.empty(); }
    // Does what a turn allows; at once what is left where it is the last chance.
    void Turn();
    void Finish();

  private:
    enum class eStep { Write, WaitForBytes, Rename, WaitForNames };
    using Work = void (cPendingSaves::*)(const AlarmPtr& alarm);

    void Begin();
    // Does the work for further alarms of the batch. Whether all are done.
    bool Advance(Work work);
    void Write(const AlarmPtr& alarm);
    void Rename(const AlarmPtr& alarm);
    void GiveUp(const AlarmPtr& alarm, const std::string& reason);
    void StartWait(eStep step);
    // Whether the wait is over.
    bool Waited();
    void Step();

    cServices m_Services;
    std::vector<AlarmPtr> m_Batch, m_Next;  // what comes while a batch is written is the next one
    std::size_t m_Done = 0;                 // of the batch, in this step
    eStep m_Step = eStep::Write;
    std::unique_ptr<cPendingSync> m_Sync;  // none but in a wait that could begin
    bool m_Synced = true;
    bool m_Finishing = false;
};

}  // namespace vigrel
