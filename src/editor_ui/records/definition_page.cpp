#include "editor_ui/records/definition_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "editor_ui/pages/note_bar.h"
#include "editor_ui/pages/scrolled.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

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
      m_Count(new cPlainLabel) {}

cDefinitionPage::~cDefinitionPage() = default;

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
    auto* action = new QAction(text, this);
    action->setObjectName(objectName);
    action->setToolTip(keys.isEmpty() ? tip : tip + " (" + keys.toString(QKeySequence::NativeText) + ")");
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, press);
    addAction(action);
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
    return current.isValid() ? current.row() : -1;
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
    m_Form.show(Chosen());
    UpdateActions();
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

void cDefinitionPage::NoteEdit() {
    if (Chosen() >= 0) m_Model.Refresh(Chosen());
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
    Choose(m_Model.Add(m_Words.newName));
    Changed();
    m_Form.focusName();
}

void cDefinitionPage::Copy() {
    if (Chosen() < 0) return;
    Choose(m_Model.AddCopy(Chosen()));
    Changed();
    m_Form.focusName();
}

void cDefinitionPage::Delete() {
    const int position = Chosen();
    if (position < 0) return;
    QString question = m_Words.deleteQuestion.arg(NameAt(position));
    const QString warning = m_Form.deleteWarning ? m_Form.deleteWarning(position) : QString();
    if (!warning.isEmpty()) question += "\n\n" + warning;
    if (!m_Services.m_Prompts.AskYesNo(this, question)) return;
    const int row = m_List->currentIndex().row();
    const QString name = NameAt(position);
    m_Form.show(-1);
    const bool removed = m_Model.Remove(position);
    // The one that takes its place in the list is chosen next.
    const QModelIndex next = m_Filter->index(std::min(row, m_Filter->rowCount() - 1), 0);
    Choose(removed ? m_Filter->mapToSource(next).row() : position);
    Changed();
    if (removed) {
        m_TakeNotes();
        emit Message(tr("Deleted \"%1\"").arg(name));
    } else {
        TellFailure(tr("\"%1\" was not deleted.").arg(name));
    }
}

QString cDefinitionPage::ProblemAt(int position) const {
    if (NameAt(position).trimmed().isEmpty()) return tr("The name is empty.");
    return position == Chosen() ? m_Form.problem() : QString();
}

bool cDefinitionPage::SavePosition(int position) {
    const QString name = NameAt(position);
    const QString problem = ProblemAt(position);
    if (!problem.isEmpty()) {
        TellFailure(tr("\"%1\" can't be saved.\n\n%2").arg(name, problem));
        return false;
    }
    const bool saved = m_Model.Save(position);
    if (!saved) TellFailure(tr("\"%1\" was not saved.").arg(name));
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
    int saved = 0;
    for (int position = 0; position < m_Model.rowCount(); ++position) {
        if (!m_Model.HasChanges(position)) continue;
        if (!SavePosition(position)) {
            if (position != Chosen()) Choose(position);
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
    const int position = Chosen();
    if (position < 0) return;
    const QString name = NameAt(position);
    const int count = m_Model.rowCount();
    m_Form.show(-1);
    const bool reverted = m_Model.Revert(position);
    Choose(std::min(position, m_Model.rowCount() - 1));
    Changed();
    if (!reverted) TellFailure(tr("The file of \"%1\" can't be read.").arg(name));
    if (reverted && m_Model.rowCount() == count) emit Message(tr("\"%1\" is as its file has it").arg(name));
}

}  // namespace vigrel
