#include "receiver_ui/list/report_records.h"

#include <string>
#include <utility>

#include "common/failure.h"

namespace vigrel {
RecordId cReportRecords::Add(RecordTag tag) {
    cReportRecord& record = m_Records[m_NextId];
    record.id = m_NextId;
    record.tag = std::move(tag);
    m_New.push_back(&record);
    return m_NextId++;
}

const cReportRecord& cReportRecords::Get(RecordId record) const {
    const auto found = m_Records.find(record);
    if (found == m_Records.end()) {
        throw cFailure(eFailure::ObjectMissing, "The list has no record " + std::to_string(record));
    }
    return found->second;
}
cReportRecord& cReportRecords::Get(RecordId record) {
    return const_cast<cReportRecord&>(std::as_const(*this).Get(record));
}
void cReportRecords::Bury(RecordMap::node_type node) {
    node.mapped().removed = true;
    node.mapped().tag.reset();
    m_Graveyard.push_back(std::move(node));
}

void cReportRecords::Remove(RecordId id) {
    cReportRecord& record = Get(id);
    if (record.stage == cReportRecord::Placed) m_Gone.push_back(&record);
    Bury(m_Records.extract(id));
}

void cReportRecords::RemoveAll() {
    while (!m_Records.empty()) Bury(m_Records.extract(m_Records.begin()));
    m_New.clear();
    m_Taken.clear();
    m_Moved.clear();
    m_Gone.clear();
    m_Everything = true;
}

void cReportRecords::SortValueChanged(cReportRecord& record) {
    if (record.stage != cReportRecord::Placed || record.moved) return;
    record.moved = true;
    m_Moved.push_back(&record);
}

void cReportRecords::TakeOver() {
    for (cReportRecord* record : m_New) {
        if (record->removed) continue;
        record->stage = cReportRecord::Taken;
        m_Taken.push_back(record);
    }
    m_New.clear();
}

bool cReportRecords::HasRow(RecordId record) const {
    const auto found = m_Records.find(record);
    return found != m_Records.end() && found->second.stage != cReportRecord::New;
}

cRecordChanges cReportRecords::TakeChanges(bool reorder) {
    const auto isRemoved = [](const cReportRecord* record) { return record->removed; };
    std::erase_if(m_New, isRemoved);
    std::erase_if(m_Taken, isRemoved);
    cRecordChanges changes;
    changes.everything = std::exchange(m_Everything, false);
    changes.gone = std::exchange(m_Gone, {});
    changes.graveyard = std::exchange(m_Graveyard, {});
    std::erase_if(m_Moved, isRemoved);
    if (!reorder) return changes;
    changes.moved = std::exchange(m_Moved, {});
    changes.added = std::exchange(m_Taken, {});
    return changes;
}

}  // namespace vigrel
