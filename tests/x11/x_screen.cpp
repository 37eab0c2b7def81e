#include "x11/x_screen.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace vigrel::testing {
namespace {

// What the library hands out is freed by the C library.
template <class T>
std::unique_ptr<T, decltype(&std::free)> Owned(T* pointer) {
    return {pointer, &std::free};
}

}  // namespace

cXScreen::cXScreen() : m_Connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_Connection) != 0) throw std::runtime_error("no X display");
    m_Root = xcb_setup_roots_iterator(xcb_get_setup(m_Connection)).data->root;
}

xcb_atom_t cXScreen::Atom(const std::string& name) const {
    const auto cookie =
        xcb_intern_atom(m_Connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const auto reply = Owned(xcb_intern_atom_reply(m_Connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{0};
}

std::vector<std::uint32_t> cXScreen::Property(xcb_window_t window, const std::string& property) const {
    const auto cookie =
        xcb_get_property(m_Connection, 0, window, Atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, 100000);
    const auto reply = Owned(xcb_get_property_reply(m_Connection, cookie, nullptr));
    if (!reply || reply->format != 32) return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

std::vector<std::uint32_t> cXScreen::RootWindows(const std::string& property) const {
    return Property(m_Root, property);
}

bool cXScreen::HasState(xcb_window_t window, const std::string& state) const {
    const auto states = Property(window, "_NET_WM_STATE");
    return std::find(states.begin(), states.end(), Atom(state)) != states.end();
}

xcb_window_t cXScreen::ActiveWindow() const {
    const auto windows = RootWindows("_NET_ACTIVE_WINDOW");
    return windows.empty() ? xcb_window_t{0} : windows[0];
}

bool cXScreen::IsSeen(xcb_window_t window) const {
    const auto cookie = xcb_get_window_attributes(m_Connection, window);
    const auto reply = Owned(xcb_get_window_attributes_reply(m_Connection, cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void cXScreen::ShowDesktop() const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_Root;
    message.type = Atom("_NET_SHOWING_DESKTOP");
    message.data.data32[0] = 1;
    xcb_send_event(m_Connection, 0, m_Root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(m_Connection);
}

void cXScreen::WatchPlaces() {
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_Connection, m_Root, XCB_CW_EVENT_MASK, &mask);
    const auto cookie = xcb_get_input_focus(m_Connection);  // waits for the server
    Owned(xcb_get_input_focus_reply(m_Connection, cookie, nullptr));
}

std::vector<cXScreen::cPlace> cXScreen::PlacesSeen() {
    const auto cookie = xcb_get_input_focus(m_Connection);
    Owned(xcb_get_input_focus_reply(m_Connection, cookie, nullptr));
    std::vector<xcb_window_t> mapped;
    std::vector<cPlace> places;
    const auto note = [&](xcb_window_t window) {
        const auto geometry =
            Owned(xcb_get_geometry_reply(m_Connection, xcb_get_geometry(m_Connection, window), nullptr));
        if (geometry) places.push_back({geometry->x, geometry->y});
    };
    while (const auto event = Owned(xcb_poll_for_event(m_Connection))) {
        const int type = event->response_type & 0x7F;
        if (type == XCB_MAP_NOTIFY) {
            mapped.push_back(reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window);
            note(mapped.back());
        } else if (type == XCB_CONFIGURE_NOTIFY) {
            const auto& configured = *reinterpret_cast<const xcb_configure_notify_event_t*>(event.get());
            if (std::find(mapped.begin(), mapped.end(), configured.window) != mapped.end()) {
                places.push_back({configured.x, configured.y});
            }
        }
    }
    return places;
}

}  // namespace vigrel::testing
