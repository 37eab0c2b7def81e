#pragma once

#include <string_view>

#include "platform/windows.h"
#include "windows/plain_text.h"
#include "windows/widget_window.h"

namespace vigrel {

// Something that the operator must know and can do nothing about here. It stays above the other windows,
// whatever state they are in, and leaves the keyboard where it is.
class cNoticeWindow : public cWidgetWindow<cWindow> {
  public:
    explicit cNoticeWindow(cOpenWindows& windows);
    ~cNoticeWindow() override;
    void SetText(std::string_view text);
    void Show() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void RaiseAgain();

    cPlainLabel m_Label;
};

}  // namespace vigrel
