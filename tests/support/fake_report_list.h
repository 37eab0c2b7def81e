#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/report_list.h"
#include "support/transcript.h"

namespace vigrel::testing {

// A report list in memory, complete but for the painting. The transcript tells what an operator would notice:
// rows taken over, rows brought into view, selection, redrawing.
class cFakeReportList : public cReportList {
  public:
    explicit cFakeReportList(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}

    int ColumnCount() const override { return static_cast<int>(m_Columns.size()); }
    int AddColumn(std::string_view caption, int width) override;
    void SetColumnTag(int column, std::string_view tag) override;
    std::string ColumnTag(int column) const override;
    void SetColumnWidth(int column, int width) override;
    int ColumnWidth(int column) const override;
    void SetColumnResizable(int column, bool resizable) override;
    void SetColumnSortable(int column, bool sortable) override;
    void SetColumnPlacement(int column, int cells, int header) override;

    RecordId AddRecord(RecordTag tag) override;
    void RemoveRecord(RecordId record) override;
    void RemoveAllRecords() override;
    int RecordCount() const override { return static_cast<int>(m_Records.size()); }
    RecordTag RecordTagOf(RecordId record) const override { return Record(record); }
    void RecordChanged(RecordId record) override {
        Record(record);
        m_Changed.push_back(record);
        if (m_OnRecordChanged) m_OnRecordChanged(record);
    }
    ItemValue GetItemValue(RecordId record, int item) const override { return Item(record, item).value; }

    void TakeOverRecords() override;
    void Redraw() override;
    std::vector<RecordId> Rows() override { return m_Rows; }
    std::vector<RecordId> SelectedRows() override;
    void SelectAllRows() override;
    void ClearSelection() override;
    void SelectAndShow(RecordId record) override;
    void SetVisible(bool visible) override;

    void ClearSortOrder() override { m_SortColumns.clear(); }
    void AddSortColumn(int column, bool ascending) override;

    void SetFont(std::string_view name, double points) override;
    void SetFontStyle(bool bold, bool italic) override { m_Style = {bold, italic}; }
    double FontPoints() const override { return m_FontPoints; }
    void SetEmptyText(std::string_view text) override { m_EmptyText = text; }

    // --- for tests
    struct cColumn {
        std::string caption, tag;
        int width = 0;
        bool resizable = true, sortable = true;
        int cellPlacement = 0, headerPlacement = 0;
    };
    const cColumn& Column(int column) const;
    cReportItem Item(RecordId record, int item) const;
    // The operator's doings.
    void Select(RecordId record) { m_Selected.insert(record); }
    void DragColumn(int column, int width);
    void DoubleClick(RecordId record);
    void PressKey(int keyCode, int shift = 0);
    void LoseFocus();
    // The style with which a row is drawn.
    cFontStyle DrawnStyle(RecordId record);
    // The rows in display order, one a line: the captions joined by "|", an icon as "#27".
    std::string Screen() const;

    std::string m_FontName, m_EmptyText;
    double m_FontPoints = 8;
    cFontStyle m_Style;
    bool m_Visible = true;
    std::vector<RecordId> m_Changed;  // each time that a record's owner told so
    std::function<void()> m_OnAddRecord;
    std::function<void(RecordId)> m_OnRecordChanged;

  private:
    struct cSortColumn {
        int column;
        bool ascending;
    };
    cColumn& MutableColumn(int column);
    const RecordTag& Record(RecordId record) const;
    int Compare(RecordId a, RecordId b) const;
    void Note(const std::string& step) const;

    cTranscript* m_Transcript;
    std::vector<cColumn> m_Columns;
    std::map<RecordId, RecordTag> m_Records;
    std::vector<RecordId> m_Rows;
    std::set<RecordId> m_Selected;
    std::vector<cSortColumn> m_SortColumns;
    RecordId m_NextRecord = 1;
};

}  // namespace vigrel::testing
