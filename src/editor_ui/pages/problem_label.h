#pragma once

#include "windows/plain_text.h"

namespace vigrel {

// Tells below a field why what was typed can't be taken, in a red that is readable on the desktop's ground.
// It takes no room while there is nothing to tell.
class cProblemLabel : public cPlainLabel {
    Q_OBJECT
  public:
    explicit cProblemLabel(const QString& objectName, QWidget* parent = nullptr);
    void Show(const QString& problem);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Colour();
};

}  // namespace vigrel
