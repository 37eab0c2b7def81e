#include "windows/icon_strip.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace vigrel {
namespace {

QPixmap Drawn(const QString& path, int size, qreal devicePixelRatio) {
    if (!QFile::exists(path)) return {};
    QSvgRenderer svg(path);
    if (!svg.isValid()) return {};
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    const int pixels = qRound(size * devicePixelRatio);
    QPixmap image(pixels, pixels);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    svg.render(&painter);
    painter.end();
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

}  // namespace

QPixmap cIconStrip::Image(int number, int size, qreal devicePixelRatio) const {
    if (number < 0 || size <= 0) return {};
    const QString key = QString("%1/%2/%3").arg(number).arg(size).arg(devicePixelRatio);
    const auto found = m_Images.constFind(key);
    if (found != m_Images.constEnd()) return *found;
    const QString path = QString("%1/%2.svg").arg(m_Folder).arg(number, 2, 10, QChar('0'));
    return *m_Images.insert(key, Drawn(path, size, devicePixelRatio));
}

}  // namespace vigrel
