#include "editor_ui/pages/editor_page.h"

#include <QEvent>
#include <QLineEdit>

namespace vigrel {

void cEditorPage::FinishTyping() {
    if (auto* field = qobject_cast<QLineEdit*>(focusWidget())) emit field->editingFinished();
}

void cEditorPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    SeenAgain();
}

void cEditorPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible()) SeenAgain();
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
