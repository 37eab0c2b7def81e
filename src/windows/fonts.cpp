#include "windows/fonts.h"

#include <QStringList>
#include <algorithm>

#include "adapters/qt/qt_text.h"

namespace vigrel {

QFont FontOf(std::string_view name, double points) {
    constexpr double kSmallest = 5, kLargest = 500;
    QFont font;
    font.setFamilies(QStringList{ToQString(name), "Sans Serif"});
    font.setPointSizeF(std::clamp(points, kSmallest, kLargest));
    return font;
}

}  // namespace vigrel
