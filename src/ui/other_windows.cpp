#include "ui/other_windows.h"

#include "common/language_selection.h"
#include "ui/language_window.h"

namespace vigrel {

void cQtOtherWindows::ShowLanguageWindow() {
    cLanguageSelection selection(m_Files, m_Ini, m_Locale);
    cLanguageWindow::Choose(selection);
}

}  // namespace vigrel
