#pragma once

#include <QWidget>
#include <functional>

#include "definitions/definition_folder.h"
#include "editor_ui/pages/editor_services.h"
#include "editor_ui/records/field_binder.h"

class QLabel;
class QTabWidget;
class QUndoStack;

namespace vigrel {

class cCalendarPage;
class cProfileCalendar;
class cProfileSchedule;
class cReceiverPicker;
class cSystemGrid;

// Every field of a profile, in tabs. Parallel and sequential receivers are chosen from the receivers of the
// station.
class cProfileForm : public QWidget {
    Q_OBJECT
  public:
    // The services must outlive the form.
    explicit cProfileForm(cEditorServices& editor, QWidget* parent = nullptr);

    // The profile must outlive its showing; nullptr shows nothing.
    void Show(cProfile* profile);
    // Why the profile can't be saved as the form stands; empty when it can.
    QString Problem() const;
    void FocusName();
    QUndoStack* UndoStack();
    // The station's calendar, which the form shows with the profile's schedule.
    cCalendarPage& Calendar();
    void SetZoom(double zoom);
    void RefreshDayTypes();

    // After each change of the profile by the user.
    std::function<void()> OnEdited;

  private:
    QWidget* MakeGeneral();
    QWidget* MakeConditions();
    QWidget* MakeReceivers();
    QWidget* MakeSchedule();
    QWidget* MakeCalendar();
    QWidget* MakeExternal();
    QWidget* MakeSystems();
    cReceiverPicker* MakePicker(const char* objectName, const QString& name, std::string cProfile::*field);
    void ShowFile(const cProfile& profile);

    cEditorServices& m_Editor;
    cFieldBinder<cProfile> m_Binder;
    cTextEdit* m_Name = nullptr;
    QLabel* m_File = nullptr;
    QTabWidget* m_Tabs;
    cProfileSchedule* m_Schedule = nullptr;
    cProfileCalendar* m_Calendar = nullptr;
};

}  // namespace vigrel
