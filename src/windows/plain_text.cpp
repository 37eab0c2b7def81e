#include "windows/plain_text.h"

#include "windows/short_text.h"

namespace vigrel {

cPlainLabel::cPlainLabel(const QString& text, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setText(text);
}

cPlainMessageBox::cPlainMessageBox(QWidget* owner) : QMessageBox(owner) {
    setTextFormat(Qt::PlainText);
}

cPlainMessageBox::cPlainMessageBox(Icon icon, const QString& title, const QString& text,
                                   StandardButtons buttons, QWidget* owner)
    : cPlainMessageBox(owner) {
    setIcon(icon);
    setWindowTitle(title);
    setText(BoxText(text));
    setStandardButtons(buttons);
}

void KeepPlain(QObject* receiver, const QEvent& event) {
    if (event.type() != QEvent::Polish) return;
    if (auto* label = qobject_cast<QLabel*>(receiver)) label->setTextFormat(Qt::PlainText);
}

void SetPlainToolTip(QSystemTrayIcon& icon, QString text) {
    icon.setToolTip(text.replace('<', QChar(0x2039)).replace('&', QChar(0xFF06)));
}

}  // namespace vigrel
