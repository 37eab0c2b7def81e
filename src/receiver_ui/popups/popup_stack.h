#pragma once

#include <QObject>
#include <vector>

namespace vigrel {

// What the stack needs of a popup.
class cStackedPopup {
  public:
    virtual ~cStackedPopup() = default;
    virtual bool OnScreen() const = 0;
    virtual void RaiseOnScreen() = 0;
    // Brings place and visibility to the screen. Whether the visibility changed.
    virtual bool ReachScreen() = 0;
};

// The stacking order of the popups, as the program wishes it, and its way to the screen.
//
// A popup that the operator brings to the front stays there until the order changes around it.
//
// Window managers differ in what they make of a wish to stand behind another window. So the order is kept
// here, and the windows are raised from the lowest to the uppermost. What was wished during one handler
// reaches the screen at once when the event loop is reached again: a popup that was elsewhere, or shown, only
// for a moment is never seen so, and many popups at once cost one pass.
class cPopupStack {
  public:
    // On top of all.
    void Raise(cStackedPopup& popup);
    void PlaceBehind(cStackedPopup& popup, const cStackedPopup& other);
    void Remove(const cStackedPopup& popup);

    // Something of a popup is to reach the screen.
    void Schedule();
    void Apply();

    // All popups, the uppermost first.
    const std::vector<cStackedPopup*>& Order() const { return m_Order; }

  private:
    std::vector<cStackedPopup*> VisibleOrder() const;

    std::vector<cStackedPopup*> m_Order;
    std::vector<cStackedPopup*> m_OnScreen;  // the visible ones, as they were last brought in order
    QObject m_Context;                       // ends what is scheduled when the stack ends
    bool m_Scheduled = false;
};

}  // namespace vigrel
