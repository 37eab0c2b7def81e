#include "support/fake_popups.h"

#include "contract/popup_contract.h"

namespace vigrel::testing {
namespace {

class cFakePopupRig {
  public:
    cPopupMaker& Maker() { return m_Maker; }
    cWindowList& Windows() { return m_Windows; }
    std::vector<const cPopupWindow*> Order() const {
        std::vector<const cPopupWindow*> order;
        for (const cWindow* window : m_Maker.m_Stack.m_Windows) {
            if (window->Visible()) order.push_back(dynamic_cast<const cPopupWindow*>(window));
        }
        return order;
    }

  private:
    cTranscript m_Transcript;
    cFakeWindowList m_Windows;
    cFakePopupMaker m_Maker{m_Transcript, m_Windows};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, PopupContract, cFakePopupRig);

}  // namespace
}  // namespace vigrel::testing
