#include "receiver_ui/dialogs/operator_page.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

namespace fs = std::filesystem;

const std::string kPages = VIGREL_DOCS_DIR "/operator/";

void Put(const fs::path& path) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << "# page";
}

TEST(OperatorPage, IsThatOfTheLanguageBesideTheProgramOrUnderItsPrefix) {
    const cTemporaryFolder folder;
    const std::string program = (folder.Path() / "bin").string();
    EXPECT_EQ(FindOperatorPage(program, "046"), "");
    const fs::path installed = folder.Path() / "share/doc/vigrel-receiver/operator";
    Put(installed / "044.md");
    EXPECT_EQ(FindOperatorPage(program, "046"), (installed / "044.md").string())
        << "English where there is no other";
    Put(folder.Path() / "bin/docs/operator/046.md");
    EXPECT_EQ(FindOperatorPage(program, "046"), (folder.Path() / "bin/docs/operator/046.md").string());
    Put(installed / "046.md");
    EXPECT_EQ(FindOperatorPage(program, "046"), (installed / "046.md").string());
}

TEST(OperatorPage, ShowsTextAndPicturesThatFitTheWindow) {
    cOperatorPage page(kPages + "046.md");
    EXPECT_EQ(page.documentTitle(), "Larmstationen: f\xC3\xB6r operat\xC3\xB6rer");
    const QVariant picture = page.document()->resource(QTextDocument::ImageResource, QUrl("list.046.png"));
    EXPECT_FALSE(picture.isNull());
    page.show();
    EXPECT_LE(page.document()->idealWidth(), page.viewport()->width());
}

TEST(OperatorPage, TheLinksOfItsHeadLeadToItsSections) {
    cOperatorPage page(kPages + "044.md");
    page.resize(600, 300);
    page.show();
    page.anchorClicked(QUrl("#3-popups-sound-light"));
    EXPECT_EQ(page.textCursor().block().text(), "3 Popups, sound, light");
    EXPECT_GT(page.verticalScrollBar()->value(), 0);
}

TEST(OperatorPage, HasOneWindow) {
    QWidget station;
    cOperatorPage::Show(kPages + "049.md", station);
    cOperatorPage::Show(kPages + "049.md", station);
    const auto windows = station.findChildren<QDialog*>();
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows[0]->isVisible());
    EXPECT_FALSE(windows[0]->isModal());
    EXPECT_EQ(windows[0]->windowTitle(), "Die Alarmstation: f\xC3\xBCr Bediener");
}

TEST(OperatorPage, SaysWhenItIsNotInstalled) {
    const cOperatorPage page("");
    EXPECT_TRUE(page.toPlainText().contains("not installed"));
}

}  // namespace
}  // namespace vigrel::testing
