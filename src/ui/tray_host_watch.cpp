#include "ui/tray_host_watch.h"

#include <xcb/xcb.h>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace vigrel {
namespace {

constexpr int kLookMilliseconds = 1000;
// X11's name of the notification area; of several screens the first has it.
constexpr std::string_view kSelection = "_NET_SYSTEM_TRAY_S0";
// The bus's.
const char* const kWatcher = "org.kde.StatusNotifierWatcher";
const char* const kWatcherPath = "/StatusNotifierWatcher";

template <class Reply>
using ReplyPtr = std::unique_ptr<Reply, void (*)(void*)>;

xcb_connection_t* Connection() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

}  // namespace

cTrayHostWatch::cTrayHostWatch(std::function<bool()> hostAvailable)
    : m_HostAvailable(std::move(hostAvailable)) {
    m_Settle.setSingleShot(true);
    m_Settle.setInterval(kSettleMilliseconds);
    connect(&m_Settle, &QTimer::timeout, this, [this] {
        if (OnGone && !m_HostAvailable()) OnGone();
    });
    // The off-screen platform too claims to be X11, without a connection.
    if (QGuiApplication::platformName() == "xcb") WatchScreen();
    WatchBus();
}

void cTrayHostWatch::WatchScreen() {
    const auto cookie = xcb_intern_atom(Connection(), 0, kSelection.size(), kSelection.data());
    const ReplyPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(Connection(), cookie, nullptr),
                                                  std::free);
    if (!reply) return;
    m_Atom = reply->atom;
    m_Owner = ScreenHost();
    connect(&m_Look, &QTimer::timeout, this, [this] {
        const std::uint32_t before = std::exchange(m_Owner, ScreenHost());
        if (before != 0 && m_Owner != before) Left();
    });
    m_Look.start(kLookMilliseconds);
}

std::uint32_t cTrayHostWatch::ScreenHost() const {
    const auto cookie = xcb_get_selection_owner(Connection(), m_Atom);
    const ReplyPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(Connection(), cookie, nullptr), std::free);
    return reply ? reply->owner : 0;
}

void cTrayHostWatch::WatchBus() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    auto* watcher = new QDBusServiceWatcher(kWatcher, bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &cTrayHostWatch::Left);
    bus.connect(kWatcher, kWatcherPath, kWatcher, "StatusNotifierHostUnregistered", this, SLOT(Left()));
}

}  // namespace vigrel
