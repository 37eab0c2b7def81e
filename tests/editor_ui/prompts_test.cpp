// The questions of the editor as boxes.

#include "editor_ui/pages/prompts.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

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

// --- the other boxes

// Looks at the box that a question opens, and answers it. One that the look leaves open is given up.
template <class Box>
void InBox(const std::function<void()>& ask, const std::function<void(Box&)>& look) {
    QTimer timer;
    bool isSeen = false;
    timer.callOnTimeout([&] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        isSeen = true;
        timer.stop();
        look(*box);
        if (box->isVisible()) box->reject();
    });
    timer.start(1);
    ask();
    EXPECT_TRUE(isSeen);
}

QStringList Captions(const QMessageBox& box) {
    QStringList captions;
    for (const QAbstractButton* button : box.buttons()) captions += button->text().remove('&');
    captions.sort();
    return captions;
}

TEST(SaveQuestion, HasAnAnswerForEachButtonAndIsCancelledByEscape) {
    using eSave = cPrompts::eSave;
    const auto answer = [](const std::function<void(QMessageBox&)>& press) {
        eSave given = eSave::Save;
        InBox<QMessageBox>([&] { given = cDialogPrompts().AskToSave(nullptr, "Office.sch"); }, press);
        return given;
    };
    const auto press = [](QMessageBox::StandardButton button) {
        return [button](QMessageBox& box) { box.button(button)->click(); };
    };
    EXPECT_EQ(answer(press(QMessageBox::Save)), eSave::Save);
    EXPECT_EQ(answer(press(QMessageBox::Discard)), eSave::Discard);
    EXPECT_EQ(answer(press(QMessageBox::Cancel)), eSave::Cancel);
    EXPECT_EQ(answer([](QMessageBox& box) {
                  EXPECT_EQ(box.text(), "Office.sch has changes. Save them?");
                  EXPECT_EQ(box.icon(), QMessageBox::Warning);
                  QTest::keyClick(&box, Qt::Key_Escape);
              }),
              eSave::Cancel);
}

TEST(YesNoQuestion, IsAnsweredByItsButtonsAndByEscapeWithANo) {
    const auto answer = [](const std::function<void(QMessageBox&)>& press) {
        bool given = true;
        InBox<QMessageBox>([&] { given = cDialogPrompts().AskYesNo(nullptr, "Delete it?"); }, press);
        return given;
    };
    EXPECT_TRUE(answer([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Delete it?");
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(Captions(box), (QStringList{"No", "Yes"}));
        box.button(QMessageBox::Yes)->click();
    }));
    EXPECT_FALSE(answer([](QMessageBox& box) { box.button(QMessageBox::No)->click(); }));
    EXPECT_FALSE(answer([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
}

TEST(FailureBox, TellsTheFailureAndHasNothingToChoose) {
    InBox<QMessageBox>([] { cDialogPrompts().ShowFailure(nullptr, "It was not saved."); },
                       [](QMessageBox& box) {
                           EXPECT_EQ(box.text(), "It was not saved.");
                           EXPECT_EQ(box.icon(), QMessageBox::Warning);
                           EXPECT_EQ(Captions(box), QStringList{"OK"});
                       });
}

TEST(NameQuestion, GivesWhatWasTypedWithoutSpacesAroundOrNothing) {
    const auto answer = [](const std::function<void(QInputDialog&)>& type) {
        QString given = "?";
        InBox<QInputDialog>([&] { given = cDialogPrompts().AskText(nullptr, "Name", "Lucia"); }, type);
        return given;
    };
    EXPECT_EQ(answer([](QInputDialog& box) {
                  EXPECT_EQ(box.labelText(), "Name");
                  EXPECT_EQ(box.textValue(), "Lucia");
                  box.setTextValue("  Yule ");
                  box.accept();
              }),
              "Yule");
    EXPECT_EQ(answer([](QInputDialog& box) { box.reject(); }), "");
}

TEST(FileQuestion, OffersANameAndGivesItItsSuffix) {
    const QTemporaryDir folder;
    const auto answer = [&](const std::function<void(QFileDialog&)>& choose) {
        QString given = "?";
        InBox<QFileDialog>(
            [&] {
                given = cDialogPrompts().AskSavePath(nullptr, folder.filePath("Office.sch"),
                                                     "Schedules (*.sch);;All files (*)", "sch");
            },
            choose);
        return given;
    };
    EXPECT_EQ(answer([](QFileDialog& box) {
                  EXPECT_EQ(box.windowTitle(), "Save as");
                  EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
                  EXPECT_EQ(box.nameFilters(), (QStringList{"Schedules (*.sch)", "All files (*)"}));
                  auto* name = box.findChild<QLineEdit*>("fileNameEdit");
                  ASSERT_NE(name, nullptr);
                  EXPECT_EQ(name->text(), "Office.sch");
                  name->setText("Other");
                  static_cast<QDialog&>(box).accept();
              }),
              folder.filePath("Other.sch"));
    EXPECT_EQ(answer([](QFileDialog& box) { box.reject(); }), "");
}

TEST(FileQuestion, OpensAFileThatIsThere) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.sch"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    QString given;
    InBox<QFileDialog>(
        [&] { given = cDialogPrompts().AskOpenPath(nullptr, folder.path(), "Schedules (*.sch)"); },
        [&](QFileDialog& box) {
            EXPECT_EQ(box.windowTitle(), "Open");
            EXPECT_EQ(box.directory().absolutePath(), folder.path());
            box.selectFile(file.fileName());
            static_cast<QDialog&>(box).accept();
        });
    EXPECT_EQ(given, file.fileName());
}

}  // namespace
}  // namespace vigrel::testing
