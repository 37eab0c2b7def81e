#pragma once

#include <QWidget>
#include <functional>

#include "definitions/definition_folder.h"
#include "editor_ui/pages/editor_services.h"
#include "editor_ui/records/field_binder.h"

class QLabel;
class QTabWidget;

namespace vigrel {

class cActiveDayView;
class cContentEditor;
struct cEditStep;
class cProfileCalendar;
class cReceiverPicker;
class cScheduleEditor;
class cSettingEdit;
class cSystemGrid;

// Every field of a profile, in tabs. Parallel and sequential receivers are chosen from the receivers of the
// station.
class cProfileForm : public QWidget {
    Q_OBJECT
  public:
    // The services must outlive the form.
    explicit cProfileForm(cEditorServices& editor, QWidget* parent = nullptr);

    // What is shown must outlive its showing; nullptr shows nothing.
    void Show(cProfile* profile, TypedTexts* typed);
    // Brings the part of a field in sight that only shows when it is chosen; the object name of its widget.
    QString Reveal(const QString& field);
    // Whether a time is being typed.
    bool IsTyping() const;
    // The schedule, and the station's calendar that the form shows with it.
    QList<cContentEditor*> Editors() const;
    cProfileCalendar& Calendar() { return *m_Calendar; }
    // The calendar while it shows, else the week of the schedule.
    cContentEditor& PrintedEditor();
    void SetZoom(double zoom);
    void RefreshDayTypes();
    // The receivers of the station may be others by now.
    void RefreshReceivers();

    // After each change of the profile by the user.
    std::function<void(const cFieldStep&)> OnEdited;

  private:
    QWidget* MakeGeneral();
    cSettingEdit* MakeOffDuty();
    QWidget* MakeConditions();
    QWidget* MakeReceivers();
    QWidget* MakeSchedule();
    QWidget* MakeCalendar();
    QWidget* MakeActiveDay();
    QWidget* MakeExternal();
    QWidget* MakeSystems();
    cReceiverPicker* MakePicker(const char* objectName, const QString& name, std::string cProfile::*field);
    void ShowFile(const cProfile& profile);
    void ShowSchedule(const cProfile& profile);
    void RefreshActiveDay();
    std::string ScheduleOf(const cProfile& profile) const;
    void TakeSchedule(const cEditStep& step);

    cEditorServices& m_Editor;
    cFieldBinder<cProfile> m_Binder;
    QLabel* m_File = nullptr;
    QTabWidget* m_Tabs;
    cScheduleEditor* m_Schedule = nullptr;
    std::string m_ShownSchedule;  // the state that the editor was set to, or told last
    cProfileCalendar* m_Calendar = nullptr;
    cActiveDayView* m_ActiveDay = nullptr;
    QList<cReceiverPicker*> m_Pickers;
};

}  // namespace vigrel
