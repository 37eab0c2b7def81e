#include "receiver_ui/list/report_model.h"

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "common/numbers.h"

namespace vigrel {

QString ValueText(const ItemValue& value) {
    if (const double* number = std::get_if<double>(&value)) return ToQString(NumberText(*number));
    return ToQString(std::get<std::string>(value));
}

cReportModel::cReportModel(QObject* parent)
    : QAbstractTableModel(parent), m_Rows(Observer(), [this](const cReportRecord& record, int column) {
          return Item(record, column).value;
      }) {}

cReportRows::cObserver cReportModel::Observer() {
    cReportRows::cObserver observer;
    observer.beforeRemove = [this](int first, int last) { beginRemoveRows({}, first, last); };
    observer.afterRemove = [this] { endRemoveRows(); };
    observer.beforeInsert = [this](int first, int last) { beginInsertRows({}, first, last); };
    observer.afterInsert = [this] { endInsertRows(); };
    observer.beforeReset = [this] { beginResetModel(); };
    observer.afterReset = [this] { endResetModel(); };
    return observer;
}

const cReportColumn& cReportModel::Column(int column) const {
    if (column < 0 || column >= columnCount()) {
        throw cFailure(eFailure::OutOfBounds, "The list has no column " + std::to_string(column));
    }
    return m_Columns[static_cast<std::size_t>(column)];
}
cReportColumn& cReportModel::Column(int column) {
    return const_cast<cReportColumn&>(std::as_const(*this).Column(column));
}

int cReportModel::AddColumn(const cReportColumn& column) {
    beginInsertColumns({}, columnCount(), columnCount());
    m_Columns.push_back(column);
    endInsertColumns();
    return columnCount() - 1;
}

void cReportModel::ColumnChanged(int column) {
    emit headerDataChanged(Qt::Horizontal, column, column);
}

cReportItem cReportModel::Item(const QModelIndex& index) const {
    return Item(m_Rows[index.row()], index.column());
}

cReportItem cReportModel::Item(const cReportRecord& record, int column) const {
    return record.removed || !OnItem ? cReportItem{} : OnItem(record.tag, column);
}

int cReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_Rows.Count();
}
int cReportModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_Columns.size());
}

QVariant cReportModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_Rows.Count()) return {};
    // A cell that shows an icon alone still has something to say to those who can't see it.
    const bool spoken = role == Qt::AccessibleTextRole;
    if (!spoken && role != Qt::DisplayRole) return {};
    const cReportItem item = Item(index);
    return spoken || item.hasCaption ? ValueText(item.value) : QVariant();
}

QVariant cReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const cReportColumn& column = Column(section);
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return ToQString(column.caption);
    if (role == Qt::TextAlignmentRole) {
        return QVariant(
            Qt::Alignment((column.centredHeader ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter));
    }
    return {};
}

}  // namespace vigrel
