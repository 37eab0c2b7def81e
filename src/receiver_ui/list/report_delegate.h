#pragma once

#include <QAbstractItemDelegate>
#include <QFont>
#include <array>
#include <functional>

#include "receiver_ui/list/report_model.h"
#include "windows/icon_strip.h"

namespace vigrel {

// Where the parts of a cell lie.
struct cCellLayout {
    QRect icon, text;
};
// The icon stands in front of the text. Centred, the icon alone or the text takes the middle. A size of 0 is
// a cell without icon.
cCellLayout LayoutCell(const QRect& cell, int iconSize, bool hasText, bool centred);

// Draws the cells of a report list: colours, icon, text in the row's style. What is selected shows by a frame
// around the row, so that it is seen on every colour.
class cReportDelegate : public QAbstractItemDelegate {
    Q_OBJECT
  public:
    using StyleOf = std::function<cReportList::cFontStyle(const cReportRecord&)>;

    cReportDelegate(const cReportModel& model, const cIconStrip& icons, StyleOf styleOf, QObject* parent);
    void SetFont(const QFont& font);
    // A new painting asks for each row's style anew.
    void BeginPainting() { m_StyledRow = -1; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // Shows the whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    static int IconSize(int rowHeight);
    const QFont& RowFont(int row) const;
    void DrawContent(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                     const cReportItem& item, const QColor& colour) const;
    void DrawFrame(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    const cReportModel& m_Model;
    const cIconStrip& m_Icons;
    StyleOf m_StyleOf;
    std::array<QFont, 4> m_Fonts;  // plain, bold, italic, both
    mutable int m_StyledRow = -1;  // the row whose style is known
    mutable std::size_t m_StyledFont = 0;
};

}  // namespace vigrel
