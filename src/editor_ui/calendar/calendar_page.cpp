#include "editor_ui/calendar/calendar_page.h"

namespace vigrel {

cFileForm CalendarFileForm(const QString& newName, cCalendarEditor& editor) {
    return {newName,
            QObject::tr("Calendars (*.cal);;All files (*)"),
            "cal",
            [&editor](const std::string& path) { editor.ReadFile(path); },
            [&editor](const std::string& path) { editor.WriteFile(path); },
            [&editor] { return editor.State(); },
            [&editor](const auto&... file) { return editor.IsInFile(file...); }};
}

cCalendarPage::cCalendarPage(cEditorServices& services, const QString& newName, cCalendarEditor* editor,
                             QWidget* parent)
    : cFilePage(services, editor, CalendarFileForm(newName, *editor), parent), m_Editor(*editor) {
    setObjectName("Page_Calendar");
}

}  // namespace vigrel
