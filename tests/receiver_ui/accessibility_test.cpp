// What assistive tools find in the station's windows: a name for everything that an operator can act on.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "common/ini.h"
#include "receiver_ui/dialogs/about_window.h"
#include "receiver_ui/dialogs/debug_window.h"
#include "receiver_ui/dialogs/language_window.h"
#include "receiver_ui/main/main_window.h"
#include "receiver_ui/popups/popup_widget.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/fake_settings.h"
#include "support/fake_timer.h"
#include "support/qt_wait.h"
#include "support/unnamed_widgets.h"
#include "windows/desktop.h"
#include "windows/qt_message_box.h"

namespace vigrel::testing {
namespace {

class AssistiveTools : public ::testing::Test {
  protected:
    AssistiveTools() {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[General]\nLanguage=044\n");
        m_Files.Put("C:\\App\\Vigrel_Texts.044",
                    "0=English\n13=Version\n14=By\n272=Time\n273=Way\n274=Text\n400=Debug view\n401=&File\n"
                    "10000=Station\n");
        m_Texts.LoadTexts();
    }
    cFakeFiles m_Files;
    cFakeClock m_Clock;
    cFakeLocale m_Locale;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cReceiverState m_State;
    cOpenWindows m_Windows;
    cQtScreen m_Screen;
};

TEST_F(AssistiveTools, AWidgetWithoutANameIsNoticed) {
    QWidget window;
    new QLineEdit(&window);
    new QPushButton(&window);
    auto* named = new QPushButton("&Ok", &window);
    EXPECT_EQ(UnnamedWidgets(window), "QLineEdit  in QWidget \nQPushButton  in QWidget \n");
    EXPECT_EQ(InteractiveWidgets(window), 3);
    named->setText("");
    EXPECT_NE(UnnamedWidgets(window).find("QPushButton", 40), std::string::npos);
}

TEST_F(AssistiveTools, FindNamesInTheMainWindow) {
    cMainWindow window(m_Windows);
    EXPECT_EQ(UnnamedWidgets(window), "");
    EXPECT_GE(InteractiveWidgets(window), 1);
    EXPECT_EQ(window.List().View().accessibleName(), "Alarms");
}

TEST_F(AssistiveTools, FindNamesInAPopup) {
    cPopupWidgetMaker maker(m_Windows);
    auto& popup = dynamic_cast<cPopupWidget&>(maker.MakePopup());
    popup.Show();
    maker.Stack().Apply();
    EXPECT_EQ(UnnamedWidgets(popup), "");
    EXPECT_GE(InteractiveWidgets(popup), 5);  // the text, and a picture for each state
}

TEST_F(AssistiveTools, FindNamesInTheDebugView) {
    cProtocolTrace trace(m_State, m_Clock, m_Files, "C:\\App\\");
    const cFakeSettings settings;
    cDebugWindow window(m_Windows, trace, m_Texts, settings);
    EXPECT_EQ(UnnamedWidgets(window), "");
    EXPECT_GE(InteractiveWidgets(window), 1);
}

TEST_F(AssistiveTools, FindTheWordsOfTheAboutBox) {
    cAboutWindow window(m_Windows, m_Screen, m_Texts, std::make_unique<cFakeTimer>(cAboutBox::kTickInterval));
    EXPECT_EQ(UnnamedWidgets(window), "");
    EXPECT_TRUE(window.findChild<QLabel*>("Label")->accessibleName().startsWith("Station"));
}

TEST_F(AssistiveTools, FindNamesInTheLanguageWindow) {
    cLanguageSelection selection(m_Files, m_Ini, m_Locale);
    cLanguageWindow window(selection);
    EXPECT_EQ(UnnamedWidgets(window), "");
    EXPECT_GE(InteractiveWidgets(window), 2);
}

TEST_F(AssistiveTools, FindNamesInAQuestion) {
    std::string unnamed = "no box";
    int widgets = 0;
    QTimer::singleShot(0, [&] {
        ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
        unnamed = UnnamedWidgets(*QApplication::activeModalWidget());
        widgets = InteractiveWidgets(*QApplication::activeModalWidget());
        QApplication::activeModalWidget()->close();
    });
    cQtMessageBox("Vigrel Alarm Receiver").Show("Close?", eMessageIcon::Question, eMessageButtons::YesNo);
    EXPECT_EQ(unnamed, "");
    EXPECT_GE(widgets, 2);
}

}  // namespace
}  // namespace vigrel::testing
