#include "receiver_ui/list/selection_keeper.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <algorithm>

namespace vigrel {

std::vector<int> SelectedRowNumbers(const QAbstractItemView& view) {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

cSelectionKeeper::cSelectionKeeper(QAbstractItemView& view, const cReportModel& model)
    : m_View(view), m_Model(model) {
    QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &view, [this] { Remember(); });
    QObject::connect(&model, &QAbstractItemModel::modelReset, &view, [this] { Restore(); });
}

void cSelectionKeeper::Remember() {
    m_Selected.clear();
    for (const int row : SelectedRowNumbers(m_View)) m_Selected.push_back(&m_Model.ReportRows()[row]);
    const QModelIndex current = m_View.currentIndex();
    m_Current = current.isValid() ? &m_Model.ReportRows()[current.row()] : nullptr;
}

void cSelectionKeeper::Restore() {
    m_View.selectionModel()->select(Selection(), QItemSelectionModel::Select);
    if (m_Current == nullptr) return;
    if (const auto row = m_Model.ReportRows().RowOf(*m_Current)) {
        m_View.selectionModel()->setCurrentIndex(m_Model.index(*row, 0), QItemSelectionModel::NoUpdate);
    }
}

QItemSelection cSelectionKeeper::Selection() const {
    std::vector<int> rows;
    for (const cReportRecord* record : m_Selected) {
        if (const auto row = m_Model.ReportRows().RowOf(*record)) rows.push_back(*row);
    }
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size();) {
        const int first = rows[i];
        int last = first;
        for (++i; i < rows.size() && rows[i] == last + 1; ++i) ++last;
        selection.append({m_Model.index(first, 0), m_Model.index(last, m_Model.columnCount() - 1)});
    }
    return selection;
}

}  // namespace vigrel
