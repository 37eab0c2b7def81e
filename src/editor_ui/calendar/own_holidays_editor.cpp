#include "editor_ui/calendar/own_holidays_editor.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "editor_ui/pages/editor_action.h"
#include "editor_ui/pages/line_problems_label.h"
#include "editor_ui/pages/reasons.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

enum eColumn { First, Last, EveryYear, Name, Columns };

constexpr std::size_t kYearDigits = 5;  // "2026-"

bool HasYear(const std::string& day) {
    return day.size() > kYearDigits;
}

std::string WithoutYear(const std::string& day) {
    return HasYear(day) ? day.substr(kYearDigits) : day;
}

// The last day speaks of years as the first one does; one that lies before it in the year is of the next.
void LetLastFollow(cOwnHoliday& holiday) {
    if (holiday.m_Last.empty() || HasYear(holiday.m_Last) == HasYear(holiday.m_First)) return;
    if (HasYear(holiday.m_Last)) {
        holiday.m_Last = WithoutYear(holiday.m_Last);
        return;
    }
    const bool isNext = holiday.m_Last < WithoutYear(holiday.m_First);
    const int year = ToInt32(Val(holiday.m_First.substr(0, kYearDigits - 1))) + (isNext ? 1 : 0);
    holiday.m_Last.insert(0, Digits(year, 4) + "-");
}

}  // namespace

cOwnHolidaysEditor::cOwnHolidaysEditor(cEditorServices& services, QWidget* parent)
    : cContentEditor(parent),
      m_Services(services),
      m_Table(new QTableWidget(0, Columns)),
      m_Problems(new cLineProblemsLabel) {
    setObjectName("Editor_OwnHolidays");
    setFocusProxy(m_Table);
    m_Actions = {MakeAction("Action_Add", tr("&Add holiday"), "Ctrl+Ins", &cOwnHolidaysEditor::Add),
                 m_Remove = MakeAction("Action_Remove", tr("&Delete holiday"), "Ctrl+Del",
                                       &cOwnHolidaysEditor::Remove)};
    MakeTable();
    auto* hint = new cPlainLabel(
        tr("A day is written 2026-12-24, or 12-24 for every year. Calendars mark these days beside the "
           "country's holidays."));
    hint->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Problems);
    layout->addWidget(m_Table, 1);
    layout->addWidget(hint);
    layout->addWidget(MakeButtons());
    Fill();
}

QAction* cOwnHolidaysEditor::MakeAction(const char* objectName, const QString& text, const QString& keys,
                                        void (cOwnHolidaysEditor::*press)()) {
    QAction* action = MakeEditorAction(*this, objectName, text, QKeySequence(keys));
    connect(action, &QAction::triggered, this, press);
    return action;
}

void cOwnHolidaysEditor::MakeTable() {
    m_Table->setObjectName("List_OwnHolidays");
    m_Table->setAccessibleName(tr("Own holidays"));
    m_Table->setHorizontalHeaderLabels({tr("First day"), tr("Last day"), tr("Every year"), tr("Holiday")});
    QHeaderView& header = *m_Table->horizontalHeader();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(Name, QHeaderView::Stretch);
    m_Table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_Table->setTabKeyNavigation(false);
    connect(m_Table, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem* item) { TakeItem(*item); });
    connect(m_Table, &QTableWidget::currentCellChanged, this, [this] { UpdateActions(); });
}

QWidget* cOwnHolidaysEditor::MakeButtons() {
    auto* panel = new QWidget;
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAction* action : m_Actions) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString(action->objectName()).replace("Action_", "Button_"));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return panel;
}

void cOwnHolidaysEditor::Fill() {
    const QSignalBlocker quiet(m_Table);
    m_Table->setRowCount(static_cast<int>(m_Own.m_Holidays.size()));
    for (int row = 0; row < m_Table->rowCount(); ++row) FillRow(row);
    UpdateActions();
}

void cOwnHolidaysEditor::FillRow(int row) {
    const cOwnHoliday& holiday = m_Own.m_Holidays[static_cast<std::size_t>(row)];
    for (int column = 0; column < Columns; ++column) {
        // An item that tells of its own change must not be replaced meanwhile.
        if (m_Table->item(row, column) == nullptr) m_Table->setItem(row, column, new QTableWidgetItem);
    }
    m_Table->item(row, First)->setText(ToQString(holiday.m_First));
    m_Table->item(row, Last)->setText(ToQString(holiday.m_Last));
    m_Table->item(row, Name)->setText(ToQString(holiday.m_Name));
    QTableWidgetItem& every = *m_Table->item(row, EveryYear);
    every.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    every.setCheckState(holiday.IsEveryYear() ? Qt::Checked : Qt::Unchecked);
}

std::string cOwnHolidaysEditor::Today() const {
    return FormatDateTime(m_Services.m_Clock.Now(), "yyyy\\-mm\\-dd", {});
}

// The holiday with what a cell says of it.
cOwnHoliday cOwnHolidaysEditor::Changed(const QTableWidgetItem& item) const {
    cOwnHoliday holiday = m_Own.m_Holidays[static_cast<std::size_t>(item.row())];
    const std::string text = FromQString(item.text().trimmed());
    switch (item.column()) {
        case First:
            holiday.m_First = text;
            break;
        case Last:
            holiday.m_Last = text;
            break;
        case EveryYear:
            holiday.m_First = WithoutYear(holiday.m_First);
            if (item.checkState() != Qt::Checked) holiday.m_First.insert(0, Today().substr(0, kYearDigits));
            break;
        default:
            holiday.m_Name = text;
    }
    LetLastFollow(holiday);
    return holiday;
}

void cOwnHolidaysEditor::TakeItem(const QTableWidgetItem& item) {
    const int row = item.row(), column = item.column();
    cOwnHoliday holiday;
    const auto failure = CatchFailure([&] {
        if (!FitsCodePage(item.text())) {
            throw cFailure(eFailure::InvalidCall,
                           Pattern("Reasons", "the text has characters that can't be stored"));
        }
        holiday = Changed(item);
        CheckOwnHoliday(holiday);
    });
    if (failure) {
        Fill();
        m_Services.m_Prompts.ShowFailure(this, Told(failure->Description()));
        return;
    }
    Change(
        tr("changing a holiday"), [&] { m_Own.m_Holidays[static_cast<std::size_t>(row)] = holiday; }, row);
    m_Table->setCurrentCell(row, column);
}

void cOwnHolidaysEditor::Change(const QString& step, const std::function<void()>& change, int row) {
    const int column = std::max(m_Table->currentColumn(), 0);
    Edit(step, change);
    Fill();
    m_Table->setCurrentCell(std::min(row, m_Table->rowCount() - 1), column);
}

void cOwnHolidaysEditor::Add() {
    const int row = m_Table->currentRow() + 1;
    cOwnHoliday holiday;
    holiday.m_First = Today();
    holiday.m_Name = FromQString(tr("Company holiday"));
    Change(
        tr("adding a holiday"), [&] { m_Own.m_Holidays.insert(m_Own.m_Holidays.begin() + row, holiday); },
        row);
    m_Table->setCurrentCell(row, First);
    m_Table->setFocus();
}

void cOwnHolidaysEditor::Remove() {
    const int row = m_Table->currentRow();
    if (row < 0) return;
    Change(
        tr("deleting a holiday"), [&] { m_Own.Remove(static_cast<std::size_t>(row)); }, row);
}

void cOwnHolidaysEditor::UpdateActions() {
    m_Remove->setEnabled(m_Table->currentRow() >= 0);
}

void cOwnHolidaysEditor::ReadFile(const std::string& path) {
    cOwnHolidays read;
    const std::vector<cLineProblem> problems = read.Load(m_Services.m_Files, path);
    // A file that can't be read must not be replaced by an empty list.
    if (problems.size() == 1 && problems[0].line == 0) {
        throw cFailure(eFailure::InputOutput, problems[0].description);
    }
    m_Own = std::move(read);
    m_Problems->Show(kOwnHolidaysFile, problems);
    Fill();
    if (m_Table->rowCount() > 0) m_Table->setCurrentCell(0, First);
}

void cOwnHolidaysEditor::WriteFile(const std::string& path) {
    m_Own.Save(m_Services.m_Files, path);
}

bool cOwnHolidaysEditor::IsInFile(const std::string& path, const std::string& state) const {
    cOwnHolidays own;
    own.Load(m_Services.m_Files, path);
    return own.Text() == state;
}

void cOwnHolidaysEditor::Restore(const std::string& state) {
    m_Own.Parse(state);
    Fill();
}

}  // namespace vigrel
