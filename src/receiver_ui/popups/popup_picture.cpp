#include "receiver_ui/popups/popup_picture.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <array>

namespace vigrel {

cPopupPicture::cPopupPicture(int status, const QIcon& icon, QWidget* parent)
    : QAbstractButton(parent), m_Icon(icon) {
    constexpr std::array<const char*, 4> kNames{"Inactive", "Active", "Acknowledged", "Message"};
    const QString name = kNames[static_cast<std::size_t>(status)];
    setObjectName(QString("Picture_Alarm_%1").arg(status));
    setAccessibleName(name + ", close");
    setAccessibleDescription("Closes the popup");
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
    setVisible(false);
}

void cPopupPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_Icon.paint(&painter, QRect(0, 0, kSize, kSize));
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void cPopupPicture::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) {
        QAbstractButton::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        // A key that is held down must not close one popup after the other.
        click();
    }
}

}  // namespace vigrel
