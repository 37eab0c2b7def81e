#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "receiver_ui/list/report_records.h"

namespace vigrel {

// The rows of a list in display order, kept sorted. Few changes cost the logarithm of the number of rows and
// are told run by run; many are merged in one pass.
//
// A deque, since rows come and go at the two ends: the newest is added at one and the oldest leaves at the
// other.
class cReportRows {
  public:
    // Told around each change, as an item model has to tell its views.
    struct cObserver {
        std::function<void(int first, int last)> beforeRemove, beforeInsert;
        std::function<void()> afterRemove, afterInsert;
        std::function<void()> beforeReset, afterReset;
    };
    // More runs than this are one reset.
    static constexpr std::size_t kMaxRuns = 8;

    cReportRows(cObserver observer, cRecordOrder::ValueOf valueOf)
        : m_Observer(std::move(observer)), m_ValueOf(std::move(valueOf)) {}

    int Count() const { return static_cast<int>(m_Rows.size()); }
    const cReportRecord& operator[](int row) const { return *m_Rows[static_cast<std::size_t>(row)]; }
    // Nothing for a record without row.
    std::optional<int> RowOf(const cReportRecord& record) const;
    const cRecordOrder& Order() const { return m_Order; }
    // Whether the record's values have another place than its row.
    bool IsMisplaced(const cReportRecord& record) const {
        return record.stage == cReportRecord::Placed && m_Order.KeyOf(record, m_ValueOf) != record.key;
    }

    void Apply(const cRecordChanges& changes);
    // The same with a new order of the rows.
    void Resort(const cRecordChanges& changes, const cRecordOrder& order);

  private:
    using Records = std::vector<cReportRecord*>;
    void Place(Records& records);
    // The rows of both, in ascending order. Those that are gone have none from now on.
    std::vector<int> GiveUpRows(const Records& gone, const Records& moved) const;
    // One reset: the rows of these numbers, in ascending order, go, and the sorted records come in.
    void Merge(const std::vector<int>& rows, const Records& records);
    void RemoveRows(const std::vector<int>& rows);
    void InsertRecords(const Records& records);

    cObserver m_Observer;
    cRecordOrder::ValueOf m_ValueOf;
    cRecordOrder m_Order;
    std::deque<cReportRecord*> m_Rows;
};

}  // namespace vigrel
