#pragma once

#include <memory>

#include "common/about_box.h"
#include "windows/widget_window.h"

namespace vigrel {

// The about box, in the middle of the screen. It closes by itself; the operator can close it before. It does
// not take the keyboard.
class cAboutWindow : public cWidgetWindow<cWindow> {
  public:
    // The timer is the box's Timer_Unload, of cAboutBox::kTickInterval.
    cAboutWindow(cOpenWindows& windows, const cScreen& screen, const cTexts& texts,
                 std::unique_ptr<cTimer> timerUnload);

    // Painted when it is over, also where the event loop has not begun.
    void Show() override;

  protected:
    void Closed() override { m_Box.Unload(); }
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void AwaitPainting() const;

    std::unique_ptr<cTimer> m_TimerUnload;
    cAboutBox m_Box;
    bool m_Painted = false;
};

}  // namespace vigrel
