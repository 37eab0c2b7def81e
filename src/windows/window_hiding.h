#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <functional>
#include <optional>
#include <utility>

#include "windows/window_frame.h"

class QWidget;

namespace vigrel {

// Hides a window and brings it back where it was, or where a screen is when its own has gone. A hidden native
// window keeps what the window manager made of it, its frame, its place, its being an icon, and the toolkit
// remembers one or the other of it depending on the moment; so the native one is given up, and a new one
// comes up where and as the widget says.
//
// state   its place is                 setting a place      leaves the state by
// ------  ---------------------------  -------------------  -------------------
// There   where the frame stands       moves the window     Vanish -> Hidden
// Hidden  where the frame stood, or    is kept              Reappear -> There
//         what was set since
//
// The native window goes when the event is over in which the window hides: the toolkit, which delivers it,
// goes on with that window behind the handler.
//
// A window that was never shown is There, at what the toolkit was told.
//
// What is maximised while it hides comes back so, whatever it is as an icon meanwhile, and has the place and
// the size of its frame on the screen. Those that it has as an ordinary window count as soon as it is told to
// be one, or another place is set.
class cWindowHiding {
  public:
    // giveUp lets go of the native window.
    cWindowHiding(QWidget& window, const cWindowFrame& frame, std::function<void()> giveUp)
        : m_Window(window), m_Frame(frame), m_GiveUp(std::move(giveUp)) {}

    bool Hidden() const { return m_HiddenPlace.has_value(); }
    // The frame's upper left corner.
    QPoint Place() const;
    QSize Size() const;  // the frame's
    void PlaceAt(QPoint place);
    // Does nothing to a window that doesn't show.
    void Vanish();
    // What is to happen before the window is shown.
    void Reappear();

  private:
    const QRect* HiddenMaximised() const;
    void GiveUp();

    QWidget& m_Window;
    const cWindowFrame& m_Frame;
    std::function<void()> m_GiveUp;
    std::optional<QPoint> m_HiddenPlace;  // as an ordinary window
    std::optional<QRect> m_Maximised;     // the frame of one that is hidden maximised
    bool m_ToBeGivenUp = false;
    QSize m_SizeBehind;  // behind that, of one that was maximised; else not valid
};

}  // namespace vigrel
