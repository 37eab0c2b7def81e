#pragma once

#include <QCloseEvent>
#include <QEvent>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QShowEvent>
#include <QWidget>
#include <QWindow>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "platform/windows.h"
#include "ui/screen_flush.h"
#include "ui/twips.h"
#include "ui/window_list.h"

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
        const Qt::WindowStates others =
            this->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
        const Qt::WindowState own = state == eWindowState::Minimised   ? Qt::WindowMinimized
                                    : state == eWindowState::Maximised ? Qt::WindowMaximized
                                                                       : Qt::WindowNoState;
        this->setWindowState(others | own);
    }
    double Left() const override { return ToTwips(this->x()); }
    double Top() const override { return ToTwips(this->y()); }
    double Width() const override { return ToTwips(FrameSize().width()); }
    double Height() const override { return ToTwips(FrameSize().height()); }
    void SetLeft(double twips) override { this->move(ToPixels(twips), this->y()); }
    void SetTop(double twips) override { this->move(this->x(), ToPixels(twips)); }
    void SetWidth(double twips) override { SetFrameSize({ToPixels(twips), FrameSize().height()}); }
    void SetHeight(double twips) override { SetFrameSize({FrameSize().width(), ToPixels(twips)}); }
    double InnerWidth() const override { return ToTwips(this->width()); }
    double InnerHeight() const override { return ToTwips(this->height()); }

    bool Visible() const override { return this->isVisible(); }
    void Show() override {
        m_Windows.Enter(*this);
        this->show();
        FlushToScreen();
    }
    void Hide() override { this->hide(); }
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
    void Close() override {
        if (!TryClose(eCloseReason::Code)) throw cFailure(eFailure::InvalidCall, m_Name + ": not closed");
        this->hide();
    }

  protected:
    // Changes a native window live; telling the toolkit in its usual way would make a new one.
    void SetStaysOnTop(bool on) {
        this->overrideWindowFlags(this->windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
        if (this->windowHandle() != nullptr) {
            this->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
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
        if (this->OnResize) this->OnResize();
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
        if (event->type() == QEvent::WindowStateChange && this->OnResize) this->OnResize();
        if (event->type() == QEvent::ActivationChange && this->isActiveWindow() && this->OnActivate) {
            this->OnActivate();
        }
    }

  private:
    QMargins Frame() const {
        return this->windowHandle() != nullptr ? this->windowHandle()->frameMargins() : QMargins();
    }
    QSize FrameSize() const { return m_WishedFrame ? *m_WishedFrame : this->size().grownBy(Frame()); }
    void SetFrameSize(QSize size) {
        m_WishedFrame.reset();
        if (!m_FrameSeen) m_WishedFrame = size;
        this->resize(size.shrunkBy(Frame()).expandedTo({0, 0}));
    }
    void MeetFrame() {
        if (m_FrameSeen || !this->isVisible() || Frame().isNull()) return;
        m_FrameSeen = true;
        if (m_WishedFrame) SetFrameSize(*m_WishedFrame);
    }

    std::string m_Name, m_Caption;
    cOpenWindows& m_Windows;
    std::optional<QSize> m_WishedFrame;  // until the frame is seen
    bool m_FrameSeen = false, m_Closing = false;
};

}  // namespace vigrel
