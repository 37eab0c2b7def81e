#include "receiver_ui/popups/popup_stack.h"

#include <algorithm>
#include <iterator>

#include "windows/screen_flush.h"

namespace vigrel {
namespace {

void Erase(std::vector<cStackedPopup*>& popups, const cStackedPopup& popup) {
    popups.erase(std::remove(popups.begin(), popups.end(), &popup), popups.end());
}

}  // namespace

void cPopupStack::Raise(cStackedPopup& popup) {
    Erase(m_Order, popup);
    m_Order.insert(m_Order.begin(), &popup);
    Schedule();
}

void cPopupStack::PlaceBehind(cStackedPopup& popup, const cStackedPopup& other) {
    Erase(m_Order, popup);
    const auto found = std::find(m_Order.begin(), m_Order.end(), &other);
    m_Order.insert(found == m_Order.end() ? found : std::next(found), &popup);
    Schedule();
}

void cPopupStack::Remove(const cStackedPopup& popup) {
    Erase(m_Order, popup);
    Erase(m_OnScreen, popup);
}

void cPopupStack::Schedule() {
    if (m_Scheduled) return;
    m_Scheduled = true;
    // A posted event comes before the next socket or timer event, however busy the link is.
    QMetaObject::invokeMethod(
        &m_Context, [this] { Apply(); }, Qt::QueuedConnection);
}

std::vector<cStackedPopup*> cPopupStack::VisibleOrder() const {
    std::vector<cStackedPopup*> visible;
    std::copy_if(m_Order.begin(), m_Order.end(), std::back_inserter(visible),
                 [](const cStackedPopup* popup) { return popup->OnScreen(); });
    return visible;
}

void cPopupStack::Apply() {
    m_Scheduled = false;
    for (cStackedPopup* popup : m_Order) {
        if (popup->ReachScreen()) Erase(m_OnScreen, *popup);
    }
    const std::vector<cStackedPopup*> wished = VisibleOrder();
    // What lies below the lowest change stays untouched.
    auto changed =
        std::mismatch(wished.rbegin(), wished.rend(), m_OnScreen.rbegin(), m_OnScreen.rend()).first;
    std::for_each(changed, wished.rend(), [](cStackedPopup* popup) { popup->RaiseOnScreen(); });
    m_OnScreen = wished;
    FlushToScreen();
}

}  // namespace vigrel
