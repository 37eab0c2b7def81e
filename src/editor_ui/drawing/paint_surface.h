#pragma once

#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <functional>

#include "schedule/paint_object.h"

class QWidget;

namespace vigrel {

// A widget as the surface of a schedule or a calendar. The drawing's units are zoomed to the widget's pixels,
// and those by the screen's scale, so that a line of one unit is sharp at every size.
//
// Only a paint event can draw on a widget: what is drawn at another time asks for one, and the widget's
// owner paints the whole view in it.
class cPaintSurface : public cPaintObject {
  public:
    explicit cPaintSurface(QWidget& widget);

    double Zoom() const { return m_Zoom; }
    void SetZoom(double zoom);
    void SetFontSize(int units);
    // The unit that a position of the widget lies in.
    QPoint ToUnit(QPointF position) const;

    // Runs the steps that draw, in the widget's paint event. The painter's measure is units.
    void PaintWith(const std::function<void(QPainter&)>& draw);
    // Draws an image, made by its size in the widget's pixels and the screen's scale, over a square of units.
    using ImageMaker = std::function<QPixmap(int size, qreal devicePixelRatio)>;
    void DrawImage(const ImageMaker& image, double x, double y, double size);

    // --- cPaintObject
    void Line(double x1, double y1, double x2, double y2, std::int32_t colour) override;
    void FillBox(double x1, double y1, double x2, double y2, std::int32_t colour) override;
    double TextWidth(std::string_view text) const override;
    double TextHeight(std::string_view text) const override;
    void SetCurrentPosition(double x, double y) override { m_Position = {x, y}; }
    void Print(std::string_view text) override;
    std::int32_t BackColour() const override;
    void SetMousePointer(eMousePointer pointer) override;
    void SetToolTipText(std::string_view text) override;
    DeviceContext GetDeviceContext() const override;

  private:
    // The painter of the paint event that runs; without one the widget is told to paint.
    QPainter* Painter();

    QWidget& m_Widget;
    QFont m_Font;
    double m_Zoom = 1;
    QPointF m_Position;
    QPainter* m_Painter = nullptr;
};

}  // namespace vigrel
