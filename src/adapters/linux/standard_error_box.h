#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/windows.h"

namespace vigrel {

// The message boxes of a station without a display. Nobody sees a window there, and one that waits for its
// answer would wait for ever: the text goes to standard error, on one line that begins with the program's and
// the folder's name, and the answer is given at once.
//
// The answer is Ok, or Yes: without a screen the only one who can ask for something that is questioned sits
// at the terminal, and has done so on purpose.
class cStandardErrorBox : public cMessageBox {
  public:
    // The folder as the machine spells it.
    cStandardErrorBox(std::string program, std::string folder)
        : m_Program(std::move(program)), m_Folder(std::move(folder)) {}
    eMessageAnswer Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) override;
    void ShowForAWhile(std::string_view text, eMessageIcon icon) override {
        Show(text, icon, eMessageButtons::Ok);
    }

  private:
    std::string m_Program, m_Folder;
};

}  // namespace vigrel
