#pragma once

#include "editor_ui/pages/file_page.h"
#include "editor_ui/schedule/schedule_editor.h"

namespace vigrel {

// A time schedule in a file of its own.
class cSchedulePage : public cFilePage {
    Q_OBJECT
  public:
    // A new schedule: Monday to Friday from 07:00 to 16:00.
    cSchedulePage(cEditorServices& services, const QString& newName, QWidget* parent = nullptr)
        : cSchedulePage(services, newName, new cScheduleEditor(services), parent) {}

    const cTimeSchedule& Schedule() const { return m_Editor.Schedule(); }

  private:
    cSchedulePage(cEditorServices& services, const QString& newName, cScheduleEditor* editor,
                  QWidget* parent);

    cScheduleEditor& m_Editor;
};

}  // namespace vigrel
