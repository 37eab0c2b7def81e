#pragma once

#include <QAction>
#include <QKeySequence>
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

}  // namespace vigrel
