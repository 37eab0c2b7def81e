#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

enum class eWindowState : std::int16_t { Normal = 0, Minimised = 1, Maximised = 2 };

// Reason of a close, as a window's close query gets it. Other values stand for other causes.
enum class eCloseReason : std::int16_t {
    Control = 0,
    Code = 1,
    SessionEnd = 2,
    TaskManager = 3,
    Interrupt = 4,  // somebody at the terminal that the program was started from
};

// One window. Lengths and positions are in twips (1440 to the inch, 15 to a pixel at 100 % scale) and speak
// of the frame unless named inner. Every method can throw cFailure when the window is gone.
class cWindow {
  public:
    virtual ~cWindow() = default;
    // The name of the window's kind, such as "Vigrel_Receiver_Main".
    virtual std::string Name() const = 0;
    virtual std::string Caption() const = 0;
    virtual void SetCaption(std::string_view caption) = 0;

    virtual eWindowState State() const = 0;
    virtual void SetState(eWindowState state) = 0;
    virtual double Left() const = 0;
    virtual double Top() const = 0;
    virtual double Width() const = 0;
    virtual double Height() const = 0;
    virtual void SetLeft(double twips) = 0;
    virtual void SetTop(double twips) = 0;
    virtual void SetWidth(double twips) = 0;
    virtual void SetHeight(double twips) = 0;
    virtual double InnerWidth() const = 0;
    virtual double InnerHeight() const = 0;

    virtual bool Visible() const = 0;
    // Shows without blocking.
    virtual void Show() = 0;
    virtual void Hide() = 0;
    // Throws cFailure when the window is hidden or minimised.
    virtual void SetFocus() = 0;
    // Over all ordinary windows, or back among them.
    virtual void SetTopMost(bool topMost) = 0;
    // Runs the close query with the reason and, when it isn't refused, the unload step; then the window is no
    // longer among the open ones, and its memory lives until the event loop is reached again. Whether the
    // window is closed.
    virtual bool CloseFor(eCloseReason reason) = 0;
    // Closes for the reason Code. Throws cFailure when the close was refused.
    virtual void Close() = 0;

    // --- events
    std::function<void()> OnActivate;
    // The window's size or state has changed.
    std::function<void()> OnResize;
    // The close query: whether the window may be closed for that reason. Without a listener it may.
    std::function<bool(eCloseReason)> OnQueryUnload;
    // The unload step: once, the last event of the window, which still is among the open ones.
    std::function<void()> OnUnload;
};

class cScreen {
  public:
    virtual ~cScreen() = default;
    virtual double Width() const = 0;   // twips
    virtual double Height() const = 0;  // twips
    virtual double TwipsPerPixelX() const = 0;
    virtual double TwipsPerPixelY() const = 0;
};

// The open windows of the program, in the order in which they were opened. Read it afresh at every step of a
// walk: closing a window shortens it.
class cWindowList {
  public:
    virtual ~cWindowList() = default;
    virtual std::vector<cWindow*> OpenWindows() = 0;
};

enum class eMessageIcon { Warning, Stop, Question };
enum class eMessageButtons { Ok, YesNo };
enum class eMessageAnswer { Ok, Yes, No };

class cMessageBox {
  public:
    virtual ~cMessageBox() = default;
    // Blocks the caller until the operator has answered; closing the box without an answer is Ok, or No.
    virtual eMessageAnswer Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) = 0;
    // A message that need not be answered: after a minute it goes by itself, so that a program that nobody
    // watches gets on.
    virtual void ShowForAWhile(std::string_view text, eMessageIcon icon) = 0;
};

class cClipboard {
  public:
    virtual ~cClipboard() = default;
    virtual void Clear() = 0;
    virtual void SetText(std::string_view text) = 0;
};

class cBeeper {
  public:
    virtual ~cBeeper() = default;
    // One beep of the system; does not block.
    virtual void Beep() = 0;
};

// The entries of the main window's menus, by element name: "Menu_AckAll". A menu is an entry of its own.
class cMenus {
  public:
    virtual ~cMenus() = default;
    // "&" marks the access key; what stands behind a TAB is the shortcut, for showing.
    virtual void SetCaption(std::string_view entry, std::string_view caption) = 0;
    virtual void SetEnabled(std::string_view entry, bool enabled) = 0;
    virtual void SetVisible(std::string_view entry, bool visible) = 0;

    // --- events: the menu opens, an entry was chosen
    std::function<void()> OnMenuFileOpens;
    std::function<void()> OnMenuStopSound;
    std::function<void()> OnMenuStopLight;
    std::function<void()> OnMenuAckAll;
    std::function<void()> OnMenuAckAllAndClosePopups;
    std::function<void()> OnMenuExit;
    std::function<void()> OnMenuSimAlarm;
};

}  // namespace vigrel
