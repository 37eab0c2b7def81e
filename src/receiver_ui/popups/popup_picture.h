#pragma once

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QIcon>
#include <QMouseEvent>

namespace vigrel {

// The status picture of a popup: a click on it, or Space or Enter while it has the keyboard, closes the
// popup.
//
// A click that was meant for what lay there before is none: the second one of a double click, whose first one
// closed a popup, and one in the moment in which the popup comes up, perhaps over the one that was aimed at.
class cPopupPicture : public QAbstractButton {
  public:
    static constexpr int kSize = 32;  // pixels
    // So long nobody has seen it and moved a hand.
    static constexpr int kUnseenMilliseconds = 300;

    cPopupPicture(int status, const QIcon& icon, QWidget* parent);
    QSize sizeHint() const override { return {kSize, kSize}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
    void showEvent(QShowEvent* event) override;

  private:
    const QIcon& m_Icon;
    QElapsedTimer m_SinceShown;
};

}  // namespace vigrel
