#include "receiver_ui/tray/tray_host.h"

#include <xcb/xcb.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace vigrel {
namespace {

constexpr int kLookMilliseconds = 1000;
// How long the start waits for the bus's answer.
constexpr int kBusMilliseconds = 1000;
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

// The question whether the bus has a notification area.
QDBusMessage BusQuestion() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(kWatcher, kWatcherPath, "org.freedesktop.DBus.Properties", "Get");
    question << kWatcher << "IsStatusNotifierHostRegistered";
    return question;
}

bool IsYes(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

}  // namespace

cTrayHost::cTrayHost() {
    m_Settle.setSingleShot(true);
    m_Settle.setInterval(kSettleMilliseconds);
    connect(&m_Settle, &QTimer::timeout, this, [this] {
        if (OnGone && !Available()) OnGone();
    });
    if (m_Bus.isConnected()) m_UsesBus = IsYes(m_Bus.call(BusQuestion(), QDBus::Block, kBusMilliseconds));
    if (m_UsesBus) {
        WatchBus();
    } else if (QGuiApplication::platformName() == "xcb") {
        // The off-screen platform too claims to be X11, without a connection.
        WatchScreen();
    }
}

bool cTrayHost::Available() const {
    return m_UsesBus ? m_BusHost : QSystemTrayIcon::isSystemTrayAvailable();
}

// --- the screen

void cTrayHost::WatchScreen() {
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

std::uint32_t cTrayHost::ScreenHost() const {
    const auto cookie = xcb_get_selection_owner(Connection(), m_Atom);
    const ReplyPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(Connection(), cookie, nullptr), std::free);
    return reply ? reply->owner : 0;
}

// --- the bus

void cTrayHost::WatchBus() {
    m_BusHost = true;
    auto* watcher = new QDBusServiceWatcher(kWatcher, m_Bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &cTrayHost::AskBus);
    for (const char* change : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        m_Bus.connect(kWatcher, kWatcherPath, kWatcher, change, this, SLOT(AskBus()));
    }
    // A bus that ends says of nobody that he has gone. Its library says this.
    m_Bus.connect("", "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", this,
                  SLOT(AskBus()));
}

void cTrayHost::AskBus() {
    auto* answer = new QDBusPendingCallWatcher(m_Bus.asyncCall(BusQuestion()), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        SetBusHost(IsYes(finished->reply()));
        finished->deleteLater();
    });
}

void cTrayHost::SetBusHost(bool there) {
    if (std::exchange(m_BusHost, there) && !there) Left();
}

}  // namespace vigrel
