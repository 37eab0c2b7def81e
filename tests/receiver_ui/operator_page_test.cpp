#include "receiver_ui/dialogs/operator_page.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QImage>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <filesystem>
#include <fstream>

#include "support/qt_wait.h"
#include "support/raises.h"
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

TEST(OperatorPage, OfALanguageThatIsNoNumberIsTheEnglishOne) {
    const cTemporaryFolder folder;
    const std::string program = (folder.Path() / "bin").string();
    const fs::path installed = folder.Path() / "share/doc/vigrel-receiver/operator";
    for (const char* name : {"044", "x", ";1", "049", "358", "../operator/049"})
        Put(installed / (name + std::string(".md")));
    for (const char* name : {"x", ";1", "../operator/049", "../operator/358", ""}) {
        EXPECT_EQ(FindOperatorPage(program, name), (installed / "044.md").string()) << name;
    }
    for (const char* name : {"049", "358"}) {
        EXPECT_EQ(FindOperatorPage(program, name), (installed / (name + std::string(".md"))).string());
    }
}

TEST(OperatorPage, FillsItsWindowAndIsGoneWhenThatIsClosed) {
    QWidget station;
    cOperatorPage::Show(kPages + "044.md", station);
    QCoreApplication::processEvents();
    const QPointer<QDialog> window = station.findChild<QDialog*>();
    EXPECT_EQ(window->size(), QSize(860, 640));
    EXPECT_EQ(window->findChild<QTextBrowser*>()->geometry(), QRect(QPoint(0, 0), window->size()));
    window->close();
    EXPECT_TRUE(WaitUntil([&] { return window.isNull(); }));
}

TEST(OperatorPage, BroughtUpAgainItIsNoIconAndLiesInFront) {
    QWidget station;
    cOperatorPage::Show(kPages + "044.md", station);
    auto* window = station.findChild<QDialog*>();
    window->setWindowState(Qt::WindowMinimized);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return other.isActiveWindow(); }));
    const cRaises raises(*window);
    cOperatorPage::Show(kPages + "044.md", station);
    EXPECT_FALSE(window->isMinimized());
    EXPECT_EQ(raises.m_Count, 1);
    EXPECT_TRUE(WaitUntil([&] { return window->isActiveWindow(); }));
}

TEST(OperatorPage, APictureIsMadeSmallerAndNeverLarger) {
    const cTemporaryFolder folder;
    for (const int width : {30, 3000}) {
        QImage picture(width, 10, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(QString::fromStdString((folder.Path() / (std::to_string(width) + ".png")).string()));
    }
    std::ofstream(folder.Path() / "044.md") << "# page\n\n![a](30.png) ![b](3000.png)\n";
    cOperatorPage page((folder.Path() / "044.md").string());
    const auto width = [&](const char* name) {
        return page.document()->resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>().width();
    };
    EXPECT_EQ(width("30.png"), 30);
    EXPECT_EQ(width("3000.png"), page.width() - 40);
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
    EXPECT_LT(std::abs(page.cursorRect().top()), 10) << "at the top of what is seen";
    const int third = page.verticalScrollBar()->value();
    page.anchorClicked(QUrl("#1-the-list"));
    EXPECT_LT(page.verticalScrollBar()->value(), third);
    EXPECT_LT(std::abs(page.cursorRect().top()), 10);
    // A link is for this page alone.
    EXPECT_FALSE(page.openLinks());
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
