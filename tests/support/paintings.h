#pragma once

#include <QEvent>
#include <QWidget>

namespace vigrel::testing {

// How often a widget was painted.
class cPaintings : public QObject {
  public:
    explicit cPaintings(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        m_Count += event->type() == QEvent::Paint;
        return false;
    }
    int m_Count = 0;
};

}  // namespace vigrel::testing
