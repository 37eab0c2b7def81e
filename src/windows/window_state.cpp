#include "windows/window_state.h"

#include <QWidget>

namespace vigrel {

eWindowState StateOf(const QWidget& window) {
    if (window.isMinimized()) return eWindowState::Minimised;
    return window.isMaximized() ? eWindowState::Maximised : eWindowState::Normal;
}

Qt::WindowStates WithState(Qt::WindowStates now, eWindowState state) {
    now &= ~(Qt::WindowMinimized | Qt::WindowFullScreen);
    if (state == eWindowState::Minimised) return now | Qt::WindowMinimized;
    now &= ~Qt::WindowMaximized;
    return state == eWindowState::Maximised ? now | Qt::WindowMaximized : now;
}

}  // namespace vigrel
