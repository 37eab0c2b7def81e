#include "editor_ui/pages/scrolled.h"

#include <QApplication>
#include <QScrollArea>

namespace vigrel {

QWidget* Scrolled(QWidget* widget) {
    auto* area = new QScrollArea;
    area->setWidget(widget);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    // The keyboard goes to the fields within. The area by itself follows the tab key only, not the keys of
    // labels.
    area->setFocusPolicy(Qt::NoFocus);
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* field) {
        if (field != nullptr && area->widget()->isAncestorOf(field)) area->ensureWidgetVisible(field);
    });
    // As the surface of what it lies on, not as that of a list.
    area->viewport()->setAutoFillBackground(false);
    widget->setAutoFillBackground(false);
    return area;
}

}  // namespace vigrel
