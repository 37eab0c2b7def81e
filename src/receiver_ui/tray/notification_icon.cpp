#include "receiver_ui/tray/notification_icon.h"

#include <QApplication>

#include "adapters/qt/qt_text.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

void Tell(const std::function<void()>& notice) {
    if (notice) notice();
}

}  // namespace

cNotificationIcon::cNotificationIcon(const QIcon& windowIcon) : m_WindowIcon(windowIcon) {
    for (std::size_t i = 0; i < m_Images.size(); ++i) {
        m_Images[i] = QIcon(QString(":/icons/tray/%1.svg").arg(i));
    }
    m_Icon.setObjectName("TrayArea");
    QObject::connect(&m_Icon, &QSystemTrayIcon::activated, &m_Icon,
                     [this](QSystemTrayIcon::ActivationReason reason) { Activated(reason); });
    m_Host.OnGone = [this] { Tell(OnHostGone); };
    SetIcon(WindowIcon);
}

void cNotificationIcon::SetIcon(int image) {
    if (image == WindowIcon) {
        m_Icon.setIcon(m_WindowIcon);
    } else if (image >= 0 && static_cast<std::size_t>(image) < m_Images.size()) {
        m_Icon.setIcon(m_Images[static_cast<std::size_t>(image)]);
    }
}

// Without a display there is no place for it, now or later, and the toolkit would complain of that.
void cNotificationIcon::SetVisible(bool visible) {
    if (QGuiApplication::platformName() != "offscreen") m_Icon.setVisible(visible);
}

void cNotificationIcon::SetToolTip(std::string_view text) {
    m_ToolTip = text;
    SetPlainToolTip(m_Icon, ToQString(text).remove('\r'));
}

void cNotificationIcon::Activated(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
        case QSystemTrayIcon::Trigger:
            return Clicked();
        case QSystemTrayIcon::MiddleClick:
            return Tell(OnSecondClick);
        case QSystemTrayIcon::DoubleClick:
        case QSystemTrayIcon::Context:
            m_SinceClick.invalidate();
            return Tell(OnOpen);
        case QSystemTrayIcon::Unknown:
            return;
    }
}

void cNotificationIcon::Clicked() {
    const bool second =
        m_SinceClick.isValid() && m_SinceClick.elapsed() < QApplication::doubleClickInterval();
    if (!second) {
        m_SinceClick.start();
        return Tell(OnFirstClick);
    }
    m_SinceClick.invalidate();
    Tell(OnOpen);
}

}  // namespace vigrel
