#include "editor_ui/schedule/schedule_editor.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/entry_width.h"
#include "editor_ui/pages/undo_keys.h"
#include "schedule/definition_files.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr int kTimeLength = 8;  // characters that a time can be typed in
constexpr int kHoursGap = 2;    // pixels between the hours and the rows

}  // namespace

cScheduleEditor::cScheduleEditor(cEditorServices& services, QWidget* parent)
    : cContentEditor(parent),
      m_Services(services),
      m_Hours(this),
      m_Frame(this),
      m_ViewDayType(tr("Day &names in the rows")),
      m_UseCalendar(tr("Special &day types")),
      m_Popup(this),
      m_Images(tr("I&mage of the day type"), this) {
    setObjectName("Editor_Schedule");
    setFocusProxy(&m_Frame.View());
    m_Schedule.SetDefaultPeriod();
    MakeActions();
    MakeImageMenu();
    MakeLayout();
    ConnectView();
    SetZoom(1);
    FillDayTypes();
}

void cScheduleEditor::MakeLayout() {
    auto* tools = new QVBoxLayout;
    tools->addWidget(MakePeriodBox());
    tools->addWidget(MakeDayTypeBox(), 1);
    m_Room = MakeRoom();
    auto* hint =
        new cPlainLabel(tr("Drag in a row to make a period, drag its ends to change it. The right mouse "
                           "button opens the menu."));
    hint->setWordWrap(true);
    auto* drawing = new QVBoxLayout;
    drawing->addWidget(m_Room, 1);
    drawing->addWidget(hint);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(drawing, 1);
    layout->addLayout(tools);
}

// The hours stand over the rows, whose frame sets the width.
cDrawingRoom* cScheduleEditor::MakeRoom() {
    auto* drawing = new QWidget;
    auto* layout = new QVBoxLayout(drawing);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kHoursGap);
    layout->addWidget(&m_Hours);
    layout->addWidget(&m_Frame);
    const QSize around = m_Frame.AroundDrawing() + QSize(0, m_Hours.height() + kHoursGap);
    auto* room = new cDrawingRoom(*drawing, cScheduleFrame::DrawingSize(), around);
    room->OnZoom = [this](double zoom) { ApplyZoom(zoom); };
    return room;
}

QWidget* cScheduleEditor::MakePeriodBox() {
    m_PeriodBox.setTitle(tr("Selected period"));
    auto* form = new QFormLayout(&m_PeriodBox);
    m_Chosen.setObjectName("Label_Schedule_Chosen");
    m_Chosen.setWordWrap(true);
    form->addRow(&m_Chosen);
    m_Start.setObjectName("Text_Schedule_Period_Start");
    m_Stop.setObjectName("Text_Schedule_Period_Stop");
    m_Time.setObjectName("Text_Schedule_Time");
    m_Time.setAccessibleName(tr("Time under the pointer"));
    for (QLineEdit* field : {&m_Start, &m_Stop}) {
        field->setMaxLength(kTimeLength);
        field->setMaximumWidth(field->fontMetrics().averageCharWidth() * 3 * kTimeLength);
        field->setToolTip(tr("A time of day, such as 8, 0830 or 16:30"));
        // On the way from one field to the other half of what is meant stands there, and the schedule would
        // swap a start that lies behind the old stop.
        const QLineEdit* other = field == &m_Start ? &m_Stop : &m_Start;
        LeaveUndoToPage(*field, [this] { TakeBackTyping(); });
        connect(field, &QLineEdit::textEdited, this, [this, field] {
            // A text that is dragged here comes without the keyboard, and is taken over when that leaves.
            if (!field->hasFocus()) field->setFocus();
            emit ProblemChanged();
        });
        connect(field, &QLineEdit::editingFinished, this, [this, other] {
            if (!other->hasFocus()) TakeTimes();
        });
    }
    form->addRow(tr("S&tart"), &m_Start);
    form->addRow(tr("Sto&p"), &m_Stop);
    form->addRow(&m_Problem);
    form->addRow(tr("Pointer at"), &m_Time);
    return &m_PeriodBox;
}

QWidget* cScheduleEditor::MakeDayTypeBox() {
    auto* box = new QGroupBox(tr("Rows"));
    auto* layout = new QVBoxLayout(box);
    m_ViewDayType.setObjectName("Check_TimeSchedule_ViewDayType");
    m_UseCalendar.setObjectName("Check_TimeSchedule_UseCalendar");
    m_UseCalendar.setToolTip(tr("Rows for the day types that a calendar gives to dates"));
    m_DayTypes.setObjectName("List_DayTypes");
    m_DayTypes.setIconSize(QSize(kDayTypeImageSize, kDayTypeImageSize));
    m_DayTypes.setAccessibleName(tr("Day types in use"));
    layout->addWidget(&m_ViewDayType);
    layout->addWidget(&m_UseCalendar);
    layout->addWidget(&m_DayTypes, 1);
    connect(&m_ViewDayType, &QCheckBox::toggled, this, [this] { m_Frame.View().update(); });
    connect(&m_UseCalendar, &QCheckBox::clicked, this, &cScheduleEditor::TakeUseCalendar);
    connect(&m_DayTypes, &QListWidget::itemChanged, this,
            [this](const QListWidgetItem* item) { TakeDayType(*item); });
    m_DayTypes.addActions({m_Rename, m_Images.menuAction()});
    m_DayTypes.setContextMenuPolicy(Qt::ActionsContextMenu);
    return box;
}

void cScheduleEditor::ConnectView() {
    cDrawingView& view = m_Frame.View();
    view.OnPaint = [this](QPainter& painter) {
        m_Schedule.Paint(*this, &m_Frame.View().Surface());
        if (!m_IsPrinting) PaintFocus(painter);
    };
    view.OnMouseDown = [this](auto... event) { MouseDown(event...); };
    view.OnMouseUp = [this](auto... event) { MouseUp(event...); };
    view.OnMouseMove = [this](std::int16_t button, std::int16_t shift, QPoint unit) {
        m_Schedule.MouseMove(*this, m_SchedulePaintObject, button, shift, static_cast<float>(unit.x()),
                             static_cast<float>(unit.y()));
    };
    view.OnPopupMenu = [this](QPoint place) { ShowPopupMenu(place); };
    view.OnKey = [this](const QKeyEvent& event) { return Key(event); };
}

// The week as it is drawn, with all its rows, under the hours.
std::optional<cPrintout> cScheduleEditor::Printout() {
    QWidget& view = m_Frame.View();
    const int hours = m_Hours.height();
    const QSizeF shape(view.width(), view.height() + hours);
    QList<cPrintout::cSign> legend;
    for (std::int16_t dayType = kWeekDays; dayType < kDayTypes; ++dayType) {
        if (!m_Schedule.GetActive(dayType) || RowOf(dayType) >= ShownRows()) continue;
        legend.append(SignOf(dayType, m_Services));
    }
    return cPrintout{{},
                     shape,
                     [this, &view, hours](QPainter& painter, const QRectF& place) {
                         painter.save();
                         painter.translate(place.topLeft());
                         const double scale = place.width() / view.width();
                         painter.scale(scale, scale);
                         m_Hours.PaintOn(painter, m_Frame.Zoom(), 0, Qt::black);
                         m_IsPrinting = true;
                         painter.translate(0, hours);
                         view.render(&painter, {}, {}, QWidget::DrawWindowBackground);
                         m_IsPrinting = false;
                         painter.restore();
                     },
                     legend};
}

// --- content

void cScheduleEditor::ReadFile(const std::string& path) {
    // A drag that is under way has lost its period.
    m_Schedule.MouseUp(*this, m_SchedulePaintObject, 1, 0, 0, 0);
    LoadScheduleFile(m_Services.m_Files, path, m_Schedule);
    m_Typed.clear();
    m_Schedule.ClearSelection(*this);
    Recalculate();
}

void cScheduleEditor::WriteFile(const std::string& path) {
    SaveScheduleFile(m_Services.m_Files, path, m_Schedule);
}

bool cScheduleEditor::IsInFile(const std::string& path, const std::string& state) const {
    cTimeSchedule schedule;
    LoadScheduleFile(m_Services.m_Files, path, schedule);
    cTypedState held;
    schedule.ComposePeriodArray(held.content);
    return held.Text() == state;
}

std::string cScheduleEditor::State() const {
    cTypedState state{TypedTimes(), {}};
    m_Schedule.ComposePeriodArray(state.content);
    return state.Text();
}

void cScheduleEditor::Restore(const std::string& state) {
    // A drag that is under way has lost its period.
    m_Schedule.MouseUp(*this, m_SchedulePaintObject, 1, 0, 0, 0);
    const std::vector<cDay> before = Days();
    const TypedTexts typedBefore = TypedTimes();
    const cTypedState restored = cTypedState::Of(state);
    m_Schedule.ExtractPeriodArray(restored.content);
    m_Typed = restored.typed;
    m_Schedule.ClearSelection(*this);
    Recalculate();
    if (!ShowTypedDifference(typedBefore)) ShowFirstDifference(before);
}

std::vector<cScheduleEditor::cDay> cScheduleEditor::Days() const {
    std::vector<cDay> days;
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        cDay day{m_Schedule.GetActive(dayType), m_Schedule.IsGrouped(dayType), {}};
        for (const PeriodPtr& period : PeriodsOf(dayType)) {
            day.periods.emplace_back(period->m_StartMinute, period->m_StopMinute);
        }
        days.push_back(std::move(day));
    }
    return days;
}

void cScheduleEditor::ShowFirstDifference(const std::vector<cDay>& before) {
    const std::vector<cDay> after = Days();
    const auto changed = std::mismatch(after.begin(), after.end(), before.begin()).first - after.begin();
    const auto dayType = static_cast<std::int16_t>(changed);
    if (dayType < kDayTypes && m_Schedule.GetActive(dayType)) Choose(dayType, nullptr);
}

void cScheduleEditor::ApplyZoom(double zoom) {
    m_Frame.SetZoom(zoom);
    m_Hours.Follow(zoom, m_Frame.frameWidth());
    Recalculate();
}

void cScheduleEditor::Recalculate() {
    m_Schedule.RecalculateAndPrepareToPaint(*this, m_SchedulePaintObject, &m_Frame.View().Surface());
    m_Frame.View().update();
    Refresh();
}

void cScheduleEditor::RefreshDayTypes() {
    FillDayTypes();
    m_Frame.View().update();
}

void cScheduleEditor::FillDayTypes() {
    const QSignalBlocker blocker(m_DayTypes);
    const int current = m_DayTypes.currentRow();
    m_DayTypes.clear();
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        auto* item = new QListWidgetItem(ToQString(m_Services.m_DayTypeNames.Name(dayType)), &m_DayTypes);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        if (dayType >= kWeekDays) {
            item->setIcon(m_Services.m_DayTypeImages.Icon(dayType - kWeekDays + 1, devicePixelRatioF()));
        }
    }
    m_DayTypes.setCurrentRow(current);
    KeepToEntries(m_DayTypes);
    Refresh();
}

// The commands can leave a period selected that is no longer in its day, or a day whose row is gone; what is
// selected is what is seen, and the fields show its times.
void cScheduleEditor::RefreshSelection() {
    if (m_Schedule.IsDragging()) return;
    ForgetTypedOfOthers();
    const std::int32_t dayType = m_Schedule.SelectedDayType();
    const bool shown = dayType >= 0 && m_Schedule.GetActive(static_cast<std::int16_t>(dayType)) &&
                       RowOf(dayType) < ShownRows();
    const PeriodPtr period = m_Schedule.SelectedPeriod();
    const cTimeSchedulePeriod times = period ? *period : cTimeSchedulePeriod{};
    const PeriodList periods = shown ? PeriodsOf(dayType) : PeriodList{};
    const bool known = !period || std::find(periods.begin(), periods.end(), period) != periods.end();
    const bool same = shown && known && dayType == m_Shown.dayType && period == m_Shown.period &&
                      times.m_StartMinute == m_Shown.times.m_StartMinute &&
                      times.m_StopMinute == m_Shown.times.m_StopMinute;
    // A text that is being typed stays.
    if (same) return ShowTyped();
    if (shown) {
        m_Schedule.Select(*this, dayType, period);
    } else {
        m_Schedule.ClearSelection(*this);
    }
    m_Shown = {m_Schedule.SelectedDayType(), m_Schedule.SelectedPeriod(), times};
    ShowTyped();
}

// Which day the fields speak of, and which others follow it.
void cScheduleEditor::ShowChosenDay() {
    const std::int32_t chosen = m_Schedule.SelectedDayType();
    if (chosen < 0) return m_Chosen.setText(tr("No day chosen"));
    const QString name = ToQString(m_Services.m_DayTypeNames.Name(static_cast<std::int16_t>(chosen)));
    QStringList others;
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        if (dayType == chosen || !m_Schedule.IsGrouped(dayType)) continue;
        others += ToQString(m_Services.m_DayTypeNames.Name(dayType));
    }
    const bool grouped = m_Schedule.IsGrouped(static_cast<std::int16_t>(chosen)) && !others.isEmpty();
    m_Chosen.setText(grouped ? tr("%1, changed together with %2").arg(name, others.join(", ")) : name);
}

void cScheduleEditor::Refresh() {
    RefreshSelection();
    ShowChosenDay();
    const QSignalBlocker blocker(m_DayTypes);
    m_UseCalendar.setChecked(m_Schedule.m_UseCalendar != False16);
    for (std::int16_t dayType = 0; dayType < kDayTypes && dayType < m_DayTypes.count(); ++dayType) {
        QListWidgetItem* item = m_DayTypes.item(dayType);
        item->setCheckState(m_Schedule.GetActive(dayType) ? Qt::Checked : Qt::Unchecked);
        item->setHidden(dayType >= kWeekDays && m_Schedule.m_UseCalendar == False16);
    }
    const bool hasDay = m_Schedule.SelectedDayType() >= 0;
    for (QAction* action : {m_Copy, m_WholeDay, m_Invert, m_Grouped}) action->setEnabled(hasDay);
    EnableTimes();
    m_Schedule.PreparePopupMenu(*this);
}

// What a drag shows is to be read well, though nothing is typed then.
void cScheduleEditor::EnableTimes() {
    const bool shown = m_Schedule.SelectedPeriod() != nullptr || m_Schedule.IsDragging();
    for (QLineEdit* field : {&m_Start, &m_Stop}) field->setEnabled(shown);
}

// --- container

void cScheduleEditor::Draw_ImageList_ListImages(DeviceContext context, std::int16_t image, double x,
                                                double y) {
    cPaintSurface& surface = m_Frame.View().Surface();
    if (context != surface.GetDeviceContext()) return;
    surface.DrawImage(
        [&](int size, qreal scale) { return m_Services.m_DayTypeImages.Image(image, size, scale); }, x, y,
        kDayTypeImageSize);
}

bool cScheduleEditor::Get_Menu_TimeSchedulePopup_Grouped_MonFri_Checked() const {
    return m_GroupedMonFri->isChecked();
}
void cScheduleEditor::Set_Menu_TimeSchedulePopup_Grouped_MonFri_Checked(bool checked) {
    m_GroupedMonFri->setChecked(checked);
}
std::string cScheduleEditor::Get_Text_Schedule_Period_Start() const {
    return FromQString(m_Start.text());
}
std::string cScheduleEditor::Get_Text_Schedule_Period_Stop() const {
    return FromQString(m_Stop.text());
}
void cScheduleEditor::Set_Text_Schedule_Period_Start(std::string_view text) {
    m_Start.setText(ToQString(text));
}
void cScheduleEditor::Set_Text_Schedule_Period_Stop(std::string_view text) {
    m_Stop.setText(ToQString(text));
}
void cScheduleEditor::Set_Text_Schedule_Time(std::string_view text) {
    m_Time.setText(ToQString(text));
}

}  // namespace vigrel
