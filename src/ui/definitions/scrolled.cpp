#include "ui/definitions/scrolled.h"

#include <QScrollArea>

namespace vigrel {

QWidget* Scrolled(QWidget* widget) {
    auto* area = new QScrollArea;
    area->setWidget(widget);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    // The keyboard goes to the fields within, which the area follows.
    area->setFocusPolicy(Qt::NoFocus);
    // As the surface of what it lies on, not as that of a list.
    area->viewport()->setAutoFillBackground(false);
    widget->setAutoFillBackground(false);
    return area;
}

}  // namespace vigrel
