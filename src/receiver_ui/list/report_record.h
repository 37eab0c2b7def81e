#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/report_list.h"

namespace vigrel {

// What a record sorts by: the values of the sort columns as bytes that compare as the values do, texts
// upper-cased, each column in its direction.
using SortKey = std::string;

struct cReportRecord {
    // Of its way to a row: New until the list takes it over, then Taken until the rows are recomputed. Gone:
    // its row was taken away again.
    enum eStage : std::uint8_t { New, Taken, Placed, Gone };

    RecordId id = 0;  // grows with the record's age
    RecordTag tag;
    SortKey key;  // by which the row has its place
    eStage stage = New;
    bool moved = false;    // a sort value has changed since the row was placed
    bool removed = false;  // the owner has given it up; only its row is still there
};

// The order of the rows.
class cRecordOrder {
  public:
    struct cColumn {
        int column = 0;
        bool ascending = true;
    };
    void Clear() { m_Columns.clear(); }
    void Add(int column, bool ascending) { m_Columns.push_back({column, ascending}); }
    const std::vector<cColumn>& Columns() const { return m_Columns; }
    bool SortsBy(int column) const;

    // valueOf gives the value of an item of the record.
    using ValueOf = std::function<ItemValue(const cReportRecord& record, int item)>;
    SortKey KeyOf(const cReportRecord& record, const ValueOf& valueOf) const;
    // By the keys of the two records. Equal ones by age, so that a descending order is the reverse of an
    // ascending one.
    bool Before(const cReportRecord& a, const cReportRecord& b) const;
    void Sort(std::vector<cReportRecord*>& records) const;

  private:
    bool IsInFrontByAge(RecordId a, RecordId b) const {
        const bool isOlderFirst = m_Columns.empty() || m_Columns.back().ascending;
        return isOlderFirst ? a < b : a > b;
    }

    std::vector<cColumn> m_Columns;
};

}  // namespace vigrel
