// The questions of the editor as boxes.

#include "editor_ui/pages/prompts.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace vigrel::testing {
namespace {

using eConflict = cPrompts::eConflict;

// The text and the captions of the box that asks whose version of a file counts, and what a key is as an
// answer to it.
struct cAsked {
    QString text;
    QStringList captions;
    eConflict answer = eConflict::Mine;
};
cAsked AskConflict(bool isGone, Qt::Key key) {
    cAsked asked;
    QTimer press;
    press.callOnTimeout([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        asked.text = box->text();
        for (const QAbstractButton* button : box->buttons()) asked.captions += button->text().remove('&');
        asked.captions.sort();
        press.stop();
        QTest::keyClick(box, key);
        // A box that hears nothing doesn't keep the test waiting.
        if (box->isVisible()) box->done(0);
    });
    press.start(1);
    asked.answer = cDialogPrompts().AskConflict(nullptr, "East", isGone);
    return asked;
}

TEST(ConflictQuestion, HasTheAnswersThatItNames) {
    EXPECT_EQ(AskConflict(false, Qt::Key_Escape).captions,
              (QStringList{"Cancel", "Keep mine", "Show both", "Take theirs"}));
    EXPECT_EQ(AskConflict(true, Qt::Key_Escape).captions,
              (QStringList{"Cancel", "Remove here", "Write again"}));
}

TEST(ConflictQuestion, NamesWhatHasTheFile) {
    EXPECT_EQ(
        AskConflict(false, Qt::Key_Escape).text,
        "Another program has changed the file of \"East\" since it was read here. Keep your version, take "
        "the one in the file, or show both?");
    EXPECT_EQ(AskConflict(true, Qt::Key_Escape).text,
              "Another program has removed the file of \"East\". Write it again, or remove it here too?");
}

TEST(ConflictQuestion, IsNotAnsweredByEnter) {
    for (const bool isGone : {false, true}) {
        EXPECT_EQ(AskConflict(isGone, Qt::Key_Return).answer, eConflict::Cancel) << isGone;
        EXPECT_EQ(AskConflict(isGone, Qt::Key_Escape).answer, eConflict::Cancel) << isGone;
    }
}

}  // namespace
}  // namespace vigrel::testing
