#pragma once

#include <QWidget>
#include <functional>

#include "definitions/receiver_settings.h"

class QComboBox;
class QLabel;
class QStackedLayout;

namespace vigrel {

class cTextEdit;

// One setting of a receiver: a field for the value in the type that the receiver's type asks for. A text that
// is no value of that type is told below the field and not stored.
class cSettingEdit : public QWidget {
    Q_OBJECT
  public:
    explicit cSettingEdit(int index, QWidget* parent = nullptr);

    void Show(const cSettingForm& form, const cVariant& value);
    // Why the text can't be stored; empty when it could.
    QString Problem() const;
    std::function<void(const cVariant&)> OnEdited;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    static QString Hint(eVariantType type);
    void EditText(const QString& text);
    void EditChoice(int choice);
    void ShowProblem(const QString& problem);
    void ColourProblem();

    eVariantType m_Type = eVariantType::String;
    cTextEdit* m_Text;
    QComboBox* m_Choice;  // yes or no
    QStackedLayout* m_Fields;
    QLabel* m_Problem;
};

}  // namespace vigrel
