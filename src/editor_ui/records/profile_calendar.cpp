#include "editor_ui/records/profile_calendar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"

namespace vigrel {
namespace {

constexpr std::string_view kSection = "Profiles", kKey = "Calendar";
constexpr std::string_view kUsualName = "Calendar.cal";

}  // namespace

cProfileCalendar::cProfileCalendar(cEditorServices& services, cSchedulePage& schedule, QWidget* parent)
    : QWidget(parent),
      m_Services(services),
      m_Page(new cCalendarPage(services, tr("Calendar"))),
      m_Path(new QLabel) {
    auto* open = new QPushButton(tr("Another calendar..."));
    open->setObjectName("Button_OpenCalendar");
    m_Path->setObjectName("Label_Calendar");
    m_Path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_Path, 1);
    bar->addWidget(open);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_Page, 1);
    connect(open, &QPushButton::clicked, this, [this] { Choose(); });
    connect(m_Page, &cEditorPage::FileUsed, this, [this](const QString& path) { Remember(path); });
    connect(&m_Page->ShowTimeAxis(), &QCheckBox::clicked, this, [this](bool on) {
        if (OnViewTimeAxis) OnViewTimeAxis(on);
    });
    m_Page->SetSchedules({&schedule});
    m_Page->ChooseSchedule(&schedule);
    OpenRemembered();
}

void cProfileCalendar::OpenRemembered() {
    std::string path = m_Services.m_Ini.GetIniString(kSection, kKey, "", kDefinitionsIni);
    if (path.empty()) path = m_Services.m_Ini.FullPath(kUsualName);
    m_Path->setText(tr("A new calendar"));
    // One that was taken away since is no failure to be told.
    if (m_Services.m_Files.FileExists(path)) m_Page->Open(path);
}

void cProfileCalendar::Choose() {
    const QString path = m_Services.m_Prompts.AskOpenPath(
        this, ToQString(m_Services.m_Ini.ApplicationPath()).replace('\\', '/'),
        tr("Calendars (*.cal);;All files (*)"));
    if (path.isEmpty() || !MayLeave()) return;
    if (!FitsCodePage(path)) {
        m_Services.m_Prompts.ShowFailure(this,
                                         tr("%1 has characters that file names here can't have.").arg(path));
        return;
    }
    m_Page->Open(FromQString(path));
}

// Whether the shown calendar's changes are saved or given up.
bool cProfileCalendar::MayLeave() {
    if (!m_Page->IsDirty()) return true;
    const cPrompts::eSave answer = m_Services.m_Prompts.AskToSave(this, m_Page->Title());
    if (answer == cPrompts::eSave::Save) return m_Page->Save();
    return answer == cPrompts::eSave::Discard;
}

void cProfileCalendar::Remember(const QString& path) {
    m_Path->setText(path);
    m_Services.m_Ini.PutIniString(kSection, kKey, FromQString(path), kDefinitionsIni);
}

void cProfileCalendar::Show(const cProfile& profile) {
    m_Page->ShowTimeAxis().setChecked(profile.m_Calendar_ViewTimeAxis != 0);
}

}  // namespace vigrel
