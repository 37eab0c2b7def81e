#include "editor_ui/records/profile_calendar.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "editor_ui/calendar/calendar_page.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr std::string_view kSection = "Profiles", kKey = "Calendar";
constexpr std::string_view kUsualName = "Calendar.cal";

}  // namespace

cProfileCalendar::cProfileCalendar(cEditorServices& services, const cTimeSchedule& schedule, QWidget* parent)
    : QWidget(parent),
      m_Services(services),
      m_Editor(new cCalendarEditor(services)),
      m_Document(services, CalendarFileForm(tr("Calendar"), *m_Editor), this),
      m_Path(new cPlainLabel) {
    auto* open = new QPushButton(tr("Another calendar..."));
    open->setObjectName("Button_OpenCalendar");
    m_Path->setObjectName("Label_Calendar");
    m_Path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_Path, 1);
    bar->addWidget(open);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    m_Editor->layout()->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Editor, 1);
    connect(open, &QPushButton::clicked, this, [this] { Choose(); });
    connect(&m_Document, &cFileDocument::FileUsed, this, [this](const QString& path) { Remember(path); });
    connect(&m_Document, &cFileDocument::StateChanged, this, [this] { ShowPath(); });
    connect(&m_Document, &cFileDocument::LetGo, this, [this] { ShowPath(); });
    connect(&m_Editor->ShowTimeAxis(), &QCheckBox::clicked, this, [this](bool on) {
        if (OnViewTimeAxis) OnViewTimeAxis(on);
    });
    m_Editor->SetSchedules({{tr("This profile"), &schedule}});
    m_Editor->ChooseSchedule(&schedule);
    OpenRemembered();
}

void cProfileCalendar::OpenRemembered() {
    std::string path = m_Services.m_Ini.GetIniString(kSection, kKey, "", kDefinitionsIni);
    if (path.empty()) path = kUsualName;
    if (path[0] != '/') path = m_Services.m_Ini.FullPath(path);
    ShowPath();
    // One that was taken away since is no failure to be told.
    if (m_Services.m_Files.FileExists(path)) m_Document.Open(path);
}

void cProfileCalendar::ShowPath() {
    m_Path->setText(m_Document.Path().isEmpty() ? tr("A new calendar") : m_Document.Path());
}

void cProfileCalendar::Choose() {
    const QString path = m_Services.m_Prompts.AskOpenPath(
        this, PathToQString(m_Services.m_Ini.ApplicationPath()), tr("Calendars (*.cal);;All files (*)"));
    if (path.isEmpty() || !MayLeave()) return;
    m_Document.Open(PathFromQString(path));
}

// Whether the shown calendar's changes are saved or given up.
bool cProfileCalendar::MayLeave() {
    if (!m_Document.IsDirty()) return true;
    const cPrompts::eSave answer = m_Services.m_Prompts.AskToSave(this, m_Document.Title());
    if (answer == cPrompts::eSave::Save) return m_Document.Save();
    return answer == cPrompts::eSave::Discard;
}

// One of the application folder by its name there: the folder can be moved, or restored on another machine.
void cProfileCalendar::Remember(const QString& path) {
    const QString folder = PathToQString(m_Services.m_Ini.ApplicationPath());
    const QString known = path.startsWith(folder) ? path.mid(folder.size()) : path;
    m_Services.m_Ini.PutIniString(kSection, kKey, PathFromQString(known), kDefinitionsIni);
}

bool cProfileCalendar::HasCalendar() const {
    return !m_Document.Path().isEmpty() || m_Document.IsDirty();
}

void cProfileCalendar::Show(const cProfile& profile) {
    m_Editor->ShowTimeAxis().setChecked(profile.m_Calendar_ViewTimeAxis != 0);
}

}  // namespace vigrel
