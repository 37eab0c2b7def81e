#include "editor_ui/colours/swatch.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

namespace vigrel {

QIcon Swatch(const QColor& colour) {
    // Seen on white and on black alike.
    const QColor border(128, 128, 128);
    const int size = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
    const qreal scale = qApp->devicePixelRatio();
    QPixmap pixmap(QSize(size, size) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(border);
    QPainter(&pixmap).fillRect(1, 1, size - 2, size - 2, colour);
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

}  // namespace vigrel
