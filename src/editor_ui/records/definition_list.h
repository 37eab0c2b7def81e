#pragma once

#include <QWidget>

#include "editor_ui/records/definition_model.h"

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

namespace vigrel {

// The definitions of a model in a table that can be sorted and searched, and how many are shown. Positions
// are those of the model, -1 for none; places are those in the table.
class cDefinitionList : public QWidget {
    Q_OBJECT
  public:
    // The model must outlive the list.
    explicit cDefinitionList(cDefinitionModel& model);

    // For who can't see what the list is of.
    void SetName(const QString& name);
    int Chosen() const;
    // Of a chosen file that can't be read: which, and why; else empty.
    QString ChosenUnreadable() const;
    // A search that hides the wanted one is given up.
    void Choose(int position);
    int PlaceOf(int position) const;
    // The one at the place, or the nearest to it; a file that can't be read counts.
    int PositionNear(int place) const;
    void FocusSearch();
    void Sort();
    void ShowCount();

  signals:
    void ChosenChanged();

  private:
    void MakeTable();
    void MakeSearch();

    cDefinitionModel& m_Model;
    QSortFilterProxyModel* m_Filter;
    QLineEdit* m_Search;
    QTableView* m_Table;
    QLabel* m_Count;
};

}  // namespace vigrel
