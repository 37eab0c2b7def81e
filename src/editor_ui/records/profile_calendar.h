#pragma once

#include <QWidget>
#include <functional>

#include "definitions/profile.h"
#include "editor_ui/calendar/calendar_editor.h"
#include "editor_ui/pages/file_document.h"

class QLabel;

namespace vigrel {

// A calendar of the station, shown with the schedule of a profile, so that it can be seen what the profile
// means for real dates. Which calendar that is, is remembered for the application folder.
class cProfileCalendar : public QWidget {
    Q_OBJECT
  public:
    // What is handed in must outlive the widget.
    cProfileCalendar(cEditorServices& services, const cTimeSchedule& schedule, QWidget* parent = nullptr);

    void Show(const cProfile& profile);
    cCalendarEditor& Editor() { return *m_Editor; }
    cFileDocument& Document() { return m_Document; }
    // Whether it is one of a file, or one with days painted.
    bool HasCalendar() const;
    // The day boxes are to show the periods, or not.
    std::function<void(bool on)> OnViewTimeAxis;

  private:
    void OpenRemembered();
    void ShowPath();
    void Choose();
    bool MayLeave();
    void Remember(const QString& path);

    cEditorServices& m_Services;
    cCalendarEditor* m_Editor;
    cFileDocument m_Document;
    QLabel* m_Path;
};

}  // namespace vigrel
