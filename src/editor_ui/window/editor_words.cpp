#include "editor_ui/window/editor_words.h"

#include "windows/toolkit_words.h"

namespace vigrel {

cEditorWords::cEditorWords(std::string_view language) {
    // False where there is no file: of English.
    static_cast<void>(load(":/translations/definitions_" + ToolkitLanguage(language) + ".qm"));
}

}  // namespace vigrel
