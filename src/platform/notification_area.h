#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vigrel {

// The program's icon in the notification area. Without a host for it every call works and nothing shows.
class cNotificationArea {
  public:
    // The picture of SetIcon: one of the three images of the main window, or the window's own icon.
    static constexpr int WindowIcon = -1;

    virtual ~cNotificationArea() = default;
    virtual void SetIcon(int image) = 0;
    virtual std::string ToolTip() const = 0;
    virtual void SetToolTip(std::string_view text) = 0;
    virtual void SetVisible(bool visible) = 0;
    // Whether the desktop has a place where the icon shows; it can come and go.
    virtual bool HostAvailable() const = 0;

    std::function<void()> OnFirstClick;
    std::function<void()> OnSecondClick;
    std::function<void()> OnOpen;
    // The place where the icon shows has gone, and has not come back within some seconds.
    std::function<void()> OnHostGone;
};

}  // namespace vigrel
