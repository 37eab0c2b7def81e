#pragma once

#include <QAbstractButton>
#include <QIcon>
#include <QMouseEvent>

namespace vigrel {

// The status picture of a popup: a click on it, or Space or Enter while it has the keyboard, closes the
// popup. The second click of a double click is none: it was meant for the popup that the first one closed.
class cPopupPicture : public QAbstractButton {
  public:
    static constexpr int kSize = 32;  // pixels

    cPopupPicture(int status, const QIcon& icon, QWidget* parent);
    QSize sizeHint() const override { return {kSize, kSize}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }

  private:
    const QIcon& m_Icon;
};

}  // namespace vigrel
