// What a file of the station can bring is shown as it stands in every window of the editor.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTimer>

#include "editor_ui/editor_bench.h"
#include "editor_ui/pages/note_bar.h"
#include "editor_ui/pages/prompts.h"
#include "support/markup.h"

namespace vigrel::testing {
namespace {

class EditorMarkup : public ::testing::TestWithParam<const char*> {
  protected:
    static void WithDialog(const std::function<void(QDialog&)>& look) {
        QTimer::singleShot(0, [look] {
            ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            look(*dialog);
            dialog->reject();
        });
    }
    const QString shown = QString::fromUtf8(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Kinds, EditorMarkup, ::testing::ValuesIn(kMarkup));

TEST_P(EditorMarkup, InItsPagesIsPlain) {
    cEditorBench bench;
    bench.m_Files.Put("/app/ReceiverTypes.txt", "7;XRT;" + std::string(GetParam()) + ";Radio.INI\n");
    bench.m_Files.Put("/app/Radio.INI",
                      "[ReceiverTypeSettings]\r\nSetting0=" + std::string(GetParam()) + "\r\n");
    for (const char* page : {"NewSchedule", "NewCalendar", "Receivers", "Profiles", "ColourRules"}) {
        bench.Choose(*bench.m_Window, (std::string("Menu_") + page).c_str());
        ExpectAllPlain(*bench.m_Window);
    }
}

TEST_P(EditorMarkup, InAToolTipIsPlain) {
    cEditorBench bench;
    QWidget& page = bench.NewSchedule();
    page.setToolTip(shown);
    ExpectToolTip(page, QPoint(1, 1), shown);
}

TEST_P(EditorMarkup, InWhatHappenedToFilesIsPlain) {
    cNoteBar bar;
    bar.Add({{cDefinitionNote::eKind::Failed, GetParam()}});
    EXPECT_EQ(bar.findChild<QPlainTextEdit*>("Text_Notes")->toPlainText(), shown);
    ExpectAllPlain(bar);
}

TEST_P(EditorMarkup, InTheStatusBarAndItsTitleStaysText) {
    cEditorBench bench;
    bench.m_Window->statusBar()->showMessage(shown);
    EXPECT_EQ(bench.m_Window->statusBar()->currentMessage(), shown);
    ExpectAllPlain(*bench.m_Window);
}

TEST_P(EditorMarkup, InAQuestionIsPlain) {
    cDialogPrompts prompts;
    const auto look = [&](QDialog& box) {
        const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
        ASSERT_NE(label, nullptr);
        EXPECT_TRUE(label->text().contains(shown));
        ExpectAllPlain(box);
    };
    WithDialog(look);
    prompts.ShowFailure(nullptr, shown);
    WithDialog(look);
    prompts.AskYesNo(nullptr, shown);
    WithDialog(look);
    prompts.AskToSave(nullptr, shown);
}

TEST_P(EditorMarkup, InAnInputIsPlain) {
    cDialogPrompts prompts;
    WithDialog([](QDialog& dialog) { ExpectAllPlain(dialog); });
    prompts.AskText(nullptr, shown, shown);
}

TEST(EditorAbout, IsPlain) {
    cEditorBench bench;
    QTimer::singleShot(0, [] {
        ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->text().contains("Application folder: /app/"));
        ExpectAllPlain(*box);
        box->reject();
    });
    bench.Choose(*bench.m_Window, "Menu_About");
}

}  // namespace
}  // namespace vigrel::testing
