#pragma once

#include <QAction>
#include <QCoreApplication>
#include <QList>

class QLayout;

namespace vigrel {

// What can be done with the definitions of a page: actions of the page with their keys, and buttons for them.
class cDefinitionActions {
    Q_DECLARE_TR_FUNCTIONS(cDefinitionActions)
  public:
    explicit cDefinitionActions(QWidget& page);

    // Where one is chosen, and where it has changes.
    void Enable(bool chosen, bool changed) const;
    // For a menu; null for a line between.
    QList<QAction*> Entries() const { return {m_New, m_Copy, m_Delete, nullptr, m_Save, m_Revert}; }
    // The caller owns them.
    QWidget* MakeButtons() const;

    QAction *m_New, *m_Copy, *m_Delete, *m_Save, *m_Revert, *m_Find;

  private:
    static QLayout* MakeRow(const QList<QAction*>& actions);
};

}  // namespace vigrel
