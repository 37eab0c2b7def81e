#include "receiver_ui/dialogs/about_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <memory>

#include "common/ini.h"
#include "support/fake_files.h"
#include "support/fake_timer.h"
#include "support/paintings.h"
#include "support/qt_wait.h"
#include "support/raises.h"
#include "windows/desktop.h"

namespace vigrel::testing {
namespace {

class AboutWindow : public ::testing::Test {
  protected:
    cAboutWindow& Open() {
        auto timer = std::make_unique<cFakeTimer>(cAboutBox::kTickInterval);
        m_Timer = timer.get();
        m_Window = std::make_unique<cAboutWindow>(m_Windows, m_Screen, m_Texts, std::move(timer));
        m_Window->Show();
        QCoreApplication::processEvents();
        return *m_Window;
    }

    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cQtScreen m_Screen;
    cOpenWindows m_Windows;
    cFakeTimer* m_Timer = nullptr;
    std::unique_ptr<cAboutWindow> m_Window;
};

TEST_F(AboutWindow, ShowsItsLabelWhole) {
    const cAboutWindow& window = Open();
    EXPECT_EQ(window.Name(), "Vigrel_Receiver_About");
    EXPECT_EQ(window.windowTitle(), "Vigrel - Larmmottagare");
    const auto* label = window.findChild<QLabel*>("Label");
    EXPECT_EQ(label->text(),
              "*** Invalid Text (10000)\n\n*** Invalid Text (13) 3.00.04\n\n"
              "*** Invalid Text (14) Kelmora AB");
    EXPECT_GE(label->width(), label->sizeHint().width());
    EXPECT_GE(label->height(), label->sizeHint().height());
}

TEST_F(AboutWindow, ShowsTheProgramsPictureBesideItsWords) {
    const cAboutWindow& window = Open();
    const auto labels = window.findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    const QLabel& picture = *labels[0];
    const QLabel& words = *labels[1];
    EXPECT_EQ(picture.pixmap().toImage(), QIcon(":/icons/vigrel-receiver.svg").pixmap(64).toImage());
    EXPECT_EQ(picture.pos(), QPoint(20, 20));
    EXPECT_EQ(words.x(), picture.geometry().right() + 1 + 20);
    EXPECT_EQ(words.y(), 20);
    EXPECT_GE(words.width(), 260);
    EXPECT_EQ(window.size(), QSize(words.geometry().right() + 1 + 20, words.geometry().bottom() + 1 + 20));
}

// The start goes on behind it, and comes to the event loop when it is through.
TEST_F(AboutWindow, IsPaintedWhenItsShowIsOver) {
    cAboutWindow window(m_Windows, m_Screen, m_Texts, std::make_unique<cFakeTimer>(cAboutBox::kTickInterval));
    const cPaintings paintings(window);
    window.Show();
    EXPECT_GT(paintings.m_Count, 0);
}

TEST_F(AboutWindow, CanBeClosedAndNeitherSizedNorMadeAnIcon) {
    const cAboutWindow& window = Open();
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_EQ(window.windowType(), Qt::Dialog);
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(window.windowFlags() & Qt::WindowMinMaxButtonsHint);
}

TEST_F(AboutWindow, ComesUpOverTheWindowsThatAreThere) {
    cAboutWindow& window = Open();
    window.hide();
    const cRaises raises(window);
    window.Show();
    EXPECT_EQ(raises.m_WhileSeen, 1);
}

TEST_F(AboutWindow, StandsInTheMiddleOfTheScreen) {
    const cAboutWindow& window = Open();
    EXPECT_NEAR(window.Left() + window.Width() / 2, m_Screen.Width() / 2, 4 * kTwipsPerPixel);
    EXPECT_NEAR(window.Top() + window.Height() / 2, m_Screen.Height() / 2, 4 * kTwipsPerPixel);
}

TEST_F(AboutWindow, ClosesByItselfAtTheTwentyFirstTick) {
    const cAboutWindow& window = Open();
    for (int i = 0; i < 20; ++i) m_Timer->Tick();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(m_Windows.OpenWindows().size(), 1u);
    m_Timer->Tick();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
    EXPECT_FALSE(m_Timer->Enabled());
}

TEST_F(AboutWindow, ClosedByHandItsTimerStops) {
    cAboutWindow& window = Open();
    window.close();
    EXPECT_FALSE(m_Timer->Enabled());
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
}

TEST_F(AboutWindow, EscapeClosesIt) {
    cAboutWindow& window = Open();
    QTest::keyClick(&window, Qt::Key_A);
    EXPECT_TRUE(window.isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(m_Timer->Enabled());
}

TEST_F(AboutWindow, TakesNoKeyboard) {
    EXPECT_TRUE(Open().testAttribute(Qt::WA_ShowWithoutActivating));
}

}  // namespace
}  // namespace vigrel::testing
