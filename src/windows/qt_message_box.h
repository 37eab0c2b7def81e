#pragma once

#include <string>
#include <utility>

#include "platform/windows.h"

class QMessageBox;

namespace vigrel {

// Message boxes of the program, with one title for all. While one stands, the program's other windows
// don't take input, and sockets and timers go on.
class cQtMessageBox : public cMessageBox {
  public:
    explicit cQtMessageBox(std::string title) : m_Title(std::move(title)) {}
    eMessageAnswer Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) override;
    void ShowForAWhile(std::string_view text, eMessageIcon icon) override;

  private:
    void Furnish(QMessageBox& box, std::string_view text, eMessageIcon icon) const;

    std::string m_Title;
};

}  // namespace vigrel
