#include "receiver_ui/list/report_delegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTableView>
#include <QToolTip>

#include "adapters/qt/qt_text.h"
#include "windows/colours.h"

namespace vigrel {
namespace {

constexpr int kMargin = 4;
constexpr qreal kSelectedShare = 0.25;  // of the selection's colour on a coloured cell

QColor Blended(const QColor& under, const QColor& over, qreal share) {
    const auto mix = [share](int a, int b) { return qRound(a * (1 - share) + b * share); };
    return QColor(mix(under.red(), over.red()), mix(under.green(), over.green()),
                  mix(under.blue(), over.blue()));
}

QColor BackColour(const cReportItem& item, const QStyleOptionViewItem& option) {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QColor highlight = option.palette.color(QPalette::Highlight);
    if (!item.hasColours) return selected ? highlight : option.palette.color(QPalette::Base);
    const QColor own = ColourFromNumber(item.backColour);
    return selected ? Blended(own, highlight, kSelectedShare) : own;
}

QColor TextColour(const cReportItem& item, const QStyleOptionViewItem& option) {
    if (item.hasColours) return ColourFromNumber(item.textColour);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    return option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

// On one line, whatever the text holds.
QString ShownText(const cReportItem& item) {
    if (!item.hasCaption) return {};
    QString text = ValueText(item.value);
    for (QChar& c : text) {
        if (c < ' ') c = ' ';
    }
    return text;
}

// The sides of the row's frame that pass through a cell.
void DrawSides(QPainter& painter, const QRect& box, bool left, bool right) {
    painter.drawLine(box.topLeft(), box.topRight());
    painter.drawLine(box.bottomLeft(), box.bottomRight());
    if (left) painter.drawLine(box.topLeft(), box.bottomLeft());
    if (right) painter.drawLine(box.topRight(), box.bottomRight());
}

}  // namespace

cCellLayout LayoutCell(const QRect& cell, int iconSize, bool hasText, bool centred) {
    cCellLayout layout;
    int left = cell.left() + kMargin;
    if (iconSize > 0) {
        const int top = cell.top() + (cell.height() - iconSize) / 2;
        const bool alone = centred && !hasText;
        layout.icon =
            QRect(alone ? cell.left() + (cell.width() - iconSize) / 2 : left, top, iconSize, iconSize);
        left = layout.icon.right() + 1 + kMargin;
    }
    if (hasText) layout.text = QRect(left, cell.top(), cell.right() - kMargin - left + 1, cell.height());
    return layout;
}

cReportDelegate::cReportDelegate(const cReportModel& model, const cIconStrip& icons, StyleOf styleOf,
                                 QObject* parent)
    : QAbstractItemDelegate(parent), m_Model(model), m_Icons(icons), m_StyleOf(std::move(styleOf)) {}

void cReportDelegate::SetFont(const QFont& font) {
    for (std::size_t i = 0; i < m_Fonts.size(); ++i) {
        m_Fonts[i] = font;
        m_Fonts[i].setBold((i & 1) != 0);
        m_Fonts[i].setItalic((i & 2) != 0);
    }
}

int cReportDelegate::IconSize(int rowHeight) {
    return std::max(8, rowHeight - 5);
}

// The cells of a row are drawn one behind the other, so that only the last row's style is kept.
const QFont& cReportDelegate::RowFont(int row) const {
    if (row != m_StyledRow) {
        const cReportList::cFontStyle style = m_StyleOf(m_Model.ReportRows()[row]);
        m_StyledRow = row;
        m_StyledFont = (style.bold ? 1U : 0U) + (style.italic ? 2U : 0U);
    }
    return m_Fonts[m_StyledFont];
}

void cReportDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    const cReportItem item = m_Model.Item(index);
    painter->fillRect(option.rect, BackColour(item, option));
    DrawContent(*painter, option, index, item, TextColour(item, option));
    DrawFrame(*painter, option, index);
}

void cReportDelegate::DrawContent(QPainter& painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index, const cReportItem& item,
                                  const QColor& colour) const {
    const bool centred = m_Model.Columns()[static_cast<std::size_t>(index.column())].centredCells;
    const QString text = ShownText(item);
    const int size = IconSize(option.rect.height());
    const QPixmap icon = m_Icons.Image(item.icon, size, painter.device()->devicePixelRatioF());
    const cCellLayout layout = LayoutCell(option.rect, icon.isNull() ? 0 : size, !text.isEmpty(), centred);
    painter.setClipRect(option.rect);
    if (!icon.isNull()) painter.drawPixmap(layout.icon, icon);
    if (layout.text.width() > 0) {
        painter.setFont(RowFont(index.row()));
        painter.setPen(colour);
        // No character is narrower than a pixel. The toolkit would measure a text of thousands whole, at each
        // painting.
        const int width = layout.text.width();
        const QString shown = painter.fontMetrics().elidedText(text.left(width + 1), Qt::ElideRight, width);
        const Qt::Alignment across = centred ? Qt::AlignHCenter : Qt::AlignLeft;
        painter.drawText(layout.text, static_cast<int>(across | Qt::AlignVCenter | Qt::TextSingleLine),
                         shown);
    }
    painter.setClipping(false);
}

// A fine line parts the rows. A selected row has a frame of a dark and a light line; the row that the keys
// act on a dashed one.
void cReportDelegate::DrawFrame(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    const QRect box = option.rect;
    painter.fillRect(QRect(box.left(), box.bottom(), box.width(), 1), QColor(0, 0, 0, 40));
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const bool current = view != nullptr && view->hasFocus() && view->currentIndex().row() == index.row();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (!selected && !current) return;
    const bool left = index.column() == 0;
    int last = m_Model.columnCount() - 1;
    while (last > 0 && m_Model.Columns()[static_cast<std::size_t>(last)].width <= 0) --last;
    const bool right = index.column() == last;
    const QRect inner = box.adjusted(left ? 1 : 0, 1, right ? -1 : 0, -1);
    painter.setPen(Qt::white);
    DrawSides(painter, selected ? inner : box, left, right);
    painter.setPen(selected ? QPen(Qt::black) : QPen(Qt::black, 1, Qt::DotLine));
    DrawSides(painter, box, left, right);
}

QSize cReportDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const cReportItem item = m_Model.Item(index);
    // The toolkit gives no place of a cell where it asks for the width of a column.
    const auto* view = qobject_cast<const QTableView*>(option.widget);
    const int height = view != nullptr ? view->rowHeight(index.row()) : std::max(option.rect.height(), 1);
    const int icon = item.icon >= 0 ? IconSize(height) + kMargin : 0;
    return {2 * kMargin + icon + QFontMetrics(m_Fonts[1]).horizontalAdvance(ShownText(item)), height};
}

bool cReportDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
    const bool cut = sizeHint(option, index).width() > view->visualRect(index).width();
    QToolTip::showText(event->globalPos(), cut ? ShownText(m_Model.Item(index)) : QString(), view);
    return true;
}

}  // namespace vigrel
