#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>

namespace vigrel {

// ":/icons/<set>/<number>.svg", the number with at least so many digits.
QString PicturePath(const QString& set, int number, int digits);
// All files below a folder, relative to it, sorted. Works on resources and on disk.
QStringList FilesBelow(const QString& folder);

// Square, transparent where nothing is drawn. Null when the file is missing or no SVG.
QImage Drawn(const QString& path, int size);

// The following are shares of all pixels of the image, 0 to 1.
double Covered(const QImage& picture);
// Where one picture covers the ground and the other doesn't.
double SilhouetteDifference(const QImage& a, const QImage& b);
// Where they differ when each pixel is only told as empty, dark or light: what is left without colour.
double ShapeDifference(const QImage& a, const QImage& b);
// Of the picture laid on a ground: where it stands out from that ground by 3 to 1, which is what WCAG 2.1
// asks of graphics.
double Readable(const QImage& picture, const QColor& ground);

}  // namespace vigrel
