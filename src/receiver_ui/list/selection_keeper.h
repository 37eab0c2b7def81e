#pragma once

#include <QItemSelection>
#include <vector>

#include "receiver_ui/list/report_model.h"

class QAbstractItemView;

namespace vigrel {

// Carries the selection and the current row of a report list over a reset of its model.
class cSelectionKeeper {
  public:
    // The view has its model already.
    cSelectionKeeper(QAbstractItemView& view, const cReportModel& model);

  private:
    void Remember();
    void Restore();
    QItemSelection Selection() const;

    QAbstractItemView& m_View;
    const cReportModel& m_Model;
    std::vector<const cReportRecord*> m_Selected;
    const cReportRecord* m_Current = nullptr;
};

// The numbers of the selected rows, ascending.
std::vector<int> SelectedRowNumbers(const QAbstractItemView& view);

}  // namespace vigrel
