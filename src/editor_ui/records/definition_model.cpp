#include "editor_ui/records/definition_model.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

namespace vigrel {

cDefinitionModel::cDefinitionModel(cDefinitionSource& source, QObject* parent)
    : QAbstractTableModel(parent), m_Source(source) {
    CompareAll();
}

void cDefinitionModel::CompareAll() {
    m_Changed.resize(m_Source.Count());
    for (std::size_t i = 0; i < m_Changed.size(); ++i) m_Changed[i] = m_Source.HasChanges(i);
}

bool cDefinitionModel::HasChanges() const {
    return std::find(m_Changed.begin(), m_Changed.end(), true) != m_Changed.end();
}

int cDefinitionModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_Changed.size());
}

int cDefinitionModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int{Columns};
}

QString cDefinitionModel::PlainText(const QModelIndex& index) const {
    const auto position = static_cast<std::size_t>(index.row());
    if (index.column() == Name) return m_Source.Name(position);
    if (index.column() == Details) return m_Source.Details(position);
    const int identity = m_Source.Identity(position);
    return identity < 0 ? QString() : QString("%1").arg(identity, 4, 10, QChar('0'));
}

QVariant cDefinitionModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const bool changed = HasChanges(index.row());
    switch (role) {
        case PlainTextRole:
            return PlainText(index);
        case Qt::DisplayRole:
            return PlainText(index) + (index.column() == Name && changed ? " *" : "");
        case Qt::FontRole: {
            QFont font;
            font.setBold(true);
            return changed ? QVariant(font) : QVariant();
        }
        case Qt::ForegroundRole:
            if (m_Source.Enabled(static_cast<std::size_t>(index.row()))) return {};
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        case Qt::ToolTipRole:
            return changed ? tr("Not saved yet") : QVariant();
        default:
            return {};
    }
}

QVariant cDefinitionModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == Name ? tr("Name") : section == Details ? m_Details : tr("File");
}

int cDefinitionModel::EndAdding(std::size_t position) {
    m_Changed.push_back(m_Source.HasChanges(position));
    endInsertRows();
    return static_cast<int>(position);
}

int cDefinitionModel::Add(const QString& wishedName) {
    beginInsertRows({}, rowCount(), rowCount());
    return EndAdding(m_Source.Add(wishedName));
}

int cDefinitionModel::AddCopy(int row) {
    beginInsertRows({}, rowCount(), rowCount());
    return EndAdding(m_Source.AddCopy(static_cast<std::size_t>(row)));
}

// Whether the row goes is known only afterwards, since a file may refuse to be removed.
bool cDefinitionModel::Remove(int row) {
    beginResetModel();
    const bool removed = m_Source.Remove(static_cast<std::size_t>(row));
    if (removed) m_Changed.erase(m_Changed.begin() + row);
    endResetModel();
    return removed;
}

// One that was never saved goes.
bool cDefinitionModel::Revert(int row) {
    beginResetModel();
    const bool reverted = m_Source.Revert(static_cast<std::size_t>(row));
    CompareAll();
    endResetModel();
    return reverted;
}

bool cDefinitionModel::Save(int row) {
    const bool saved = m_Source.Save(static_cast<std::size_t>(row));
    Refresh(row);
    return saved;
}

void cDefinitionModel::Refresh(int row) {
    m_Changed[static_cast<std::size_t>(row)] = m_Source.HasChanges(static_cast<std::size_t>(row));
    emit dataChanged(index(row, 0), index(row, Columns - 1));
}

void cDefinitionModel::Reset() {
    beginResetModel();
    CompareAll();
    endResetModel();
}

}  // namespace vigrel
