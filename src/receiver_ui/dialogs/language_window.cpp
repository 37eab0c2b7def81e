#include "receiver_ui/dialogs/language_window.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"

namespace vigrel {

cLanguageWindow::cLanguageWindow(cLanguageSelection& selection)
    : m_Selection(selection), m_Combo(new QComboBox) {
    setObjectName("Vigrel_Explorer_Language");
    setWindowTitle("Vigrel - Select Language");
    m_Combo->setObjectName("Combo_Language");
    m_Combo->setAccessibleName("Language");
    auto* ok = new QPushButton("&Ok");
    ok->setObjectName("Command_Ok");
    ok->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Combo);
    layout->addWidget(ok, 0, Qt::AlignRight);
    connect(ok, &QPushButton::clicked, this, [this] { PressOk(); });
    AddLanguages();
    setMinimumWidth(320);
    adjustSize();
    move(QGuiApplication::primaryScreen()->geometry().center() - rect().center());
}

void cLanguageWindow::AddLanguages() {
    m_Selection.Load();
    for (const cLanguageSelection::cLanguage& language : m_Selection.Languages()) {
        m_Combo->addItem(ToQString(language.name), language.number);
    }
    m_Combo->setCurrentIndex(m_Selection.Selected());
}

// The keyboard is in the list from the start, and that is seen.
void cLanguageWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_Combo->setFocus(Qt::TabFocusReason);
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void cLanguageWindow::PressOk() {
    m_Selection.Select(m_Combo->currentIndex());
    m_Selection.Confirm();
    accept();
}

void cLanguageWindow::Choose(cLanguageSelection& selection) {
    cLanguageWindow window(selection);
    window.exec();
}

}  // namespace vigrel
