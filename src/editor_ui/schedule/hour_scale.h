#pragma once

#include <QPainter>
#include <QWidget>

namespace vigrel {

// The hours of the day over the axis of a schedule.
class cHourScale : public QWidget {
    Q_OBJECT
  public:
    explicit cHourScale(QWidget* parent);
    // The zoom of the view under it, and how far right of this widget the view begins.
    void Follow(double zoom, int viewLeft);

    // The same on another surface, in a colour.
    void PaintOn(QPainter& painter, double zoom, int viewLeft, const QColor& colour) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double m_Zoom = 1;
    int m_ViewLeft = 0;
};

}  // namespace vigrel
