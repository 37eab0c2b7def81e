#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

#include "editor_ui/drawing/paint_surface.h"

namespace vigrel {

// A widget that a schedule or a calendar is drawn on: hands on paint events, the mouse in whole units and the
// keys. Its colours stay light on a dark desktop, since the drawing's own are.
class cDrawingView : public QWidget {
    Q_OBJECT
  public:
    cDrawingView(const char* name, QWidget* parent);

    cPaintSurface& Surface() { return m_Surface; }

    // Draws the whole view.
    std::function<void(QPainter&)> OnPaint;
    // Buttons 1 left, 2 right; shift 1 Shift, 2 Ctrl, 4 Alt.
    using MouseEvent = std::function<void(std::int16_t button, std::int16_t shift, QPoint unit)>;
    MouseEvent OnMouseDown, OnMouseMove, OnMouseUp;
    // Asks for the popup menu at a place of the screen; by the keyboard without a press before.
    std::function<void(QPoint)> OnPopupMenu;
    // Whether the key was taken.
    std::function<bool(const QKeyEvent&)> OnKey;

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void KeepLight();
    void Hand(const MouseEvent& handler, const QMouseEvent& event, Qt::MouseButtons button);

    cPaintSurface m_Surface;
};

}  // namespace vigrel
