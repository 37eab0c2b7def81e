#include "editor_ui/pages/text_edit.h"

#include <QToolTip>
#include <QValidator>

#include "adapters/qt/qt_text.h"

namespace vigrel {
namespace {

class cCodePageValidator : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        return FitsCodePage(input) ? QValidator::Acceptable : QValidator::Invalid;
    }
};

}  // namespace

cTextEdit::cTextEdit(QWidget* parent) : QLineEdit(parent) {
    setValidator(new cCodePageValidator(this));
    connect(this, &QLineEdit::inputRejected, this, [this] {
        QToolTip::showText(mapToGlobal(rect().bottomLeft()),
                           tr("Only letters and signs of Western European languages can be stored."), this);
    });
}

}  // namespace vigrel
