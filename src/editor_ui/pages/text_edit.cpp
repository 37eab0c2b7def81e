#include "editor_ui/pages/text_edit.h"

#include <QToolTip>
#include <QValidator>

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/undo_keys.h"

namespace vigrel {
namespace {

// Of what a file can hold, so that no stored text is cut by being shown.
constexpr int kLongestText = 65535;

class cCodePageValidator : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        return FitsCodePage(input) ? QValidator::Acceptable : QValidator::Invalid;
    }
};

}  // namespace

cTextEdit::cTextEdit(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(kLongestText);
    LeaveUndoToPage(*this);
    setValidator(new cCodePageValidator(this));
    connect(this, &QLineEdit::inputRejected, this,
            [this] { QToolTip::showText(mapToGlobal(rect().bottomLeft()), LettersHint(), this); });
}

QString cTextEdit::LettersHint() {
    return tr("Only letters and signs of Western European languages can be stored.");
}

}  // namespace vigrel
