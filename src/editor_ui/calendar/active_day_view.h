#pragma once

#include <QDateEdit>
#include <QTimeEdit>
#include <QWidget>

#include "editor_ui/calendar/day_line.h"
#include "editor_ui/pages/editor_services.h"
#include "schedule/active_day.h"
#include "schedule/calendar.h"
#include "windows/plain_text.h"

namespace vigrel {

// What a schedule has in force on a day that the user chooses, by which rule, and whether it is active at a
// moment.
class cActiveDayView : public QWidget {
    Q_OBJECT
  public:
    // It begins with this moment. What is handed in must outlive the view.
    cActiveDayView(cEditorServices& services, const cTimeSchedule& schedule, const cCalendar& calendar,
                   QWidget* parent = nullptr);

    // The schedule or the calendar may have changed; whether the schedule counts at all, and whether there is
    // a calendar, not only an empty one in its place.
    void Refresh(bool isUsed, bool hasCalendar);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void MakeLayout();
    void ShowNow();
    void Answer();
    QString Reason(const cActiveDay& day) const;
    QString NameOf(int dayType) const;

    cEditorServices& m_Services;
    const cTimeSchedule& m_Schedule;
    const cCalendar& m_Calendar;
    QDateEdit m_Date;
    QTimeEdit m_Time;
    cDayLine m_Line;
    cPlainLabel m_Answer, m_Reason;
    bool m_IsUsed = true, m_HasCalendar = true;
};

}  // namespace vigrel
