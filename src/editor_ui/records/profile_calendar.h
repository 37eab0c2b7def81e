#pragma once

#include <QWidget>
#include <functional>

#include "definitions/profile.h"
#include "editor_ui/calendar/calendar_page.h"

class QLabel;

namespace vigrel {

// A calendar of the station, shown with the schedule of a profile, so that it can be seen what the profile
// means for real dates. Which calendar that is, is remembered for the application folder.
class cProfileCalendar : public QWidget {
    Q_OBJECT
  public:
    // What is handed in must outlive the widget.
    cProfileCalendar(cEditorServices& services, cSchedulePage& schedule, QWidget* parent = nullptr);

    void Show(const cProfile& profile);
    cCalendarPage& Page() { return *m_Page; }
    // The day boxes are to show the periods, or not.
    std::function<void(bool on)> OnViewTimeAxis;

  private:
    void OpenRemembered();
    void Choose();
    bool MayLeave();
    void Remember(const QString& path);

    cEditorServices& m_Services;
    cCalendarPage* m_Page;
    QLabel* m_Path;
};

}  // namespace vigrel
