#include "windows/screen_flush.h"

#include <xcb/xcb.h>

#include <QGuiApplication>

namespace vigrel {

void FlushToScreen() {
    // The off-screen platform too claims to be X11, without a connection.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 != nullptr && x11->connection() != nullptr) xcb_flush(x11->connection());
}

}  // namespace vigrel
