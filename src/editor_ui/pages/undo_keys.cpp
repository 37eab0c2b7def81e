#include "editor_ui/pages/undo_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <memory>
#include <utility>

namespace vigrel {
namespace {

class cUndoKeys : public QObject {
  public:
    cUndoKeys(QLineEdit& field, std::function<void()> takeBack)
        : QObject(&field), m_Field(field), m_TakeBack(std::move(takeBack)) {}

  protected:
    // A key that is not accepted here goes on to the entries of the window.
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
        auto* key = dynamic_cast<QKeyEvent*>(event);
        const bool undo = key->matches(QKeySequence::Undo);
        if (!undo && !key->matches(QKeySequence::Redo)) return false;
        const bool own = undo && m_TakeBack && m_Field.isModified();
        if (own && event->type() == QEvent::KeyPress) m_TakeBack();
        event->setAccepted(own);
        return true;
    }

  private:
    QLineEdit& m_Field;
    std::function<void()> m_TakeBack;
};

void RemoveEntry(QMenu& menu, const char* text) {
    const QString wanted = QCoreApplication::translate("QLineEdit", text);
    for (QAction* action : menu.actions()) {
        if (action->text().section('\t', 0, 0) == wanted) menu.removeAction(action);
    }
}

}  // namespace

void LeaveUndoToPage(QLineEdit& field, std::function<void()> takeBack) {
    field.installEventFilter(new cUndoKeys(field, std::move(takeBack)));
    field.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&field, &QWidget::customContextMenuRequested, &field, [&field](QPoint place) {
        QMenu* menu = field.createStandardContextMenu();
        RemoveEntry(*menu, "&Undo");
        RemoveEntry(*menu, "&Redo");
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(field.mapToGlobal(place));
    });
}

}  // namespace vigrel
