#include "windows/icon_restore.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include "windows/screen_flush.h"

namespace vigrel {
namespace {

void MapWindow(const QWidget& window) {
    if (QGuiApplication::platformName() != "xcb" || window.windowHandle() == nullptr) return;
    auto* connection = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    xcb_map_window(connection, static_cast<xcb_window_t>(window.windowHandle()->winId()));
}

}  // namespace

cIconRestore::cIconRestore(QWidget& window) : m_Window(window) {
    constexpr int kSettledMilliseconds = 200;
    m_Timer.setSingleShot(true);
    m_Timer.setInterval(kSettledMilliseconds);
    QObject::connect(&m_Timer, &QTimer::timeout, [this] { Settle(); });
}

void cIconRestore::Restore() {
    MapWindow(m_Window);
    m_Timer.start();
}

void cIconRestore::Settle() {
    if (!m_Window.isVisible() || m_Window.windowHandle()->isExposed()) return;
    m_Window.setWindowState(m_Window.windowState() & ~Qt::WindowMinimized);
    MapWindow(m_Window);
    FlushToScreen();
}

}  // namespace vigrel
