#include "editor_ui/pages/prompts.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

#include "windows/plain_text.h"

namespace vigrel {
namespace {

QMessageBox::StandardButton Ask(QWidget* owner, QMessageBox::Icon icon, const QString& text,
                                QMessageBox::StandardButtons buttons) {
    cPlainMessageBox box(icon, QGuiApplication::applicationDisplayName(), text, buttons, owner);
    box.setObjectName("MessageBox_Definitions");
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

cPrompts::eSave cDialogPrompts::AskToSave(QWidget* owner, const QString& title) {
    switch (Ask(owner, QMessageBox::Warning, tr("%1 has changes. Save them?").arg(title),
                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)) {
        case QMessageBox::Save:
            return eSave::Save;
        case QMessageBox::Discard:
            return eSave::Discard;
        default:
            return eSave::Cancel;
    }
}

cPrompts::eConflict cDialogPrompts::AskConflict(QWidget* owner, const QString& name, bool isGone) {
    const QString text =
        isGone
            ? tr("Another program has removed the file of \"%1\". Write it again, or remove it here too?")
            : tr("Another program has changed the file of \"%1\" since it was read here. Keep your version, "
                 "take the one in the file, or show both?");
    cPlainMessageBox box(QMessageBox::Warning, QGuiApplication::applicationDisplayName(), text.arg(name),
                         QMessageBox::Cancel, owner);
    box.setObjectName("MessageBox_Definitions");
    // Who presses Enter without reading overwrites nobody's work.
    box.setDefaultButton(QMessageBox::Cancel);
    const auto add = [&box](const QString& caption) {
        return box.addButton(caption, QMessageBox::AcceptRole);
    };
    const QAbstractButton* mine = add(isGone ? tr("&Write again") : tr("&Keep mine"));
    const QAbstractButton* theirs = add(isGone ? tr("&Remove here") : tr("&Take theirs"));
    const QAbstractButton* shown = isGone ? nullptr : add(tr("&Show both"));
    box.exec();
    const QAbstractButton* pressed = box.clickedButton();
    if (pressed == mine) return eConflict::Mine;
    if (pressed == theirs) return eConflict::Theirs;
    return pressed == shown && shown != nullptr ? eConflict::Both : eConflict::Cancel;
}

bool cDialogPrompts::AskYesNo(QWidget* owner, const QString& question) {
    return Ask(owner, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

void cDialogPrompts::ShowFailure(QWidget* owner, const QString& text) {
    Ask(owner, QMessageBox::Warning, text, QMessageBox::Ok);
}

QString cDialogPrompts::AskOpenPath(QWidget* owner, const QString& folder, const QString& filter) {
    return QFileDialog::getOpenFileName(owner, tr("Open"), folder, filter);
}

// The dialog asks before an existing file is replaced, for the name with its suffix.
QString cDialogPrompts::AskSavePath(QWidget* owner, const QString& path, const QString& filter,
                                    const QString& suffix) {
    QFileDialog dialog(owner, tr("Save as"), path, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(path);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString cDialogPrompts::AskText(QWidget* owner, const QString& label, const QString& text) {
    bool accepted = false;
    const QString answer = QInputDialog::getText(owner, QGuiApplication::applicationDisplayName(), label,
                                                 QLineEdit::Normal, text, &accepted);
    return accepted ? answer.trimmed() : QString();
}

bool cDialogPrompts::AskPrinter(QWidget* owner, QPrinter& printer) {
    QPrintDialog dialog(&printer, owner);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace vigrel
