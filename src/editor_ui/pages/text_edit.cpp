#include "editor_ui/pages/text_edit.h"

#include <QToolTip>
#include <QValidator>

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/one_line.h"
#include "editor_ui/pages/undo_keys.h"

namespace vigrel {
namespace {

// Of what a file can hold, so that no stored text is cut by being shown.
constexpr int kLongestText = 65535;

class cCodePageValidator : public QValidator {
  public:
    explicit cCodePageValidator(cTextEdit& field) : QValidator(&field), m_Field(field) {}
    State validate(QString& input, int& cursor) const override {
        if (!m_Field.HasLines()) {
            cursor = static_cast<int>(OneLine(input.left(cursor)).size());
            input = OneLine(input);
        }
        return FitsCodePage(input) ? QValidator::Acceptable : QValidator::Invalid;
    }

  private:
    const cTextEdit& m_Field;
};

}  // namespace

cTextEdit::cTextEdit(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(kLongestText);
    LeaveUndoToPage(*this);
    setValidator(new cCodePageValidator(*this));
    connect(this, &QLineEdit::inputRejected, this,
            [this] { QToolTip::showText(mapToGlobal(rect().bottomLeft()), LettersHint(), this); });
}

void cTextEdit::setText(const QString& text) {
    m_HasLines = OneLine(text) != text;
    QLineEdit::setText(text);
}

QString cTextEdit::LettersHint() {
    return tr("Only letters and signs of Western European languages can be stored.");
}

}  // namespace vigrel
