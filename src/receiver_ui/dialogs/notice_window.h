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
    void SetText(std::string_view text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    cPlainLabel m_Label;
};

}  // namespace vigrel
