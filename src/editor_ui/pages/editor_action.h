#pragma once

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

namespace vigrel {

// An action of an editor, whose keys work while the keyboard is with the editor or something in it.
inline QAction* MakeEditorAction(QWidget& editor, const QString& objectName, const QString& text,
                                 const QKeySequence& keys) {
    auto* action = new QAction(text, &editor);
    action->setObjectName(objectName);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    editor.addAction(action);
    return action;
}

// Null stands for a line between.
inline void AddEntries(QMenu& menu, const QList<QAction*>& actions) {
    for (QAction* action : actions) {
        if (action == nullptr) {
            menu.addSeparator();
        } else {
            menu.addAction(action);
        }
    }
}

}  // namespace vigrel
