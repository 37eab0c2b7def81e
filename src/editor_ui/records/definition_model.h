#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "editor_ui/records/definition_source.h"

namespace vigrel {

// The definitions of a source as rows: name, details, number of the file. A name with unsaved changes is bold
// and marked with "*", one that can't be saved, or whose file others changed or removed, has a warning sign;
// one that is not enabled is grey. Rows are the positions of the source; behind them the files that can't be
// read have a row each.
class cDefinitionModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum eColumn { Name, Details, Number, Columns };
    // The text of a cell without marks, for sorting and searching.
    static constexpr int PlainTextRole = Qt::UserRole;

    // The source must outlive the model.
    explicit cDefinitionModel(cDefinitionSource& source, QObject* parent = nullptr);
    void SetDetailsCaption(const QString& caption) { m_Details = caption; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The same operations as those of the source, with the rows following.
    int Add(const QString& wishedName);
    int AddCopy(int row);
    int AddFromFile(int row);  // below 0: the file can't be read
    bool Revert(int row);
    void Restore(int row, const cRecord& record);
    RecordPtr TakeOut(int row);
    bool BringBack(int row, const cRecord& record);
    std::vector<cTakenUp> Rescan();
    void Reload();
    // Looks what others did to the files of the definitions with changes.
    void LookAtFiles();
    bool Save(int row);
    // The definition of a row has changed.
    void Refresh(int row);

    // To compare a definition with its file takes a while, so it is done once after each change.
    bool HasChanges(int row) const { return m_Changed[static_cast<std::size_t>(row)]; }
    // Of the definitions, without the files that can't be read.
    int Definitions() const { return static_cast<int>(m_Changed.size()); }
    bool HasChanges() const;

  private:
    QString PlainText(const QModelIndex& index) const;
    QVariant DefinitionData(const QModelIndex& index, int role) const;
    QVariant UnreadableData(const QModelIndex& index, int role) const;
    void CompareAll();
    // What stands in the way of a save, or at least in its course; empty for nothing.
    QString Obstacle(int row) const;
    int EndAdding(std::size_t position);

    cDefinitionSource& m_Source;
    QString m_Details;
    std::vector<bool> m_Changed;      // by row
    std::vector<eFileState> m_Files;  // by row, of those with changes
};

}  // namespace vigrel
