#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>

#include "editor_ui/calendar/year_drawing.h"
#include "editor_ui/drawing/drawing_room.h"
#include "editor_ui/drawing/drawing_view.h"
#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/editor_services.h"
#include "schedule/calendar.h"
#include "schedule/holidays.h"
#include "windows/plain_text.h"

namespace vigrel {

class cLineProblemsLabel;

// A schedule whose periods a calendar can show.
struct cNamedSchedule {
    QString name;
    const cTimeSchedule* schedule;  // tells which it is; it outlives its being in the list
};

// A calendar, a month at a time, painted on by mouse and keys.
class cCalendarEditor : public cContentEditor, private cCalendarContainer {
    Q_OBJECT
  public:
    // A new, empty calendar.
    explicit cCalendarEditor(cEditorServices& services, QWidget* parent = nullptr);

    const cCalendar& Calendar() const { return m_Calendar; }
    void ShowMonth(int year, int month);
    // The schedules whose periods the day boxes can show; the chosen one stays while it is among them.
    void SetSchedules(const QList<cNamedSchedule>& schedules);
    // One of them; any other chooses none.
    void ChooseSchedule(const cTimeSchedule* schedule);
    // The periods of the schedules may have changed.
    void RefreshSchedules() { m_View.update(); }
    // The station's own holidays may have changed.
    void RefreshHolidays();
    // Whether the day boxes show the periods.
    QCheckBox& ShowTimeAxis() { return m_ShowTimeAxis; }

    // The file of docs/formats/calendar.md; both may throw cFailure.
    void ReadFile(const std::string& path);
    void WriteFile(const std::string& path);
    bool IsInFile(const std::string& path, const std::string& state) const;
    // Takes all day types away, as a step.
    void Clear();
    std::string State() const override;
    void Restore(const std::string& state) override;
    bool CanPrint() const override { return true; }
    std::optional<cPrintout> Printout() override;
    QList<QAction*> EditActions() const override;
    void SetZoom(double zoom) override { m_Room->SetZoom(zoom); }
    void RefreshDayTypes() override;
    void FinishStroke() override { MouseUp(1, 0, {}); }

  private:
    // --- cCalendarContainer
    const cDayNames& DayNames() const override { return m_Services.m_DayTypeNames.DayNames(); }
    double Get_ImageList_ImageHeight() const override { return kDayTypeImageSize; }
    double Get_ImageList_ImageWidth() const override { return kDayTypeImageSize; }
    void Draw_ImageList_ListImages(DeviceContext context, std::int16_t image, double x, double y) override;
    std::optional<std::string> Get_Combo_Calendar_DayType_SelectedItem() const override;
    std::int16_t Get_Combo_Calendar_DayType_SelectedItem_Index() const override;
    std::string Get_Combo_Calendar_DayType_ComboItems(std::int16_t number) const override;
    void Set_Text_Calendar_Month(std::string_view text) override;

    cCalendarSurroundings Surroundings() const;
    void MakeActions();
    QAction* MakeAction(const char* name, const QString& text, const QKeySequence& keys,
                        const std::function<void()>& chosen);
    void ShowPopupMenu(QPoint place);
    void MakeLayout();
    QLayout* MakeMonthBar();
    cDrawingRoom* MakeRoom();
    QWidget* MakeStack();
    QWidget* MakeToolBox();
    void MakeDayTypes();
    void FillDayTypes();
    // What is painted: 0 clears a day.
    std::int16_t ChosenValue() const { return static_cast<std::int16_t>(m_DayTypes.currentRow()); }
    void FillCountries();
    void TakeCountry();
    void ConnectView();
    void ConnectChoices();

    void MouseDown(std::int16_t button, std::int16_t shift, QPoint unit);
    void MouseUp(std::int16_t button, std::int16_t shift, QPoint unit);
    bool Key(const QKeyEvent& event);
    void MoveDay(int days);
    void PaintChosenDay();
    // The pointer counts as over no day until it moves, so that no tip of before stays.
    void ForgetPointer();
    void DropStroke();
    QPoint CellOf(int day) const;
    std::optional<int> DayAt(QPoint unit) const;

    void MoveMonth(int months);
    void ShowToday();
    void ShowChosenMonth();
    void ShowAnyOf(const std::vector<std::int32_t>& days);
    void TakeSchedule();
    void TakeSelectedType(bool allYears);
    void ClearYear();
    void CopyYear();
    bool IsShownYear(std::int32_t day) const;
    void PaintFocus(QPainter& painter);
    void Redraw();

    // --- the year at a glance
    bool ShowsYear() const { return m_Stack.currentIndex() == 1; }
    void ShowYear(bool year);
    void ConnectYear();
    cYearDrawing YearDrawing() const;
    cYearDrawing::cSource YearSource() const;
    void PaintYear(QPainter& painter);
    void PaintInYear(QPoint place);
    void YearMouseMove(QPoint place);
    void SetPaintedDay(std::int32_t day);
    QString TipOf(std::int32_t day) const;
    QList<cPrintout::cSign> LegendOfMonth() const;

    cEditorServices& m_Services;
    cHolidays m_Holidays;  // the country's, and the station's own
    cLineProblemsLabel* m_Problems;
    cCalendar m_Calendar;
    // Those that lie in it come behind it, so that it never ends them.
    QStackedWidget m_Stack;
    cDrawingRoom* m_Room = nullptr;
    cDrawingView m_View;
    cPlainLabel m_Month;
    cDrawingView m_YearView;
    QToolButton m_Previous, m_Next, m_Today, m_ShowYear;
    QSpinBox m_Year;
    QComboBox m_MonthNames, m_Country, m_Schedule;
    QListWidget m_DayTypes;  // in the order of their values
    QCheckBox m_ShowTimeAxis;
    QList<cNamedSchedule> m_Schedules;  // in the order of the list, behind its first entry
    QList<QAction*> m_Actions;
    QMenu m_Popup;
    int m_Day = 0;  // the keyboard's day in the month, from 0
    bool m_Painting = false;
    bool m_IsPrinting = false;
};

}  // namespace vigrel
