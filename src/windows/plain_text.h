#pragma once

#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QSystemTrayIcon>

namespace vigrel {

// What the windows show came from senders, files and the configuration, and is shown as it stands. The
// toolkit takes a text for markup as soon as it looks like it, and markup can open any file of the machine,
// name a colour or pass for a heading.

class cPlainLabel : public QLabel {
  public:
    explicit cPlainLabel(QWidget* parent = nullptr) : cPlainLabel(QString(), parent) {}
    explicit cPlainLabel(const QString& text, QWidget* parent = nullptr);
};

class cPlainMessageBox : public QMessageBox {
  public:
    explicit cPlainMessageBox(QWidget* owner);
    cPlainMessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                     QWidget* owner = nullptr);
};

// For every event of the application: the labels that the toolkit makes by itself, those of tool tips, form
// rows and dialogs, become plain before they are laid out for the first time.
void KeepPlain(QObject* receiver, const QEvent& event);

// Desktops differ in what they take for markup in an icon's tool tip, and in how it is escaped; the two signs
// that begin markup are replaced by others that look alike.
void SetPlainToolTip(QSystemTrayIcon& icon, QString text);

}  // namespace vigrel
