#include "windows/seen_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace vigrel {

QPoint SeenPlace(const QRect& frame) {
    const auto screens = QGuiApplication::screens();
    const bool seen = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().intersects(frame);
    });
    return seen ? frame.topLeft() : QGuiApplication::primaryScreen()->availableGeometry().topLeft();
}

}  // namespace vigrel
