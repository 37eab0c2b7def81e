#pragma once

#include <QEvent>
#include <QWidget>

namespace vigrel::testing {

// How often a widget was raised over the others, and how often of that while it was seen.
class cRaises : public QObject {
  public:
    explicit cRaises(QWidget& widget) : m_Widget(widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::ZOrderChange) return false;
        ++m_Count;
        m_WhileSeen += m_Widget.isVisible();
        return false;
    }
    int m_Count = 0, m_WhileSeen = 0;

  private:
    QWidget& m_Widget;
};

}  // namespace vigrel::testing
