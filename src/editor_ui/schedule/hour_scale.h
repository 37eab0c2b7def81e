#pragma once

#include <QWidget>

namespace vigrel {

// The hours of the day over the axis of a schedule.
class cHourScale : public QWidget {
    Q_OBJECT
  public:
    explicit cHourScale(QWidget* parent);
    // The zoom of the view under it, and how far right of this widget the view begins.
    void Follow(double zoom, int viewLeft);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double m_Zoom = 1;
    int m_ViewLeft = 0;
};

}  // namespace vigrel
