#include "resources/picture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <functional>

namespace vigrel {
namespace {

constexpr double kGraphicsContrast = 3.0;

enum class ePixel { Empty, Dark, Light };

double Linear(double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a) + 0.05;
    const double y = Luminance(b) + 0.05;
    return x > y ? x / y : y / x;
}

ePixel Kind(const QColor& color) {
    if (color.alpha() < 128) return ePixel::Empty;
    return Luminance(color) < 0.5 ? ePixel::Dark : ePixel::Light;
}

double Share(const QImage& image, const std::function<bool(int, int)>& test) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += test(x, y) ? 1 : 0;
    }
    return static_cast<double>(count) / (image.width() * image.height());
}

}  // namespace

QString PicturePath(const QString& set, int number, int digits) {
    return QString(":/icons/%1/%2.svg").arg(set).arg(number, digits, 10, QChar('0'));
}

QStringList FilesBelow(const QString& folder) {
    QStringList files;
    QDirIterator found(folder, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext()) files << QDir(folder).relativeFilePath(found.next());
    files.sort();
    return files;
}

QImage Drawn(const QString& path, int size) {
    if (!QFile::exists(path)) return {};
    QSvgRenderer svg(path);
    if (!svg.isValid()) return {};
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    svg.render(&painter);
    return image;
}

double Covered(const QImage& picture) {
    return Share(picture, [&](int x, int y) { return Kind(picture.pixelColor(x, y)) != ePixel::Empty; });
}

double SilhouetteDifference(const QImage& a, const QImage& b) {
    return Share(a, [&](int x, int y) {
        return (Kind(a.pixelColor(x, y)) == ePixel::Empty) != (Kind(b.pixelColor(x, y)) == ePixel::Empty);
    });
}

double ShapeDifference(const QImage& a, const QImage& b) {
    return Share(a, [&](int x, int y) { return Kind(a.pixelColor(x, y)) != Kind(b.pixelColor(x, y)); });
}

double Readable(const QImage& picture, const QColor& ground) {
    QImage laid(picture.size(), QImage::Format_RGB32);
    laid.fill(ground);
    QPainter(&laid).drawImage(0, 0, picture);
    return Share(laid,
                 [&](int x, int y) { return Contrast(laid.pixelColor(x, y), ground) >= kGraphicsContrast; });
}

}  // namespace vigrel
