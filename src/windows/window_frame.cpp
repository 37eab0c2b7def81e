#include "windows/window_frame.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace vigrel {
namespace {

// All screens together, and what one may become that is small now. The picture of a window takes memory by
// its size: a slip in a size of the configuration would take all that there is.
QSize Largest() {
    constexpr QSize kAnyScreen(2048, 2048);
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? kAnyScreen : screen->virtualSize().expandedTo(kAnyScreen);
}

}  // namespace

QSize cWindowFrame::Size() const {
    return m_State == eState::Wished ? m_Wish : m_Window.size().grownBy(m_Margins);
}

void cWindowFrame::SetSize(QSize wanted) {
    const QSize size = wanted.boundedTo(Largest());
    if (m_State != eState::Seen) {
        m_State = eState::Wished;
        m_Wish = size;
    }
    SizeInside(size);
}

void cWindowFrame::SizeInside(QSize size) {
    m_Window.resize(size.shrunkBy(m_Margins).expandedTo({0, 0}));
}

void cWindowFrame::Resized(QSize inside) {
    if (m_State == eState::Wished && inside != m_Wish) m_State = eState::Unseen;
    Meet();
}

void cWindowFrame::Meet() {
    if (!m_Window.isVisible() || m_Window.isMinimized() || m_Window.windowHandle() == nullptr) return;
    Meet(m_Window.windowHandle()->frameMargins());
}

void cWindowFrame::Meet(const QMargins& frame) {
    if (frame.isNull()) return;
    m_Margins = frame;
    if (std::exchange(m_State, eState::Seen) == eState::Wished) SizeInside(m_Wish);
}

}  // namespace vigrel
