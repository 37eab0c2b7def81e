#include "windows/shown_desktop.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace vigrel {
namespace {

constexpr std::string_view kShowing = "_NET_SHOWING_DESKTOP";

// What the library hands out is freed by the C library.
template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
    return {reply, &std::free};
}

bool IsShown(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t showing) {
    const auto cookie = xcb_get_property(connection, 0, root, showing, XCB_ATOM_CARDINAL, 0, 1);
    const auto reply = Owned(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 32 || reply->value_len != 1) return false;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())) != 0;
}

void Leave(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t showing) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = root;
    message.type = showing;  // its data says no
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

}  // namespace

void LeaveShownDesktop() {
    // The off-screen platform too claims to be X11, without a connection.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) return;
    xcb_connection_t* connection = x11->connection();
    const auto cookie =
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(kShowing.size()), kShowing.data());
    const auto showing = Owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    if (!showing || showing->atom == XCB_ATOM_NONE) return;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    if (IsShown(connection, root, showing->atom)) Leave(connection, root, showing->atom);
}

}  // namespace vigrel
