#include "windows/restore_icon.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace vigrel {

void RestoreFromIcon(QWidget& window) {
    if (QGuiApplication::platformName() != "xcb" || window.windowHandle() == nullptr) return;
    auto* connection = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    xcb_map_window(connection, static_cast<xcb_window_t>(window.windowHandle()->winId()));
}

}  // namespace vigrel
