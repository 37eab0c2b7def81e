#include "editor_ui/pages/file_page.h"

#include <QVBoxLayout>

#include "editor_ui/pages/step_command.h"
#include "editor_ui/pages/take_over_command.h"

namespace vigrel {
namespace {

constexpr int kUndoSteps = 200;

}  // namespace

cFilePage::cFilePage(cEditorServices& services, cContentEditor* editor, cFileForm form, QWidget* parent)
    : cEditorPage(parent),
      m_Services(services),
      m_Editor(*editor),
      m_Document(services, std::move(form), this) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(editor);
    setFocusProxy(editor);
    m_UndoStack.setUndoLimit(kUndoSteps);
    connect(editor, &cContentEditor::Edited, this,
            [this](const cEditStep& step) { m_UndoStack.push(new cStepCommand(step, m_Editor)); });
    connect(editor, &cContentEditor::EditedBeside, this,
            [this](const cStepBeside& step) { m_UndoStack.push(new cBesideCommand(step)); });
    connect(editor, &cContentEditor::ProblemChanged, this, &cEditorPage::StateChanged);
    connect(editor, &cContentEditor::DayTypesChanged, this, &cEditorPage::DayTypesChanged);
    connect(editor, &cContentEditor::Message, this, &cEditorPage::Message);
    connect(&m_UndoStack, &QUndoStack::indexChanged, this, [this] {
        m_Document.NoteChange();
        emit ContentChanged();
    });
    connect(&m_Document, &cFileDocument::StateChanged, this, &cEditorPage::StateChanged);
    connect(&m_Document, &cFileDocument::FileUsed, this, &cEditorPage::FileUsed);
    connect(&m_Document, &cFileDocument::Message, this, &cEditorPage::Message);
    connect(&m_Document, &cFileDocument::BothWanted, this, &cEditorPage::BothWanted);
    connect(&m_Document, &cFileDocument::LetGo, this, &cEditorPage::Ended);
    connect(&m_Document, &cFileDocument::Replaced, this, [this](const cEditStep& step, int groundBefore) {
        m_UndoStack.push(new cTakeOverCommand(step, m_Editor, m_Document, groundBefore));
    });
}

// The stack tells of its end when there is no editor any more, and the editor takes over what is typed in a
// field when there is no stack.
cFilePage::~cFilePage() {
    m_UndoStack.disconnect(this);
    m_Editor.disconnect(this);
}

bool cFilePage::MaySave() {
    const QString problem = m_Editor.Problem();
    if (problem.isEmpty()) return true;
    m_Services.m_Prompts.ShowFailure(this, tr("%1 can't be saved.\n\n%2").arg(Title(), problem));
    m_Editor.FocusProblem();
    return false;
}

// Under the name of the file and of what is shown of it.
std::optional<cPrintout> cFilePage::Printout() {
    std::optional<cPrintout> printout = m_Editor.Printout();
    if (!printout) return printout;
    printout->title = printout->title.isEmpty() ? Title() : Title() + " - " + printout->title;
    return printout;
}

bool cFilePage::Open(const std::string& path) {
    if (!m_Document.Open(path)) return false;
    m_UndoStack.clear();
    return true;
}

}  // namespace vigrel
