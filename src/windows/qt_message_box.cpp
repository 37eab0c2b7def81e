#include "windows/qt_message_box.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include "adapters/qt/qt_text.h"
#include "windows/application.h"
#include "windows/plain_text.h"
#include "windows/short_text.h"
#include "windows/shown_desktop.h"

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

// Belongs to no window, since any may hide or go while it stands, and lies over all of them. It leaves the
// keyboard to the window that had it: the window manager would choose any, a popup that Esc closes among
// them.
class cBox : public cPlainMessageBox {
  public:
    cBox() : cPlainMessageBox(nullptr) {
        setWindowModality(Qt::ApplicationModal);
        setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    void showEvent(QShowEvent* event) override {
        cPlainMessageBox::showEvent(event);
        LeaveShownDesktop();
    }
    void done(int result) override {
        const bool hasKeyboard = isActiveWindow();
        cPlainMessageBox::done(result);
        if (hasKeyboard && m_Before && m_Before->isVisible() && !m_Before->isMinimized()) {
            m_Before->activateWindow();
        }
    }

  private:
    const QPointer<QWidget> m_Before = QApplication::activeWindow();
};

}  // namespace

void cQtMessageBox::Furnish(QMessageBox& box, std::string_view text, eMessageIcon icon) const {
    box.setObjectName("Vigrel_MessageBox");
    box.setWindowTitle(ToQString(m_Title));
    box.setText(BoxText(WithPathsToQString(text)));
    box.setIcon(IconOf(icon));
    box.setStandardButtons(QMessageBox::Ok);
}

eMessageAnswer cQtMessageBox::Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) {
    cBox box;
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
    cBox box;
    Furnish(box, text, icon);
    QTimer::singleShot(cApplication::kFailureBoxMilliseconds, &box, &QDialog::reject);
    box.exec();
}

}  // namespace vigrel
