#pragma once

#include <QElapsedTimer>
#include <QIcon>
#include <QSystemTrayIcon>
#include <array>
#include <string>

#include "platform/notification_area.h"
#include "receiver_ui/tray/tray_host.h"

namespace vigrel {

// The icon in the desktop's notification area. Without one it waits, and shows as soon as there is one.
//
// The gestures: a click is the first notice, a click with the middle button the second; a double click, or a
// click with the right button, opens. Some desktops don't tell of double clicks; there two clicks in quick
// succession do.
class cNotificationIcon : public cNotificationArea {
  public:
    explicit cNotificationIcon(const QIcon& windowIcon = QIcon(":/icons/vigrel-receiver.svg"));

    // An image that there is none of changes nothing.
    void SetIcon(int image) override;
    std::string ToolTip() const override { return m_ToolTip; }
    void SetToolTip(std::string_view text) override;
    void SetVisible(bool visible) override;
    bool HostAvailable() const override { return m_Host.Available(); }

    // Where the icon shows, in pixels of the screen; empty while it doesn't.
    QRect Place() const { return m_Icon.geometry(); }

  private:
    void Activated(QSystemTrayIcon::ActivationReason reason);
    void Clicked();

    QIcon m_WindowIcon;
    std::array<QIcon, 3> m_Images;
    cTrayHost m_Host;
    QSystemTrayIcon m_Icon;
    std::string m_ToolTip;
    QElapsedTimer m_SinceClick;  // not running before the first click, and after an opening
};

}  // namespace vigrel
