#pragma once

#include <QDialog>

#include "common/language_selection.h"

class QComboBox;

namespace vigrel {

// Lets the operator choose a language when none is set. Its captions are not translated: there is no language
// yet to translate them to.
class cLanguageWindow : public QDialog {
    Q_OBJECT
  public:
    // The selection is loaded by the window; it must outlive it.
    explicit cLanguageWindow(cLanguageSelection& selection);

    // Shows the window until it is closed. Nothing is written unless the operator presses Ok.
    static void Choose(cLanguageSelection& selection);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void AddLanguages();
    void PressOk();

    cLanguageSelection& m_Selection;
    QComboBox* m_Combo;
};

}  // namespace vigrel
