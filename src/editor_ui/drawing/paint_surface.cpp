#include "editor_ui/drawing/paint_surface.h"

#include <QFontMetricsF>
#include <QToolTip>
#include <QWidget>
#include <cmath>

#include "adapters/qt/qt_text.h"
#include "windows/colours.h"

namespace vigrel {
namespace {

constexpr int kUsualFontSize = 11;

// Pixels of the font are units of the drawing.
QFont UnitFont(QFont font) {
    font.setPixelSize(kUsualFontSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

cPaintSurface::cPaintSurface(QWidget& widget) : m_Widget(widget), m_Font(UnitFont(widget.font())) {}

void cPaintSurface::SetZoom(double zoom) {
    m_Zoom = zoom;
    m_Widget.update();
}

void cPaintSurface::SetFontSize(int units) {
    m_Font.setPixelSize(units);
    m_Widget.update();
}

QPoint cPaintSurface::ToUnit(QPointF position) const {
    return {static_cast<int>(std::floor(position.x() / m_Zoom)),
            static_cast<int>(std::floor(position.y() / m_Zoom))};
}

void cPaintSurface::PaintWith(const std::function<void(QPainter&)>& draw) {
    QPainter painter(&m_Widget);
    painter.scale(m_Zoom, m_Zoom);
    painter.setFont(m_Font);
    painter.setPen(m_Widget.palette().color(QPalette::WindowText));
    m_Painter = &painter;
    draw(painter);
    m_Painter = nullptr;
}

QPainter* cPaintSurface::Painter() {
    if (m_Painter == nullptr) m_Widget.update();
    return m_Painter;
}

void cPaintSurface::Line(double x1, double y1, double x2, double y2, std::int32_t colour) {
    QPainter* painter = Painter();
    if (painter == nullptr) return;
    // The first point belongs to the line and the second doesn't, in both directions.
    const bool across = y1 == y2;
    const QPointF from(x2 < x1 ? x2 + 1 : x1, y2 < y1 ? y2 + 1 : y1);
    const QSizeF size(across ? std::abs(x2 - x1) : 1, across ? 1 : std::abs(y2 - y1));
    painter->fillRect(QRectF(from, size), ColourFromNumber(colour));
}

void cPaintSurface::FillBox(double x1, double y1, double x2, double y2, std::int32_t colour) {
    if (QPainter* painter = Painter()) {
        painter->fillRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)), ColourFromNumber(colour));
    }
}

void cPaintSurface::DrawImage(const ImageMaker& image, double x, double y, double size) {
    QPainter* painter = Painter();
    if (painter == nullptr) return;
    const QPixmap pixmap = image(static_cast<int>(std::lround(size * m_Zoom)), m_Widget.devicePixelRatioF());
    if (!pixmap.isNull()) painter->drawPixmap(QRectF(x, y, size, size), pixmap, pixmap.rect());
}

double cPaintSurface::TextWidth(std::string_view text) const {
    return QFontMetricsF(m_Font).horizontalAdvance(ToQString(text));
}

double cPaintSurface::TextHeight(std::string_view) const {
    return QFontMetricsF(m_Font).height();
}

void cPaintSurface::Print(std::string_view text) {
    if (QPainter* painter = Painter()) {
        painter->drawText(m_Position + QPointF(0, QFontMetricsF(m_Font).ascent()), ToQString(text));
    }
}

std::int32_t cPaintSurface::BackColour() const {
    const QColor colour = m_Widget.palette().color(QPalette::Window);
    return Rgb(colour.red(), colour.green(), colour.blue());
}

void cPaintSurface::SetMousePointer(eMousePointer pointer) {
    m_Widget.setCursor(pointer == eMousePointer::SizeHorizontal ? Qt::SizeHorCursor : Qt::ArrowCursor);
}

// A tip that is shown already would stay as it was.
void cPaintSurface::SetToolTipText(std::string_view text) {
    const QString tip = ToQString(text);
    if (tip == m_Widget.toolTip()) return;
    m_Widget.setToolTip(tip);
    QToolTip::hideText();
}

DeviceContext cPaintSurface::GetDeviceContext() const {
    return reinterpret_cast<DeviceContext>(this);
}

}  // namespace vigrel
