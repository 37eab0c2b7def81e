#pragma once

#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QMenu>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QShowEvent>
#include <QWidget>
#include <QWindow>
#include <string>
#include <string_view>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "platform/windows.h"
#include "windows/box_in_front.h"
#include "windows/icon_restore.h"
#include "windows/open_windows.h"
#include "windows/resize_notice.h"
#include "windows/screen_flush.h"
#include "windows/twips.h"
#include "windows/window_close.h"
#include "windows/window_frame.h"
#include "windows/window_hiding.h"
#include "windows/window_state.h"

namespace vigrel {

// A top-level widget as the logic sees it: a window of any kind of window port. It enters the open windows at
// its first Show, unless its maker enters it earlier, and leaves them at its close.
//
// What it remembers is kept by five parts, each with its states in its own header; none looks at another's
// but the hiding, which reads the frame:
//
// part           states                   what moves it here
// -------------  -----------------------  ------------------------------------------------------------------
// cWindowFrame   Unseen, Wished, Seen     SetWidth, SetHeight; the events of size, place and showing
// cWindowHiding  There, Hidden            Hide (Vanish); Show (Reappear)
// cIconRestore   Settled, Settling        SetState, of an icon that becomes a window; any other SetState
// cResizeNotice  Telling, Holding, Kept   Show; the events of size and state
// cWindowClose   Open, Closing, Closed    CloseFor, Close, the window's own close; Show
template <class Port, class Widget = QWidget>
class cWidgetWindow : public Widget, public Port {
  public:
    cWidgetWindow(std::string_view name, cOpenWindows& windows) : m_Name(name), m_Windows(windows) {
        this->setObjectName(ToQString(name));
    }
    ~cWidgetWindow() override { m_Windows.Leave(*this); }

    std::string Name() const override { return m_Name; }
    std::string Caption() const override { return m_Caption; }
    void SetCaption(std::string_view caption) override {
        m_Caption = caption;
        this->setWindowTitle(ToQString(caption));
    }

    eWindowState State() const override { return StateOf(*this); }
    void SetState(eWindowState state) override {
        const bool wasIcon = this->isMinimized();
        m_IconRestore.Forget();
        this->setWindowState(WithState(this->windowState(), state));
        if (wasIcon && !this->isMinimized() && this->isVisible()) m_IconRestore.Restore();
        FlushToScreen();
    }
    double Left() const override { return ToTwips(Place().x()); }
    double Top() const override { return ToTwips(Place().y()); }
    double Width() const override { return ToTwips(m_Hiding.Size().width()); }
    double Height() const override { return ToTwips(m_Hiding.Size().height()); }
    void SetLeft(double twips) override { PlaceAt({ToPixels(twips), Place().y()}); }
    void SetTop(double twips) override { PlaceAt({Place().x(), ToPixels(twips)}); }
    void SetWidth(double twips) override { m_Frame.SetSize({ToPixels(twips), m_Frame.Size().height()}); }
    void SetHeight(double twips) override { m_Frame.SetSize({m_Frame.Size().width(), ToPixels(twips)}); }
    double InnerWidth() const override { return ToTwips(this->width()); }
    double InnerHeight() const override { return ToTwips(this->height()); }

    bool Visible() const override { return this->isVisible(); }
    void Show() override {
        m_Windows.Enter(*this);
        m_Hiding.Reappear();
        m_ResizeNotice.Hold();
        ShowBesideMenus();
        KeepBoxInFront();
        FlushToScreen();
        m_ResizeNotice.Release();
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
        KeepBoxInFront();
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
    cOpenWindows& Windows() { return m_Windows; }
    // Changes a native window live; telling the toolkit in its usual way would make a new one.
    void SetStaysOnTop(bool on) {
        this->overrideWindowFlags(this->windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
        if (this->windowHandle() != nullptr) {
            this->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
        }
    }
    // The toolkit closes an open menu when it shows a window, but for a tool's: while alarms keep coming in,
    // nobody would get at an entry.
    void ShowBesideMenus() {
        if (QApplication::activePopupWidget() == nullptr) return this->show();
        this->create();
        const Qt::WindowFlags flags = this->windowFlags();
        this->overrideWindowFlags((flags & ~Qt::WindowType_Mask) | Qt::Tool);
        this->show();
        this->overrideWindowFlags(flags);
    }
    void Vanish() {
        for (QMenu* menu : this->template findChildren<QMenu*>()) {
            if (menu->isVisible()) menu->close();
        }
        m_Hiding.Vanish();
    }
    void Reappear() { m_Hiding.Reappear(); }
    QPoint Place() const { return m_Hiding.Place(); }
    void PlaceAt(QPoint place) { m_Hiding.PlaceAt(place); }
    bool TryClose(eCloseReason reason) { return m_Close.TryClose(reason); }
    // The window is no longer among the open ones; it hides next.
    virtual void Closed() {}

    void closeEvent(QCloseEvent* event) override {
        // What neither the window manager nor the program closes is closed by the end of the desktop session.
        event->setAccepted(TryClose(event->spontaneous() ? eCloseReason::Control : eCloseReason::SessionEnd));
    }
    void resizeEvent(QResizeEvent* event) override {
        Widget::resizeEvent(event);
        m_Frame.Resized(event->size());
        m_ResizeNotice.Resized();
    }
    void showEvent(QShowEvent* event) override {
        Widget::showEvent(event);
        m_Frame.Meet();
    }
    void moveEvent(QMoveEvent* event) override {
        Widget::moveEvent(event);
        m_Frame.Meet();
    }
    void changeEvent(QEvent* event) override {
        Widget::changeEvent(event);
        if (event->type() == QEvent::WindowStateChange) m_ResizeNotice.Resized();
        if (event->type() == QEvent::ActivationChange && this->isActiveWindow() && this->OnActivate) {
            this->OnActivate();
        }
    }

  private:
    std::string m_Name, m_Caption;
    cOpenWindows& m_Windows;
    cWindowFrame m_Frame{*this};
    cWindowHiding m_Hiding{*this, m_Frame, [this] { this->destroy(); }};
    cIconRestore m_IconRestore{*this};
    cResizeNotice m_ResizeNotice{this->OnResize};
    cWindowClose m_Close{*this, m_Windows, [this] { Closed(); }};
};

}  // namespace vigrel
