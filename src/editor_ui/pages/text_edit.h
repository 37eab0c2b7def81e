#pragma once

#include <QLineEdit>

namespace vigrel {

// A field for a text of the system. Characters that the code page lacks can't be stored, so they are not
// taken, and a tip beside the field says so.
class cTextEdit : public QLineEdit {
    Q_OBJECT
  public:
    explicit cTextEdit(QWidget* parent = nullptr);
    // Why a text is not taken.
    static QString LettersHint();
};

}  // namespace vigrel
