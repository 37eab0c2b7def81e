#include "receiver_ui/dialogs/notice_window.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

#include "adapters/qt/qt_text.h"
#include "common/settings.h"
#include "windows/shown_desktop.h"

namespace vigrel {

cNoticeWindow::cNoticeWindow(cOpenWindows& windows) : cWidgetWindow("Vigrel_Receiver_Notice", windows) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                   Qt::WindowStaysOnTopHint);
    cNoticeWindow::SetCaption(kProductName);
    constexpr int kIconSize = 48, kMargin = 16, kLabelWidth = 360;
    auto* icon = new cPlainLabel(this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(kIconSize));
    m_Label.setObjectName("Label_Notice");
    m_Label.setWordWrap(true);
    m_Label.setMinimumWidth(kLabelWidth);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(&m_Label, 1);
    windows.SetRaise(eLayer::Notice, [this] { RaiseAgain(); });
}

cNoticeWindow::~cNoticeWindow() {
    Windows().SetRaise(eLayer::Notice, nullptr);
}

void cNoticeWindow::Show() {
    cWidgetWindow::Show();
    RaiseAgain();
    Windows().KeepOver(eLayer::Notice);
    LeaveShownDesktop();
    FlushToScreen();
}

// One that the operator has put away stays so until its next text.
void cNoticeWindow::RaiseAgain() {
    if (isVisible() && !isMinimized()) raise();
}

void cNoticeWindow::SetText(std::string_view text) {
    m_Label.setText(ToQString(text).replace("\r\n", "\n"));
    m_Label.setAccessibleName(m_Label.text());
    adjustSize();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void cNoticeWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return cWidgetWindow::keyPressEvent(event);
    if (TryClose(eCloseReason::Control)) hide();
}

}  // namespace vigrel
