#include "editor_ui/records/profile_form.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "common/date_text.h"
#include "common/file_procedures.h"
#include "editor_ui/calendar/active_day_view.h"
#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/scrolled.h"
#include "editor_ui/records/file_label.h"
#include "editor_ui/records/profile_calendar.h"
#include "editor_ui/records/receiver_picker.h"
#include "editor_ui/records/setting_edit.h"
#include "editor_ui/records/system_grid.h"
#include "editor_ui/schedule/schedule_editor.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr const char* kTabKey = "ProfileTab";

// Where there is little room, a field stands below its label.
QFormLayout* MakeFields(QWidget* page) {
    auto* layout = new QFormLayout(page);
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    return layout;
}

}  // namespace

cProfileForm::cProfileForm(cEditorServices& editor, QWidget* parent)
    : QWidget(parent), m_Editor(editor), m_Tabs(new QTabWidget) {
    setObjectName("Form_Profile");
    m_Tabs->setObjectName("Tabs_Profile");
    m_Tabs->setAccessibleName(tr("Profile"));
    // Each page scrolls by itself, so that the tabs stay in sight.
    const auto add = [this](QWidget* page, const QString& caption) {
        m_Tabs->addTab(Scrolled(page), caption);
    };
    add(MakeGeneral(), tr("General"));
    add(MakeConditions(), tr("Conditions"));
    add(MakeReceivers(), tr("Receivers"));
    add(MakeSchedule(), tr("Schedule"));
    add(MakeCalendar(), tr("Calendar"));
    add(MakeActiveDay(), tr("Active when?"));
    add(MakeExternal(), tr("External"));
    add(MakeSystems(), tr("Systems"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Tabs);
    m_Tabs->setCurrentIndex(m_Editor.m_Settings.value(kTabKey).toInt());
    connect(m_Tabs, &QTabWidget::currentChanged, this,
            [this](int tab) { m_Editor.m_Settings.setValue(kTabKey, tab); });
    m_Binder.OnEdited = [this](const cFieldStep& step) {
        RefreshActiveDay();
        if (OnEdited) OnEdited(step);
    };
    Show(nullptr, nullptr);
}

QWidget* cProfileForm::MakeGeneral() {
    auto* page = new QWidget;
    auto* layout = MakeFields(page);
    layout->addRow(
        tr("Na&me:"),
        m_Binder.Text(
            "Text_ProfileName", tr("Name"), [](const cProfile& profile) { return profile.GetName(); },
            [](cProfile& profile, const std::string& name) { profile.SetName(name); }));
    layout->addRow(
        m_Binder.Flag("Check_Enabled", tr("En&abled: the profile takes part"), &cProfile::m_Enabled));
    for (std::int16_t i = 0; i < cProfile::kStates; ++i) {
        const QByteArray objectName = QString("Check_State_%1").arg(i).toLatin1();
        layout->addRow(i == 0 ? tr("States:") : QString(),
                       m_Binder.Flag(
                           objectName.constData(), tr("State %1").arg(i),
                           [i](const cProfile& profile) { return profile.GetState(i); },
                           [i](cProfile& profile, const std::int16_t& on) { profile.SetState(i, on); }));
    }
    layout->addRow(tr("&Off duty behaviour:"), MakeOffDuty());
    m_File = new cFileLabel;
    layout->addRow(tr("File:"), m_File);
    m_Binder.AddShow([this](const cProfile& profile) { ShowFile(profile); });
    return page;
}

cSettingEdit* cProfileForm::MakeOffDuty() {
    auto* edit = new cSettingEdit("OffDuty");
    edit->DemandNumber();
    const QString name = tr("Off duty behaviour");
    const cFieldStep step = m_Binder.Step(name, edit->Field(), true);
    edit->OnEdited = [this, step](const cVariant& value) {
        m_Binder.Edit<std::int16_t>(
            [](cProfile& shown, const std::int16_t& number) { shown.m_OffDutyAlarmBehaviour = number; },
            static_cast<std::int16_t>(value.Number().value_or(0)), step);
    };
    edit->OnTyped = [this, name, step](const cTypedText& typed) {
        m_Binder.Keep({typed.text, name + ": " + typed.problem}, step);
    };
    m_Binder.AddShow([this, edit, name](const cProfile& shown) {
        edit->Show({FromQString(name), eVariantType::Int16}, cVariant::Int16(shown.m_OffDutyAlarmBehaviour),
                   m_Binder.Typed(edit->Field()));
    });
    return edit;
}

void cProfileForm::ShowFile(const cProfile& profile) {
    if (profile.m_DiskIdentity < 0) {
        m_File->setText(tr("not saved yet"));
        return;
    }
    const QString name = ToQString(SplitPath(profile.CreateFileName(profile.m_DiskIdentity)).name);
    const bool dated = profile.m_FileDateTimeStamp != 0;
    m_File->setText(dated ? tr("%1, saved %2").arg(name, ToQString(DateTimeText(profile.m_FileDateTimeStamp)))
                          : name);
}

QWidget* cProfileForm::MakeConditions() {
    auto* page = new QWidget;
    auto* layout = MakeFields(page);
    for (std::int16_t i = 0; i < cProfile::kConditions; ++i) {
        const QByteArray objectName = QString("Text_Condition_%1").arg(i).toLatin1();
        layout->addRow(
            tr("Condition &%1:").arg(i),
            m_Binder.Text(
                objectName.constData(), tr("Condition %1").arg(i),
                [i](const cProfile& profile) { return profile.GetCondition(i); },
                [i](cProfile& profile, const std::string& text) { profile.SetCondition(i, text); }));
    }
    return page;
}

cReceiverPicker* cProfileForm::MakePicker(const char* objectName, const QString& name,
                                          std::string cProfile::*field) {
    auto* picker = new cReceiverPicker(objectName, name, m_Editor.m_Station.Receivers());
    picker->OnEdited = [this, field, step = m_Binder.Step(name, QString("List_") + objectName, false)](
                           const std::string& text) {
        m_Binder.Edit<std::string>([field](cProfile& shown, const std::string& set) { shown.*field = set; },
                                   text, step);
    };
    m_Binder.AddShow([picker, field](const cProfile& shown) { picker->Show(shown.*field); });
    m_Pickers += picker;
    return picker;
}

QWidget* cProfileForm::MakeReceivers() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    const auto add = [layout](const QString& title, cReceiverPicker* picker) {
        auto* box = new QGroupBox(title);
        auto* inside = new QVBoxLayout(box);
        inside->addWidget(picker);
        layout->addWidget(box);
    };
    add(tr("Parallel: all at once"),
        MakePicker("Parallel", tr("Parallel receivers"), &cProfile::m_ParallellReceivers));
    add(tr("Sequential: one after the other"),
        MakePicker("Sequential", tr("Sequential receivers"), &cProfile::m_SequentialReceivers));
    return page;
}

QWidget* cProfileForm::MakeSchedule() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(
        m_Binder.Flag("Check_UseTimeSchedule", tr("&Use this time schedule"), &cProfile::m_UseTimeSchedule));
    m_Schedule = new cScheduleEditor(m_Editor);
    m_Schedule->layout()->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Schedule, 1);
    connect(m_Schedule, &cContentEditor::Edited, this, &cProfileForm::TakeSchedule);
    QCheckBox& names = m_Schedule->ViewDayType();
    connect(&names, &QCheckBox::clicked, this, [this, &names](bool on) {
        m_Binder.Edit<std::int16_t>(
            [](cProfile& shown, const std::int16_t& view) { shown.m_TimeSchedule_ViewDayType = view; },
            on ? True16 : False16, m_Binder.Step(names.text(), names.objectName(), false));
    });
    m_Binder.AddShow([this](const cProfile& shown) { ShowSchedule(shown); });
    return page;
}

// The profile's schedule as a state of the editor.
std::string cProfileForm::ScheduleOf(const cProfile& profile) const {
    cTypedState state{m_Binder.TypedIn(m_Schedule->TypedPrefix()), {}};
    if (profile.m_TimeSchedule) profile.m_TimeSchedule->ComposePeriodArray(state.content);
    return state.Text();
}

// The editor shows a copy of the profile's schedule.
void cProfileForm::ShowSchedule(const cProfile& profile) {
    // What is chosen in it stays where nothing else is shown.
    std::string state = ScheduleOf(profile);
    if (state != m_ShownSchedule) m_Schedule->Restore(m_ShownSchedule = std::move(state));
    m_Schedule->ViewDayType().setChecked(profile.m_TimeSchedule_ViewDayType != 0);
    if (m_Calendar != nullptr) m_Calendar->Editor().RefreshSchedules();
}

void cProfileForm::TakeSchedule(const cEditStep& step) {
    if (m_Binder.Shown() == nullptr) return;
    const cTypedState after = cTypedState::Of(step.after);
    m_Binder.SetTypedIn(m_Schedule->TypedPrefix(), after.typed);
    m_Binder.Edit<std::string>(
        [](cProfile& shown, const std::string& text) { shown.m_TimeSchedule->ExtractPeriodArray(text); },
        after.content, {step.name, m_Schedule->objectName()});
    m_ShownSchedule = ScheduleOf(*m_Binder.Shown());
    m_Calendar->Editor().RefreshSchedules();
}

QString cProfileForm::Reveal(const QString& field) {
    return field.startsWith(m_Schedule->TypedPrefix()) ? m_Schedule->ShowTypedTimes(field) : field;
}

bool cProfileForm::IsTyping() const {
    return m_Schedule->IsTyping();
}

QWidget* cProfileForm::MakeCalendar() {
    m_Calendar = new cProfileCalendar(m_Editor, m_Schedule->Schedule());
    m_Calendar->OnViewTimeAxis = [this](bool on) {
        m_Binder.Edit<std::int16_t>(
            [](cProfile& shown, const std::int16_t& view) { shown.m_Calendar_ViewTimeAxis = view; },
            on ? True16 : False16,
            m_Binder.Step(tr("the periods in the calendar"), "Check_Calendar_ShowTimeAxis", false));
    };
    m_Binder.AddShow([this](const cProfile& shown) { m_Calendar->Show(shown); });
    return m_Calendar;
}

// The editors hold what is to be answered for: the profile's schedule and the station's calendar.
QWidget* cProfileForm::MakeActiveDay() {
    m_ActiveDay = new cActiveDayView(m_Editor, m_Schedule->Schedule(), m_Calendar->Editor().Calendar());
    m_Binder.AddShow([this](const cProfile&) { RefreshActiveDay(); });
    const cFileDocument& calendar = m_Calendar->Document();
    connect(&calendar, &cFileDocument::StateChanged, this, &cProfileForm::RefreshActiveDay);
    connect(&calendar, &cFileDocument::Replaced, this, &cProfileForm::RefreshActiveDay);
    return m_ActiveDay;
}

void cProfileForm::RefreshActiveDay() {
    const cProfile* shown = m_Binder.Shown();
    if (shown != nullptr)
        m_ActiveDay->Refresh(shown->m_UseTimeSchedule != False16, m_Calendar->HasCalendar());
}

QWidget* cProfileForm::MakeExternal() {
    auto* page = new QWidget;
    auto* layout = MakeFields(page);
    layout->addRow(
        m_Binder.Flag("Check_UseExternalTag", tr("Use an external &tag"), &cProfile::m_UseExternalTag));
    layout->addRow(tr("Tag &name:"),
                   m_Binder.Text("Text_ExternalTagName", tr("Tag name"), &cProfile::m_ExternalTagName));
    layout->addRow(m_Binder.Flag("Check_IgnoreExternalTag", tr("&Ignore this tag in other profiles"),
                                 &cProfile::m_IgnoreExternalTagInOtherProfiles));
    layout->addRow(
        m_Binder.Flag("Check_UseExternalFile", tr("Use an external fi&le"), &cProfile::m_UseExternalFile));
    layout->addRow(tr("File &path:"),
                   m_Binder.Text("Text_ExternalFileName", tr("File path"), &cProfile::m_ExternalFileName));
    layout->addRow(tr("Te&xt in the file:"), m_Binder.Text("Text_ExternalFileText", tr("Text in the file"),
                                                           &cProfile::m_ExternalFileText));
    return page;
}

QWidget* cProfileForm::MakeSystems() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(m_Binder.Flag("Check_ScanSpecificSystems", tr("&Only alarms of these systems:"),
                                    &cProfile::m_ScanSpecificSystems));
    auto* grid = new cSystemGrid;
    layout->addWidget(grid);
    layout->addStretch(1);
    grid->OnEdited = [this](const std::vector<std::int16_t>& indices, bool on) {
        const QString name = indices.size() == 1 ? tr("System %1").arg(indices[0]) : tr("systems");
        m_Binder.Edit<std::int16_t>(
            [&indices](cProfile& shown, const std::int16_t& status) {
                for (const std::int16_t index : indices) shown.SetSystem(index, status);
            },
            on ? True16 : False16, m_Binder.Step(name, QString("Check_System_%1").arg(indices[0]), false));
    };
    m_Binder.AddShow([grid](const cProfile& shown) { grid->Show(shown); });
    return page;
}

void cProfileForm::Show(cProfile* profile, TypedTexts* typed) {
    // What is being typed belongs to the profile that was shown so far, and doesn't go over to another.
    if (profile != m_Binder.Shown()) m_Schedule->DropTyping();
    m_Binder.Show(profile, typed);
    setEnabled(profile != nullptr);
}

QList<cContentEditor*> cProfileForm::Editors() const {
    return {m_Schedule, &m_Calendar->Editor()};
}

cContentEditor& cProfileForm::PrintedEditor() {
    if (m_Tabs->currentWidget()->isAncestorOf(m_Calendar)) return m_Calendar->Editor();
    return *m_Schedule;
}

void cProfileForm::SetZoom(double zoom) {
    for (cContentEditor* editor : Editors()) editor->SetZoom(zoom);
}

void cProfileForm::RefreshDayTypes() {
    for (cContentEditor* editor : Editors()) editor->RefreshDayTypes();
}

void cProfileForm::RefreshReceivers() {
    for (cReceiverPicker* picker : m_Pickers) picker->Refresh();
}

}  // namespace vigrel
