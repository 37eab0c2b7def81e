#include "editor_ui/pages/editor_page.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QTabWidget>

#include "editor_ui/pages/content_editor.h"

namespace vigrel {
namespace {

// The list or table in whose open cell a field stands; none for a field of a form.
QAbstractItemView* ViewOfCell(const QWidget& field) {
    QWidget* around = field.parentWidget();
    if (around == nullptr) return nullptr;
    auto* view = qobject_cast<QAbstractItemView*>(around->parentWidget());
    return view != nullptr && view->viewport() == around ? view : nullptr;
}

// As the key Return does.
void CloseCell(QAbstractItemView& view, QWidget& field) {
    // One that is closed already goes only with the next events.
    if (!field.isVisible()) return;
    QAbstractItemDelegate& delegate = *view.itemDelegate();
    emit delegate.commitData(&field);
    emit delegate.closeEditor(&field);
    view.setFocus();
}

}  // namespace

void cEditorPage::FinishInput() {
    for (cContentEditor* editor : findChildren<cContentEditor*>()) editor->FinishStroke();
    auto* field = qobject_cast<QLineEdit*>(focusWidget());
    if (field == nullptr) return;
    if (QAbstractItemView* view = ViewOfCell(*field)) return CloseCell(*view, *field);
    emit field->editingFinished();
}

void cEditorPage::BringIntoSight(QWidget& inner) {
    for (QWidget* each = &inner; each != this && each->parentWidget() != nullptr;
         each = each->parentWidget()) {
        auto* tabs = qobject_cast<QTabWidget*>(each->parentWidget()->parentWidget());
        if (tabs != nullptr && tabs->indexOf(each) >= 0) tabs->setCurrentWidget(each);
    }
}

void cEditorPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    LeaveWheelToScrolling();
    SeenAgain();
}

void cEditorPage::LeaveWheelToScrolling() {
    for (QWidget* field : findChildren<QWidget*>()) {
        if (!qobject_cast<QComboBox*>(field) && !qobject_cast<QAbstractSpinBox*>(field)) continue;
        // By itself the wheel gives such a field the keyboard.
        field->setFocusPolicy(Qt::StrongFocus);
        field->installEventFilter(this);
    }
}

bool cEditorPage::eventFilter(QObject* watched, QEvent* event) {
    const auto* field = qobject_cast<const QWidget*>(watched);
    if (event->type() != QEvent::Wheel || field == nullptr || field->hasFocus()) return false;
    // It goes on to what lies around the field.
    event->ignore();
    return true;
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
