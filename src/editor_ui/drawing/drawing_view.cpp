#include "editor_ui/drawing/drawing_view.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace vigrel {
namespace {

std::int16_t ButtonNumber(Qt::MouseButtons button) {
    if (button & Qt::LeftButton) return 1;
    if (button & Qt::RightButton) return 2;
    return button & Qt::MiddleButton ? 4 : 0;
}

std::int16_t ShiftNumber(Qt::KeyboardModifiers modifiers) {
    return static_cast<std::int16_t>((modifiers & Qt::ShiftModifier ? 1 : 0) |
                                     (modifiers & Qt::ControlModifier ? 2 : 0) |
                                     (modifiers & Qt::AltModifier ? 4 : 0));
}

QPalette LightPalette(QPalette palette) {
    if (palette.color(QPalette::Window).lightness() >= 128) return palette;
    palette.setColor(QPalette::Window, QColor(240, 240, 240));
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

}  // namespace

cDrawingView::cDrawingView(const char* name, QWidget* parent) : QWidget(parent), m_Surface(*this) {
    setObjectName(name);
    setPalette(LightPalette(palette()));
    setAutoFillBackground(true);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void cDrawingView::paintEvent(QPaintEvent*) {
    m_Surface.PaintWith([this](QPainter& painter) {
        if (OnPaint) OnPaint(painter);
    });
}

void cDrawingView::Hand(const MouseEvent& handler, const QMouseEvent& event, Qt::MouseButtons button) {
    if (handler)
        handler(ButtonNumber(button), ShiftNumber(event.modifiers()), m_Surface.ToUnit(event.position()));
}

void cDrawingView::mousePressEvent(QMouseEvent* event) {
    Hand(OnMouseDown, *event, event->button());
}
void cDrawingView::mouseMoveEvent(QMouseEvent* event) {
    Hand(OnMouseMove, *event, event->buttons());
}
void cDrawingView::mouseReleaseEvent(QMouseEvent* event) {
    Hand(OnMouseUp, *event, event->button());
}

void cDrawingView::contextMenuEvent(QContextMenuEvent* event) {
    if (OnPopupMenu) OnPopupMenu(event->globalPos());
}

void cDrawingView::keyPressEvent(QKeyEvent* event) {
    if (!OnKey || !OnKey(*event)) QWidget::keyPressEvent(event);
}

}  // namespace vigrel
