#include "windows/window_close.h"

namespace vigrel {

cWindowClose::eState cWindowClose::State() const {
    if (m_Closing) return eState::Closing;
    return m_Windows.Holds(m_Window) ? eState::Open : eState::Closed;
}

bool cWindowClose::TryClose(eCloseReason reason) {
    if (State() != eState::Open) return true;
    if (m_Window.OnQueryUnload && !m_Window.OnQueryUnload(reason)) return false;
    m_Closing = true;
    if (m_Window.OnUnload) m_Window.OnUnload();
    m_Windows.Leave(m_Window);
    m_Closed();
    m_Closing = false;
    return true;
}

}  // namespace vigrel
