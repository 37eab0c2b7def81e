#include "receiver_ui/list/report_records.h"

#include <string>
#include <utility>

#include "common/failure.h"

namespace vigrel {
namespace {

template <class Items>
auto& ItemAt(Items& items, int item) {
    if (item < 0 || static_cast<std::size_t>(item) >= items.size()) {
        throw cFailure(eFailure::OutOfBounds, "The record has no item " + std::to_string(item));
    }
    return items[static_cast<std::size_t>(item)];
}

}  // namespace

RecordId cReportRecords::Add(std::shared_ptr<void> tag) {
    auto record = std::make_unique<cReportRecord>();
    record->id = m_NextId++;
    record->tag = std::move(tag);
    m_New.push_back(record.get());
    return m_Records.emplace(record->id, std::move(record)).first->first;
}

const cReportRecord& cReportRecords::Get(RecordId record) const {
    const auto found = m_Records.find(record);
    if (found == m_Records.end()) {
        throw cFailure(eFailure::ObjectMissing, "The list has no record " + std::to_string(record));
    }
    return *found->second;
}
cReportRecord& cReportRecords::Get(RecordId record) {
    return const_cast<cReportRecord&>(std::as_const(*this).Get(record));
}
const cReportItem& cReportRecords::Item(RecordId record, int item) const {
    return ItemAt(Get(record).items, item);
}
cReportItem& cReportRecords::Item(RecordId record, int item) {
    return ItemAt(Get(record).items, item);
}

void cReportRecords::Remove(RecordId id) {
    cReportRecord& record = Get(id);
    record.removed = true;
    record.tag.reset();
    if (record.stage == cReportRecord::Placed) m_Gone.push_back(&record);
    m_Graveyard.push_back(std::move(m_Records.at(id)));
    m_Records.erase(id);
}

void cReportRecords::RemoveAll() {
    for (auto& [id, record] : m_Records) {
        record->removed = true;
        record->tag.reset();
        m_Graveyard.push_back(std::move(record));
    }
    m_Records.clear();
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
    return found != m_Records.end() && found->second->stage != cReportRecord::New;
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
