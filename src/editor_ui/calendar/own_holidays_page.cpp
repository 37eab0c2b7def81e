#include "editor_ui/calendar/own_holidays_page.h"

namespace vigrel {

cOwnHolidaysPage::cOwnHolidaysPage(cEditorServices& services, cOwnHolidaysEditor* editor, QWidget* parent)
    : cFilePage(services, editor,
                {tr("Own holidays"), tr("Own holidays (*.txt);;All files (*)"), "txt",
                 [editor](const std::string& path) { editor->ReadFile(path); },
                 [editor](const std::string& path) { editor->WriteFile(path); },
                 [editor] { return editor->State(); },
                 [editor](const auto&... file) { return editor->IsInFile(file...); }},
                parent) {
    setObjectName("Page_OwnHolidays");
}

}  // namespace vigrel
