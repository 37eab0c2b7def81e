#pragma once

#include <QWidget>
#include <functional>

#include "definitions/receiver_settings.h"
#include "editor_ui/records/definition_source.h"

class QComboBox;
class QStackedLayout;

namespace vigrel {

class cProblemLabel;
class cTextEdit;

// A field for a value of a type, such as the one that a receiver's type asks for. A text that is no value of
// that type stays as typed, is told below the field, and is not stored.
class cSettingEdit : public QWidget {
    Q_OBJECT
  public:
    // The name is a part of those of the widgets: "Text_<name>" and others.
    explicit cSettingEdit(const QString& name, QWidget* parent = nullptr);

    // By itself it may be empty.
    void DemandNumber() { m_IsNumberDemanded = true; }

    // With a typed text, that one stands in the field.
    void Show(const cSettingForm& form, const cVariant& value, const cTypedText* typed);
    QString Field() const;  // object name of the field for texts
    std::function<void(const cVariant&)> OnEdited;
    // A text that is no value, and why.
    std::function<void(const cTypedText&)> OnTyped;

  private:
    static QString Hint(eVariantType type);
    QString Fault(const QString& text) const;
    void ShowHint(const QString& hint);
    void EditText(const QString& text);
    void EditChoice(int choice);

    bool m_IsNumberDemanded = false;
    eVariantType m_Type = eVariantType::String;
    cTextEdit* m_Text;
    QComboBox* m_Choice;  // yes or no
    QStackedLayout* m_Fields;
    cProblemLabel* m_Problem;
};

}  // namespace vigrel
