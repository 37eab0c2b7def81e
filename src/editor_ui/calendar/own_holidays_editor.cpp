#include "editor_ui/calendar/own_holidays_editor.h"

#include <QAction>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
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
    : cTableEditor("List_OwnHolidays", {tr("First day"), tr("Last day"), tr("Every year"), tr("Holiday")},
                   parent),
      m_Services(services),
      m_Problems(new cLineProblemsLabel) {
    setObjectName("Editor_OwnHolidays");
    m_Actions = {
        MakeAction("Action_Add", tr("&Add holiday"), "Ctrl+Ins", [this] { Add(); }),
        m_Remove = MakeAction("Action_Remove", tr("&Delete holiday"), "Ctrl+Del", [this] { Remove(); })};
    SetUpTable();
    auto* hint = new cPlainLabel(
        tr("A day is written 2026-12-24, or 12-24 for every year. Calendars mark these days beside the "
           "country's holidays."));
    hint->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Problems);
    layout->addWidget(&Table(), 1);
    layout->addWidget(ProblemLabel());
    layout->addWidget(hint);
    layout->addWidget(MakeButtons(m_Actions));
    Fill();
}

void cOwnHolidaysEditor::SetUpTable() {
    Table().setAccessibleName(tr("Own holidays"));
    QHeaderView& header = *Table().horizontalHeader();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(Name, QHeaderView::Stretch);
}

void cOwnHolidaysEditor::FillRow(int row) {
    const cOwnHoliday& holiday = m_Own.m_Holidays[static_cast<std::size_t>(row)];
    Table().item(row, First)->setText(ToQString(holiday.m_First));
    Table().item(row, Last)->setText(ToQString(holiday.m_Last));
    Table().item(row, Name)->setText(ToQString(holiday.m_Name));
    QTableWidgetItem& every = *Table().item(row, EveryYear);
    every.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    every.setCheckState(holiday.IsEveryYear() ? Qt::Checked : Qt::Unchecked);
}

std::string cOwnHolidaysEditor::Today() const {
    return FormatDateTime(m_Services.m_Clock.Now(), "yyyy\\-mm\\-dd", {});
}

void cOwnHolidaysEditor::TakeItem(const QTableWidgetItem& item) {
    const int row = item.row(), column = item.column();
    if (column == EveryYear) {
        TakeEveryYear(row, item.checkState() == Qt::Checked);
    } else {
        TakeText(item);
    }
    Table().setCurrentCell(row, column);
}

void cOwnHolidaysEditor::TakeText(const QTableWidgetItem& item) {
    const auto set = [](cOwnHoliday& holiday, int column, const QString& text) {
        (column == First  ? holiday.m_First
         : column == Last ? holiday.m_Last
                          : holiday.m_Name) = CellText(text);
    };
    const auto check = [](cOwnHoliday& holiday) {
        LetLastFollow(holiday);
        CheckOwnHoliday(holiday);
    };
    const auto row = static_cast<std::size_t>(item.row());
    const int column = item.column();
    const QString text = item.text();
    Change(
        tr("changing a holiday"),
        [&] {
            cOwnHoliday& holiday = m_Own.m_Holidays[row];
            holiday = Typed().Taken(holiday, row, column, text, set, check);
        },
        item.row());
}

// A tick that can't be is taken back; there is no text to mend.
void cOwnHolidaysEditor::TakeEveryYear(int row, bool every) {
    cOwnHoliday holiday = m_Own.m_Holidays[static_cast<std::size_t>(row)];
    holiday.m_First = WithoutYear(holiday.m_First);
    if (!every) holiday.m_First.insert(0, Today().substr(0, kYearDigits));
    LetLastFollow(holiday);
    if (const auto failure = CatchFailure([&] { CheckOwnHoliday(holiday); })) {
        Fill();
        return m_Services.m_Prompts.ShowFailure(this, Told(failure->Description()));
    }
    Change(
        tr("changing a holiday"), [&] { m_Own.m_Holidays[static_cast<std::size_t>(row)] = holiday; }, row);
}

void cOwnHolidaysEditor::Add() {
    const int row = Table().currentRow() + 1;
    cOwnHoliday holiday;
    holiday.m_First = Today();
    holiday.m_Name = FromQString(tr("Company holiday"));
    Change(
        tr("adding a holiday"),
        [&] {
            m_Own.m_Holidays.insert(m_Own.m_Holidays.begin() + row, holiday);
            Typed().Insert(static_cast<std::size_t>(row));
        },
        row);
    Table().setCurrentCell(row, First);
    Table().setFocus();
}

void cOwnHolidaysEditor::Remove() {
    const int row = Table().currentRow();
    if (row < 0) return;
    Change(
        tr("deleting a holiday"),
        [&] {
            m_Own.Remove(static_cast<std::size_t>(row));
            Typed().Remove(static_cast<std::size_t>(row));
        },
        row);
}

void cOwnHolidaysEditor::UpdateActions() {
    m_Remove->setEnabled(Table().currentRow() >= 0);
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
    FillAnew();
}

void cOwnHolidaysEditor::WriteFile(const std::string& path) {
    m_Own.Save(m_Services.m_Files, path);
}

bool cOwnHolidaysEditor::IsInFile(const std::string& path, const std::string& state) const {
    cOwnHolidays own;
    own.Load(m_Services.m_Files, path);
    return cTypedState{{}, own.Text()}.Text() == state;
}

}  // namespace vigrel
