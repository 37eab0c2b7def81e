#pragma once

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>

#include "editor_ui/drawing/drawing_room.h"
#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/editor_services.h"
#include "editor_ui/pages/problem_label.h"
#include "editor_ui/pages/typed_texts.h"
#include "editor_ui/schedule/hour_scale.h"
#include "editor_ui/schedule/schedule_frame.h"
#include "schedule/time_schedule.h"
#include "windows/plain_text.h"

namespace vigrel {

// A time schedule, drawn and edited by mouse, keys and menu. Times that are none stay with their period as
// typed, whatever is chosen next, and belong to the state.
class cScheduleEditor : public cContentEditor, private cTimeScheduleContainer {
    Q_OBJECT
  public:
    // A new schedule: Monday to Friday from 07:00 to 16:00.
    explicit cScheduleEditor(cEditorServices& services, QWidget* parent = nullptr);

    const cTimeSchedule& Schedule() const { return m_Schedule; }
    // The file of docs/formats/schedule.md; both may throw cFailure.
    void ReadFile(const std::string& path);
    void WriteFile(const std::string& path);
    bool IsInFile(const std::string& path, const std::string& state) const;
    std::string State() const override;
    void Restore(const std::string& state) override;
    QString Problem() const override { return m_Typed.empty() ? QString() : m_Typed.begin()->second.problem; }
    void FocusProblem() override;
    // What the names of all typed texts of the state begin with.
    QString TypedPrefix() const { return objectName() + "@"; }
    // Chooses the period of a typed text; the object name of the field to mend.
    QString ShowTypedTimes(const QString& name);
    // Whether a time stands in its field that is not taken over yet.
    bool IsTyping() const { return m_Start.isModified() || m_Stop.isModified(); }
    // Gives up what is being typed and is not taken over yet.
    void DropTyping();
    // Whether the rows show the names of their days.
    QCheckBox& ViewDayType() { return m_ViewDayType; }
    bool CanPrint() const override { return true; }
    std::optional<cPrintout> Printout() override;
    QList<QAction*> EditActions() const override;
    void SetZoom(double zoom) override { m_Room->SetZoom(zoom); }
    void RefreshDayTypes() override;
    void FinishStroke() override { MouseUp(1, 0, {}); }

  private:
    // --- cTimeScheduleContainer
    const cDayNames& DayNames() const override { return m_Services.m_DayTypeNames.DayNames(); }
    double Get_ImageList_ImageHeight() const override { return kDayTypeImageSize; }
    double Get_ImageList_ImageWidth() const override { return kDayTypeImageSize; }
    void Draw_ImageList_ListImages(DeviceContext context, std::int16_t image, double x, double y) override;
    bool Get_Check_TimeSchedule_ViewDayType() const override { return m_ViewDayType.isChecked(); }
    bool Get_Menu_TimeSchedulePopup_Grouped_MonFri_Checked() const override;
    double Get_Picture_TimeSchedule_Frame_ScaleHeight() const override { return m_Frame.ScaleHeight(); }
    double Get_Picture_TimeSchedule_Frame_ScaleWidth() const override { return m_Frame.ScaleWidth(); }
    std::string Get_Text_Schedule_Period_Start() const override;
    std::string Get_Text_Schedule_Period_Stop() const override;
    double Get_VScroll_Schedule_Left() const override { return m_Frame.ScrollLeft(); }
    double Get_VScroll_Schedule_Width() const override { return m_Frame.ScrollWidth(); }
    // The schedule enables the entry with a day selected; it is a period that goes.
    void Set_Menu_TimeSchedulePopup_Delete_Enabled(bool enabled) override {
        m_Delete->setEnabled(enabled && m_Schedule.SelectedPeriod() != nullptr);
    }
    void Set_Menu_TimeSchedulePopup_Grouped_Checked(bool checked) override { m_Grouped->setChecked(checked); }
    void Set_Menu_TimeSchedulePopup_Grouped_MonFri_Checked(bool checked) override;
    void Set_Menu_TimeSchedulePopup_Paste_Enabled(bool enabled) override { m_Paste->setEnabled(enabled); }
    void Set_Picture_TimeSchedule_Height(double height) override { m_Frame.SetViewHeight(height); }
    void Set_Picture_TimeSchedule_Left(double left) override { m_Frame.SetViewLeft(left); }
    void Set_Picture_TimeSchedule_Top(double top) override { m_Frame.SetViewTop(top); }
    void Set_Picture_TimeSchedule_Width(double width) override { m_Frame.SetViewWidth(width); }
    void Set_Text_Schedule_Period_Start(std::string_view text) override;
    void Set_Text_Schedule_Period_Stop(std::string_view text) override;
    void Set_Text_Schedule_Time(std::string_view text) override;
    void Set_VScroll_Schedule_Height(double height) override { m_Frame.SetScrollHeight(height); }
    void Set_VScroll_Schedule_Left(double left) override { m_Frame.SetScrollLeft(left); }
    void Set_VScroll_Schedule_Max(std::int16_t max) override { m_Frame.SetScrollMax(max); }
    void Set_VScroll_Schedule_Top(double top) override { m_Frame.SetScrollTop(top); }

    void MakeActions();
    QAction* MakeAction(const char* name, const QString& text, const QKeySequence& keys,
                        void (cScheduleEditor::*chosen)());
    void MakeImageMenu();
    void MakeLayout();
    cDrawingRoom* MakeRoom();
    void ApplyZoom(double zoom);
    QWidget* MakePeriodBox();
    QWidget* MakeDayTypeBox();
    void ConnectView();
    void FillDayTypes();

    // --- commands
    using Operation = void (cTimeSchedule::*)(cTimeScheduleContainer&, cPaintObject*);
    void Run(const QString& name, Operation operation);
    void Delete();
    void Copy();
    void Paste();
    void WholeDay();
    void Invert();
    void Group();
    void GroupMonFri();
    void Rename();
    QString AskName(QString name);
    void SetName(std::int16_t dayType, const std::string& name);
    void ChooseImage(int drawing);
    void SetImage(int number, int drawing);
    void SetForAll(const std::function<bool()>& store);
    // The day type of the list's current entry, else the selected row's, as the number of a special type.
    // None for another one; the operator has been told.
    std::optional<int> ChosenSpecialType();

    // --- times that are typed
    void TakeTimes();
    void TakeBackTyping();
    QString FaultOfTimes() const;
    QString TypedName(std::int32_t dayType, const cTimeSchedulePeriod& period) const;
    // Those whose period is there and shown.
    TypedTexts TypedTimes() const;
    struct cPlace {
        std::int32_t dayType = -1;
        PeriodPtr period;
    };
    cPlace PlaceOf(const QString& typedName) const;
    void ForgetTypedOfOthers();
    void ShowTyped();
    bool ShowTypedDifference(const TypedTexts& before);
    void ShowProblem(const QString& problem);
    void TakeDayType(const QListWidgetItem& item);
    void TakeUseCalendar(bool use);

    // --- mouse and keys
    void MouseDown(std::int16_t button, std::int16_t shift, QPoint unit);
    void MouseUp(std::int16_t button, std::int16_t shift, QPoint unit);
    bool Key(const QKeyEvent& event);
    void ShowPopupMenu(QPoint place);
    // What lies under the pointer, for the menu that opens there.
    void ChooseAt(QPoint unit);
    void Choose(std::int32_t dayType, const PeriodPtr& period);
    void ChooseRow(int step);
    void ChooseRowAgain(int row);
    void ChoosePeriod(int step);
    void MoveEnd(QLineEdit& field, int minutes);
    void NewPeriod();
    int RowOf(std::int32_t dayType) const;
    int ShownRows() const;
    PeriodList PeriodsOf(std::int32_t dayType) const;

    void Recalculate();
    void PaintFocus(QPainter& painter);
    // After anything that can change what is selected.
    void Refresh();
    void RefreshSelection();
    void ShowChosenDay();
    void EnableTimes();
    // What undo can change of a day.
    struct cDay {
        bool active, grouped;
        std::vector<std::pair<int, int>> periods;
        bool operator==(const cDay&) const = default;
    };
    std::vector<cDay> Days() const;
    void ShowFirstDifference(const std::vector<cDay>& before);

    cEditorServices& m_Services;
    cTimeSchedule m_Schedule;
    cPaintObject* m_SchedulePaintObject = nullptr;
    cHourScale m_Hours;
    cScheduleFrame m_Frame;
    cDrawingRoom* m_Room = nullptr;
    QGroupBox m_PeriodBox;
    QLineEdit m_Start, m_Stop;
    cProblemLabel m_Problem{"Label_Schedule_Problem"};
    cPlainLabel m_Chosen, m_Time;
    // What the time fields show, but for what is being typed.
    struct cShown {
        std::int32_t dayType = -1;
        PeriodPtr period;
        cTimeSchedulePeriod times;
    };
    cShown m_Shown;
    TypedTexts m_Typed;  // both times of a period, one a line
    bool m_IsPrinting = false;
    QCheckBox m_ViewDayType, m_UseCalendar;
    QListWidget m_DayTypes;
    QMenu m_Popup, m_Images;
    QAction *m_Delete = nullptr, *m_Copy = nullptr, *m_Paste = nullptr, *m_WholeDay = nullptr,
            *m_Invert = nullptr, *m_Grouped = nullptr, *m_GroupedMonFri = nullptr, *m_Rename = nullptr;
};

}  // namespace vigrel
