#include "windows/toolkit_words.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <array>
#include <memory>

#include "windows/application.h"
#include "windows/plain_text.h"

namespace vigrel::testing {
namespace {

struct cButtons {
    const char* language;
    QString texts;
};
const cButtons kButtons[] = {
    {"046", "OK &Ja &Nej Avbryt Stäng Spara Kasta Öppna"},
    {"044", "OK &Yes &No Cancel Close Save Discard Open"},
    {"049", "OK &Ja &Nein Abbrechen Schließen Speichern Verwerfen Öffnen"},
    {"045", "OK &Ja &Nej Annuller Luk Gem Kassér Åbn"},
    {"047", "OK &Ja &Nei Avbryt Lukk Lagre Forkast Åpne"},
    {"358", "OK &Kyllä &Ei Peruuta Sulje Tallenna Hylkää Avaa"},
};

class ToolkitWords : public ::testing::Test {
  protected:
    // The other tests' boxes are in English.
    ~ToolkitWords() override { Speak("044"); }
    static void Speak(const char* language) {
        static_cast<cApplication*>(QCoreApplication::instance())->SpeakLanguage(language);
    }
    // The buttons of a box that has all that the programs use.
    static QString Buttons() {
        constexpr std::array kAll{QMessageBox::Ok,      QMessageBox::Yes,   QMessageBox::No,
                                  QMessageBox::Cancel,  QMessageBox::Close, QMessageBox::Save,
                                  QMessageBox::Discard, QMessageBox::Open};
        cPlainMessageBox box(nullptr);
        QStringList texts;
        for (const QMessageBox::StandardButton button : kAll) texts += box.addButton(button)->text();
        return texts.join(' ');
    }
    // The menu of a text that can be marked and copied, as a popup's is.
    static QStringList TextMenu() {
        QPlainTextEdit edit("text");
        const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
        QStringList texts;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator()) texts += action->text().section('\t', 0, 0);
        }
        return texts;
    }
};

TEST_F(ToolkitWords, AreOnTheButtonsInEachOfTheSixLanguages) {
    for (const cButtons& expected : kButtons) {
        Speak(expected.language);
        EXPECT_EQ(Buttons().toStdString(), expected.texts.toStdString()) << expected.language;
    }
}

TEST_F(ToolkitWords, NoEntryOfATextsMenuIsEnglishInAnotherLanguage) {
    Speak("044");
    const QStringList english = TextMenu();
    ASSERT_EQ(english.size(), 7) << english.join('|').toStdString();
    for (const cButtons& other : kButtons) {
        if (QString(other.language) == "044") continue;
        Speak(other.language);
        for (const QString& text : TextMenu()) {
            EXPECT_FALSE(english.contains(text)) << other.language << ": " << text.toStdString();
        }
    }
}

TEST_F(ToolkitWords, StayAsTheyAreInALanguageThatIsNotDelivered) {
    Speak("046");
    for (const char* language : {"", "033", "46"}) {
        Speak(language);
        EXPECT_TRUE(Buttons().startsWith("OK &Ja &Nej ")) << language;
    }
}

TEST_F(ToolkitWords, AreChosenByTheDesktopWhereTheStationHasNoLanguage) {
    const std::pair<const char*, const char*> expected[] = {
        {"sv_FI", "046"}, {"de_AT", "049"}, {"da_DK", "045"}, {"nb_NO", "047"},
        {"fi_FI", "358"}, {"en_US", "044"}, {"C", "044"},     {"fr_FR", "044"}};
    for (const auto& [desktop, language] : expected) {
        EXPECT_EQ(LanguageOfDesktop(QLocale(desktop)), language) << desktop;
    }
}

TEST_F(ToolkitWords, LeaveOtherWordsOfTheSameSpellingAlone) {
    Speak("046");
    EXPECT_EQ(QCoreApplication::translate("cDefinitionsWindow", "Close"), "Close");
}

}  // namespace
}  // namespace vigrel::testing
