#include "editor_ui/records/definition_actions.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "editor_ui/pages/editor_action.h"

namespace vigrel {
namespace {

QAction* MakeAction(QWidget& page, const char* objectName, const QString& text, const QString& tip,
                    const QKeySequence& keys) {
    QAction* action = MakeEditorAction(page, objectName, text, keys);
    action->setToolTip(keys.isEmpty() ? tip : tip + " (" + keys.toString(QKeySequence::NativeText) + ")");
    return action;
}

}  // namespace

cDefinitionActions::cDefinitionActions(QWidget& page)
    : m_New(MakeAction(page, "Action_New", tr("&New"), tr("Make a new one"), QKeySequence("Ctrl+Ins"))),
      m_Copy(MakeAction(page, "Action_Copy", tr("&Copy"), tr("Make a copy of the chosen one"),
                        QKeySequence("Ctrl+Shift+D"))),
      m_Delete(MakeAction(page, "Action_Delete", tr("&Delete"), tr("Delete the chosen one"),
                          QKeySequence("Ctrl+Del"))),
      m_Save(MakeAction(page, "Action_Save", tr("Sa&ve this"), tr("Save the chosen one; Ctrl+S saves all"),
                        QKeySequence())),
      m_Revert(MakeAction(page, "Action_Revert", tr("R&evert"), tr("Give up the changes of the chosen one"),
                          QKeySequence())),
      m_Find(MakeAction(page, "Action_Find", tr("Find"), tr("Search in the list"), QKeySequence::Find)) {}

void cDefinitionActions::Enable(bool chosen, bool changed) const {
    m_Copy->setEnabled(chosen);
    m_Delete->setEnabled(chosen);
    m_Save->setEnabled(changed);
    m_Revert->setEnabled(changed);
}

// In two rows, so that they don't take the form's room.
QWidget* cDefinitionActions::MakeButtons() const {
    auto* panel = new QWidget;
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(MakeRow({m_New, m_Copy, m_Delete}));
    rows->addLayout(MakeRow({m_Save, m_Revert}));
    return panel;
}

QLayout* cDefinitionActions::MakeRow(const QList<QAction*>& actions) {
    auto* layout = new QHBoxLayout;
    for (QAction* action : actions) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString(action->objectName()).replace("Action_", "Button_"));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return layout;
}

}  // namespace vigrel
