#include "windows/screen_flush.h"

#include <xcb/xcb.h>

#include <QGuiApplication>

namespace vigrel {

void FlushToScreen() {
    // The off-screen platform too claims to be X11, without a connection.
    if (QGuiApplication::platformName() != "xcb") return;
    xcb_flush(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection());
}

}  // namespace vigrel
