#include "receiver_ui/dialogs/trace_model.h"

#include <QFontDatabase>
#include <algorithm>

#include "adapters/qt/qt_text.h"

namespace vigrel {
namespace {

constexpr int kTimeColumn = 0, kTagColumn = 1, kTextColumn = 2;

QString CellText(const cTraceRow& row, int column) {
    return ToQString(column == kTimeColumn ? row.time : column == kTagColumn ? row.tag : row.text);
}

}  // namespace

cTraceModel::cTraceModel(const cProtocolTrace& trace, const cTexts& texts, QObject* parent)
    : QAbstractTableModel(parent),
      m_Trace(trace),
      m_Outgoing(":/icons/debug-out.svg"),
      m_Incoming(":/icons/debug-in.svg") {
    for (const cTraceColumn& column : kTraceColumns) {
        m_Captions += ToQString(texts.GetText(column.caption));
    }
    Sync();
}

int cTraceModel::Sync() {
    const std::uint64_t gone = m_Trace.RowsGone() - m_RowsGone;
    m_RowsGone = m_Trace.RowsGone();
    // Rows can have come and gone in between.
    const int removed = static_cast<int>(std::min<std::uint64_t>(gone, m_Rows.size()));
    if (removed > 0) {
        beginRemoveRows({}, 0, removed - 1);
        m_Rows.erase(m_Rows.begin(), m_Rows.begin() + removed);
        endRemoveRows();
    }
    const int have = static_cast<int>(m_Rows.size());
    const int all = static_cast<int>(m_Trace.Rows().size());
    if (all > have) {
        beginInsertRows({}, have, all - 1);
        m_Rows.insert(m_Rows.end(), m_Trace.Rows().begin() + have, m_Trace.Rows().end());
        endInsertRows();
    }
    return removed;
}

int cTraceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_Rows.size());
}

int cTraceModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kTraceColumns.size());
}

QVariant cTraceModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const cTraceRow& row = m_Rows[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return CellText(row, index.column());
        case Qt::DecorationRole:
            if (index.column() != kTimeColumn) return {};
            return row.icon == 1 ? m_Outgoing : m_Incoming;
        case Qt::TextAlignmentRole: {
            const bool centred = kTraceColumns[static_cast<std::size_t>(index.column())].centred;
            return static_cast<int>(Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft));
        }
        case Qt::FontRole:
            if (index.column() != kTextColumn) return {};
            return QFontDatabase::systemFont(QFontDatabase::FixedFont);
        default:
            return {};
    }
}

QVariant cTraceModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const bool centred = kTraceColumns[static_cast<std::size_t>(section)].centred;
    if (role == Qt::DisplayRole) return m_Captions[section];
    if (role == Qt::TextAlignmentRole) {
        return static_cast<int>(Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft));
    }
    return {};
}

}  // namespace vigrel
