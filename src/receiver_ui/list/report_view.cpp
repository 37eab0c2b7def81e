#include "receiver_ui/list/report_view.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

#include "receiver_ui/list/key_codes.h"

namespace vigrel {
namespace {

constexpr int kEscape = 27, kF9 = 120, kControl = 2;

// Keys that mean something to the list's owner alone.
bool IsOwnersKey(int code, int shift) {
    return code == kEscape || code == kF9 || (shift == kControl && (code == 'A' || code == 'C'));
}

bool ChoosesRow(const QKeyEvent& event) {
    const bool key =
        event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
    return key && ShiftState(event.modifiers()) == 0 && !event.isAutoRepeat();
}

}  // namespace

cReportView::cReportView(QWidget* parent) : QTableView(parent), m_Header(new cReportHeader(this)) {
    setHorizontalHeader(m_Header);
    m_Header->setSortIndicatorShown(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
}

void cReportView::SetRowHeight(int pixels) {
    verticalHeader()->setDefaultSectionSize(std::max(pixels, 1));
}

void cReportView::SetEmptyText(const QString& text) {
    m_EmptyText = text;
    viewport()->update();
}

void cReportView::ShowRow(int row) {
    updateGeometries();  // the scroll bar doesn't know of rows that have just come in
    const int across = horizontalScrollBar()->value();
    scrollTo(model()->index(row, std::max(0, columnAt(0))), EnsureVisible);
    horizontalScrollBar()->setValue(across);
}

void cReportView::keyPressEvent(QKeyEvent* event) {
    const int code = VirtualKeyCode(event->key(), event->modifiers());
    const int shift = ShiftState(event->modifiers());
    if (code != 0 && OnKeyDown) OnKeyDown(code, shift);
    if (IsOwnersKey(code, shift)) return event->accept();
    if (m_Header->HandleKey(*event)) return event->accept();
    if (ChoosesRow(*event)) {
        event->accept();
        // The row that the keyboard stands on is not a choice: an arrival takes the selection away, and may
        // have brought the list in front of what the operator is typing in.
        if (selectionModel()->isRowSelected(currentIndex().row())) ChooseRow(currentIndex());
        return;
    }
    // The toolkit would copy one cell; what a row is copied as is the owner's to say.
    if (event->matches(QKeySequence::Copy)) return event->accept();
    QTableView::keyPressEvent(event);
}

// Rows are chosen whole: what leads to the ends of a row elsewhere leads to those of the list.
QModelIndex cReportView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action != MoveHome && action != MoveEnd) return QTableView::moveCursor(action, modifiers);
    const int row = action == MoveHome ? 0 : model()->rowCount() - 1;
    const int column = currentIndex().isValid() ? currentIndex().column() : std::max(0, columnAt(0));
    return model()->index(row, column);
}

void cReportView::ChooseRow(const QModelIndex& index) {
    if (index.isValid() && OnRowChosen) OnRowChosen(index);
}

void cReportView::focusInEvent(QFocusEvent* event) {
    m_InMenu = false;
    QTableView::focusInEvent(event);
}

void cReportView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    // A menu is a part of the window; the operator is still at the list.
    m_InMenu = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MenuBarFocusReason;
    if (!m_InMenu && OnFocusLost) OnFocusLost();
}

bool cReportView::event(QEvent* event) {
    // From the menu the operator has gone elsewhere.
    const bool left = event->type() == QEvent::WindowDeactivate && std::exchange(m_InMenu, false);
    if (left && OnFocusLost) OnFocusLost();
    return QTableView::event(event);
}

void cReportView::mousePressEvent(QMouseEvent* event) {
    m_ClickedIsGone = false;
    QTableView::mousePressEvent(event);
}

void cReportView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
    // The toolkit makes a neighbour the current row.
    if (currentIndex().row() >= first && currentIndex().row() <= last) m_ClickedIsGone = true;
    QTableView::rowsAboutToBeRemoved(parent, first, last);
}

void cReportView::mouseDoubleClickEvent(QMouseEvent* event) {
    // A row that came or went between the two clicks has brought another one under the pointer; that one was
    // not meant.
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool meant = !m_ClickedIsGone && index.isValid() && index.row() == currentIndex().row();
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && meant) {
        ChooseRow(index);
    }
}

void cReportView::paintEvent(QPaintEvent* event) {
    if (OnPaint) OnPaint();
    QTableView::paintEvent(event);
    if (model()->rowCount() > 0 || m_EmptyText.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), static_cast<int>(Qt::AlignCenter | Qt::TextWordWrap), m_EmptyText);
}

}  // namespace vigrel
