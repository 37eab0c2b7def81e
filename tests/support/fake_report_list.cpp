#include "support/fake_report_list.h"

#include <algorithm>

#include "common/code_page.h"
#include "common/dates.h"
#include "common/failure.h"

namespace vigrel::testing {
namespace {

template <class Container>
auto& Element(Container& container, int index, const char* what) {
    if (index < 0 || static_cast<std::size_t>(index) >= container.size()) {
        throw cFailure(eFailure::OutOfBounds, std::string("no ") + what + " " + std::to_string(index));
    }
    return container[static_cast<std::size_t>(index)];
}

// Below, equal to or above 0. Numbers stand in front of texts.
int CompareValues(const ItemValue& a, const ItemValue& b) {
    if (a.index() != b.index()) return std::holds_alternative<double>(a) ? -1 : 1;
    if (const double* number = std::get_if<double>(&a)) {
        const double other = std::get<double>(b);
        return Earlier(*number, other) ? -1 : Earlier(other, *number) ? 1 : 0;
    }
    return ToUpper(std::get<std::string>(a)).compare(ToUpper(std::get<std::string>(b)));
}

}  // namespace

void cFakeReportList::Note(const std::string& step) const {
    if (m_Transcript) m_Transcript->Add("list: " + step);
}

const cFakeReportList::cColumn& cFakeReportList::Column(int column) const {
    return Element(m_Columns, column, "column");
}
cFakeReportList::cColumn& cFakeReportList::MutableColumn(int column) {
    return Element(m_Columns, column, "column");
}

int cFakeReportList::AddColumn(std::string_view caption, int width) {
    cColumn column;
    column.caption = caption;
    column.width = width;
    m_Columns.push_back(column);
    return ColumnCount() - 1;
}
void cFakeReportList::SetColumnTag(int column, std::string_view tag) {
    MutableColumn(column).tag = tag;
}
std::string cFakeReportList::ColumnTag(int column) const {
    return Column(column).tag;
}
void cFakeReportList::SetColumnWidth(int column, int width) {
    DragColumn(column, width);
}
int cFakeReportList::ColumnWidth(int column) const {
    return Column(column).width;
}
void cFakeReportList::SetColumnResizable(int column, bool resizable) {
    MutableColumn(column).resizable = resizable;
}
void cFakeReportList::SetColumnSortable(int column, bool sortable) {
    MutableColumn(column).sortable = sortable;
}
void cFakeReportList::SetColumnPlacement(int column, int cells, int header) {
    MutableColumn(column).cellPlacement = cells;
    MutableColumn(column).headerPlacement = header;
}

const RecordTag& cFakeReportList::Record(RecordId record) const {
    const auto found = m_Records.find(record);
    if (found == m_Records.end()) {
        throw cFailure(eFailure::ObjectMissing, "no record " + std::to_string(record));
    }
    return found->second;
}
cReportItem cFakeReportList::Item(RecordId record, int item) const {
    const RecordTag& tag = Record(record);
    Column(item);
    return OnItem ? OnItem(tag, item) : cReportItem{};
}

RecordId cFakeReportList::AddRecord(RecordTag tag) {
    if (m_OnAddRecord) m_OnAddRecord();
    m_Records[m_NextRecord] = std::move(tag);
    return m_NextRecord++;
}
void cFakeReportList::RemoveRecord(RecordId record) {
    Record(record);
    m_Records.erase(record);
    m_Selected.erase(record);
    std::erase(m_Rows, record);
    Note("record " + std::to_string(record) + " removed");
}
void cFakeReportList::RemoveAllRecords() {
    m_Records.clear();
    m_Selected.clear();
    m_Rows.clear();
    Note("all records removed");
}
int cFakeReportList::Compare(RecordId a, RecordId b) const {
    for (const cSortColumn& sort : m_SortColumns) {
        const int order = CompareValues(GetItemValue(a, sort.column), GetItemValue(b, sort.column));
        if (order != 0) return sort.ascending ? order : -order;
    }
    const int age = a < b ? -1 : a > b ? 1 : 0;
    return m_SortColumns.empty() || m_SortColumns.back().ascending ? age : -age;
}

void cFakeReportList::TakeOverRecords() {
    m_Rows.clear();
    for (const auto& [id, record] : m_Records) m_Rows.push_back(id);
    std::sort(m_Rows.begin(), m_Rows.end(), [this](RecordId a, RecordId b) { return Compare(a, b) < 0; });
    Note("take over " + std::to_string(m_Rows.size()) + (m_Rows.size() == 1 ? " row" : " rows"));
}
void cFakeReportList::Redraw() {
    Note("redraw");
}
std::vector<RecordId> cFakeReportList::SelectedRows() {
    std::vector<RecordId> rows;
    std::copy_if(m_Rows.begin(), m_Rows.end(), std::back_inserter(rows),
                 [this](RecordId row) { return m_Selected.contains(row); });
    return rows;
}
void cFakeReportList::SelectAllRows() {
    m_Selected.insert(m_Rows.begin(), m_Rows.end());
    Note("select all");
}
void cFakeReportList::ClearSelection() {
    m_Selected.clear();
    Note("clear selection");
}
void cFakeReportList::SelectAndShow(RecordId record) {
    if (std::find(m_Rows.begin(), m_Rows.end(), record) == m_Rows.end()) return;
    m_Selected.insert(record);
    Note("show record " + std::to_string(record));
}
void cFakeReportList::SetVisible(bool visible) {
    m_Visible = visible;
    Note(visible ? "shown" : "hidden");
}
void cFakeReportList::AddSortColumn(int column, bool ascending) {
    Column(column);
    m_SortColumns.push_back({column, ascending});
}
void cFakeReportList::SetFont(std::string_view name, double points) {
    m_FontName = name;
    m_FontPoints = points;
}

void cFakeReportList::DragColumn(int column, int width) {
    if (MutableColumn(column).width == width) return;
    MutableColumn(column).width = width;
    if (OnColumnWidthChanged) OnColumnWidthChanged(column);
}
void cFakeReportList::DoubleClick(RecordId record) {
    if (OnRowDoubleClick) OnRowDoubleClick(record);
}
void cFakeReportList::PressKey(int keyCode, int shift) {
    if (OnKeyDown) OnKeyDown(keyCode, shift);
}
void cFakeReportList::LoseFocus() {
    if (OnFocusChange) OnFocusChange();
}
cReportList::cFontStyle cFakeReportList::DrawnStyle(RecordId record) {
    cFontStyle style = m_Style;
    if (OnBeforeDrawRow) OnBeforeDrawRow(record, style);
    return style;
}
std::string cFakeReportList::Screen() const {
    std::string screen;
    for (const RecordId row : m_Rows) {
        std::string line;
        for (int column = 0; column < ColumnCount(); ++column) {
            const cReportItem item = Item(row, column);
            line += column == 0 ? "" : "|";
            if (item.hasCaption) line += std::get<std::string>(item.value);
            if (item.icon >= 0) line += "#" + std::to_string(item.icon);
        }
        screen += line + "\n";
    }
    return screen;
}

}  // namespace vigrel::testing
