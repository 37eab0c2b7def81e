#pragma once

#include <QFrame>
#include <QScrollBar>

#include "editor_ui/drawing/drawing_view.h"

namespace vigrel {

// The frame around the view of a schedule and its scroll bar, seven rows high. Its measure is units of the
// drawing, zoomed to pixels.
class cScheduleFrame : public QFrame {
    Q_OBJECT
  public:
    explicit cScheduleFrame(QWidget* parent);

    cDrawingView& View() { return m_View; }
    static QSize DrawingSize();   // in units
    QSize AroundDrawing() const;  // in pixels
    void SetZoom(double zoom);
    double Zoom() const { return m_View.Surface().Zoom(); }
    // Brings a row into sight.
    void ShowRow(int row);

    double ScaleWidth() const { return contentsRect().width() / Zoom(); }
    double ScaleHeight() const { return contentsRect().height() / Zoom(); }
    double ScrollLeft() const { return m_ScrollLeft; }
    double ScrollWidth() const { return m_Scroll.width() / Zoom(); }
    void SetScrollLeft(double left);
    void SetScrollTop(double top);
    void SetScrollHeight(double height);
    void SetScrollMax(int max);
    void SetViewLeft(double left);
    void SetViewTop(double top);
    void SetViewWidth(double width);
    void SetViewHeight(double height);

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    int Pixels(double units) const;
    void MoveView();

    mutable cDrawingView m_View;
    QScrollBar m_Scroll;
    double m_ScrollLeft = 0;
};

}  // namespace vigrel
