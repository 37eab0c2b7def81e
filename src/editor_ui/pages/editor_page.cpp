#include "editor_ui/pages/editor_page.h"

#include <QLineEdit>

namespace vigrel {

void cEditorPage::FinishTyping() {
    if (auto* field = qobject_cast<QLineEdit*>(focusWidget())) emit field->editingFinished();
}

QString cEditorPage::Path() const {
    return {};
}

QUndoStack* cEditorPage::UndoStack() {
    return nullptr;
}

QList<QAction*> cEditorPage::EditActions() const {
    return {};
}

}  // namespace vigrel
