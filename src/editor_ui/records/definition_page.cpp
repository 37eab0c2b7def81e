#include "editor_ui/records/definition_page.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "editor_ui/pages/editor_action.h"
#include "editor_ui/pages/note_bar.h"
#include "editor_ui/pages/scrolled.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr int kUndoSteps = 200;

// Finds a text in any column.
QSortFilterProxyModel* MakeFilter(cDefinitionModel& model, QObject* parent) {
    auto* filter = new QSortFilterProxyModel(parent);
    filter->setSortRole(cDefinitionModel::PlainTextRole);
    filter->setFilterRole(cDefinitionModel::PlainTextRole);
    filter->setSortCaseSensitivity(Qt::CaseInsensitive);
    filter->setSortLocaleAware(true);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    filter->setFilterKeyColumn(-1);
    // A row must not jump away, or vanish, while its name is typed.
    filter->setDynamicSortFilter(false);
    filter->setSourceModel(&model);
    return filter;
}

}  // namespace

cDefinitionPage::cDefinitionPage(cEditorServices& services, std::unique_ptr<cDefinitionSource> source,
                                 TakeNotes takeNotes, QWidget* parent)
    : cEditorPage(parent),
      m_Services(services),
      m_Source(std::move(source)),
      m_TakeNotes(std::move(takeNotes)),
      m_Model(*m_Source),
      m_Filter(MakeFilter(m_Model, this)),
      m_Notes(new cNoteBar),
      m_Search(new QLineEdit),
      m_List(new QTableView),
      m_Count(new cPlainLabel) {
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
    MakeActions();
    MakeList();
    auto* splitter = new QSplitter;
    splitter->addWidget(MakeListPanel());
    splitter->addWidget(Scrolled(m_Form.widget));
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    splitter->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Notes);
    layout->addWidget(splitter, 1);
    m_Notes->Show(m_TakeNotes());
    Choose(m_Filter->rowCount() > 0 ? m_Filter->mapToSource(m_Filter->index(0, 0)).row() : -1);
    ShowCount();
}

QAction* cDefinitionPage::MakeAction(const char* objectName, const QString& text, const QString& tip,
                                     const QKeySequence& keys, void (cDefinitionPage::*press)()) {
    QAction* action = MakeEditorAction(*this, objectName, text, keys);
    action->setToolTip(keys.isEmpty() ? tip : tip + " (" + keys.toString(QKeySequence::NativeText) + ")");
    connect(action, &QAction::triggered, this, press);
    return action;
}

void cDefinitionPage::MakeActions() {
    m_New = MakeAction("Action_New", tr("&New"), tr("Make a new one"), tr("Ctrl+Ins"), &cDefinitionPage::New);
    m_Copy = MakeAction("Action_Copy", tr("&Copy"), tr("Make a copy of the chosen one"), tr("Ctrl+D"),
                        &cDefinitionPage::Copy);
    m_Delete = MakeAction("Action_Delete", tr("&Delete"), tr("Delete the chosen one"), tr("Ctrl+Del"),
                          &cDefinitionPage::Delete);
    m_Save = MakeAction("Action_Save", tr("Sa&ve this"), tr("Save the chosen one; Ctrl+S saves all"), {},
                        &cDefinitionPage::SaveChosen);
    m_Revert = MakeAction("Action_Revert", tr("&Revert"), tr("Give up the changes of the chosen one"), {},
                          &cDefinitionPage::Revert);
    MakeAction("Action_Find", tr("&Find"), tr("Search in the list"), QKeySequence::Find,
               &cDefinitionPage::Find);
}

void cDefinitionPage::Find() {
    m_Search->setFocus();
    m_Search->selectAll();
}

QList<QAction*> cDefinitionPage::EditActions() const {
    return {m_New, m_Copy, m_Delete, nullptr, m_Save, m_Revert};
}

void cDefinitionPage::MakeList() {
    m_List->setObjectName("List_Definitions");
    setFocusProxy(m_List);
    m_List->setAccessibleName(m_Words.title);
    m_List->setModel(m_Filter);
    m_List->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_List->setSelectionMode(QAbstractItemView::SingleSelection);
    m_List->setSortingEnabled(true);
    m_List->sortByColumn(cDefinitionModel::Name, Qt::AscendingOrder);
    m_List->setTabKeyNavigation(false);
    m_List->setShowGrid(false);
    m_List->setWordWrap(false);
    m_List->verticalHeader()->hide();
    m_List->horizontalHeader()->setHighlightSections(false);
    QHeaderView& header = *m_List->horizontalHeader();
    header.setSectionResizeMode(QHeaderView::Stretch);
    header.setSectionResizeMode(cDefinitionModel::Number, QHeaderView::ResizeToContents);
    // Numbers have four digits: the rows in sight tell the width.
    header.setResizeContentsPrecision(0);
    connect(m_List->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { ShowChosen(); });
}

QWidget* cDefinitionPage::MakeListPanel() {
    m_Search->setObjectName("Text_Search");
    m_Search->setAccessibleName(tr("Search"));
    m_Search->setPlaceholderText(tr("Search (Ctrl+F)"));
    m_Search->setClearButtonEnabled(true);
    connect(m_Search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_Filter->setFilterFixedString(text);
        ShowCount();
    });
    m_Count->setObjectName("Label_Count");
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Search);
    layout->addWidget(m_List, 1);
    layout->addWidget(m_Count);
    layout->addWidget(MakeButtons());
    return panel;
}

QWidget* cDefinitionPage::MakeButtons() {
    auto* panel = new QWidget;
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAction* action : {m_New, m_Copy, m_Delete, m_Save, m_Revert}) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString(action->objectName()).replace("Action_", "Button_"));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return panel;
}

int cDefinitionPage::Chosen() const {
    const QModelIndex current = m_Filter->mapToSource(m_List->currentIndex());
    // The files that can't be read stand behind the definitions.
    return current.isValid() && current.row() < m_Model.Definitions() ? current.row() : -1;
}

void cDefinitionPage::Choose(int position) {
    const auto find = [&] {
        return position < 0 ? QModelIndex() : m_Filter->mapFromSource(m_Model.index(position, 0));
    };
    // A search that hides the wanted one is given up.
    if (position >= 0 && !find().isValid()) m_Search->clear();
    m_List->setCurrentIndex(find());
    if (find().isValid()) m_List->scrollTo(find());
    ShowChosen();
}

void cDefinitionPage::ShowChosen() {
    const int chosen = Chosen();
    m_Form.show(chosen);
    m_Before = chosen < 0 ? nullptr : m_Source->Copy(static_cast<std::size_t>(chosen));
    UpdateActions();
}

void cDefinitionPage::ShowField(const QString& field) {
    auto* widget = m_Form.widget->findChild<QWidget*>(field);
    if (widget == nullptr) return;
    for (QWidget* inner = widget; inner != m_Form.widget; inner = inner->parentWidget()) {
        auto* tabs = inner->parentWidget() == nullptr
                         ? nullptr
                         : qobject_cast<QTabWidget*>(inner->parentWidget()->parentWidget());
        if (tabs != nullptr && tabs->indexOf(inner) >= 0) tabs->setCurrentWidget(inner);
    }
    widget->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(widget)) line->selectAll();
}

void cDefinitionPage::UpdateActions() {
    const int chosen = Chosen();
    const bool changed = chosen >= 0 && m_Model.HasChanges(chosen);
    m_Copy->setEnabled(chosen >= 0);
    m_Delete->setEnabled(chosen >= 0);
    m_Save->setEnabled(changed);
    m_Revert->setEnabled(changed);
}

void cDefinitionPage::ShowCount() {
    const int all = m_Model.rowCount();
    const int shown = m_Filter->rowCount();
    m_Count->setText(shown == all ? tr("%1 in all").arg(all) : tr("%1 of %2").arg(shown).arg(all));
}

// Only after a save, so that no row jumps away while it is edited.
void cDefinitionPage::Sort() {
    m_Filter->sort(m_Filter->sortColumn(), m_Filter->sortOrder());
}

void cDefinitionPage::Changed() {
    UpdateActions();
    ShowCount();
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
    return m_Source->Name(static_cast<std::size_t>(position));
}

void cDefinitionPage::TellFailure(const QString& text) {
    QString all = text;
    for (const cDefinitionNote& note : m_TakeNotes()) {
        if (note.kind == cDefinitionNote::eKind::Failed) all += "\n\n" + WithPathsToQString(note.line);
    }
    m_Services.m_Prompts.ShowFailure(this, all);
}

void cDefinitionPage::New() {
    const int position = m_Model.Add(m_Words.newName);
    m_UndoStack.push(new cListCommand(*this, tr("adding \"%1\"").arg(NameAt(position)), position, nullptr));
    Choose(position);
    Changed();
    ShowField(m_Form.nameField);
}

void cDefinitionPage::Copy() {
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
    const int row = m_Filter->mapFromSource(m_Model.index(position, 0)).row();
    const QString name = NameAt(position);
    m_Form.show(-1);
    RecordPtr record = m_Model.TakeOut(position);
    const QModelIndex next = m_Filter->index(std::clamp(row, 0, std::max(m_Filter->rowCount() - 1, 0)), 0);
    Choose(record ? m_Filter->mapToSource(next).row() : position);
    Changed();
    if (record) {
        m_TakeNotes();
    } else {
        TellFailure(tr("\"%1\" was not deleted.").arg(name));
    }
    return record;
}

cFieldProblem cDefinitionPage::FormProblem() const {
    return m_Form.problem ? m_Form.problem() : cFieldProblem{};
}

cFieldProblem cDefinitionPage::ProblemAt(int position) const {
    const cFieldProblem typed = position == Chosen() ? FormProblem() : cFieldProblem{};
    return typed.text.isEmpty() ? m_Source->Problem(static_cast<std::size_t>(position)) : typed;
}

// Leads to the field that stands in the way.
bool cDefinitionPage::MaySave(int position) {
    const cFieldProblem problem = ProblemAt(position);
    if (problem.text.isEmpty()) return true;
    if (position != Chosen()) Choose(position);
    TellFailure(tr("\"%1\" can't be saved.\n\n%2").arg(NameAt(position), problem.text));
    ShowField(problem.field);
    return false;
}

// Another program, or another window, may have written or removed the file meanwhile.
bool cDefinitionPage::MayReplaceChanged(int position) {
    using eAnswer = cPrompts::eConflict;
    const QString text = tr("Another program has changed the file of \"%1\" since it was read here. Keep "
                            "your version, take the one in the file, or show both?")
                             .arg(NameAt(position));
    switch (m_Services.m_Prompts.AskConflict(this, text, true)) {
        case eAnswer::Mine:
            return true;
        case eAnswer::Theirs:
            RevertPosition(position);
            return false;
        case eAnswer::Both:
            ShowBoth(position);
            return false;
        default:
            return false;
    }
}

bool cDefinitionPage::MayWriteAgain(int position) {
    using eAnswer = cPrompts::eConflict;
    const QString name = NameAt(position);
    const QString text =
        tr("Another program has removed the file of \"%1\". Write it again, or remove it here too?")
            .arg(name);
    const eAnswer answer = m_Services.m_Prompts.AskConflict(this, text, false);
    if (answer != eAnswer::Theirs) return answer == eAnswer::Mine;
    if (RecordPtr record = TakeOut(position)) {
        m_UndoStack.push(
            new cListCommand(*this, tr("removing \"%1\"").arg(name), position, std::move(record)));
    }
    return false;
}

// What the file holds becomes a definition of its own beside the changed one.
void cDefinitionPage::ShowBoth(int position) {
    const int added = m_Model.AddFromFile(position);
    if (added < 0) return TellFailure(tr("The file of \"%1\" can't be read.").arg(NameAt(position)));
    m_UndoStack.push(new cListCommand(*this, tr("showing both"), added, nullptr));
    Choose(added);
    Changed();
}

bool cDefinitionPage::SavePosition(int position) {
    if (!MaySave(position)) return false;
    const eFileState state = m_Source->StateOfFile(static_cast<std::size_t>(position));
    if (state == eFileState::Changed && !MayReplaceChanged(position)) return false;
    if (state == eFileState::Gone && !MayWriteAgain(position)) return false;
    const bool saved = m_Model.Save(position);
    if (!saved) TellFailure(tr("\"%1\" was not saved.").arg(NameAt(position)));
    return saved;
}

void cDefinitionPage::SaveChosen() {
    const int position = Chosen();
    if (position < 0 || !SavePosition(position)) return;
    // The form shows what the file has now.
    ShowChosen();
    Sort();
    Changed();
    emit Message(tr("Saved \"%1\"").arg(NameAt(position)));
}

bool cDefinitionPage::Save() {
    if (Chosen() >= 0 && !FormProblem().text.isEmpty() && !MaySave(Chosen())) return false;
    int saved = 0;
    for (int position = 0; position < m_Model.Definitions(); ++position) {
        if (!m_Model.HasChanges(position)) continue;
        if (!SavePosition(position)) {
            Changed();
            return false;
        }
        ++saved;
    }
    ShowChosen();
    Sort();
    Changed();
    emit Message(tr("Saved: %1").arg(saved));
    return true;
}

void cDefinitionPage::Revert() {
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
    m_Form.show(-1);
    const bool reverted = m_Model.Revert(position);
    Choose(position);
    Changed();
    if (!reverted) return TellFailure(tr("The file of \"%1\" can't be read.").arg(name));
    m_UndoStack.push(new cFieldCommand(*this, position, std::move(before), m_Before, {step, {}}, m_Session));
    emit Message(tr("\"%1\" is as its file has it").arg(name));
}

// --- files under other hands

void cDefinitionPage::showEvent(QShowEvent* event) {
    cEditorPage::showEvent(event);
    TakeUpFolder();
}

void cDefinitionPage::changeEvent(QEvent* event) {
    cEditorPage::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) TakeUpFolder();
}

// Another editor may have worked on the folder while this one was away. What is changed here stays.
void cDefinitionPage::TakeUpFolder() {
    if (!isVisible() || !m_Source->HasNews()) return;
    const int chosen = Chosen();
    m_Model.Rescan();
    Choose(chosen);
    Changed();
    m_Notes->Show(m_TakeNotes());
}

// --- steps

void cDefinitionPage::RestoreRecord(int position, const cRecord& record, const QString& field) {
    m_Model.Restore(position, record);
    Choose(position);
    ShowField(field);
    Changed();
}

// A file goes only with a yes, whichever way it goes.
RecordPtr cDefinitionPage::TakeOutRecord(int position) {
    Choose(position);
    const bool hasFile = m_Source->Identity(static_cast<std::size_t>(position)) >= 0;
    RecordPtr record;
    if (!hasFile || m_Services.m_Prompts.AskYesNo(this, DeleteQuestion(position))) record = TakeOut(position);
    if (!record) EndOfSteps();
    return record;
}

void cDefinitionPage::BringBackRecord(int position, const cRecord& record) {
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
