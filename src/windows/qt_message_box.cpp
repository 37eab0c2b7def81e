#include "windows/qt_message_box.h"

#include <QTimer>

#include "adapters/qt/qt_text.h"
#include "windows/application.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

QMessageBox::Icon IconOf(eMessageIcon icon) {
    switch (icon) {
        case eMessageIcon::Warning:
            return QMessageBox::Warning;
        case eMessageIcon::Stop:
            return QMessageBox::Critical;
        case eMessageIcon::Question:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

// A window that is hidden or minimised can't hold the box in front.
QWidget* Owner() {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr && active->isVisible() && !active->isMinimized() ? active : nullptr;
}

}  // namespace

void cQtMessageBox::Furnish(QMessageBox& box, std::string_view text, eMessageIcon icon) const {
    box.setObjectName("Vigrel_MessageBox");
    box.setWindowTitle(ToQString(m_Title));
    box.setText(WithPathsToQString(text));
    box.setIcon(IconOf(icon));
    box.setWindowModality(Qt::ApplicationModal);
    box.setStandardButtons(QMessageBox::Ok);
}

eMessageAnswer cQtMessageBox::Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) {
    cPlainMessageBox box(Owner());
    Furnish(box, text, icon);
    if (buttons == eMessageButtons::Ok) {
        box.exec();
        return eMessageAnswer::Ok;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? eMessageAnswer::Yes : eMessageAnswer::No;
}

void cQtMessageBox::ShowForAWhile(std::string_view text, eMessageIcon icon) {
    cPlainMessageBox box(Owner());
    Furnish(box, text, icon);
    QTimer::singleShot(cApplication::kFailureBoxMilliseconds, &box, &QDialog::reject);
    box.exec();
}

}  // namespace vigrel
