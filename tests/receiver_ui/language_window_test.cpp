#include "receiver_ui/dialogs/language_window.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

class LanguageWindow : public ::testing::Test {
  protected:
    LanguageWindow() {
        m_Files.Put("C:\\App\\Vigrel_Texts.044", "0=English\r\n");
        m_Files.Put("C:\\App\\Vigrel_Texts.046", "0=svenska\r\n");
        m_Files.Put("C:\\App\\Vigrel_Texts.033",
                    "0=fran\xE7"
                    "ais\r\n");
    }
    std::string Language() { return m_Ini.GetIniString("General", "Language", "(none)"); }

    cFakeFiles m_Files;
    cFakeLocale m_Locale;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cLanguageSelection m_Selection{m_Files, m_Ini, m_Locale};
};

TEST_F(LanguageWindow, ShowsTheLanguagesWithTheUsersOneSelected) {
    cLanguageWindow window(m_Selection);
    const auto* combo = window.findChild<QComboBox*>("Combo_Language");
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(window.objectName(), "Vigrel_Explorer_Language");
    EXPECT_EQ(window.windowTitle(), "Vigrel - Select Language");
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(combo->currentText(), "svenska");
    EXPECT_EQ(combo->currentData().toInt(), 46);
    EXPECT_EQ(combo->itemText(0), QString::fromUtf8("français"));
}

TEST_F(LanguageWindow, WithoutTheUsersLanguageNothingIsSelectedAndOkWritesNothing) {
    m_Locale.m_EnglishLanguageName = "Finnish";
    m_Locale.m_NativeLanguageName = "suomi";
    cLanguageWindow window(m_Selection);
    EXPECT_EQ(window.findChild<QComboBox*>("Combo_Language")->currentIndex(), -1);
    window.findChild<QPushButton*>("Command_Ok")->click();
    EXPECT_EQ(Language(), "(none)");
}

TEST_F(LanguageWindow, OkWritesTheChoiceAndClosesTheWindow) {
    cLanguageWindow window(m_Selection);
    window.show();
    window.findChild<QComboBox*>("Combo_Language")->setCurrentIndex(1);
    window.findChild<QPushButton*>("Command_Ok")->click();
    EXPECT_EQ(Language(), "044");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(LanguageWindow, CanBeUsedByTheKeyboardAlone) {
    cLanguageWindow window(m_Selection);
    window.show();
    auto* combo = window.findChild<QComboBox*>("Combo_Language");
    EXPECT_TRUE(WaitUntil([&] { return combo->hasFocus(); }));
    EXPECT_TRUE(window.testAttribute(Qt::WA_KeyboardFocusChange));  // and shows it
    QTest::keyClick(combo, Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(Language(), "044");
}

TEST_F(LanguageWindow, TheButtonStandsBelowTheListAndAnswersToEnter) {
    cLanguageWindow window(m_Selection);
    const auto* ok = window.findChild<QPushButton*>("Command_Ok");
    EXPECT_TRUE(ok->isDefault());
    window.show();
    const auto* combo = window.findChild<QComboBox*>("Combo_Language");
    EXPECT_GT(ok->y(), combo->geometry().bottom());
    EXPECT_EQ(ok->geometry().right(), combo->geometry().right());
    EXPECT_EQ(window.width(), 320);
}

TEST_F(LanguageWindow, WhatIsChosenIsWrittenWhenItCloses) {
    cLanguageWindow window(m_Selection);
    window.show();
    std::string written;
    QObject::connect(&window, &QDialog::finished, [&] { written = Language(); });
    window.findChild<QPushButton*>("Command_Ok")->click();
    EXPECT_EQ(written, "046");
}

TEST_F(LanguageWindow, EscapeClosesItWithoutAChoice) {
    cLanguageWindow window(m_Selection);
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Language(), "(none)");
}

TEST_F(LanguageWindow, StandsInTheMiddleOfTheScreen) {
    cLanguageWindow window(m_Selection);
    window.show();
    const QPoint middle = QGuiApplication::primaryScreen()->geometry().center();
    EXPECT_LT((window.geometry().center() - middle).manhattanLength(), 40);
}

TEST_F(LanguageWindow, BlocksItsCallerUntilItIsClosed) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
        seen = QApplication::activeModalWidget() != nullptr;
        QApplication::activeModalWidget()->close();
    });
    cLanguageWindow::Choose(m_Selection);
    EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace vigrel::testing
