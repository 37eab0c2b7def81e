#include "editor_ui/records/profiles_page.h"

#include "common/text.h"
#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/step_command.h"
#include "editor_ui/pages/take_over_command.h"
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

cFieldProblem ProfileProblem(const cProfile& profile) {
    if (Trim(profile.GetName()).empty()) return {QObject::tr("The name is empty."), "Text_ProfileName"};
    return {};
}

std::unique_ptr<cFolderSource<cProfile>> ReadProfiles(cStationDefinitions& station) {
    station.OpenProfiles();
    return std::make_unique<cFolderSource<cProfile>>(station.Profiles(), Conditions, ProfileProblem);
}

// Another calendar has come into the editor: the content, and the file behind it.
class cOpenCommand : public cStepCommand {
  public:
    // The document must outlive the command.
    cOpenCommand(const cEditStep& step, cContentEditor& editor, std::function<void()> show,
                 cFileDocument& document, const cBehind& before)
        : cStepCommand(step, editor, std::move(show)),
          m_Document(document),
          m_Before(before),
          m_After(document.Behind()) {}
    void undo() override {
        cStepCommand::undo();
        m_Document.GoBack(m_Before);
        m_Undone = true;
    }
    void redo() override {
        cStepCommand::redo();
        if (m_Undone) m_Document.GoBack(m_After);
    }

  private:
    cFileDocument& m_Document;
    cBehind m_Before, m_After;
    bool m_Undone = false;
};

}  // namespace

cProfilesPage::cProfilesPage(cEditorServices& services, QWidget* parent)
    : cProfilesPage(services, ReadProfiles(services.m_Station).release(), parent) {}

cProfilesPage::cProfilesPage(cEditorServices& services, cFolderSource<cProfile>* source, QWidget* parent)
    : cDefinitionPage(
          services, std::unique_ptr<cDefinitionSource>(source),
          [&services] { return services.m_Station.TakeNotes(); }, parent),
      m_Station(services.m_Station),
      m_Source(*source),
      m_Form(new cProfileForm(services)) {
    setObjectName("Page_Profiles");
    m_Form->OnEdited = [this](const cFieldStep& step) { NoteEdit(step); };
    ConnectCalendar();
    cPageForm form;
    form.widget = m_Form;
    form.nameField = "Text_ProfileName";
    form.reveal = [this](const QString& field) { return m_Form->Reveal(field); };
    form.isTyping = [this] { return m_Form->IsTyping(); };
    form.show = [this](int position) {
        const auto index = static_cast<std::size_t>(position);
        if (position < 0) return m_Form->Show(nullptr, nullptr);
        m_Form->Show(&m_Station.Profiles().At(index), &m_Source.Typed(index));
    };
    SetUp({tr("Profiles"), PathToQString(m_Station.ApplicationPath() + "Profiles"), tr("New profile"),
           tr("There are no profiles yet. A profile says which alarms go to which receivers, and when."),
           tr("Conditions"), tr("Delete the profile \"%1\" and its file?")},
          std::move(form));
}

// The keyboard leaves its field when there is no profile any more that what is typed could go to.
cProfilesPage::~cProfilesPage() {
    m_Form->Show(nullptr, nullptr);
}

bool cProfilesPage::IsDirty() const {
    return cDefinitionPage::IsDirty() || m_Form->Calendar().Document().IsDirty();
}

bool cProfilesPage::Save() {
    if (!cDefinitionPage::Save()) return false;
    return !m_Form->Calendar().Document().IsDirty() || m_Form->Calendar().Document().Save();
}

void cProfilesPage::ConnectCalendar() {
    cFileDocument& calendar = m_Form->Calendar().Document();
    connect(&calendar, &cFileDocument::StateChanged, this, &cEditorPage::StateChanged);
    connect(&calendar, &cFileDocument::FileUsed, this, &cEditorPage::FileUsed);
    connect(&calendar, &cFileDocument::Message, this, &cEditorPage::Message);
    for (cContentEditor* editor : m_Form->Editors()) {
        connect(editor, &cContentEditor::ProblemChanged, this, [this] { Changed(); });
        connect(editor, &cContentEditor::EditedBeside, this, [this, editor](const cStepBeside& step) {
            UndoStack()->push(new cBesideCommand(step, [this, editor] { ShowField(editor->objectName()); }));
        });
        connect(editor, &cContentEditor::Message, this, &cEditorPage::Message);
        connect(editor, &cContentEditor::DayTypesChanged, this, &cEditorPage::DayTypesChanged);
    }
    connect(&calendar, &cFileDocument::BothWanted, this, &cEditorPage::BothWanted);
    cCalendarEditor& editor = m_Form->Calendar().Editor();
    connect(&calendar, &cFileDocument::LetGo, &editor, &cCalendarEditor::Clear);
    const auto show = [this, &editor] { ShowField(editor.objectName()); };
    connect(&calendar, &cFileDocument::Opened, this,
            [this, &editor, &calendar, show](const cBehind& before, const cEditStep& step) {
                UndoStack()->push(new cOpenCommand(step, editor, show, calendar, before));
            });
    connect(&editor, &cContentEditor::Edited, this, [this, &editor, show](const cEditStep& step) {
        UndoStack()->push(new cStepCommand(step, editor, show));
    });
    connect(&calendar, &cFileDocument::Replaced, this,
            [this, &editor, &calendar, show](const cEditStep& step, int groundBefore) {
                UndoStack()->push(new cTakeOverCommand(step, editor, calendar, groundBefore, show));
            });
    connect(UndoStack(), &QUndoStack::indexChanged, &calendar, &cFileDocument::NoteChange);
}

// Under the name of the profile and of what is shown of it.
std::optional<cPrintout> cProfilesPage::Printout() {
    if (!CanPrint()) return std::nullopt;
    std::optional<cPrintout> printout = m_Form->PrintedEditor().Printout();
    const QString name = ToQString(m_Station.Profiles().At(static_cast<std::size_t>(Chosen())).GetName());
    printout->title = printout->title.isEmpty() ? name : name + " - " + printout->title;
    return printout;
}

cContentEditor* cProfilesPage::PrintedEditor() {
    return &m_Form->PrintedEditor();
}

void cProfilesPage::SetZoom(double zoom) {
    m_Form->SetZoom(zoom);
}

void cProfilesPage::RefreshDayTypes() {
    m_Form->RefreshDayTypes();
}

void cProfilesPage::LookAgain() {
    cDefinitionPage::LookAgain();
    m_Station.Receivers().LookAgain();
    m_Form->RefreshReceivers();
    m_Form->Calendar().Document().TakeUp();
    m_Form->Calendar().Editor().RefreshHolidays();
}

void cProfilesPage::showEvent(QShowEvent* event) {
    cDefinitionPage::showEvent(event);
    ShowChosen();
}

}  // namespace vigrel
