#include "windows/box_in_front.h"

#include <QApplication>
#include <QWidget>

namespace vigrel {

void KeepBoxInFront() {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr || !box->isVisible()) return;
    if (box->isMinimized()) {
        box->setWindowState(box->windowState() & ~Qt::WindowMinimized);
        box->activateWindow();
    }
    box->raise();
}

}  // namespace vigrel
