#include "editor_ui/calendar/calendar_editor.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"
#include "common/failure.h"
#include "editor_ui/calendar/country_names.h"
#include "editor_ui/pages/entry_width.h"
#include "editor_ui/pages/line_problems_label.h"
#include "schedule/calendar_geometry.h"
#include "schedule/definition_files.h"
#include "schedule/holiday_rules.h"
#include "schedule/own_holidays.h"
#include "schedule/public_holidays.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr std::string_view kIniSection = "Calendar";
constexpr std::string_view kIniHolidays = "Holidays";
constexpr std::int16_t kEntries = kDayTypes + 1;
constexpr QSize kMonthSize(kGridRight + 8, kGridBottom + 6);  // units
constexpr int kLeastLetters = 12;                             // of a choice
// A day's number of two digits and a short name of three letters stand side by side in a box of 37 units.
constexpr int kFontSize = 10;

}  // namespace

cCalendarEditor::cCalendarEditor(cEditorServices& services, QWidget* parent)
    : cContentEditor(parent),
      m_Services(services),
      m_Problems(new cLineProblemsLabel),
      m_Calendar(Surroundings()),
      m_View("Picture_Calendar", this),
      m_YearView("Picture_Calendar_Year", this),
      m_ShowTimeAxis(tr("Show the day's &periods")),
      m_Popup(this) {
    setObjectName("Editor_Calendar");
    setFocusProxy(&m_View);
    MakeActions();
    MakeLayout();
    FillCountries();
    SetSchedules({});
    ConnectView();
    ConnectYear();
    ConnectChoices();
    SetZoom(1);
    RefreshHolidays();
    ShowToday();
}

cCalendarSurroundings cCalendarEditor::Surroundings() const {
    return {m_Services.m_Files, m_Services.m_Clock, m_Services.m_Forms, m_Holidays, m_Services.GetText};
}

void cCalendarEditor::MakeLayout() {
    m_View.Surface().SetFontSize(kFontSize);
    auto* drawing = new QVBoxLayout;
    drawing->addLayout(MakeMonthBar());
    drawing->addWidget(MakeStack(), 1);
    auto* hint =
        new cPlainLabel(tr("Choose a day type and paint it over the days with the left mouse button."));
    hint->setWordWrap(true);
    drawing->addWidget(hint);
    drawing->addWidget(m_Problems);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(drawing, 1);
    layout->addWidget(MakeToolBox());
}

QLayout* cCalendarEditor::MakeMonthBar() {
    m_Month.setObjectName("Text_Calendar_Month");
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    m_Month.setFont(large);
    const auto make = [](QToolButton& button, const char* name, const QString& text, const QString& tip) {
        button.setObjectName(name);
        button.setText(text);
        button.setToolTip(tip);
        button.setAccessibleName(tip);
    };
    make(m_Previous, "Button_Calendar_Previous", QStringLiteral("◀"), tr("Previous month (Page Up)"));
    make(m_Next, "Button_Calendar_Next", QStringLiteral("▶"), tr("Next month (Page Down)"));
    make(m_Today, "Button_Calendar_Today", tr("To&day"), tr("The month of today (Home)"));
    make(m_ShowYear, "Button_Calendar_ShowYear", tr("Yea&r"), tr("The whole year on one page"));
    m_ShowYear.setCheckable(true);
    m_Year.setObjectName("Spin_Calendar_Year");
    m_Year.setAccessibleName(tr("Year"));
    m_Year.setRange(kFirstCalendarYear, kLastCalendarYear);
    m_MonthNames.setObjectName("Combo_Calendar_Month");
    m_MonthNames.setAccessibleName(tr("Month"));
    for (const std::string& name : m_Services.m_Forms.monthNames) m_MonthNames.addItem(ToQString(name));
    auto* bar = new QHBoxLayout;
    for (QWidget* each : std::initializer_list<QWidget*>{&m_Previous, &m_Next, &m_MonthNames, &m_Year,
                                                         &m_Today, &m_ShowYear}) {
        bar->addWidget(each);
    }
    bar->addStretch(1);
    auto* rows = new QVBoxLayout;
    rows->addWidget(&m_Month);
    rows->addLayout(bar);
    return rows;
}

QWidget* cCalendarEditor::MakeToolBox() {
    auto* box = new QGroupBox(tr("Calendar"));
    auto* layout = new QVBoxLayout(box);
    const auto add = [layout](const QString& text, QWidget& field, int stretch) {
        auto* label = new cPlainLabel(text);
        label->setBuddy(&field);
        const QString name = QString(text).remove('&');
        field.setAccessibleName(name);
        if (auto* choice = qobject_cast<QComboBox*>(&field)) choice->view()->setAccessibleName(name);
        layout->addWidget(label);
        layout->addWidget(&field, stretch);
    };
    MakeDayTypes();
    m_Country.setObjectName("Combo_Calendar_Holidays");
    m_Schedule.setObjectName("Combo_Calendar_TimeSchedule");
    m_ShowTimeAxis.setObjectName("Check_Calendar_ShowTimeAxis");
    // As wide as their entries, but the drawing comes first where there is little room.
    for (QComboBox* choice : {&m_Country, &m_Schedule}) {
        choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        choice->setMinimumWidth(choice->fontMetrics().averageCharWidth() * kLeastLetters);
    }
    add(tr("Day &type to paint"), m_DayTypes, 1);
    add(tr("H&olidays"), m_Country, 0);
    add(tr("T&ime schedule"), m_Schedule, 0);
    layout->addWidget(&m_ShowTimeAxis);
    return box;
}

// Each with its picture, all in sight where there is room.
void cCalendarEditor::MakeDayTypes() {
    m_DayTypes.setObjectName("List_Calendar_DayType");
    m_DayTypes.setIconSize(QSize(kDayTypeImageSize, kDayTypeImageSize));
    FillDayTypes();
    m_DayTypes.setCurrentRow(kWeekDays + 1);
}

void cCalendarEditor::FillDayTypes() {
    const int current = m_DayTypes.currentRow();
    m_DayTypes.clear();
    for (std::int16_t number = 1; number <= kEntries; ++number) {
        const int image = number - 1 - kWeekDays;
        const QString name = ToQString(m_Services.m_DayTypeNames.Entry(number));
        auto* item = new QListWidgetItem(m_Services.m_DayTypeImages.Icon(image, devicePixelRatioF()), name,
                                         &m_DayTypes);
        item->setToolTip(name);
    }
    m_DayTypes.setCurrentRow(current);
    KeepToEntries(m_DayTypes);
}

void cCalendarEditor::RefreshDayTypes() {
    FillDayTypes();
    Redraw();
}

void cCalendarEditor::FillCountries() {
    m_Country.addItem(tr("None"), QString());
    for (const cHolidayCountry& country : HolidayCountries()) {
        m_Country.addItem(CountryName(country), ToQString(country.code));
    }
    const std::string chosen = m_Services.m_Ini.GetIniString(kIniSection, kIniHolidays, "?", kDefinitionsIni);
    // Nothing chosen yet: the desktop's country, when its holidays are known.
    const QString code =
        chosen == "?" ? QLocale::territoryToCode(QLocale::system().territory()) : ToQString(chosen);
    m_Country.setCurrentIndex(std::max(m_Country.findData(code), 0));
}

void cCalendarEditor::ConnectChoices() {
    connect(&m_Previous, &QToolButton::clicked, this, [this] { MoveMonth(ShowsYear() ? -12 : -1); });
    connect(&m_Next, &QToolButton::clicked, this, [this] { MoveMonth(ShowsYear() ? 12 : 1); });
    connect(&m_ShowYear, &QToolButton::toggled, this, &cCalendarEditor::ShowYear);
    connect(&m_Today, &QToolButton::clicked, this, &cCalendarEditor::ShowToday);
    connect(&m_Year, &QSpinBox::valueChanged, this, &cCalendarEditor::ShowChosenMonth);
    connect(&m_MonthNames, &QComboBox::currentIndexChanged, this, &cCalendarEditor::ShowChosenMonth);
    connect(&m_Country, &QComboBox::activated, this, &cCalendarEditor::TakeCountry);
    connect(&m_Schedule, &QComboBox::currentIndexChanged, this, &cCalendarEditor::TakeSchedule);
    connect(&m_ShowTimeAxis, &QCheckBox::toggled, this, [this](bool show) {
        m_Calendar.m_ShowTimeAxis = show ? True16 : False16;
        Redraw();
    });
}

// What belongs to the station is stored at once. Here the choice holds in any case.
void cCalendarEditor::TakeCountry() {
    cIni& ini = m_Services.m_Ini;
    const std::string code = FromQString(m_Country.currentData().toString());
    ini.PutIniString(kIniSection, kIniHolidays, code, kDefinitionsIni);
    RefreshHolidays();
    if (ini.GetIniString(kIniSection, kIniHolidays, "?", kDefinitionsIni) != code)
        TellNotStored(this, m_Services);
}

void cCalendarEditor::RefreshHolidays() {
    m_Holidays = PublicHolidays(FromQString(m_Country.currentData().toString()));
    cOwnHolidays own;
    m_Problems->Show(kOwnHolidaysFile,
                     own.Load(m_Services.m_Files, m_Services.m_Ini.FullPath(kOwnHolidaysFile)));
    own.AddTo(m_Holidays);
    Redraw();
}

// --- time axis

void cCalendarEditor::SetSchedules(const QList<cNamedSchedule>& schedules) {
    const QSignalBlocker blocker(m_Schedule);
    const cTimeSchedule* chosen = m_Calendar.m_AssociatedTimeSchedule;
    m_Schedules = schedules;
    m_Schedule.clear();
    m_Schedule.addItem(tr("None"));
    for (const cNamedSchedule& each : m_Schedules) m_Schedule.addItem(each.name);
    ChooseSchedule(chosen);
    TakeSchedule();
}

void cCalendarEditor::ChooseSchedule(const cTimeSchedule* schedule) {
    int index = 0;
    for (int i = 0; i < m_Schedules.size(); ++i) {
        if (m_Schedules[i].schedule == schedule) index = i + 1;
    }
    m_Schedule.setCurrentIndex(index);
}

void cCalendarEditor::TakeSchedule() {
    const int index = m_Schedule.currentIndex() - 1;
    m_Calendar.m_AssociatedTimeSchedule = m_Schedules.value(index, {{}, nullptr}).schedule;
    m_ShowTimeAxis.setEnabled(m_Calendar.m_AssociatedTimeSchedule != nullptr);
    Redraw();
}

// --- month

void cCalendarEditor::ShowMonth(int year, int month) {
    const QSignalBlocker noYear(m_Year), noMonth(m_MonthNames);
    m_Year.setValue(year);
    m_MonthNames.setCurrentIndex(month - 1);
    m_Calendar.m_SelectedYear = year;
    m_Calendar.m_SelectedMonth = month;
    m_Calendar.RecalculateAndPrepareToPaint(*this, &m_View.Surface());
    m_Previous.setEnabled(year > kFirstCalendarYear || month > 1);
    m_Next.setEnabled(year < kLastCalendarYear || month < 12);
    m_Day = std::min(m_Day, m_Calendar.m_DaysInActualMonth - 1);
    ForgetPointer();
    // The month's name is among what the calendar tells while it paints.
    m_Calendar.Paint(*this, &m_View.Surface());
    Redraw();
}

void cCalendarEditor::ShowChosenMonth() {
    ShowMonth(m_Year.value(), m_MonthNames.currentIndex() + 1);
}

// Outside the calendar's years the nearest month that it has.
void cCalendarEditor::ShowToday() {
    const cDateParts today = SplitDateTime(m_Services.m_Clock.Now());
    m_Day = today.day - 1;
    if (today.year < kFirstCalendarYear) return ShowMonth(kFirstCalendarYear, 1);
    if (today.year > kLastCalendarYear) return ShowMonth(kLastCalendarYear, 12);
    ShowMonth(today.year, today.month);
}

void cCalendarEditor::MoveMonth(int months) {
    const int month = m_Calendar.m_SelectedYear * 12 + m_Calendar.m_SelectedMonth - 1 + months;
    if (month / 12 < kFirstCalendarYear || month / 12 > kLastCalendarYear) return;
    ShowMonth(month / 12, month % 12 + 1);
}

// --- content

void cCalendarEditor::ReadFile(const std::string& path) {
    DropStroke();
    LoadCalendarFile(m_Services.m_Files, path, m_Calendar);
    Redraw();
}

void cCalendarEditor::WriteFile(const std::string& path) {
    m_Calendar.SaveToDisk(path);
}

bool cCalendarEditor::IsInFile(const std::string& path, const std::string& state) const {
    cCalendar calendar(Surroundings());
    cBinaryReader reader(state);
    for (std::int32_t i = 0; i < kCalendarDays; ++i) calendar.SetDayType(i, reader.Int16());
    return calendar.CompareToDisk(path);
}

std::string cCalendarEditor::State() const {
    cBinaryWriter state;
    for (std::int32_t i = 0; i < kCalendarDays; ++i) state.Int16(m_Calendar.GetDayType(i));
    return state.Bytes();
}

// A stroke that is under way has lost what it painted on.
void cCalendarEditor::DropStroke() {
    m_Painting = false;
    m_Calendar.MouseUp(*this, &m_View.Surface(), 1, 0, 0, 0);
}

void cCalendarEditor::Restore(const std::string& state) {
    DropStroke();
    cBinaryReader reader(state);
    std::vector<std::int32_t> changed;
    for (std::int32_t i = 0; i < kCalendarDays; ++i) {
        const std::int16_t value = reader.Int16();
        if (value == m_Calendar.GetDayType(i)) continue;
        m_Calendar.SetDayType(i, value);
        changed.push_back(i);
    }
    ShowAnyOf(changed);
    Redraw();
}

// Turns to the first of the days, unless the month shows one of them.
void cCalendarEditor::ShowAnyOf(const std::vector<std::int32_t>& days) {
    const std::int32_t first = m_Calendar.m_ActualMonthOffset;
    const auto shown = std::find_if(days.begin(), days.end(), [&](std::int32_t day) {
        return day >= first && day < first + m_Calendar.m_DaysInActualMonth;
    });
    if (days.empty()) return;
    const cDateParts date = SplitDateTime((shown == days.end() ? days.front() : *shown) + kFirstCalendarDay);
    m_Day = date.day - 1;
    if (shown == days.end()) ShowMonth(date.year, date.month);
}

// The month keeps its shape, the year takes all the room there is.
QWidget* cCalendarEditor::MakeStack() {
    m_Room = MakeRoom();
    m_Stack.addWidget(m_Room);
    m_Stack.addWidget(&m_YearView);
    return &m_Stack;
}

// The drawing stays light where the desktop is dark, and has a border.
cDrawingRoom* cCalendarEditor::MakeRoom() {
    auto* frame = new QFrame;
    frame->setObjectName("Picture_Calendar_Frame");
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(&m_View);
    const int border = 2 * frame->frameWidth();
    auto* room = new cDrawingRoom(*frame, kMonthSize, QSize(border, border));
    room->OnZoom = [this](double zoom) { m_View.Surface().SetZoom(zoom); };
    return room;
}

// --- container

void cCalendarEditor::Draw_ImageList_ListImages(DeviceContext context, std::int16_t image, double x,
                                                double y) {
    cPaintSurface& surface = m_View.Surface();
    if (context != surface.GetDeviceContext()) return;
    surface.DrawImage(
        [&](int size, qreal scale) { return m_Services.m_DayTypeImages.Image(image, size, scale); }, x, y,
        kDayTypeImageSize);
}

std::optional<std::string> cCalendarEditor::Get_Combo_Calendar_DayType_SelectedItem() const {
    if (m_DayTypes.currentItem() == nullptr) return std::nullopt;
    return FromQString(m_DayTypes.currentItem()->text());
}
std::int16_t cCalendarEditor::Get_Combo_Calendar_DayType_SelectedItem_Index() const {
    return static_cast<std::int16_t>(ChosenValue() + 1);
}
std::string cCalendarEditor::Get_Combo_Calendar_DayType_ComboItems(std::int16_t number) const {
    return m_Services.m_DayTypeNames.Entry(number);
}
void cCalendarEditor::Set_Text_Calendar_Month(std::string_view text) {
    m_Month.setText(ShowsYear() ? QString::number(m_Calendar.m_SelectedYear) : ToQString(text));
}

}  // namespace vigrel
