#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>

namespace vigrel {

// The numbered images of the alarm list, drawn from one SVG file each ("07.svg") at the size that is asked
// for and kept by size.
class cIconStrip {
  public:
    static constexpr const char* kFolder = ":/icons/strip";

    explicit cIconStrip(QString folder = kFolder) : m_Folder(std::move(folder)) {}
    // Square, of so many pixels at 100 % scale. Null for a number without image.
    QPixmap Image(int number, int size, qreal devicePixelRatio) const;

  private:
    QString m_Folder;
    mutable QHash<QString, QPixmap> m_Images;
};

}  // namespace vigrel
