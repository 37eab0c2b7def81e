#include "editor_ui/records/definition_model.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "common/file_procedures.h"
#include "editor_ui/pages/reasons.h"

namespace vigrel {
namespace {

// Of one that takes no part. The toolkit's own colour of what is disabled is hardly to be read.
QColor Dimmed() {
    constexpr double kText = 0.62;
    const QPalette palette = QGuiApplication::palette();
    const QColor text = palette.color(QPalette::Text), ground = palette.color(QPalette::Base);
    const auto mix = [](int of, int with) { return static_cast<int>(kText * of + (1 - kText) * with); };
    return {mix(text.red(), ground.red()), mix(text.green(), ground.green()),
            mix(text.blue(), ground.blue())};
}

}  // namespace

cDefinitionModel::cDefinitionModel(cDefinitionSource& source, QObject* parent)
    : QAbstractTableModel(parent), m_Source(source) {
    CompareAll();
}

void cDefinitionModel::CompareAll() {
    m_Changed.resize(m_Source.Count());
    m_Files.resize(m_Changed.size());
    for (std::size_t i = 0; i < m_Changed.size(); ++i) {
        m_Changed[i] = m_Source.HasChanges(i);
        m_Files[i] = m_Changed[i] ? m_Source.StateOfFile(i) : eFileState::Unchanged;
    }
}

void cDefinitionModel::LookAtFiles() {
    for (std::size_t i = 0; i < m_Changed.size(); ++i) {
        const eFileState now = m_Changed[i] ? m_Source.StateOfFile(i) : eFileState::Unchanged;
        if (std::exchange(m_Files[i], now) != now) Refresh(static_cast<int>(i));
    }
}

QString cDefinitionModel::Obstacle(int row) const {
    const auto position = static_cast<std::size_t>(row);
    const QString problem = m_Source.Problem(position).text;
    if (!problem.isEmpty()) return tr("Can't be saved: %1").arg(problem);
    switch (m_Files[position]) {
        case eFileState::Changed:
            return tr("Another program has changed the file meanwhile.");
        case eFileState::Gone:
            return tr("Another program has removed the file.");
        default:
            return {};
    }
}

bool cDefinitionModel::HasChanges() const {
    return std::find(m_Changed.begin(), m_Changed.end(), true) != m_Changed.end();
}

int cDefinitionModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Definitions() + static_cast<int>(m_Source.Unreadable().size());
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
    // A list without a chosen row is asked for its text by the key that copies.
    if (!index.isValid() || !checkIndex(index)) return {};
    return index.row() < Definitions() ? DefinitionData(index, role) : UnreadableData(index, role);
}

QVariant cDefinitionModel::DefinitionData(const QModelIndex& index, int role) const {
    const bool changed = HasChanges(index.row());
    switch (role) {
        case PlainTextRole:
            return PlainText(index);
        case Qt::DisplayRole:
            return PlainText(index) + (index.column() == Name && changed ? " *" : "");
        case Qt::DecorationRole:
            if (index.column() != Name || !changed || Obstacle(index.row()).isEmpty()) return {};
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        case Qt::FontRole: {
            QFont font;
            font.setBold(true);
            return changed ? QVariant(font) : QVariant();
        }
        case Qt::ForegroundRole:
            if (m_Source.Enabled(static_cast<std::size_t>(index.row()))) return {};
            return Dimmed();
        case Qt::ToolTipRole:
            if (!changed) return {};
            return Obstacle(index.row()).isEmpty() ? tr("Not saved yet") : Obstacle(index.row());
        default:
            return {};
    }
}

QVariant cDefinitionModel::UnreadableData(const QModelIndex& index, int role) const {
    const cUnreadableFile& file =
        m_Source.Unreadable()[static_cast<std::size_t>(index.row() - Definitions())];
    switch (role) {
        case PlainTextRole:
        case Qt::DisplayRole:
            if (index.column() == Name) return PathToQString(SplitPath(file.path).name);
            return index.column() == Details ? Told(file.reason) : QString();
        case Qt::DecorationRole:
            if (index.column() != Name) return {};
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
        case Qt::ToolTipRole:
            return Told(file.reason);
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
    m_Files.push_back(eFileState::Unchanged);
    endInsertRows();
    return static_cast<int>(position);
}

int cDefinitionModel::Add(const QString& wishedName) {
    beginInsertRows({}, Definitions(), Definitions());
    return EndAdding(m_Source.Add(wishedName));
}

int cDefinitionModel::AddCopy(int row) {
    beginInsertRows({}, Definitions(), Definitions());
    return EndAdding(m_Source.AddCopy(static_cast<std::size_t>(row)));
}

int cDefinitionModel::AddFromFile(int row) {
    beginResetModel();
    const auto added = m_Source.AddFromFile(static_cast<std::size_t>(row));
    CompareAll();
    endResetModel();
    return added ? static_cast<int>(*added) : -1;
}

// One that was never saved goes.
bool cDefinitionModel::Revert(int row) {
    beginResetModel();
    const bool reverted = m_Source.Revert(static_cast<std::size_t>(row));
    CompareAll();
    endResetModel();
    return reverted;
}

void cDefinitionModel::Restore(int row, const cRecord& record) {
    m_Source.Restore(static_cast<std::size_t>(row), record);
    Refresh(row);
}

// Whether the row goes is known only afterwards, since a file may refuse to be removed.
RecordPtr cDefinitionModel::TakeOut(int row) {
    beginResetModel();
    RecordPtr record = m_Source.TakeOut(static_cast<std::size_t>(row));
    CompareAll();
    endResetModel();
    return record;
}

bool cDefinitionModel::BringBack(int row, const cRecord& record) {
    beginResetModel();
    const bool whole = m_Source.BringBack(static_cast<std::size_t>(row), record);
    CompareAll();
    endResetModel();
    return whole;
}

std::vector<cTakenUp> cDefinitionModel::Rescan() {
    beginResetModel();
    std::vector<cTakenUp> taken = m_Source.Rescan();
    CompareAll();
    endResetModel();
    return taken;
}

void cDefinitionModel::Reload() {
    beginResetModel();
    m_Source.Reload();
    CompareAll();
    endResetModel();
}

bool cDefinitionModel::Save(int row) {
    const bool saved = m_Source.Save(static_cast<std::size_t>(row));
    if (saved) m_Files[static_cast<std::size_t>(row)] = eFileState::Unchanged;
    Refresh(row);
    return saved;
}

void cDefinitionModel::Refresh(int row) {
    m_Changed[static_cast<std::size_t>(row)] = m_Source.HasChanges(static_cast<std::size_t>(row));
    emit dataChanged(index(row, 0), index(row, Columns - 1));
}

}  // namespace vigrel
