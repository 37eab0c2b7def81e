#include "editor_ui/records/setting_edit.h"

#include <QComboBox>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "editor_ui/pages/problem_label.h"
#include "editor_ui/pages/reasons.h"
#include "editor_ui/pages/text_edit.h"

namespace vigrel {

QString cSettingEdit::Hint(eVariantType type) {
    switch (type) {
        case eVariantType::Int16:
            return tr("whole number, -32768 to 32767");
        case eVariantType::Int32:
            return tr("whole number");
        case eVariantType::Byte:
            return tr("whole number, 0 to 255");
        case eVariantType::Single:
        case eVariantType::Double:
            return tr("number");
        case eVariantType::Currency:
            return tr("number, at most 4 decimals");
        case eVariantType::Date:
            return "2026-03-15 12:30";
        default:
            return {};
    }
}

cSettingEdit::cSettingEdit(const QString& name, QWidget* parent)
    : QWidget(parent),
      m_Text(new cTextEdit),
      m_Choice(new QComboBox),
      m_Fields(new QStackedLayout),
      m_Problem(new cProblemLabel("Label_" + name + "_Problem")) {
    m_Text->setObjectName("Text_" + name);
    m_Choice->setObjectName("Combo_" + name);
    m_Choice->addItems({"", tr("Yes"), tr("No")});
    m_Fields->addWidget(m_Text);
    m_Fields->addWidget(m_Choice);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_Fields);
    layout->addWidget(m_Problem);
    // One line, however high the form.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // Else the access key of a label passes it over. Of a widget with a proxy it would become the proxy's,
    // too, which the key Tab is to reach.
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(m_Text);
    connect(m_Text, &QLineEdit::textEdited, this, [this](const QString& text) { EditText(text); });
    connect(m_Choice, &QComboBox::activated, this, [this](int choice) { EditChoice(choice); });
}

void cSettingEdit::Show(const cSettingForm& form, const cVariant& value, const cTypedText* typed) {
    m_Type = form.type;
    const QString name = ToQString(form.caption);
    m_Text->setAccessibleName(name);
    m_Choice->setAccessibleName(name);
    ShowHint(Hint(m_Type));
    const QString text = typed == nullptr ? ToQString(value.Text()) : typed->text;
    if (text != m_Text->text()) m_Text->setText(text);
    const auto number = value.Number();
    const bool isYesNo = m_Type == eVariantType::Boolean &&
                         (value.Type() == eVariantType::Boolean || value.Type() == eVariantType::Empty);
    m_Choice->setCurrentIndex(value.Type() == eVariantType::Empty ? 0 : number && *number != 0 ? 1 : 2);
    m_Fields->setCurrentIndex(isYesNo && typed == nullptr ? 1 : 0);
    setFocusProxy(m_Fields->currentWidget());
    m_Problem->Show(typed == nullptr ? QString() : Fault(text));
}

// Whole; a form puts a field below its label rather than make it narrower.
void cSettingEdit::ShowHint(const QString& hint) {
    m_Text->setPlaceholderText(hint);
    constexpr int kFrame = 16;
    m_Text->setMinimumWidth(m_Text->fontMetrics().horizontalAdvance(hint) + kFrame);
}

QString cSettingEdit::Field() const {
    return m_Text->objectName();
}

QString cSettingEdit::Fault(const QString& text) const {
    if (m_IsNumberDemanded && text.trimmed().isEmpty()) return tr("The number is missing.");
    const auto failure = CatchFailure([&] { VariantFromText(m_Type, FromQString(text)); });
    return failure ? Told(failure->Description()) : QString();
}

void cSettingEdit::EditText(const QString& text) {
    const QString fault = Fault(text);
    m_Problem->Show(fault);
    if (!fault.isEmpty()) {
        if (OnTyped) OnTyped({text, fault});
    } else if (OnEdited) {
        OnEdited(VariantFromText(m_Type, FromQString(text)));
    }
}

void cSettingEdit::EditChoice(int choice) {
    if (OnEdited) OnEdited(choice == 0 ? cVariant() : cVariant::Boolean(choice == 1));
}

}  // namespace vigrel
