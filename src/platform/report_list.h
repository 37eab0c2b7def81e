#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vigrel {

// A report list: a table whose records are added cheaply and become visible rows when the list takes them
// over.
//
// A record is known by its id, which is never used twice; 0 is no record. A call for a record that is gone
// throws cFailure. Columns and items are counted from 0, and a record has an item for each column. Changes of
// records show for certain only after TakeOverRecords or Redraw.
//
// The list keeps no texts: it asks the record's owner for an item when that is shown, compared or copied. A
// hundred thousand records would otherwise hold every text once more.
using RecordId = std::uint64_t;
// Whatever the owner of a record wants to find again; the list only keeps it.
using RecordTag = std::shared_ptr<void>;

// What an item sorts and is copied by: text, or a date-time.
using ItemValue = std::variant<std::string, double>;

// One cell of a record. Colours: red in the low byte, then green, then blue.
struct cReportItem {
    ItemValue value;
    bool hasCaption =
        false;  // the value shows as text; without it the cell shows no text, whatever its value
    bool hasColours = false;  // otherwise it has the list's own
    std::int32_t textColour = 0, backColour = 0;
    int icon = -1;  // number of the image strip; -1 for none
};

class cReportList {
  public:
    virtual ~cReportList() = default;

    // --- columns
    virtual int ColumnCount() const = 0;
    // Width in pixels at 100 % scale; the list scales it.
    virtual int AddColumn(std::string_view caption, int width) = 0;
    virtual void SetColumnTag(int column, std::string_view tag) = 0;
    virtual std::string ColumnTag(int column) const = 0;
    virtual void SetColumnWidth(int column, int width) = 0;
    virtual int ColumnWidth(int column) const = 0;
    virtual void SetColumnResizable(int column, bool resizable) = 0;
    virtual void SetColumnSortable(int column, bool sortable) = 0;
    // Placement 0: the list's ordinary one (left). 1: centred.
    virtual void SetColumnPlacement(int column, int cells, int header) = 0;

    // --- records
    virtual RecordId AddRecord(RecordTag tag) = 0;
    // A row of the record is gone with it.
    virtual void RemoveRecord(RecordId record) = 0;
    virtual void RemoveAllRecords() = 0;
    virtual int RecordCount() const = 0;
    virtual RecordTag RecordTagOf(RecordId record) const = 0;
    // The owner gives other items for the record from now on. A row whose sort value is another one moves at
    // the next TakeOverRecords.
    virtual void RecordChanged(RecordId record) = 0;
    virtual ItemValue GetItemValue(RecordId record, int item) const = 0;

    // --- rows
    // Recomputes the rows and their order. The list may paint later, but answers from now on as if it had.
    virtual void TakeOverRecords() = 0;
    virtual void Redraw() = 0;
    // The rows in display order.
    virtual std::vector<RecordId> Rows() = 0;
    virtual std::vector<RecordId> SelectedRows() = 0;
    virtual void SelectAllRows() = 0;
    virtual void ClearSelection() = 0;
    // Selects the row of the record and scrolls it into view; nothing for a record that has no row.
    virtual void SelectAndShow(RecordId record) = 0;
    virtual void SetVisible(bool visible) = 0;

    // --- sort order: by the item values of the columns added; text by the upper-cased code page, numbers in
    // front of texts, what is no finite number in front of all numbers. Equal values by the records' age, in
    // the direction of the last column added.
    virtual void ClearSortOrder() = 0;
    virtual void AddSortColumn(int column, bool ascending) = 0;

    // --- paint settings, for all rows
    virtual void SetFont(std::string_view name, double points) = 0;
    virtual void SetFontStyle(bool bold, bool italic) = 0;
    virtual double FontPoints() const = 0;
    // Shown in place of rows while there are none.
    virtual void SetEmptyText(std::string_view text) = 0;

    // --- events
    // Asked for an item of the record that has the tag.
    std::function<cReportItem(const RecordTag& tag, int item)> OnItem;
    struct cFontStyle {
        bool bold = false, italic = false;
    };
    std::function<void(RecordId)> OnRowDoubleClick;
    // Asked before a row is drawn.
    std::function<void(RecordId, cFontStyle&)> OnBeforeDrawRow;
    // The height of a row in pixels at 100 % scale; asked when the font changes.
    std::function<int()> OnRowHeight;
    std::function<void(int column)> OnColumnWidthChanged;
    // Windows virtual-key code (A is 65, Esc 27, F9 120) and shift state: 1 shift, 2 control, 4 alt, added
    // up.
    std::function<void(int keyCode, int shift)> OnKeyDown;
    // The operator's attention left the list.
    std::function<void()> OnFocusChange;
};

}  // namespace vigrel
