#include "editor_ui/colours/colour_rules_editor.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "categories/readable_colours.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "editor_ui/colours/colour_preview.h"
#include "editor_ui/colours/swatch.h"
#include "editor_ui/pages/editor_action.h"
#include "editor_ui/pages/line_problems_label.h"
#include "editor_ui/pages/reasons.h"
#include "editor_ui/pages/remembered_sizes.h"
#include "windows/colours.h"

namespace vigrel {
namespace {

constexpr int kColourRole = Qt::UserRole;

enum eColumn { Tag, Categories, Areas, ForeColor, BackColor, Fade, Readability, Columns };

// A field of a rule as the text of its cell, and back.
std::string FieldText(const cColourRule& rule, int column) {
    switch (column) {
        case Tag:
            return rule.m_TagFilter;
        case Categories:
            return rule.m_CategoryFilter;
        case Areas:
            return rule.m_AreaFilter;
        case ForeColor:
            return rule.m_ForeColor;
        case BackColor:
            return rule.m_BackColor;
        default:
            return std::to_string(rule.m_ZebraFade);
    }
}

void SetField(cColourRule& rule, int column, const std::string& text) {
    switch (column) {
        case Tag:
            rule.m_TagFilter = text;
            break;
        case Categories:
            rule.m_CategoryFilter = text;
            break;
        case Areas:
            rule.m_AreaFilter = text;
            break;
        case ForeColor:
            rule.m_ForeColor = text;
            break;
        case BackColor:
            rule.m_BackColor = text;
            break;
        default:
            // What is no number is refused with the whole rule.
            rule.m_ZebraFade = IsNumeric(text) ? ToInt32(Val(text)) : -1;
    }
}

void ShowColour(QTableWidgetItem& item, const QColor& colour) {
    item.setIcon(Swatch(colour));
    item.setData(kColourRole, colour);
}

void ShowContrast(QTableWidgetItem& item, double contrast) {
    item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item.setText(cColourPreview::ContrastText(contrast));
    const bool isReadable = contrast >= kReadableContrast;
    item.setIcon(isReadable ? QIcon() : QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
}

cColourRule NewRule() {
    cColourRule rule;
    rule.m_TagFilter = rule.m_CategoryFilter = rule.m_AreaFilter = "*";
    rule.m_ForeColor = "0,0,0";
    rule.m_BackColor = "255,255,255";
    rule.m_ZebraFade = 15;
    return rule;
}

}  // namespace

cColourRulesEditor::cColourRulesEditor(cEditorServices& services, QWidget* parent)
    : cContentEditor(parent),
      m_Services(services),
      m_Table(new QTableWidget(0, Columns)),
      m_Problems(new cLineProblemsLabel) {
    setObjectName("Editor_ColourRules");
    m_Actions = {
        MakeAction("Action_Add", tr("&Add rule"), "Ctrl+Ins", &cColourRulesEditor::Add),
        m_Remove = MakeAction("Action_Remove", tr("&Delete rule"), "Ctrl+Del", &cColourRulesEditor::Remove),
        m_Up = MakeAction("Action_Up", tr("&Move up"), "Ctrl+Up", &cColourRulesEditor::MoveUp),
        m_Down = MakeAction("Action_Down", tr("Move d&own"), "Ctrl+Down", &cColourRulesEditor::MoveDown),
        m_Choose =
            MakeAction("Action_Colour", tr("&Choose colour..."), "", &cColourRulesEditor::ChooseColour),
        m_Readable = MakeAction("Action_Readable", tr("Readable te&xt colours"), "Ctrl+Shift+L",
                                &cColourRulesEditor::MakeReadable)};
    m_Readable->setToolTip(tr("Gives the text of these rules the nearest colour that can be read"));
    m_Preview = new cColourPreview(services, *m_Readable);
    MakeTable();
    auto* splitter = new QSplitter;
    splitter->addWidget(MakeTablePanel());
    splitter->addWidget(m_Preview);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setChildrenCollapsible(false);
    // The list of alarms needs as much room as it can get.
    splitter->setSizes({550, 450});
    RememberSizes(*splitter, m_Services.m_Settings, objectName());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Problems);
    layout->addWidget(splitter, 1);
    Fill();
}

QAction* cColourRulesEditor::MakeAction(const char* objectName, const QString& text, const QString& keys,
                                        void (cColourRulesEditor::*press)()) {
    QAction* action = MakeEditorAction(*this, objectName, text, keys);
    connect(action, &QAction::triggered, this, press);
    return action;
}

QList<QAction*> cColourRulesEditor::EditActions() const {
    return m_Actions;
}

void cColourRulesEditor::MakeTable() {
    setFocusProxy(m_Table);
    m_Table->setObjectName("List_Rules");
    m_Table->setAccessibleName(tr("Colour rules, tried from the first to the last"));
    m_Table->setHorizontalHeaderLabels({tr("Tag"), tr("Categories"), tr("Areas"), tr("Text colour"),
                                        tr("Background"), tr("Fade"), tr("Contrast")});
    const char* const tips[Columns] = {
        QT_TR_NOOP("A pattern: \"?\" is one character, \"*\" any run; case counts"),
        QT_TR_NOOP("Numbers and ranges from 0 to 255, such as 5;7-9, or * for all"),
        QT_TR_NOOP("Numbers and ranges from 0 to 999, such as 5;7-9, or * for all"),
        QT_TR_NOOP("Red, green and blue from 0 to 255, such as 255,255,255"),
        QT_TR_NOOP("Red, green and blue from 0 to 255, such as 200,0,0"),
        QT_TR_NOOP("By how much every other row is darker, from 0 to 255"),
        QT_TR_NOOP("The least of text and ground: 4.5 is readable, 21 black on white")};
    for (int column = 0; column < Columns; ++column) {
        m_Table->horizontalHeaderItem(column)->setToolTip(tr(tips[column]));
    }
    QHeaderView& header = *m_Table->horizontalHeader();
    for (const int column : {Categories, Areas}) {
        header.resizeSection(column, std::max(header.sectionSize(column), header.sectionSizeHint(column)));
    }
    // Where little is left to it, the first column isn't squeezed below its own head.
    header.setMinimumSectionSize(header.sectionSizeHint(Tag));
    header.setSectionResizeMode(Tag, QHeaderView::Stretch);
    for (const int column : {ForeColor, BackColor, Fade, Readability}) {
        header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    m_Table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_Table->setTabKeyNavigation(false);
    connect(m_Table, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem* item) { TakeItem(*item); });
    connect(m_Table, &QTableWidget::currentCellChanged, this, [this] { UpdateActions(); });
}

QWidget* cColourRulesEditor::MakeTablePanel() {
    auto* panel = new QWidget;
    auto* buttons = new QHBoxLayout;
    for (QAction* action : m_Actions) {
        // That one stands beside what is hard to read.
        if (action == m_Readable) continue;
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString(action->objectName()).replace("Action_", "Button_"));
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Table, 1);
    layout->addLayout(buttons);
    return panel;
}

void cColourRulesEditor::Fill() {
    const QSignalBlocker quiet(m_Table);
    m_Table->setRowCount(static_cast<int>(m_Rules.m_Rules.size()));
    for (int row = 0; row < m_Table->rowCount(); ++row) FillRow(row);
    std::vector<cUserColor> colors;
    for (const cColourRule& rule : m_Rules.m_Rules) colors.push_back(MakeUserColor(rule));
    m_Preview->SetRules(std::move(colors));
    UpdateActions();
}

void cColourRulesEditor::FillRow(int row) {
    const cColourRule& rule = m_Rules.m_Rules[static_cast<std::size_t>(row)];
    const cUserColor color = MakeUserColor(rule);
    for (int column = 0; column < Columns; ++column) {
        // An item that tells of its own change must not be replaced meanwhile.
        if (m_Table->item(row, column) == nullptr) m_Table->setItem(row, column, new QTableWidgetItem);
        QTableWidgetItem* item = m_Table->item(row, column);
        if (column == Readability) {
            ShowContrast(*item, LeastContrast(color));
            continue;
        }
        item->setText(ToQString(FieldText(rule, column)));
        if (column == ForeColor) ShowColour(*item, ColourFromNumber(color.m_ForeColor));
        if (column == BackColor) ShowColour(*item, ColourFromNumber(color.m_BackColor));
    }
}

void cColourRulesEditor::TakeItem(const QTableWidgetItem& item) {
    const auto row = static_cast<std::size_t>(item.row());
    cColourRule rule = m_Rules.m_Rules[row];
    const auto failure = CatchFailure([&] {
        if (!FitsCodePage(item.text())) {
            throw cFailure(eFailure::InvalidCall,
                           Pattern("Reasons", "the text has characters that can't be stored"));
        }
        SetField(rule, item.column(), FromQString(item.text().trimmed()));
        MakeUserColor(rule);
    });
    if (failure) {
        Fill();
        m_Services.m_Prompts.ShowFailure(this, Told(failure->Description()));
        return;
    }
    const int column = item.column();
    Change(
        tr("Change rule"), [&] { m_Rules.m_Rules[row] = rule; }, item.row());
    m_Table->setCurrentCell(static_cast<int>(row), column);
}

void cColourRulesEditor::Change(const QString& step, const std::function<void()>& change, int row) {
    const int column = std::max(m_Table->currentColumn(), 0);
    Edit(step, change);
    Fill();
    m_Table->setCurrentCell(std::min(row, m_Table->rowCount() - 1), column);
    UpdateActions();
}

void cColourRulesEditor::UpdateActions() {
    const int row = m_Table->currentRow();
    const int column = m_Table->currentColumn();
    m_Remove->setEnabled(row >= 0);
    m_Readable->setEnabled(std::any_of(
        m_Rules.m_Rules.begin(), m_Rules.m_Rules.end(),
        [](const cColourRule& rule) { return LeastContrast(MakeUserColor(rule)) < kReadableContrast; }));
    m_Up->setEnabled(row > 0);
    m_Down->setEnabled(row >= 0 && row + 1 < m_Table->rowCount());
    m_Choose->setEnabled(row >= 0 && (column == ForeColor || column == BackColor));
}

void cColourRulesEditor::Add() {
    const int row = m_Table->currentRow() + 1;
    Change(
        tr("Add rule"), [&] { m_Rules.m_Rules.insert(m_Rules.m_Rules.begin() + row, NewRule()); }, row);
    m_Table->setCurrentCell(row, Tag);
    m_Table->setFocus();
}

void cColourRulesEditor::Remove() {
    const int row = m_Table->currentRow();
    if (row < 0) return;
    Change(
        tr("Delete rule"), [&] { m_Rules.Remove(static_cast<std::size_t>(row)); }, row);
}

void cColourRulesEditor::Move(int by) {
    const int row = m_Table->currentRow();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= m_Table->rowCount()) return;
    Change(
        tr("Move rule"),
        [&] {
            std::swap(m_Rules.m_Rules[static_cast<std::size_t>(row)],
                      m_Rules.m_Rules[static_cast<std::size_t>(target)]);
        },
        target);
}

// All that are hard to read at once, in one step.
void cColourRulesEditor::MakeReadable() {
    Change(
        tr("making texts readable"),
        [&] {
            for (cColourRule& rule : m_Rules.m_Rules) {
                const cUserColor color = MakeUserColor(rule);
                if (LeastContrast(color) >= kReadableContrast) continue;
                const QColor better = ColourFromNumber(ReadableForeColor(color));
                rule.m_ForeColor =
                    FromQString(QString("%1,%2,%3").arg(better.red()).arg(better.green()).arg(better.blue()));
            }
        },
        std::max(m_Table->currentRow(), 0));
}

void cColourRulesEditor::ChooseColour() {
    QTableWidgetItem* item = m_Table->currentItem();
    if (item == nullptr) return;
    const QColor before = item->data(kColourRole).value<QColor>();
    const QColor chosen = QColorDialog::getColor(before, this, tr("Colour"));
    if (!chosen.isValid()) return;
    item->setText(QString("%1,%2,%3").arg(chosen.red()).arg(chosen.green()).arg(chosen.blue()));
}

void cColourRulesEditor::ReadFile(const std::string& path) {
    const std::vector<cLineProblem> problems = m_Rules.Load(m_Services.m_Files, path);
    // A file that can't be read must not be replaced by an empty list.
    if (problems.size() == 1 && problems[0].line == 0) {
        throw cFailure(eFailure::InputOutput, problems[0].description);
    }
    m_Problems->Show(kColourRulesFile, problems);
    Fill();
    if (m_Table->rowCount() > 0) m_Table->setCurrentCell(0, Tag);
}

void cColourRulesEditor::WriteFile(const std::string& path) {
    m_Rules.Save(m_Services.m_Files, path);
}

bool cColourRulesEditor::IsInFile(const std::string& path, const std::string& state) const {
    cColourRules rules;
    rules.Load(m_Services.m_Files, path);
    return rules.Text() == state;
}

std::string cColourRulesEditor::State() const {
    return m_Rules.Text();
}

void cColourRulesEditor::Restore(const std::string& state) {
    m_Rules.Parse(state);
    Fill();
}

}  // namespace vigrel
