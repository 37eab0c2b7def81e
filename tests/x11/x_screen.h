#pragma once

#include <xcb/xcb.h>

#include <string>
#include <vector>

namespace vigrel::testing {

// Looks at the display as another program does.
class cXScreen {
  public:
    cXScreen();
    ~cXScreen() { xcb_disconnect(m_Connection); }
    cXScreen(const cXScreen&) = delete;
    cXScreen& operator=(const cXScreen&) = delete;

    // The windows, or atoms, that a property of the root window lists.
    std::vector<std::uint32_t> RootWindows(const std::string& property) const;
    // Those that a property of a window lists.
    std::vector<std::uint32_t> Property(xcb_window_t window, const std::string& property) const;
    bool HasState(xcb_window_t window, const std::string& state) const;
    xcb_window_t ActiveWindow() const;
    bool IsSeen(xcb_window_t window) const;
    // As a key of the desktop does: takes all windows away.
    void ShowDesktop() const;

    // From now on, notes where top-level windows, the frames among them, are put while they can be seen.
    void WatchPlaces();
    struct cPlace {
        int x, y;
    };
    std::vector<cPlace> PlacesSeen();

  private:
    xcb_atom_t Atom(const std::string& name) const;

    xcb_connection_t* m_Connection;
    xcb_window_t m_Root = 0;
};

}  // namespace vigrel::testing
