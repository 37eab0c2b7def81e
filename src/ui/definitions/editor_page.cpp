#include "ui/definitions/editor_page.h"

namespace vigrel {

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
