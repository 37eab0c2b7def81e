#pragma once

#include <QLineEdit>

namespace vigrel {

// A field for a text of the system. Characters that the code page lacks can't be stored, so they are not
// taken, and a tip beside the field says so.
class cTextEdit : public QLineEdit {
    Q_OBJECT
  public:
    explicit cTextEdit(QWidget* parent = nullptr);
    // Shows a stored text. One that has several lines keeps them; what is pasted into any other becomes one
    // line.
    void setText(const QString& text);
    bool HasLines() const { return m_HasLines; }
    // Why a text is not taken.
    static QString LettersHint();

  private:
    bool m_HasLines = false;
};

}  // namespace vigrel
