#include "receiver_ui/list/qt_report_list.h"

#include <algorithm>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "windows/fonts.h"

namespace vigrel {
namespace {

// The view has its model before anybody listens to it or keeps its selection.
std::unique_ptr<cReportView> MakeView(QWidget* parent, cReportModel& model) {
    auto view = std::make_unique<cReportView>(parent);
    view->setModel(&model);
    return view;
}

}  // namespace

cQtReportList::cQtReportList(QWidget* parent, const cIconStrip& icons)
    : m_View(MakeView(parent, m_Model)),
      m_Header(m_View->Header()),
      m_Delegate(
          m_Model, icons, [this](const cReportRecord& record) { return StyleOf(record); }, nullptr),
      m_Keeper(*m_View, m_Model),
      m_FontPoints(m_View->font().pointSizeF()) {
    m_View->setItemDelegate(&m_Delegate);
    m_Delegate.SetFont(m_View->font());
    ConnectView();
    m_FlushTimer.setSingleShot(true);
    m_FlushTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_FlushTimer, &QTimer::timeout, &m_FlushTimer, [this] { Flush(); });
}

cQtReportList::~cQtReportList() = default;

void cQtReportList::ConnectView() {
    m_Model.OnItem = [this](const RecordTag& tag, int column) {
        return OnItem ? OnItem(tag, column) : cReportItem{};
    };
    m_View->OnKeyDown = [this](int keyCode, int shift) {
        if (OnKeyDown) OnKeyDown(keyCode, shift);
    };
    m_View->OnFocusLost = [this] {
        if (OnFocusChange) OnFocusChange();
    };
    m_View->OnRowChosen = [this](const QModelIndex& index) {
        const cReportRecord& record = m_Model.ReportRows()[index.row()];
        if (!record.removed && OnRowDoubleClick) OnRowDoubleClick(record.id);
    };
    m_View->OnPaint = [this] { m_Delegate.BeginPainting(); };
    m_Header.OnClicked = [this](int column) { SortByClick(column); };
    m_Header.OnResized = [this](int column, int width) {
        m_Model.Column(column).width = width;
        WidthChanged(column);
    };
}

// --- columns

int cQtReportList::AddColumn(std::string_view caption, int width) {
    cReportColumn settings;
    settings.caption = caption;
    settings.width = width;
    const int column = m_Model.AddColumn(settings);
    m_Header.SetWidth(column, width);
    SetColumnSortable(column, true);
    return column;
}

void cQtReportList::SetColumnTag(int column, std::string_view tag) {
    m_Model.Column(column).tag = tag;
}
std::string cQtReportList::ColumnTag(int column) const {
    return m_Model.Column(column).tag;
}

void cQtReportList::SetColumnWidth(int column, int width) {
    if (std::exchange(m_Model.Column(column).width, width) == width) return;
    m_Header.SetWidth(column, width);
    WidthChanged(column);
}
int cQtReportList::ColumnWidth(int column) const {
    return m_Model.Column(column).width;
}
void cQtReportList::WidthChanged(int column) {
    if (OnColumnWidthChanged) OnColumnWidthChanged(column);
}

void cQtReportList::SetColumnResizable(int column, bool resizable) {
    m_Model.Column(column).resizable = resizable;
    m_Header.SetResizable(column, resizable);
}
void cQtReportList::SetColumnSortable(int column, bool sortable) {
    m_Model.Column(column).sortable = sortable;
    const auto& columns = m_Model.Columns();
    m_Header.setSectionsClickable(std::any_of(columns.begin(), columns.end(),
                                              [](const cReportColumn& other) { return other.sortable; }));
}
void cQtReportList::SetColumnPlacement(int column, int cells, int header) {
    m_Model.Column(column).centredCells = cells == 1;
    m_Model.Column(column).centredHeader = header == 1;
    m_Model.ColumnChanged(column);
    MarkFlush();
}

// --- records

RecordId cQtReportList::AddRecord(RecordTag tag) {
    return m_Records.Add(std::move(tag));
}
void cQtReportList::RemoveRecord(RecordId record) {
    m_Records.Remove(record);
    MarkFlush();
}
void cQtReportList::RemoveAllRecords() {
    m_Records.RemoveAll();
    MarkFlush();
}
RecordTag cQtReportList::RecordTagOf(RecordId record) const {
    return m_Records.Get(record).tag;
}
void cQtReportList::RecordChanged(RecordId record) {
    cReportRecord& changed = m_Records.Get(record);
    if (m_Model.ReportRows().IsMisplaced(changed)) m_Records.SortValueChanged(changed);
}
ItemValue cQtReportList::GetItemValue(RecordId record, int item) const {
    m_Model.Column(item);
    return m_Model.Item(m_Records.Get(record), item).value;
}

// --- rows

void cQtReportList::TakeOverRecords() {
    m_Records.TakeOver();
    m_TakeOver = true;
    MarkFlush();
}
void cQtReportList::Redraw() {
    MarkFlush();
}

std::vector<RecordId> cQtReportList::Rows() {
    FlushNow();
    const cReportRows& rows = m_Model.ReportRows();
    std::vector<RecordId> ids;
    ids.reserve(static_cast<std::size_t>(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row) ids.push_back(rows[row].id);
    return ids;
}

std::vector<RecordId> cQtReportList::SelectedRows() {
    FlushNow();
    std::vector<RecordId> ids;
    for (const int row : SelectedRowNumbers(*m_View)) ids.push_back(m_Model.ReportRows()[row].id);
    return ids;
}

void cQtReportList::SelectAllRows() {
    FlushNow();
    m_View->selectAll();
}
void cQtReportList::ClearSelection() {
    m_Deselect = true;
    m_ToSelect.clear();
    MarkFlush();
}
void cQtReportList::SelectAndShow(RecordId record) {
    if (!m_Records.HasRow(record)) return;
    m_ToSelect.push_back(record);
    m_ToShow = record;
    MarkFlush();
}
void cQtReportList::SetVisible(bool visible) {
    m_View->setVisible(visible);
}

// --- sort order

void cQtReportList::ClearSortOrder() {
    m_NewOrder.emplace();
}
void cQtReportList::AddSortColumn(int column, bool ascending) {
    m_Model.Column(column);
    if (!m_NewOrder) m_NewOrder = m_Model.ReportRows().Order();
    m_NewOrder->Add(column, ascending);
}

void cQtReportList::SortByClick(int column) {
    const cRecordOrder& present = m_Model.ReportRows().Order();
    if (!m_Model.Column(column).sortable) return m_Header.ShowOrder(present);
    const bool again = !present.Columns().empty() && present.Columns().front().column == column;
    m_NewOrder.emplace();
    m_NewOrder->Add(column, !(again && present.Columns().front().ascending));
    m_TakeOver = true;
    Flush();
}

// --- paint settings

void cQtReportList::SetFont(std::string_view name, double points) {
    m_FontPoints = points;
    const QFont font = FontOf(name, points);
    m_View->setFont(font);
    m_Header.setFont(font);
    m_Delegate.SetFont(font);
    AskRowHeight();
    MarkFlush();
}
void cQtReportList::SetFontStyle(bool bold, bool italic) {
    m_Style = {bold, italic};
    MarkFlush();
}
void cQtReportList::AskRowHeight() {
    m_RowHeightAsked = static_cast<bool>(OnRowHeight);
    m_View->SetRowHeight(OnRowHeight ? OnRowHeight() : m_View->fontMetrics().height() + 3);
}
void cQtReportList::SetEmptyText(std::string_view text) {
    m_View->SetEmptyText(ToQString(text));
}
cReportList::cFontStyle cQtReportList::StyleOf(const cReportRecord& record) const {
    cFontStyle style = m_Style;
    if (!record.removed && OnBeforeDrawRow) OnBeforeDrawRow(record.id, style);
    return style;
}

// --- flush

void cQtReportList::MarkFlush() {
    if (m_FlushTimer.isActive()) return;
    const qint64 since = m_SinceFlush.isValid() ? m_SinceFlush.elapsed() : kFlushMilliseconds;
    m_FlushTimer.start(static_cast<int>(std::max<qint64>(0, kFlushMilliseconds - since)));
}

void cQtReportList::Flush() {
    m_FlushTimer.stop();
    m_SinceFlush.start();
    if (!m_RowHeightAsked) AskRowHeight();
    const bool takeOver = std::exchange(m_TakeOver, false);
    // Lives until the rows are done: rows may refer to records that are gone.
    const cRecordChanges changes = m_Records.TakeChanges(takeOver);
    if (takeOver && m_NewOrder) {
        m_Model.ReportRows().Resort(changes, *std::exchange(m_NewOrder, std::nullopt));
    } else {
        m_Model.ReportRows().Apply(changes);
    }
    m_Header.ShowOrder(m_Model.ReportRows().Order());
    FlushSelection();
    m_View->viewport()->update();
}

void cQtReportList::FlushSelection() {
    if (std::exchange(m_Deselect, false)) m_View->clearSelection();
    const auto rowOf = [this](RecordId id) {
        return m_Records.HasRow(id) ? m_Model.ReportRows().RowOf(m_Records.Get(id)) : std::nullopt;
    };
    for (const RecordId id : std::exchange(m_ToSelect, {})) {
        if (const auto row = rowOf(id)) {
            m_View->selectionModel()->select(m_Model.index(*row, 0),
                                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
    if (const auto row = rowOf(std::exchange(m_ToShow, 0))) m_View->ShowRow(*row);
}

}  // namespace vigrel
