#include "editor_ui/schedule/schedule_page.h"

namespace vigrel {

cSchedulePage::cSchedulePage(cEditorServices& services, const QString& newName, cScheduleEditor* editor,
                             QWidget* parent)
    : cFilePage(services, editor,
                {newName, tr("Time schedules (*.sch);;All files (*)"), "sch",
                 [editor](const std::string& path) { editor->ReadFile(path); },
                 [editor](const std::string& path) { editor->WriteFile(path); },
                 [editor] { return editor->State(); },
                 [editor](const auto&... file) { return editor->IsInFile(file...); }},
                parent),
      m_Editor(*editor) {
    setObjectName("Page_Schedule");
}

}  // namespace vigrel
