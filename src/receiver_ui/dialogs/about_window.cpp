#include "receiver_ui/dialogs/about_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "common/window_procedures.h"
#include "windows/plain_text.h"

namespace vigrel {

cAboutWindow::cAboutWindow(cOpenWindows& windows, const cScreen& screen, const cTexts& texts,
                           std::unique_ptr<cTimer> timerUnload)
    : cWidgetWindow("Vigrel_Receiver_About", windows),
      m_TimerUnload(std::move(timerUnload)),
      m_Box(*m_TimerUnload) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    cAboutWindow::SetCaption("Vigrel - Larmmottagare");

    constexpr int kIconSize = 64, kMargin = 20, kLabelWidth = 260;
    auto* icon = new cPlainLabel(this);
    icon->setPixmap(QIcon(":/icons/vigrel-receiver.svg").pixmap(kIconSize));
    auto* label = new cPlainLabel(this);
    label->setObjectName("Label");
    label->setText(ToQString(AboutText(texts)).replace("\r\n", "\n"));
    label->setAccessibleName(label->text());
    label->setMinimumWidth(kLabelWidth);  // room for the caption too
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(label);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    adjustSize();
    CenterForm(*this, screen);
    m_Box.OnClose = [this] { Close(); };
}

void cAboutWindow::Show() {
    cWidgetWindow::Show();
    // Over the main window, which keeps the keyboard.
    raise();
    FlushToScreen();
}

void cAboutWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return cWidgetWindow::keyPressEvent(event);
    if (TryClose(eCloseReason::Control)) hide();
}

}  // namespace vigrel
