#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

#include "platform/report_list.h"
#include "receiver_ui/list/report_delegate.h"
#include "receiver_ui/list/report_header.h"
#include "receiver_ui/list/report_model.h"
#include "receiver_ui/list/report_records.h"
#include "receiver_ui/list/report_view.h"
#include "receiver_ui/list/selection_keeper.h"
#include "windows/icon_strip.h"

namespace vigrel {

// The report list on the screen. It stays quick with a hundred thousand rows under a flood of alarms: records
// are only noted, and what has come together goes to the view in one flush every 160 ms.
class cQtReportList : public cReportList {
  public:
    static constexpr int kFlushMilliseconds = 160;

    // The icons must outlive the list.
    cQtReportList(QWidget* parent, const cIconStrip& icons);
    ~cQtReportList() override;
    cReportView& View() { return *m_View; }

    int ColumnCount() const override { return m_Model.columnCount(); }
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
    int RecordCount() const override { return m_Records.Count(); }
    RecordTag RecordTagOf(RecordId record) const override;
    void RecordChanged(RecordId record) override;
    ItemValue GetItemValue(RecordId record, int item) const override;

    void TakeOverRecords() override;
    void Redraw() override;
    std::vector<RecordId> Rows() override;
    std::vector<RecordId> SelectedRows() override;
    void SelectAllRows() override;
    void ClearSelection() override;
    void SelectAndShow(RecordId record) override;
    void SetVisible(bool visible) override;

    void ClearSortOrder() override;
    void AddSortColumn(int column, bool ascending) override;

    void SetFont(std::string_view name, double points) override;
    void SetFontStyle(bool bold, bool italic) override;
    double FontPoints() const override { return m_FontPoints; }
    void SetEmptyText(std::string_view text) override;

  private:
    void ConnectView();
    void MarkFlush();
    void Flush();
    void FlushNow() {
        if (m_FlushTimer.isActive()) Flush();
    }
    void FlushSelection();
    void SortByClick(int column);
    void AskRowHeight();
    void WidthChanged(int column);
    cFontStyle StyleOf(const cReportRecord& record) const;

    cReportModel m_Model;
    cReportRecords m_Records;
    std::unique_ptr<cReportView> m_View;
    cReportHeader& m_Header;  // the view's
    cReportDelegate m_Delegate;
    cSelectionKeeper m_Keeper;

    double m_FontPoints;
    cFontStyle m_Style;
    bool m_RowHeightAsked = false;

    // What the next flush has to do.
    QTimer m_FlushTimer;
    QElapsedTimer m_SinceFlush;
    bool m_TakeOver = false;
    std::optional<cRecordOrder> m_NewOrder;
    bool m_Deselect = false;
    std::vector<RecordId> m_ToSelect;  // after deselecting
    RecordId m_ToShow = 0;
};

}  // namespace vigrel
