#include "editor_ui/records/profiles_page.h"

#include "editor_ui/pages/content_editor.h"
#include "editor_ui/records/profile_calendar.h"
#include "editor_ui/records/profile_form.h"

namespace vigrel {
namespace {

QString Conditions(const cProfile& profile) {
    QStringList texts;
    for (std::int16_t i = 0; i < cProfile::kConditions; ++i) {
        if (const std::string& text = profile.GetCondition(i); !text.empty()) texts += ToQString(text);
    }
    return texts.join(", ");
}

std::unique_ptr<cDefinitionSource> ReadProfiles(cStationDefinitions& station) {
    station.OpenProfiles();
    return std::make_unique<cFolderSource<cProfile>>(station.Profiles(), Conditions);
}

}  // namespace

cProfilesPage::cProfilesPage(cEditorServices& services, QWidget* parent)
    : cDefinitionPage(
          services, ReadProfiles(services.m_Station), [&services] { return services.m_Station.TakeNotes(); },
          parent),
      m_Station(services.m_Station),
      m_Form(new cProfileForm(services)) {
    setObjectName("Page_Profiles");
    m_Form->OnEdited = [this] { NoteEdit(); };
    cFileDocument& calendar = m_Form->Calendar().Document();
    connect(&calendar, &cFileDocument::StateChanged, this, &cEditorPage::StateChanged);
    connect(&calendar, &cFileDocument::FileUsed, this, &cEditorPage::FileUsed);
    connect(&calendar, &cFileDocument::Message, this, &cEditorPage::Message);
    for (cContentEditor* editor : m_Form->Editors()) {
        connect(editor, &cContentEditor::Message, this, &cEditorPage::Message);
        connect(editor, &cContentEditor::DayTypesChanged, this, &cEditorPage::DayTypesChanged);
    }
    cPageForm form;
    form.widget = m_Form;
    form.show = [this](int position) {
        m_Form->Show(position < 0 ? nullptr : &m_Station.Profiles().At(static_cast<std::size_t>(position)));
    };
    form.problem = [this] { return m_Form->Problem(); };
    form.focusName = [this] { m_Form->FocusName(); };
    SetUp({tr("Profiles"), PathToQString(m_Station.ApplicationPath() + "Profiles"), tr("New profile"),
           tr("Conditions"), tr("Delete the profile \"%1\" and its file?")},
          std::move(form));
}

bool cProfilesPage::IsDirty() const {
    return cDefinitionPage::IsDirty() || m_Form->Calendar().Document().IsDirty();
}

bool cProfilesPage::Save() {
    if (!cDefinitionPage::Save()) return false;
    return !m_Form->Calendar().Document().IsDirty() || m_Form->Calendar().Document().Save();
}

QUndoStack* cProfilesPage::UndoStack() {
    return m_Form->UndoStack();
}

void cProfilesPage::SetZoom(double zoom) {
    m_Form->SetZoom(zoom);
}

void cProfilesPage::RefreshDayTypes() {
    m_Form->RefreshDayTypes();
}

void cProfilesPage::showEvent(QShowEvent* event) {
    cDefinitionPage::showEvent(event);
    ShowChosen();
}

}  // namespace vigrel
