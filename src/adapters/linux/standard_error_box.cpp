#include "adapters/linux/standard_error_box.h"

#include "common/path_text.h"
#include "common/standard_error.h"

namespace vigrel {

eMessageAnswer cStandardErrorBox::Show(std::string_view text, eMessageIcon, eMessageButtons buttons) {
    const bool question = buttons == eMessageButtons::YesNo;
    PrintError(m_Program, PathText(m_Folder) + ": " + std::string(text) + (question ? " - Yes" : ""));
    return question ? eMessageAnswer::Yes : eMessageAnswer::Ok;
}

}  // namespace vigrel
