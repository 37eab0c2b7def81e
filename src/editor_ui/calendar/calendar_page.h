#pragma once

#include "editor_ui/calendar/calendar_editor.h"
#include "editor_ui/pages/file_page.h"

namespace vigrel {

// How a calendar lies in a file.
cFileForm CalendarFileForm(const QString& newName, cCalendarEditor& editor);

// A calendar in a file of its own.
class cCalendarPage : public cFilePage {
    Q_OBJECT
  public:
    // A new, empty calendar.
    cCalendarPage(cEditorServices& services, const QString& newName, QWidget* parent = nullptr)
        : cCalendarPage(services, newName, new cCalendarEditor(services), parent) {}

    cCalendarEditor& Editor() { return m_Editor; }

  protected:
    void SeenAgain() override {
        cFilePage::SeenAgain();
        m_Editor.RefreshHolidays();
    }

  private:
    cCalendarPage(cEditorServices& services, const QString& newName, cCalendarEditor* editor,
                  QWidget* parent);

    cCalendarEditor& m_Editor;
};

}  // namespace vigrel
