#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <string>
#include <vector>

#include "receiver_ui/list/report_rows.h"

namespace vigrel {

// A column as its owner set it.
struct cReportColumn {
    std::string caption, tag;
    int width = 0;  // pixels at 100 % scale; 0 hides the column
    bool resizable = true, sortable = true;
    bool centredCells = false, centredHeader = false;
};

// Rows and columns of a report list for the toolkit's views and for assistive tools.
class cReportModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    explicit cReportModel(QObject* parent = nullptr);

    cReportRows& ReportRows() { return m_Rows; }
    const cReportRows& ReportRows() const { return m_Rows; }
    const std::vector<cReportColumn>& Columns() const { return m_Columns; }
    cReportColumn& Column(int column);  // throws cFailure for a column that isn't there
    const cReportColumn& Column(int column) const;
    int AddColumn(const cReportColumn& column);
    void ColumnChanged(int column);
    // The cell's item; an empty one for a record that its owner has given up.
    cReportItem Item(const QModelIndex& index) const;
    cReportItem Item(const cReportRecord& record, int column) const;
    // Asked for the items.
    std::function<cReportItem(const RecordTag& tag, int column)> OnItem;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    cReportRows::cObserver Observer();

    std::vector<cReportColumn> m_Columns;
    cReportRows m_Rows;
};

// What an item's value reads as.
QString ValueText(const ItemValue& value);

}  // namespace vigrel
