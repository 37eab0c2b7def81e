#pragma once

#include <QAbstractButton>
#include <QIcon>

namespace vigrel {

// The status picture of a popup: a click on it, or Space or Enter while it has the keyboard, closes the
// popup.
class cPopupPicture : public QAbstractButton {
  public:
    static constexpr int kSize = 32;  // pixels

    cPopupPicture(int status, const QIcon& icon, QWidget* parent);
    QSize sizeHint() const override { return {kSize, kSize}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const QIcon& m_Icon;
};

}  // namespace vigrel
