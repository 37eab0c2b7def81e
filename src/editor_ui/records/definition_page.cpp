#include "editor_ui/records/definition_page.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <utility>

#include "editor_ui/pages/note_bar.h"
#include "editor_ui/pages/reasons.h"
#include "editor_ui/pages/remembered_sizes.h"
#include "editor_ui/pages/scrolled.h"
#include "windows/plain_text.h"
#include "windows/short_text.h"

namespace vigrel {
namespace {

constexpr int kUndoSteps = 200;

enum eFormPanel { FormOfOne, First, Unreadable };  // what shows beside the list

// A form that shows nothing for a moment lets the keyboard go. The field that had it gets it back.
class cKeptKeyboard {
  public:
    explicit cKeptKeyboard(const QWidget& page) : m_Page(page), m_Field(page.focusWidget()) {}
    cKeptKeyboard(const cKeptKeyboard&) = delete;
    cKeptKeyboard& operator=(const cKeptKeyboard&) = delete;
    ~cKeptKeyboard() {
        const bool isFree = m_Page.focusWidget() == nullptr;
        if (isFree && m_Field && m_Field->isVisible() && m_Field->isEnabled()) m_Field->setFocus();
    }

  private:
    const QWidget& m_Page;
    QPointer<QWidget> m_Field;
};

}  // namespace

cDefinitionPage::cDefinitionPage(cEditorServices& services, std::unique_ptr<cDefinitionSource> source,
                                 TakeNotes takeNotes, QWidget* parent)
    : cEditorPage(parent),
      m_Services(services),
      m_Source(std::move(source)),
      m_TakeNotes(std::move(takeNotes)),
      m_Model(*m_Source),
      m_Actions(*this),
      m_Notes(new cNoteBar),
      m_List(new cDefinitionList(m_Model)),
      m_FormPanel(new QStackedWidget),
      m_Unreadable(new cPlainLabel) {
    m_UndoStack.setUndoLimit(kUndoSteps);
    connect(qApp, &QApplication::focusChanged, this, [this] { ++m_Session; });
}

// The stack tells of its end, and a page with the keyboard gives that back, when there is no list any more.
cDefinitionPage::~cDefinitionPage() {
    m_UndoStack.disconnect(this);
    qApp->disconnect(this);
}

void cDefinitionPage::SetUp(cPageWords words, cPageForm form) {
    m_Words = std::move(words);
    m_Form = std::move(form);
    m_Model.SetDetailsCaption(m_Words.details);
    m_List->SetName(m_Words.title);
    setFocusProxy(m_List);
    ConnectActions();
    connect(m_List, &cDefinitionList::ChosenChanged, this, &cDefinitionPage::ShowChosen);
    auto* splitter = new QSplitter;
    splitter->addWidget(MakeListPanel());
    splitter->addWidget(MakeFormPanel());
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    splitter->setChildrenCollapsible(false);
    RememberSizes(*splitter, m_Services.m_Settings, objectName());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Notes);
    layout->addWidget(splitter, 1);
    m_Notes->Add(m_TakeNotes());
    Choose(m_List->PositionNear(0));
    m_Source->SetTakeUp([this] {
        if (m_Works == 0) TakeUpFolder();
    });
}

void cDefinitionPage::ConnectActions() {
    connect(m_Actions.m_New, &QAction::triggered, this, &cDefinitionPage::New);
    connect(m_Actions.m_Copy, &QAction::triggered, this, &cDefinitionPage::Copy);
    connect(m_Actions.m_Delete, &QAction::triggered, this, &cDefinitionPage::Delete);
    connect(m_Actions.m_Save, &QAction::triggered, this, &cDefinitionPage::SaveChosen);
    connect(m_Actions.m_Revert, &QAction::triggered, this, &cDefinitionPage::Revert);
    connect(m_Actions.m_Find, &QAction::triggered, m_List, &cDefinitionList::FocusSearch);
}

QWidget* cDefinitionPage::MakeListPanel() {
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_List, 1);
    layout->addWidget(m_Actions.MakeButtons());
    return panel;
}

// The form, and what stands in its place while there is nothing that it could show.
QWidget* cDefinitionPage::MakeFormPanel() {
    m_Unreadable->setObjectName("Label_Unreadable");
    m_Unreadable->setWordWrap(true);
    m_Unreadable->setAlignment(Qt::AlignCenter);
    m_FormPanel->addWidget(Scrolled(m_Form.widget));
    m_FormPanel->addWidget(MakeFirst());
    m_FormPanel->addWidget(m_Unreadable);
    return m_FormPanel;
}

QWidget* cDefinitionPage::MakeFirst() {
    auto* first = new QWidget;
    auto* layout = new QVBoxLayout(first);
    auto* text = new cPlainLabel(m_Words.none);
    text->setObjectName("Label_NoDefinitions");
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    auto* make = new QPushButton(m_Words.newName);
    make->setObjectName("Button_First");
    connect(make, &QPushButton::clicked, this, &cDefinitionPage::New);
    layout->addStretch(1);
    layout->addWidget(text);
    layout->addWidget(make, 0, Qt::AlignHCenter);
    layout->addStretch(2);
    return first;
}

void cDefinitionPage::Choose(int position) {
    m_List->Choose(position);
    ShowChosen();
}

void cDefinitionPage::ShowChosen() {
    const int chosen = Chosen();
    m_Form.show(chosen);
    m_Before = chosen < 0 ? nullptr : m_Source->Copy(static_cast<std::size_t>(chosen));
    m_Unreadable->setText(m_List->ChosenUnreadable());
    m_FormPanel->setCurrentIndex(chosen >= 0 ? FormOfOne : m_Model.rowCount() == 0 ? First : Unreadable);
    UpdateActions();
    emit StateChanged();
}

void cDefinitionPage::ShowField(const QString& field) {
    // Of all without a name the toolkit would give the first.
    if (field.isEmpty()) return;
    auto* widget = m_Form.widget->findChild<QWidget*>(m_Form.reveal ? m_Form.reveal(field) : field);
    if (widget == nullptr) return;
    BringIntoSight(*widget);
    widget->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(widget)) line->selectAll();
}

void cDefinitionPage::UpdateActions() {
    const int chosen = Chosen();
    m_Actions.Enable(chosen >= 0, chosen >= 0 && (m_Model.HasChanges(chosen) || IsTyping()));
}

void cDefinitionPage::Changed() {
    UpdateActions();
    m_List->ShowCount();
    emit StateChanged();
}

void cDefinitionPage::NoteEdit(const cFieldStep& step) {
    const int position = Chosen();
    if (position < 0) return;
    RecordPtr after = m_Source->Copy(static_cast<std::size_t>(position));
    if (!m_Source->AreSame(*m_Before, *after)) {
        m_UndoStack.push(new cFieldCommand(*this, position, m_Before, after, step, m_Session));
    }
    m_Before = std::move(after);
    m_Model.Refresh(position);
    Changed();
}

QString cDefinitionPage::NameAt(int position) const {
    return ShortName(m_Source->Name(static_cast<std::size_t>(position)));
}

void cDefinitionPage::TellFailure(const QString& text) {
    QString all = text;
    for (const cDefinitionNote& note : m_TakeNotes()) {
        if (note.kind == cDefinitionNote::eKind::Failed) all += "\n\n" + Told(note.line);
    }
    m_Services.m_Prompts.ShowFailure(this, all);
}

// A button or an entry doesn't take the keyboard from a field: what is being typed there belongs to the one
// that is chosen so far.
void cDefinitionPage::New() {
    FinishInput();
    const int position = m_Model.Add(m_Words.newName);
    m_UndoStack.push(new cListCommand(*this, tr("adding \"%1\"").arg(NameAt(position)), position, nullptr));
    Choose(position);
    Changed();
    ShowField(m_Form.nameField);
}

void cDefinitionPage::Copy() {
    FinishInput();
    const int original = Chosen();
    if (original < 0) return;
    const int position = m_Model.AddCopy(original);
    m_UndoStack.push(new cListCommand(*this, tr("copying \"%1\"").arg(NameAt(original)), position, nullptr));
    Choose(position);
    Changed();
    ShowField(m_Form.nameField);
}

QString cDefinitionPage::DeleteQuestion(int position) const {
    QString question = m_Words.deleteQuestion.arg(NameAt(position));
    const QString warning = m_Form.deleteWarning ? m_Form.deleteWarning(position) : QString();
    if (!warning.isEmpty()) question += "\n\n" + warning;
    if (m_Source->StateOfFile(static_cast<std::size_t>(position)) == eFileState::Changed) {
        question += "\n\n" + tr("Another program has changed the file since it was read.");
    }
    return question;
}

void cDefinitionPage::Delete() {
    FinishInput();
    const cWork work(*this);
    const int position = Chosen();
    if (position < 0 || !m_Services.m_Prompts.AskYesNo(this, DeleteQuestion(position))) return;
    const QString name = NameAt(position);
    RecordPtr record = TakeOut(position);
    if (!record) return;
    m_UndoStack.push(new cListCommand(*this, tr("deleting \"%1\"").arg(name), position, std::move(record)));
    emit Message(tr("Deleted \"%1\"").arg(name));
}

// The one that takes its place in the list is chosen next.
RecordPtr cDefinitionPage::TakeOut(int position) {
    const int place = m_List->PlaceOf(position);
    const QString name = NameAt(position);
    m_Form.show(-1);
    RecordPtr record = m_Model.TakeOut(position);
    Choose(record ? m_List->PositionNear(place) : position);
    // What is typed next is not meant for a field of the next one.
    if (focusWidget() == nullptr) m_List->setFocus();
    Changed();
    if (record) {
        m_TakeNotes();
    } else {
        TellFailure(tr("\"%1\" was not deleted.").arg(name));
    }
    return record;
}

// Leads to the field that stands in the way.
bool cDefinitionPage::MaySave(int position) {
    const cFieldProblem problem = m_Source->Problem(static_cast<std::size_t>(position));
    if (problem.text.isEmpty()) return true;
    if (position != Chosen()) Choose(position);
    TellFailure(tr("\"%1\" can't be saved.\n\n%2").arg(NameAt(position), problem.text));
    ShowField(problem.field);
    return false;
}

bool cDefinitionPage::SavePosition(int position) {
    // What is typed behind it doesn't join to what was typed before: Undo comes back to what is saved.
    ++m_Session;
    if (!MaySave(position)) return false;
    const eFileState state = m_Source->StateOfFile(static_cast<std::size_t>(position));
    if (state == eFileState::Changed && !MayReplaceChanged(position)) return false;
    if (state == eFileState::Gone && !MayWriteAgain(position)) return false;
    const bool saved = m_Model.Save(position);
    if (!saved) TellFailure(tr("\"%1\" was not saved.").arg(NameAt(position)));
    return saved;
}

void cDefinitionPage::SaveChosen() {
    FinishInput();
    const cWork work(*this);
    const int position = Chosen();
    if (position < 0 || !SavePosition(position)) return;
    // The form shows what the file has now.
    ShowChosen();
    // Only now, so that no row jumps away while it is edited.
    m_List->Sort();
    Changed();
    emit Message(tr("Saved \"%1\"").arg(NameAt(position)));
}

bool cDefinitionPage::Save() {
    const cWork work(*this);
    int saved = 0;
    bool isWhole = true;
    for (int position = 0; position < m_Model.Definitions();) {
        const int all = m_Model.Definitions();
        if (!m_Model.HasChanges(position)) {
            ++position;
        } else if (SavePosition(position)) {
            ++position;
            ++saved;
        } else {
            isWhole = false;
            // One that went, or is as others have it, is no hindrance for those behind it.
            if (m_Model.Definitions() < all || !m_Model.HasChanges(position)) continue;
            Changed();
            return false;
        }
    }
    ShowChosen();
    m_List->Sort();
    Changed();
    if (isWhole) emit Message(tr("Saved: %1").arg(saved));
    return isWhole;
}

// The other pages of the station speak of these definitions, too.
void cDefinitionPage::GiveUp() {
    if (!m_Model.HasChanges()) return;
    m_Form.show(-1);
    m_UndoStack.clear();
    m_Model.Reload();
    Choose(m_List->PositionNear(0));
    // What can't be read was told when the page was opened.
    m_TakeNotes();
}

void cDefinitionPage::Revert() {
    FinishInput();
    const cWork work(*this);
    if (Chosen() >= 0) RevertPosition(Chosen());
}

void cDefinitionPage::RevertPosition(int position) {
    const QString name = NameAt(position);
    const QString step = tr("giving up the changes of \"%1\"").arg(name);
    if (m_Source->Identity(static_cast<std::size_t>(position)) < 0) {
        if (RecordPtr record = TakeOut(position)) {
            m_UndoStack.push(new cListCommand(*this, step, position, std::move(record)));
        }
        return;
    }
    RecordPtr before = m_Source->Copy(static_cast<std::size_t>(position));
    const cKeptKeyboard keyboard(*this);
    m_Form.show(-1);
    const bool reverted = m_Model.Revert(position);
    Choose(position);
    Changed();
    if (!reverted) return TellFailure(tr("The file of \"%1\" can't be read.").arg(name));
    m_UndoStack.push(new cFieldCommand(*this, position, std::move(before), m_Before, {step, {}}, m_Session));
    emit Message(tr("\"%1\" is as its file has it").arg(name));
}

// --- steps

void cDefinitionPage::RestoreRecord(int position, const cRecord& record, const QString& field) {
    const cKeptKeyboard keyboard(*this);
    // What is half typed must not become a step in the middle of one.
    m_Form.show(-1);
    m_Model.Restore(position, record);
    Choose(position);
    ShowField(field);
    Changed();
}

// A file goes only with a yes, whichever way it goes.
RecordPtr cDefinitionPage::TakeOutRecord(int position) {
    const cWork work(*this);
    Choose(position);
    const auto place = static_cast<std::size_t>(position);
    const bool hasFile = m_Source->Identity(place) >= 0 && m_Source->StateOfFile(place) != eFileState::Gone;
    RecordPtr record;
    if (!hasFile || m_Services.m_Prompts.AskYesNo(this, DeleteQuestion(position))) record = TakeOut(position);
    if (!record) EndOfSteps();
    return record;
}

void cDefinitionPage::BringBackRecord(int position, const cRecord& record) {
    const cWork work(*this);
    const bool whole = m_Model.BringBack(position, record);
    Choose(position);
    Changed();
    if (!whole) TellFailure(tr("\"%1\" is back without its file. Save it anew.").arg(NameAt(position)));
}

// A step that was refused leaves the others without ground. The stack is busy with it at this moment.
void cDefinitionPage::EndOfSteps() {
    QMetaObject::invokeMethod(
        this, [this] { m_UndoStack.clear(); }, Qt::QueuedConnection);
}

}  // namespace vigrel
