#pragma once

#include <QCloseEvent>
#include <QEvent>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "platform/windows.h"
#include "windows/open_windows.h"
#include "windows/restore_icon.h"
#include "windows/screen_flush.h"
#include "windows/twips.h"

namespace vigrel {

// A top-level widget as the logic sees it: a window of any kind of window port. It enters the open windows at
// its first Show, unless its maker enters it earlier, and leaves them at its close.
//
// The window manager's frame is known only some time after a window was shown for the first time. A frame
// size that is set before is kept, answered, and given to the window when its frame is there.
template <class Port, class Widget = QWidget>
class cWidgetWindow : public Widget, public Port {
  public:
    cWidgetWindow(std::string_view name, cOpenWindows& windows)
        : Widget(nullptr), m_Name(name), m_Windows(windows) {
        this->setObjectName(ToQString(name));
    }
    ~cWidgetWindow() override { m_Windows.Leave(*this); }

    std::string Name() const override { return m_Name; }
    std::string Caption() const override { return m_Caption; }
    void SetCaption(std::string_view caption) override {
        m_Caption = caption;
        this->setWindowTitle(ToQString(caption));
    }

    eWindowState State() const override {
        if (this->isMinimized()) return eWindowState::Minimised;
        return this->isMaximized() ? eWindowState::Maximised : eWindowState::Normal;
    }
    void SetState(eWindowState state) override {
        // An icon comes back as what it was made of.
        const bool becomesIcon = state == eWindowState::Minimised;
        const Qt::WindowStates others =
            this->windowState() & ~(Qt::WindowMinimized | Qt::WindowFullScreen |
                                    (becomesIcon ? Qt::WindowNoState : Qt::WindowMaximized));
        const Qt::WindowState own = state == eWindowState::Minimised   ? Qt::WindowMinimized
                                    : state == eWindowState::Maximised ? Qt::WindowMaximized
                                                                       : Qt::WindowNoState;
        const bool wasIcon = this->isMinimized();
        ++m_StateWishes;
        this->setWindowState(others | own);
        if (wasIcon && !this->isMinimized() && this->isVisible()) BecomeWindow();
        FlushToScreen();
    }
    double Left() const override { return ToTwips(Place().x()); }
    double Top() const override { return ToTwips(Place().y()); }
    double Width() const override { return ToTwips(FrameSize().width()); }
    double Height() const override { return ToTwips(FrameSize().height()); }
    void SetLeft(double twips) override { PlaceAt({ToPixels(twips), Place().y()}); }
    void SetTop(double twips) override { PlaceAt({Place().x(), ToPixels(twips)}); }
    void SetWidth(double twips) override { SetFrameSize({ToPixels(twips), FrameSize().height()}); }
    void SetHeight(double twips) override { SetFrameSize({FrameSize().width(), ToPixels(twips)}); }
    double InnerWidth() const override { return ToTwips(this->width()); }
    double InnerHeight() const override { return ToTwips(this->height()); }

    bool Visible() const override { return this->isVisible(); }
    void Show() override {
        m_Windows.Enter(*this);
        Reappear();
        {
            const QScopedValueRollback showing(m_Showing, true);
            this->show();
        }
        FlushToScreen();
        if (std::exchange(m_ResizedInShow, false) && this->OnResize) this->OnResize();
    }
    void Hide() override { Vanish(); }
    void SetFocus() override {
        if (!this->isVisible() || this->isMinimized()) {
            throw cFailure(eFailure::InvalidCall, m_Name + ": a window that doesn't show takes no focus");
        }
        this->activateWindow();
        FlushToScreen();
    }
    void SetTopMost(bool topMost) override {
        SetStaysOnTop(topMost);
        this->raise();
        FlushToScreen();
    }
    bool CloseFor(eCloseReason reason) override {
        if (!TryClose(reason)) return false;
        this->hide();
        return true;
    }
    void Close() override {
        if (!CloseFor(eCloseReason::Code)) throw cFailure(eFailure::InvalidCall, m_Name + ": not closed");
    }

  protected:
    // Changes a native window live; telling the toolkit in its usual way would make a new one.
    void SetStaysOnTop(bool on) {
        this->overrideWindowFlags(this->windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
        if (this->windowHandle() != nullptr) {
            this->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
        }
    }
    // Hides the window and gives its native one up. A hidden native window keeps what the window manager made
    // of it, its frame, its place, its being an icon, and the toolkit remembers one or the other of it
    // depending on the moment; a new one comes up where and as the widget says.
    void Vanish() {
        if (!this->isVisible()) return;
        const bool maximised = this->isMaximized();
        const QRect restored = this->normalGeometry();  // of the inside
        m_HiddenPlace = maximised ? restored.topLeft() - FrameCorner() : Place();
        this->hide();
        this->destroy();
        if (maximised) this->resize(restored.size());
    }
    // What is to happen to a hidden window before it is shown again.
    void Reappear() {
        if (!m_HiddenPlace) return;
        // By the inside, for which the toolkit needs to know nothing of the frame.
        this->setGeometry(QRect(*m_HiddenPlace + FrameCorner(), this->size()));
        m_HiddenPlace.reset();
    }
    // The frame's upper left corner. The toolkit's own answer is without the frame now and then.
    QPoint Place() const {
        if (m_HiddenPlace) return *m_HiddenPlace;
        return m_FrameSeen ? this->geometry().topLeft() - FrameCorner() : this->pos();
    }
    void PlaceAt(QPoint place) {
        if (m_HiddenPlace) {
            m_HiddenPlace = place;
        } else {
            this->move(place);
        }
    }
    // Runs the close query and, when it isn't refused, the unload step. Whether the window is closed.
    bool TryClose(eCloseReason reason) {
        if (m_Closing || !m_Windows.Holds(*this)) return true;
        if (this->OnQueryUnload && !this->OnQueryUnload(reason)) return false;
        m_Closing = true;
        if (this->OnUnload) this->OnUnload();
        m_Windows.Leave(*this);
        Closed();
        m_Closing = false;
        return true;
    }
    // The window is no longer among the open ones; it hides next.
    virtual void Closed() {}

    void closeEvent(QCloseEvent* event) override {
        // What neither the window manager nor the program closes is closed by the end of the desktop session.
        event->setAccepted(TryClose(event->spontaneous() ? eCloseReason::Control : eCloseReason::SessionEnd));
    }
    void resizeEvent(QResizeEvent* event) override {
        Widget::resizeEvent(event);
        // Sized by somebody else: without a frame to wait for, the wish is over.
        if (m_WishedFrame && event->size() != *m_WishedFrame) m_WishedFrame.reset();
        MeetFrame();
        Resized();
    }
    void showEvent(QShowEvent* event) override {
        Widget::showEvent(event);
        MeetFrame();
    }
    void moveEvent(QMoveEvent* event) override {
        Widget::moveEvent(event);
        MeetFrame();
    }
    void changeEvent(QEvent* event) override {
        Widget::changeEvent(event);
        if (event->type() == QEvent::WindowStateChange) Resized();
        if (event->type() == QEvent::ActivationChange && this->isActiveWindow() && this->OnActivate) {
            this->OnActivate();
        }
    }

  private:
    // A window that is hidden while it is being shown would show all the same: the event waits.
    void Resized() {
        m_ResizedInShow = m_ResizedInShow || m_Showing;
        if (!m_Showing && this->OnResize) this->OnResize();
    }
    void BecomeWindow() {
        RestoreFromIcon(*this);
        // A window manager that was just making an icon of the window goes on with it.
        constexpr int kSettledMilliseconds = 200;
        QTimer::singleShot(kSettledMilliseconds, this, [this, wish = m_StateWishes] {
            if (wish != m_StateWishes || !this->isVisible() || this->windowHandle()->isExposed()) return;
            this->setWindowState(this->windowState() & ~Qt::WindowMinimized);
            RestoreFromIcon(*this);
            FlushToScreen();
        });
    }
    QPoint FrameCorner() const { return {m_Frame.left(), m_Frame.top()}; }
    QSize FrameSize() const { return m_WishedFrame ? *m_WishedFrame : this->size().grownBy(m_Frame); }
    void SetFrameSize(QSize size) {
        m_WishedFrame.reset();
        if (!m_FrameSeen) m_WishedFrame = size;
        this->resize(size.shrunkBy(m_Frame).expandedTo({0, 0}));
    }
    void MeetFrame() {
        if (!this->isVisible() || this->isMinimized() || this->windowHandle() == nullptr) return;
        const QMargins frame = this->windowHandle()->frameMargins();
        if (frame.isNull()) return;
        m_Frame = frame;
        if (std::exchange(m_FrameSeen, true)) return;
        if (m_WishedFrame) SetFrameSize(*m_WishedFrame);
    }

    std::string m_Name, m_Caption;
    cOpenWindows& m_Windows;
    std::optional<QSize> m_WishedFrame;   // until the frame is seen
    std::optional<QPoint> m_HiddenPlace;  // of the frame, while hidden by the program
    QMargins m_Frame;                     // as last seen
    bool m_FrameSeen = false, m_Closing = false;
    bool m_Showing = false, m_ResizedInShow = false;
    unsigned m_StateWishes = 0;  // how often a state was set
};

}  // namespace vigrel
