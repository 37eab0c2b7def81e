#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <deque>
#include <vector>

#include "windows/open_windows.h"

namespace vigrel {

// What the stack needs of a popup.
class cStackedPopup {
  public:
    virtual ~cStackedPopup() = default;
    virtual bool OnScreen() const = 0;
    virtual void RaiseOnScreen() = 0;
    // Brings place and visibility to the screen. Whether the visibility changed.
    virtual bool ReachScreen() = 0;
    // Whether the operator can type into it: it shows, and is no icon.
    virtual bool CanTakeKeyboard() const = 0;
    virtual void TakeKeyboard() = 0;

  private:
    friend class cPopupStack;
    bool m_Waits = false;  // for its turn to reach the screen
};

// The stacking order of the popups, as the program wishes it, and its way to the screen.
//
// A popup that the operator brings to the front stays there until the order changes around it.
//
// Window managers differ in what they make of a wish to stand behind another window. So the order is kept
// here, and the windows are raised from the lowest to the uppermost. What was wished during one handler
// reaches the screen after it: a popup that was elsewhere, or shown, only for a moment is never seen so, and
// many popups at once cost one pass.
//
// Many popups come up in the order of the wishes, in short turns. Between the turns everything else has its
// own: while alarms keep coming in, a rest of several times what the turn took, in which the X server and the
// window manager, too, are done with the windows and leave the processors to the link.
class cPopupStack {
  public:
    // The longest that a turn lasts, but for what its last popup takes.
    static constexpr int kTurnMilliseconds = 20;
    static constexpr int kRestsPerTurn = 9;
    // As long as the next popup may take to show and still gets the keyboard: later the operator may be at
    // something else.
    static constexpr int kPassOnMilliseconds = 1000;

    explicit cPopupStack(cOpenWindows& windows);
    ~cPopupStack();
    cPopupStack(const cPopupStack&) = delete;
    cPopupStack& operator=(const cPopupStack&) = delete;

    // On top of all.
    void Raise(cStackedPopup& popup);
    void PlaceBehind(cStackedPopup& popup, const cStackedPopup& other);
    void Remove(const cStackedPopup& popup);

    // The popup that had the keyboard is gone: the uppermost of the others gets it, and not the window
    // behind, where the next key would do something else. Nothing when none shows soon.
    void PassKeyboardOn();

    // Something of the popup is to reach the screen.
    void Schedule(cStackedPopup& popup);
    // All that waits reaches the screen now.
    void Apply();
    // Whether something waits.
    bool Waits() const { return !m_Waiting.empty(); }

    // All popups, the uppermost first.
    const std::vector<cStackedPopup*>& Order() const { return m_Order; }

  private:
    // Another window has come up over them.
    void RaiseAll();
    void Due();
    void Turn(qint64 milliseconds);
    void BringInOrder();
    void GiveKeyboard();
    qint64 RestLeft() const;
    std::vector<cStackedPopup*> VisibleOrder() const;

    cOpenWindows& m_Windows;
    std::vector<cStackedPopup*> m_Order;
    std::vector<cStackedPopup*> m_OnScreen;  // the visible ones, as they were last brought in order
    std::deque<cStackedPopup*> m_Waiting;    // in the order of the wishes
    QTimer m_Timer;                          // of the next turn
    QElapsedTimer m_SinceTurn;               // since the end of the last one
    qint64 m_Rest = 0;                       // behind it, milliseconds
    bool m_NewWishes = false;                // since it
    QElapsedTimer m_SinceKeyboardLeft;       // valid while the keyboard is to be passed on
};

}  // namespace vigrel
