#pragma once

#include <QWidget>
#include <functional>

namespace vigrel {

// Among the zooms of drawings, where 1 is 100 %: as large as there is room for.
inline constexpr double kFitZoom = 0;

// The room that a page has for a drawing: finds the zoom at which the drawing fills it, or keeps to a chosen
// one.
class cDrawingRoom : public QWidget {
    Q_OBJECT
  public:
    // The content lies at the upper left corner. Its size is the drawing's, in units, by the zoom, and what
    // stands around the drawing in it, in pixels.
    cDrawingRoom(QWidget& content, QSize drawing, QSize around);

    // To be called once all of the content stands.
    std::function<void(double zoom)> OnZoom;
    void SetZoom(double zoom);
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QSize SizeAt(double zoom) const;
    void Fit();

    QWidget& m_Content;
    QSize m_Drawing, m_Around;
    double m_Zoom = kFitZoom;
};

}  // namespace vigrel
