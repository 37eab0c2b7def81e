#include "editor_ui/drawing/drawing_room.h"

#include <algorithm>
#include <cmath>

namespace vigrel {
namespace {

// Below it days and times can't be told apart any more: the page scrolls instead.
constexpr double kLeastZoom = 1;

}  // namespace

cDrawingRoom::cDrawingRoom(QWidget& content, QSize drawing, QSize around)
    : m_Content(content), m_Drawing(drawing), m_Around(around) {
    content.setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize cDrawingRoom::SizeAt(double zoom) const {
    return QSize(static_cast<int>(std::lround(m_Drawing.width() * zoom)),
                 static_cast<int>(std::lround(m_Drawing.height() * zoom))) +
           m_Around;
}

QSize cDrawingRoom::minimumSizeHint() const {
    return SizeAt(m_Zoom == kFitZoom ? kLeastZoom : m_Zoom);
}

void cDrawingRoom::SetZoom(double zoom) {
    m_Zoom = zoom;
    Fit();
    updateGeometry();
}

void cDrawingRoom::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (m_Zoom == kFitZoom) Fit();
}

void cDrawingRoom::Fit() {
    double zoom = m_Zoom;
    if (zoom == kFitZoom) {
        const QSizeF room = size() - m_Around;
        zoom = std::max(kLeastZoom,
                        std::min(room.width() / m_Drawing.width(), room.height() / m_Drawing.height()));
    }
    if (OnZoom) OnZoom(zoom);
    m_Content.setGeometry(QRect(QPoint(0, 0), SizeAt(zoom)));
}

}  // namespace vigrel
