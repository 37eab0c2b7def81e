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

}  // namespace

cDrawingView::cDrawingView(const char* name, QWidget* parent) : QWidget(parent), m_Surface(*this) {
    setObjectName(name);
    KeepLight();
    setAutoFillBackground(true);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

// What is drawn has colours of its own, which are for a light ground.
void cDrawingView::KeepLight() {
    QPalette light = palette();
    if (light.color(QPalette::Window).lightness() >= 128) return;
    light.setColor(QPalette::Window, QColor(240, 240, 240));
    light.setColor(QPalette::WindowText, Qt::black);
    setPalette(light);
}

void cDrawingView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // The desktop can become dark at nightfall.
    if (event->type() == QEvent::PaletteChange) KeepLight();
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
