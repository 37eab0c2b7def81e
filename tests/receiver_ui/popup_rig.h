#pragma once

#include <vector>

#include "receiver_ui/popups/popup_widget.h"

namespace vigrel::testing {

// The real popups, for contract/popup_contract.h.
class cPopupWidgetRig {
  public:
    cPopupMaker& Maker() { return m_Maker; }
    cWindowList& Windows() { return m_Windows; }
    std::vector<const cPopupWindow*> Order() {
        m_Maker.Stack().Apply();
        std::vector<const cPopupWindow*> order;
        for (const cStackedPopup* popup : m_Maker.Stack().Order()) {
            if (popup->OnScreen()) order.push_back(dynamic_cast<const cPopupWindow*>(popup));
        }
        return order;
    }

  private:
    cOpenWindows m_Windows;
    cPopupWidgetMaker m_Maker{m_Windows};
};

}  // namespace vigrel::testing
