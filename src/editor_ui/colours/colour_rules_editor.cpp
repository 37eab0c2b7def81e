#include "editor_ui/colours/colour_rules_editor.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QHeaderView>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "categories/readable_colours.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "editor_ui/colours/colour_preview.h"
#include "editor_ui/colours/swatch.h"
#include "editor_ui/pages/line_problems_label.h"
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
    : cTableEditor("List_Rules",
                   {tr("Tag"), tr("Categories"), tr("Areas"), tr("Text colour"), tr("Background"), tr("Fade"),
                    tr("Contrast")},
                   parent),
      m_Services(services),
      m_Problems(new cLineProblemsLabel) {
    setObjectName("Editor_ColourRules");
    MakeActions();
    m_Preview = new cColourPreview(services, *m_Readable);
    SetUpTable();
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

void cColourRulesEditor::MakeActions() {
    m_Actions = {
        MakeAction("Action_Add", tr("&Add rule"), "Ctrl+Ins", [this] { Add(); }),
        m_Remove = MakeAction("Action_Remove", tr("&Delete rule"), "Ctrl+Del", [this] { Remove(); }),
        m_Up = MakeAction("Action_Up", tr("&Move up"), "Ctrl+Up", [this] { Move(-1); }),
        m_Down = MakeAction("Action_Down", tr("Move d&own"), "Ctrl+Down", [this] { Move(1); }),
        m_Choose = MakeAction("Action_Colour", tr("&Choose colour..."), "", [this] { ChooseColour(); }),
        m_Readable = MakeAction("Action_Readable", tr("Readable te&xt colours"), "Ctrl+Shift+L",
                                [this] { MakeReadable(); })};
    m_Readable->setToolTip(tr("Gives the text of these rules the nearest colour that can be read"));
}

QList<QAction*> cColourRulesEditor::EditActions() const {
    return m_Actions;
}

void cColourRulesEditor::SetUpTable() {
    Table().setAccessibleName(tr("Colour rules, tried from the first to the last"));
    const char* const tips[Columns] = {
        QT_TR_NOOP("A pattern: \"?\" is one character, \"*\" any run; case counts"),
        QT_TR_NOOP("Numbers and ranges from 0 to 255, such as 5;7-9, or * for all"),
        QT_TR_NOOP("Numbers and ranges from 0 to 999, such as 5;7-9, or * for all"),
        QT_TR_NOOP("Red, green and blue from 0 to 255, such as 255,255,255"),
        QT_TR_NOOP("Red, green and blue from 0 to 255, such as 200,0,0"),
        QT_TR_NOOP("By how much every other row is darker, from 0 to 255"),
        QT_TR_NOOP("The least of text and ground: 4.5 is readable, 21 black on white")};
    for (int column = 0; column < Columns; ++column) {
        Table().horizontalHeaderItem(column)->setToolTip(tr(tips[column]));
    }
    QHeaderView& header = *Table().horizontalHeader();
    for (const int column : {Categories, Areas}) {
        header.resizeSection(column, std::max(header.sectionSize(column), header.sectionSizeHint(column)));
    }
    // Where little is left to it, the first column isn't squeezed below its own head.
    header.setMinimumSectionSize(header.sectionSizeHint(Tag));
    header.setSectionResizeMode(Tag, QHeaderView::Stretch);
    for (const int column : {ForeColor, BackColor, Fade, Readability}) {
        header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
}

QWidget* cColourRulesEditor::MakeTablePanel() {
    auto* panel = new QWidget;
    // That one stands beside what is hard to read.
    QList<QAction*> actions = m_Actions;
    actions.removeOne(m_Readable);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&Table(), 1);
    layout->addWidget(ProblemLabel());
    layout->addWidget(MakeButtons(actions));
    return panel;
}

void cColourRulesEditor::FillRow(int row) {
    const cColourRule& rule = m_Rules.m_Rules[static_cast<std::size_t>(row)];
    const cUserColor color = MakeUserColor(rule);
    for (int column = 0; column < Readability; ++column) {
        Table().item(row, column)->setText(ToQString(FieldText(rule, column)));
    }
    ShowColour(*Table().item(row, ForeColor), ColourFromNumber(color.m_ForeColor));
    ShowColour(*Table().item(row, BackColor), ColourFromNumber(color.m_BackColor));
    ShowContrast(*Table().item(row, Readability), LeastContrast(color));
}

void cColourRulesEditor::Filled() {
    std::vector<cUserColor> colors;
    colors.reserve(m_Rules.m_Rules.size());
    for (const cColourRule& rule : m_Rules.m_Rules) colors.push_back(MakeUserColor(rule));
    m_Preview->SetRules(std::move(colors));
}

void cColourRulesEditor::TakeItem(const QTableWidgetItem& item) {
    const auto set = [](cColourRule& rule, int column, const QString& text) {
        SetField(rule, column, CellText(text));
    };
    const auto check = [](const cColourRule& rule) { MakeUserColor(rule); };
    const int row = item.row(), column = item.column();
    const QString text = item.text();
    Change(
        tr("Change rule"),
        [&] {
            cColourRule& rule = m_Rules.m_Rules[static_cast<std::size_t>(row)];
            rule = Typed().Taken(rule, static_cast<std::size_t>(row), column, text, set, check);
        },
        row);
    Table().setCurrentCell(row, column);
}

void cColourRulesEditor::UpdateActions() {
    const int row = Table().currentRow();
    const int column = Table().currentColumn();
    m_Remove->setEnabled(row >= 0);
    m_Readable->setEnabled(std::any_of(
        m_Rules.m_Rules.begin(), m_Rules.m_Rules.end(),
        [](const cColourRule& rule) { return LeastContrast(MakeUserColor(rule)) < kReadableContrast; }));
    m_Up->setEnabled(row > 0);
    m_Down->setEnabled(row >= 0 && row + 1 < Table().rowCount());
    m_Choose->setEnabled(row >= 0 && (column == ForeColor || column == BackColor));
}

void cColourRulesEditor::Add() {
    const int row = Table().currentRow() + 1;
    Change(
        tr("Add rule"),
        [&] {
            m_Rules.m_Rules.insert(m_Rules.m_Rules.begin() + row, NewRule());
            Typed().Insert(static_cast<std::size_t>(row));
        },
        row);
    Table().setCurrentCell(row, Tag);
    Table().setFocus();
}

void cColourRulesEditor::Remove() {
    const int row = Table().currentRow();
    if (row < 0) return;
    Change(
        tr("Delete rule"),
        [&] {
            m_Rules.Remove(static_cast<std::size_t>(row));
            Typed().Remove(static_cast<std::size_t>(row));
        },
        row);
}

void cColourRulesEditor::Move(int by) {
    const int row = Table().currentRow();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= Table().rowCount()) return;
    Change(
        tr("Move rule"),
        [&] {
            std::swap(m_Rules.m_Rules[static_cast<std::size_t>(row)],
                      m_Rules.m_Rules[static_cast<std::size_t>(target)]);
            Typed().Swap(static_cast<std::size_t>(row), static_cast<std::size_t>(target));
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
        std::max(Table().currentRow(), 0));
}

void cColourRulesEditor::ChooseColour() {
    QTableWidgetItem* item = Table().currentItem();
    if (item == nullptr) return;
    const QColor before = item->data(kColourRole).value<QColor>();
    const QColor chosen = QColorDialog::getColor(before, this, tr("Colour"));
    if (!chosen.isValid()) return;
    item->setText(QString("%1,%2,%3").arg(chosen.red()).arg(chosen.green()).arg(chosen.blue()));
}

void cColourRulesEditor::ReadFile(const std::string& path) {
    cColourRules read;
    const std::vector<cLineProblem> problems = read.Load(m_Services.m_Files, path);
    // A file that can't be read must not be replaced by an empty list.
    if (problems.size() == 1 && problems[0].line == 0) {
        throw cFailure(eFailure::InputOutput, problems[0].description);
    }
    m_Rules = std::move(read);
    m_Problems->Show(kColourRulesFile, problems);
    FillAnew();
}

void cColourRulesEditor::WriteFile(const std::string& path) {
    m_Rules.Save(m_Services.m_Files, path);
}

bool cColourRulesEditor::IsInFile(const std::string& path, const std::string& state) const {
    cColourRules rules;
    rules.Load(m_Services.m_Files, path);
    return cTypedState{{}, rules.Text()}.Text() == state;
}

void cColourRulesEditor::RefreshAlarms() {
    m_Preview->LookAgain();
}

}  // namespace vigrel
