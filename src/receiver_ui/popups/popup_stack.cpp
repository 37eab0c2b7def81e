#include "receiver_ui/popups/popup_stack.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "windows/screen_flush.h"
#include "windows/shown_desktop.h"

namespace vigrel {
namespace {

void Erase(std::vector<cStackedPopup*>& popups, const cStackedPopup& popup) {
    popups.erase(std::remove(popups.begin(), popups.end(), &popup), popups.end());
}

}  // namespace

cPopupStack::cPopupStack(cOpenWindows& windows) : m_Windows(windows) {
    m_Windows.SetRaise(eLayer::Popups, [this] { RaiseAll(); });
    m_Timer.setSingleShot(true);
    m_Timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_Timer, &QTimer::timeout, &m_Timer, [this] { Due(); });
}

cPopupStack::~cPopupStack() {
    m_Windows.SetRaise(eLayer::Popups, nullptr);
}

void cPopupStack::Raise(cStackedPopup& popup) {
    Erase(m_Order, popup);
    m_Order.insert(m_Order.begin(), &popup);
    Schedule(popup);
}

void cPopupStack::PlaceBehind(cStackedPopup& popup, const cStackedPopup& other) {
    Erase(m_Order, popup);
    const auto found = std::find(m_Order.begin(), m_Order.end(), &other);
    m_Order.insert(found == m_Order.end() ? found : std::next(found), &popup);
    Schedule(popup);
}

void cPopupStack::Remove(const cStackedPopup& popup) {
    Erase(m_Order, popup);
    Erase(m_OnScreen, popup);
    std::erase(m_Waiting, &popup);
    // The popup of a later alarm is no heir.
    if (m_Order.empty()) m_SinceKeyboardLeft.invalidate();
}

void cPopupStack::Schedule(cStackedPopup& popup) {
    m_NewWishes = true;
    if (!popup.m_Waits) m_Waiting.push_back(&popup);
    popup.m_Waits = true;
    // Not 0: such a timer waits for a moment without sockets, which a busy link never gives.
    if (!m_Timer.isActive()) m_Timer.start(1);
}

// In a turn: an alarm that has brought the other window up may have come with many.
void cPopupStack::RaiseAll() {
    if (m_OnScreen.empty()) return;
    m_OnScreen.clear();
    m_NewWishes = true;
    if (!m_Timer.isActive()) m_Timer.start(1);
}

void cPopupStack::PassKeyboardOn() {
    if (m_Order.empty()) return;
    m_SinceKeyboardLeft.start();
    if (!m_Timer.isActive()) m_Timer.start(1);
}

qint64 cPopupStack::RestLeft() const {
    return m_SinceTurn.isValid() ? m_Rest - m_SinceTurn.elapsed() : 0;
}

void cPopupStack::Due() {
    // Nobody else is in a hurry while no alarm comes.
    const qint64 rest = m_NewWishes ? RestLeft() : 0;
    if (rest > 0) return m_Timer.start(static_cast<int>(rest));
    Turn(kTurnMilliseconds);
    if (Waits()) m_Timer.start(1);
}

void cPopupStack::Apply() {
    m_Timer.stop();
    Turn(std::numeric_limits<qint64>::max());
}

void cPopupStack::Turn(qint64 milliseconds) {
    QElapsedTimer turn;
    turn.start();
    bool comes = false;
    while (Waits() && turn.elapsed() < milliseconds) {
        cStackedPopup& popup = *m_Waiting.front();
        m_Waiting.pop_front();
        popup.m_Waits = false;
        if (!popup.ReachScreen()) continue;
        Erase(m_OnScreen, popup);
        comes = comes || popup.OnScreen();
    }
    BringInOrder();
    GiveKeyboard();
    if (comes) LeaveShownDesktop();
    m_Rest = turn.elapsed() * kRestsPerTurn;
    m_SinceTurn.start();
    m_NewWishes = false;
}

std::vector<cStackedPopup*> cPopupStack::VisibleOrder() const {
    std::vector<cStackedPopup*> visible;
    std::copy_if(m_Order.begin(), m_Order.end(), std::back_inserter(visible),
                 [](const cStackedPopup* popup) { return popup->OnScreen(); });
    return visible;
}

void cPopupStack::BringInOrder() {
    const std::vector<cStackedPopup*> wished = VisibleOrder();
    // What lies below the lowest change stays untouched.
    auto changed =
        std::mismatch(wished.rbegin(), wished.rend(), m_OnScreen.rbegin(), m_OnScreen.rend()).first;
    std::for_each(changed, wished.rend(), [](cStackedPopup* popup) { popup->RaiseOnScreen(); });
    if (changed != wished.rend()) m_Windows.KeepOver(eLayer::Popups);
    m_OnScreen = wished;
    FlushToScreen();
}

void cPopupStack::GiveKeyboard() {
    if (!m_SinceKeyboardLeft.isValid()) return;
    const auto next = std::find_if(m_OnScreen.begin(), m_OnScreen.end(),
                                   [](const cStackedPopup* popup) { return popup->CanTakeKeyboard(); });
    const bool late = m_SinceKeyboardLeft.hasExpired(kPassOnMilliseconds);
    if (next == m_OnScreen.end() && Waits() && !late) return;
    m_SinceKeyboardLeft.invalidate();
    if (next == m_OnScreen.end() || late) return;
    (*next)->TakeKeyboard();
    FlushToScreen();
}

}  // namespace vigrel
