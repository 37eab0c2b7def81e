#include "adapters/linux/standard_error_box.h"

#include <cstdio>

#include "common/printable.h"

namespace vigrel {

eMessageAnswer cStandardErrorBox::Show(std::string_view text, eMessageIcon, eMessageButtons buttons) {
    const bool question = buttons == eMessageButtons::YesNo;
    std::fprintf(stderr, "%s: %s: %s%s\n", m_Program.c_str(), m_Folder.c_str(), Printable(text).c_str(),
                 question ? " - Yes" : "");
    std::fflush(stderr);
    return question ? eMessageAnswer::Yes : eMessageAnswer::Ok;
}

}  // namespace vigrel
