#pragma once

#include <QPlainTextEdit>

namespace vigrel {

// The text of a popup. It has a scroll bar only where the text doesn't fit: the toolkit keeps a bar for as
// long as the text doesn't fit beside it, also when it would fit where the bar stands.
class cPopupLabel : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;
    void ShowText(const QString& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void ReconsiderBar();

    bool m_Reconsidering = false;
};

}  // namespace vigrel
