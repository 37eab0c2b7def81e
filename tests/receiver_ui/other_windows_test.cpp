#include "receiver_ui/dialogs/other_windows.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QTableView>

#include "common/failure.h"
#include "common/settings.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/fake_settings.h"
#include "support/fake_windows.h"
#include "support/qt_wait.h"
#include "windows/desktop.h"

namespace vigrel::testing {
namespace {

class OtherWindows : public ::testing::Test {
  protected:
    OtherWindows() {
        m_Files.PutFolder("C:\\App\\LogFiles\\");
        m_State.m_DebugMode = true;
    }
    static QWidget* Shown(const char* name) {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == name && widget->isVisible()) return widget;
        }
        return nullptr;
    }
    static QAbstractItemModel& TraceRows() {
        return *Shown("Vigrel_Receiver_Debug")->findChild<QTableView*>("ListView_Debug")->model();
    }

    cFakeFiles m_Files;
    const cFakeClock m_Clock{};
    const cFakeLocale m_Locale{};
    const cQtScreen m_Screen{};
    cFakeSettings m_Settings;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cReceiverState m_State;
    cOpenWindows m_Windows;
    cFakeMessageBox m_Box{nullptr};
    cQtOtherWindows m_Others{{m_Files, m_Clock, m_Locale, m_Screen, m_Settings, m_Windows,
                              dynamic_cast<cApplication&>(*qApp), m_Box},
                             "C:\\App\\"};
};

TEST_F(OtherWindows, ATraceWithoutADebugViewGoesNowhere) {
    m_Others.WriteTrace("early", 1);
    m_Others.ShowDebugWindow(m_Texts, m_State);
    EXPECT_EQ(TraceRows().rowCount(), 0);
}

TEST_F(OtherWindows, TheDebugViewShowsWhatIsTracedAndSavesBesideTheProgram) {
    m_Others.ShowDebugWindow(m_Texts, m_State);
    ASSERT_NE(Shown("Vigrel_Receiver_Debug"), nullptr);
    m_Others.WriteTrace("one", 1);
    m_Others.WriteTrace("two", 2);
    ASSERT_TRUE(WaitUntil([] { return TraceRows().rowCount() == 2; }));
    EXPECT_EQ(TraceRows().index(1, 1).data().toString(), "V->S");
    EXPECT_EQ(TraceRows().index(1, 2).data().toString(), "two");
    Shown("Vigrel_Receiver_Debug")->findChild<QAction*>("Menu_Save")->trigger();
    EXPECT_TRUE(m_Files.FileExists("C:\\App\\LogFiles\\Debug.txt"));
    Shown("Vigrel_Receiver_Debug")->close();
    EXPECT_FALSE(m_State.m_DebugMode);
    EXPECT_NO_THROW(m_Others.WriteTrace("late", 1));
}

TEST_F(OtherWindows, ATraceThatCannotBeSavedIsAnnouncedBeforeItsFailure) {
    m_Others.ShowDebugWindow(m_Texts, m_State);
    auto* save = Shown("Vigrel_Receiver_Debug")->findChild<QAction*>("Menu_Save");
    int announced = 0;
    m_Others.OnFailing = [&] { ++announced; };
    save->trigger();
    EXPECT_EQ(announced, 0);
    m_Files.m_DiskFull = true;
    // The signal alone: what the toolkit does around it keeps something when an exception passes.
    EXPECT_THROW(emit save->triggered(), cFailure);
    EXPECT_EQ(announced, 1);
    m_Others.OnFailing = nullptr;
    EXPECT_THROW(emit save->triggered(), cFailure);
}

TEST_F(OtherWindows, ANoticeStandsUntilItIsTakenBack) {
    m_Others.ShowNotice("");  // none stood
    EXPECT_EQ(Shown("Vigrel_Receiver_Notice"), nullptr);
    m_Others.ShowNotice("Full");
    EXPECT_NE(Shown("Vigrel_Receiver_Notice"), nullptr);
    m_Others.ShowNotice("");
    EXPECT_EQ(Shown("Vigrel_Receiver_Notice"), nullptr);
}

TEST_F(OtherWindows, TheAboutBoxStandsUntilItIsUnloaded) {
    EXPECT_NO_THROW(m_Others.UnloadAboutBox());
    m_Others.ShowAboutBox(m_Texts);
    ASSERT_NE(Shown("Vigrel_Receiver_About"), nullptr);
    EXPECT_EQ(m_Windows.OpenWindows().size(), 1u);
    m_Others.UnloadAboutBox();
    EXPECT_EQ(Shown("Vigrel_Receiver_About"), nullptr);
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
    EXPECT_NO_THROW(m_Others.UnloadAboutBox());
}

TEST_F(OtherWindows, WithoutADisplayALanguageIsNotAskedForButItsPlaceIsTold) {
    bool chosen = false;
    m_Others.OnLanguageChosen = [&] { chosen = true; };
    m_Others.ShowLanguageWindow();
    ASSERT_EQ(m_Box.m_Shown.size(), 1u);
    EXPECT_TRUE(m_Box.m_Shown[0].starts_with("stop, ok: No language: key Language of section General"));
    EXPECT_FALSE(chosen);
}

}  // namespace
}  // namespace vigrel::testing
