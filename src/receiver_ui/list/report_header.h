#pragma once

#include <QHeaderView>
#include <functional>

#include "receiver_ui/list/report_model.h"

namespace vigrel {

// The column headers of a report list. A width counts as changed when the operator lets go of the mouse, not
// at every pixel on the way.
class cReportHeader : public QHeaderView {
    Q_OBJECT
  public:
    explicit cReportHeader(QWidget* parent = nullptr);
    // Makes the column as wide as its owner wants; 0 and below hide it. Tells nobody.
    void SetWidth(int column, int width);
    void SetResizable(int column, bool resizable);
    // The mark of the sort order at a column.
    void ShowOrder(const cRecordOrder& order);
    // What the mouse does with the headers: Ctrl+1 to Ctrl+9 click the first to the ninth that shows, Ctrl
    // with plus or minus drags the edge of the one with the mark of the sort order. False for any other key.
    bool HandleKey(const QKeyEvent& event);

    std::function<void(int column, int width)> OnResized;  // by the operator
    std::function<void(int column)> OnClicked;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void Resized(int column);
    void ClickShown(int number);
    void Widen(int pixels);

    bool m_Pressed = false;
    bool m_OwnChange = false;
    int m_ResizedColumn = -1;  // since the mouse was pressed
};

}  // namespace vigrel
