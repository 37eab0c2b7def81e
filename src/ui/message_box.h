#pragma once

#include "platform/windows.h"

namespace vigrel {

// Message boxes of the program, titled with its display name. While one stands, the program's other windows
// don't take input, and sockets and timers go on.
class cQtMessageBox : public cMessageBox {
  public:
    eMessageAnswer Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) override;
};

}  // namespace vigrel
