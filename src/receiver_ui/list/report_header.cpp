#include "receiver_ui/list/report_header.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

namespace vigrel {
namespace {

constexpr int kMaxWidth = 32000;     // pixels; wider columns are a mistake in the configuration
constexpr int kKeyStep = 20;         // pixels
constexpr int kMinDraggedWidth = 8;  // a column dragged narrower couldn't be grasped again

}  // namespace

cReportHeader::cReportHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setMinimumSectionSize(kMinDraggedWidth);
    setHighlightSections(false);
    setSortIndicator(-1, Qt::AscendingOrder);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QHeaderView::sectionResized, this, [this](int column) { Resized(column); });
    connect(this, &QHeaderView::sectionClicked, this, [this](int column) {
        if (OnClicked) OnClicked(column);
    });
}

void cReportHeader::SetWidth(int column, int width) {
    const QScopedValueRollback own(m_OwnChange, true);
    setSectionHidden(column, width <= 0);
    if (width > 0) resizeSection(column, std::min(width, kMaxWidth));
}

void cReportHeader::SetResizable(int column, bool resizable) {
    setSectionResizeMode(column, resizable ? Interactive : Fixed);
}

void cReportHeader::ShowOrder(const cRecordOrder& order) {
    if (order.Columns().empty()) return setSortIndicator(-1, Qt::AscendingOrder);
    const cRecordOrder::cColumn first = order.Columns().front();
    setSortIndicator(first.column, first.ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

bool cReportHeader::HandleKey(const QKeyEvent& event) {
    // Plus is a shifted key on many keyboards.
    const bool plus = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    const bool digit = event.key() >= Qt::Key_1 && event.key() <= Qt::Key_9;
    const Qt::KeyboardModifiers others = plus ? Qt::KeypadModifier | Qt::ShiftModifier : Qt::KeypadModifier;
    if ((event.modifiers() & ~others) != Qt::ControlModifier) return false;
    if (digit) ClickShown(event.key() - Qt::Key_1);
    if (plus) Widen(kKeyStep);
    if (event.key() == Qt::Key_Minus) Widen(-kKeyStep);
    return digit || plus || event.key() == Qt::Key_Minus;
}

void cReportHeader::ClickShown(int number) {
    for (int place = 0; place < count(); ++place) {
        const int column = logicalIndex(place);
        if (isSectionHidden(column) || number-- > 0) continue;
        if (OnClicked) OnClicked(column);
        return;
    }
}

void cReportHeader::Widen(int pixels) {
    const int column = sortIndicatorSection();
    const bool movable = column >= 0 && column < count() && !isSectionHidden(column) &&
                         sectionResizeMode(column) == Interactive;
    if (movable) resizeSection(column, std::clamp(sectionSize(column) + pixels, kMinDraggedWidth, kMaxWidth));
}

void cReportHeader::Resized(int column) {
    if (m_OwnChange) return;
    m_ResizedColumn = column;
    if (!m_Pressed && OnResized) OnResized(column, sectionSize(column));
}

void cReportHeader::mousePressEvent(QMouseEvent* event) {
    m_Pressed = true;
    m_ResizedColumn = -1;
    QHeaderView::mousePressEvent(event);
}

void cReportHeader::mouseDoubleClickEvent(QMouseEvent* event) {
    m_Pressed = true;
    m_ResizedColumn = -1;
    QHeaderView::mouseDoubleClickEvent(event);
}

void cReportHeader::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    m_Pressed = false;
    const int column = std::exchange(m_ResizedColumn, -1);
    if (column >= 0 && OnResized) OnResized(column, sectionSize(column));
}

}  // namespace vigrel
