#pragma once

#include <QMargins>
#include <QPoint>
#include <QSize>

class QWidget;

namespace vigrel {

// The window manager's frame around a window, which is known only some time after the window was shown for
// the first time. Sizes here are the frame's.
//
// state   its size is             setting a size                leaves the state by
// ------  ----------------------  ----------------------------  ---------------------------------------------
// Unseen  that of the inside      sizes the inside, and wishes  SetSize -> Wished; Meet, with a frame -> Seen
// Wished  the wish                sizes the inside, and wishes  Resized by others -> Unseen; Meet, with a
//                                                               frame -> Seen, the wish fulfilled
// Seen    the inside's and the    sizes the inside by what the  never; Meet takes note of another frame
//         frame's                 frame leaves of it
class cWindowFrame {
  public:
    enum class eState { Unseen, Wished, Seen };

    explicit cWindowFrame(QWidget& window) : m_Window(window) {}

    eState State() const { return m_State; }
    QSize Size() const;
    // Larger than all screens it does not become.
    void SetSize(QSize wanted);
    // From the frame's upper left corner to that of the inside.
    QPoint Corner() const { return {m_Margins.left(), m_Margins.top()}; }

    // --- what the window was told
    void Resized(QSize inside);
    // Something happened that may have brought the frame. An icon has none, and what is hidden shows an old
    // one.
    void Meet();
    void Meet(const QMargins& frame);

  private:
    void SizeInside(QSize size);

    QWidget& m_Window;
    eState m_State = eState::Unseen;
    QSize m_Wish;        // while Wished
    QMargins m_Margins;  // as last seen
};

}  // namespace vigrel
