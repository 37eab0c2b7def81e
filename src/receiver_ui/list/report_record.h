#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/report_list.h"

namespace vigrel {

// One cell of a record as its owner set it.
struct cReportItem {
    ItemValue value;
    std::string caption;
    std::int32_t textColour = 0, backColour = 0;  // red in the low byte, then green, then blue
    std::int16_t icon = -1;
    bool hasCaption = false, hasColours = false;
};

// What a record sorts by: the values of the sort columns, texts upper-cased.
using SortKey = std::vector<ItemValue>;

struct cReportRecord {
    // Of its way to a row: New until the list takes it over, then Taken until the rows are recomputed. Gone:
    // its row was taken away again.
    enum eStage : std::uint8_t { New, Taken, Placed, Gone };

    RecordId id = 0;  // grows with the record's age
    std::shared_ptr<void> tag;
    std::vector<cReportItem> items;
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

    SortKey KeyOf(const cReportRecord& record) const;
    // By the keys of the two records. Equal ones by age, so that a descending order is the reverse of an
    // ascending one.
    bool Before(const cReportRecord& a, const cReportRecord& b) const;

  private:
    std::vector<cColumn> m_Columns;
};

}  // namespace vigrel
