#include "windows/qt_message_box.h"

#include <QApplication>

#include "adapters/qt/qt_text.h"
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

eMessageAnswer cQtMessageBox::Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) {
    cPlainMessageBox box(Owner());
    box.setObjectName("Vigrel_MessageBox");
    box.setWindowTitle(ToQString(m_Title));
    box.setText(WithPathsToQString(text));
    box.setIcon(IconOf(icon));
    box.setWindowModality(Qt::ApplicationModal);
    if (buttons == eMessageButtons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return eMessageAnswer::Ok;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? eMessageAnswer::Yes : eMessageAnswer::No;
}

}  // namespace vigrel
