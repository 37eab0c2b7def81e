#include <utility>

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/editor_action.h"
#include "editor_ui/pages/one_line.h"
#include "editor_ui/pages/text_edit.h"
#include "editor_ui/schedule/schedule_editor.h"

namespace vigrel {

void cScheduleEditor::MakeActions() {
    m_Copy = MakeAction("Copy", tr("&Copy the day"), QKeySequence::Copy, &cScheduleEditor::Copy);
    m_Paste = MakeAction("Paste", tr("&Paste into the day"), QKeySequence::Paste, &cScheduleEditor::Paste);
    m_Delete = MakeAction("Delete", tr("&Delete the period"), QKeySequence::Delete, &cScheduleEditor::Delete);
    m_WholeDay = MakeAction("WholeDay", tr("&Whole day"), QKeySequence("Ctrl+D"), &cScheduleEditor::WholeDay);
    m_Invert = MakeAction("Invert", tr("&Invert the day"), QKeySequence("Ctrl+I"), &cScheduleEditor::Invert);
    m_Grouped = MakeAction("Grouped", tr("&Grouped"), QKeySequence("Ctrl+G"), &cScheduleEditor::Group);
    m_GroupedMonFri = MakeAction("Grouped_MonFri", tr("Monday to &Friday grouped"),
                                 QKeySequence("Ctrl+Shift+G"), &cScheduleEditor::GroupMonFri);
    m_Rename = MakeAction("Rename", tr("Re&name the day type..."), {}, &cScheduleEditor::Rename);
    m_Grouped->setCheckable(true);
    m_GroupedMonFri->setCheckable(true);
    m_Popup.setObjectName("Menu_TimeSchedulePopup");
    AddEntries(m_Popup, {m_Delete, m_Copy, m_Paste, nullptr, m_WholeDay, m_Invert, nullptr, m_Grouped,
                         m_GroupedMonFri});
}

// The keys work while the focus is in the page.
QAction* cScheduleEditor::MakeAction(const char* name, const QString& text, const QKeySequence& keys,
                                     void (cScheduleEditor::*chosen)()) {
    QAction* action = MakeEditorAction(*this, QString("Menu_TimeSchedulePopup_") + name, text, keys);
    connect(action, &QAction::triggered, this, chosen);
    return action;
}

QList<QAction*> cScheduleEditor::EditActions() const {
    return {m_Copy,  m_Paste,   m_Delete,        nullptr, m_WholeDay, m_Invert,
            nullptr, m_Grouped, m_GroupedMonFri, nullptr, m_Rename,   m_Images.menuAction()};
}

// An entry can leave no day selected; the fields then have nothing to speak of.
void cScheduleEditor::Run(const QString& name, Operation operation) {
    if (m_Schedule.IsDragging()) return;
    TakeTimes();
    Edit(name, [&] { (m_Schedule.*operation)(*this, m_SchedulePaintObject); });
    m_Frame.View().update();
    Refresh();
}

void cScheduleEditor::Delete() {
    const int row = RowOf(m_Schedule.SelectedDayType());
    Run(tr("deleting a period"), &cTimeSchedule::Delete);
    // The keyboard goes on where it was.
    if (m_Frame.View().hasFocus()) ChooseRowAgain(row);
}
void cScheduleEditor::Copy() {
    m_Schedule.Copy();
    Refresh();
}
void cScheduleEditor::Paste() {
    Run(tr("pasting a day"), &cTimeSchedule::Paste);
}
void cScheduleEditor::WholeDay() {
    const int row = RowOf(m_Schedule.SelectedDayType());
    Run(tr("the whole day"), &cTimeSchedule::SetTimeFrom00to24);
    if (m_Frame.View().hasFocus()) ChooseRowAgain(row);
}
void cScheduleEditor::Invert() {
    Run(tr("inverting a day"), &cTimeSchedule::InvertTimeSchedule);
}
void cScheduleEditor::Group() {
    Run(tr("grouping a day"), &cTimeSchedule::Group);
}

// The entry has checked itself already; the schedule asks for the state before.
void cScheduleEditor::GroupMonFri() {
    m_Schedule.PreparePopupMenu(*this);
    Run(tr("grouping Monday to Friday"), &cTimeSchedule::GroupMonFri);
}

void cScheduleEditor::TakeUseCalendar(bool use) {
    Edit(tr("special day types"), [&] {
        m_Schedule.m_UseCalendar = use ? True16 : False16;
        Recalculate();
    });
}

void cScheduleEditor::TakeDayType(const QListWidgetItem& item) {
    const auto dayType = static_cast<std::int16_t>(m_DayTypes.row(&item));
    const bool active = item.checkState() == Qt::Checked;
    if (m_Schedule.GetActive(dayType) == active) return;
    Edit(active ? tr("adding a row") : tr("removing a row"), [&] {
        m_Schedule.SetActive(dayType, active ? True16 : False16);
        m_Schedule.ClearSelection(*this);
        Recalculate();
    });
}

std::optional<int> cScheduleEditor::ChosenSpecialType() {
    const int dayType = m_DayTypes.hasFocus() ? m_DayTypes.currentRow() : m_Schedule.SelectedDayType();
    if (dayType >= kWeekDays) return dayType - kWeekDays + 1;
    m_Services.m_Prompts.ShowFailure(
        this, tr("Choose a special day type: only those have names and images of your own."));
    return std::nullopt;
}

// Asked again with what was typed where that can't be stored. Empty for none.
QString cScheduleEditor::AskName(QString name) {
    do {
        name = OneLine(m_Services.m_Prompts.AskText(this, tr("Name of the day type"), name));
        if (FitsCodePage(name)) return name;
        m_Services.m_Prompts.ShowFailure(this, cTextEdit::LettersHint());
    } while (true);
}

void cScheduleEditor::Rename() {
    const auto number = ChosenSpecialType();
    if (!number) return;
    const auto dayType = static_cast<std::int16_t>(*number + kWeekDays - 1);
    const QString name = AskName(ToQString(m_Services.m_DayTypeNames.Name(dayType)));
    const std::string before = m_Services.m_DayTypeNames.OwnName(dayType), after = FromQString(name);
    if (name.isEmpty() || after == m_Services.m_DayTypeNames.Name(dayType)) return;
    SetName(dayType, after);
    emit EditedBeside({tr("renaming a day type"), [this, dayType, before] { SetName(dayType, before); },
                       [this, dayType, after] { SetName(dayType, after); }});
}

void cScheduleEditor::SetName(std::int16_t dayType, const std::string& name) {
    SetForAll([&] { return m_Services.m_DayTypeNames.Rename(dayType, name); });
}

// What belongs to the station is stored at once.
void cScheduleEditor::SetForAll(const std::function<bool()>& store) {
    if (!store()) TellNotStored(this, m_Services);
    emit DayTypesChanged();
}

// One entry for each drawing.
void cScheduleEditor::MakeImageMenu() {
    m_Images.setObjectName("Menu_DayTypeImages");
    for (int drawing = 1; drawing <= cDayTypeImages::kDrawings; ++drawing) {
        const QPixmap image =
            m_Services.m_DayTypeImages.Drawing(drawing, kDayTypeImageSize, devicePixelRatioF());
        m_Images.addAction(image, cDayTypeImages::DrawingName(drawing), this,
                           [this, drawing] { ChooseImage(drawing); });
    }
}

void cScheduleEditor::ChooseImage(int drawing) {
    const auto number = ChosenSpecialType();
    if (!number) return;
    const int before = m_Services.m_DayTypeImages.DrawingOf(*number);
    if (before == drawing) return;
    SetImage(*number, drawing);
    emit EditedBeside({tr("choosing an image"), [this, number, before] { SetImage(*number, before); },
                       [this, number, drawing] { SetImage(*number, drawing); }});
}

void cScheduleEditor::SetImage(int number, int drawing) {
    SetForAll([&] { return m_Services.m_DayTypeImages.Choose(number, drawing); });
}

}  // namespace vigrel
