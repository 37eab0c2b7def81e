#include "receiver_ui/dialogs/about_window.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QThread>

#include "common/window_procedures.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

// The longest that the start waits for the window system.
constexpr int kPaintMilliseconds = 300;

}  // namespace

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
    AwaitPainting();
}

// A window can be painted once the window system has said that it shows. The start, which goes on behind the
// box, hears that at its end only; later the event loop is there for it.
void cAboutWindow::AwaitPainting() const {
    if (thread()->loopLevel() > 0) return;
    QElapsedTimer time;
    time.start();
    while (!m_Painted && isVisible() && time.elapsed() < kPaintMilliseconds) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers);
        QThread::msleep(1);
    }
    FlushToScreen();
}

void cAboutWindow::paintEvent(QPaintEvent* event) {
    cWidgetWindow::paintEvent(event);
    m_Painted = true;
}

void cAboutWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return cWidgetWindow::keyPressEvent(event);
    if (TryClose(eCloseReason::Control)) hide();
}

}  // namespace vigrel
