#pragma once

#include <unordered_map>
#include <vector>

#include "receiver_ui/list/report_record.h"

namespace vigrel {

using RecordMap = std::unordered_map<RecordId, cReportRecord>;
// Records that are given up, each where it was.
using RecordGraveyard = std::vector<RecordMap::node_type>;

// What has happened to the records since the rows were last recomputed.
struct cRecordChanges {
    bool everything = false;            // all rows are gone
    std::vector<cReportRecord*> gone;   // rows to take away; the records live as long as this object
    std::vector<cReportRecord*> moved;  // rows whose place may have changed
    std::vector<cReportRecord*> added;  // records that get a row
    RecordGraveyard graveyard;
};

// The records of a list. Adding, changing and removing costs the same however many there are; the rows are
// told of it all at once.
class cReportRecords {
  public:
    RecordId Add(RecordTag tag);
    void Remove(RecordId record);
    void RemoveAll();
    int Count() const { return static_cast<int>(m_Records.size()); }

    // Throw cFailure for a record that isn't there.
    const cReportRecord& Get(RecordId record) const;
    cReportRecord& Get(RecordId record);
    // Notes that a sort value of the record has changed.
    void SortValueChanged(cReportRecord& record);

    // The records added so far get rows at the next TakeChanges.
    void TakeOver();
    // Whether the record has a row, or gets one at the next TakeChanges.
    bool HasRow(RecordId record) const;
    // With reorder, additions and moved rows too; without, only what can't wait.
    cRecordChanges TakeChanges(bool reorder);

  private:
    void Bury(RecordMap::node_type node);

    RecordMap m_Records;
    std::vector<cReportRecord*> m_New, m_Taken, m_Moved, m_Gone;
    RecordGraveyard m_Graveyard;
    bool m_Everything = false;
    RecordId m_NextId = 1;
};

}  // namespace vigrel
