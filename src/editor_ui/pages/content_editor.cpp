#include "editor_ui/pages/content_editor.h"

namespace vigrel {

void cContentEditor::Edit(const QString& name, const std::function<void()>& edit) {
    FinishStroke();
    BeginEdit();
    edit();
    EndEdit(name);
}

void cContentEditor::BeginEdit() {
    m_StateBefore = State();
}

void cContentEditor::EndEdit(const QString& name) {
    std::string after = State();
    if (after != m_StateBefore) emit Edited({name, m_StateBefore, std::move(after)});
}

void cContentEditor::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    FinishStroke();
}

}  // namespace vigrel
