// What a sender, a file or the configuration can bring is shown as it stands in every window of the receiver.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QTableView>

#include "adapters/qt/qt_text.h"
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
#include "support/item_table.h"
#include "support/markup.h"
#include "windows/application.h"
#include "windows/desktop.h"
#include "windows/plain_text.h"
#include "windows/qt_message_box.h"

namespace vigrel::testing {
namespace {

class Markup : public ::testing::TestWithParam<const char*> {
  protected:
    Markup() {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[General]\nLanguage=001\n");
        const std::string line = text.substr(0, text.find('\n'));
        std::string texts;
        for (const char* id : {"0", "13", "14", "272", "273", "274", "400", "401", "10000"}) {
            texts += std::string(id) + "=" + line + "\r\n";
        }
        m_Files.Put("C:\\App\\Vigrel_Texts.001", texts);
        m_Texts.LoadTexts();
        // A main window that was closed outside of an event loop has asked the next one to end at once.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }
    // Lets the event loop act on the dialog that blocks the caller.
    void WithDialog(const std::function<void(QDialog&)>& look) {
        QTimer::singleShot(0, [this, look] {
            ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            look(*dialog);
            m_Looked = true;
            dialog->reject();
        });
    }

    const std::string text = GetParam();
    const QString shown = ToQString(text);
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cOpenWindows m_Windows;
    bool m_Looked = false;
};

INSTANTIATE_TEST_SUITE_P(Kinds, Markup, ::testing::ValuesIn(kMarkup));

TEST_P(Markup, InACutCellOfTheListIsAPlainToolTip) {
    cMainWindow window(m_Windows);
    cQtReportList& list = window.List();
    list.AddColumn("State", 20);
    list.AddColumn("Text", 5);
    cItemTable items(list);
    items.SetText(items.Add(), 1, text);
    list.TakeOverRecords();
    window.Show();
    QTableView& view = list.View();
    ASSERT_TRUE(WaitUntil([&] { return view.visualRect(view.model()->index(0, 1)).isValid(); }));
    const QPoint place = view.visualRect(view.model()->index(0, 1)).center();
    QToolTip::hideText();
    QHelpEvent rest(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &rest);
    ASSERT_NE(ShownToolTip(), nullptr);
    EXPECT_EQ(ShownToolTip()->textFormat(), Qt::PlainText);
    EXPECT_EQ(ShownToolTip()->text().simplified(), shown.simplified());
    QToolTip::hideText();
}

TEST_P(Markup, InTheTraceIsAPlainToolTip) {
    cReceiverState state;
    const cFakeClock clock;
    m_Files.PutFolder("C:\\App\\LogFiles\\");
    cProtocolTrace trace(state, clock, m_Files, "C:\\App\\");
    const cFakeSettings settings;
    cDebugWindow window(m_Windows, trace, m_Texts, settings);
    window.Show();
    state.m_DebugMode = true;
    trace.WriteTrace(text, 1);
    auto& list = *window.findChild<QTableView*>("ListView_Debug");
    ASSERT_TRUE(WaitUntil([&] { return list.model()->rowCount() == 1; }));
    const QModelIndex cell = list.model()->index(0, 2);
    ExpectToolTip(*list.viewport(), list.visualRect(cell).topLeft() + QPoint(4, 4), cell.data().toString());
    ExpectAllPlain(window);
}

TEST_P(Markup, InAPopupIsItsPlainTextAndTitle) {
    cPopupWidgetMaker maker(m_Windows);
    auto& popup = dynamic_cast<cPopupWidget&>(maker.MakePopup());
    popup.SetCaption(text);
    popup.SetLabelText(text);
    popup.Show();
    maker.Stack().Apply();
    EXPECT_EQ(popup.findChild<QPlainTextEdit*>("Label_Alarm")->toPlainText(), shown);
    EXPECT_EQ(popup.windowTitle(), shown);
    ExpectAllPlain(popup);
}

TEST_P(Markup, InTheTitleOfTheMainWindowStaysText) {
    cMainWindow window(m_Windows);
    static_cast<cWindow&>(window).SetCaption(text);
    window.Show();
    EXPECT_EQ(window.windowTitle(), shown);
    ExpectAllPlain(window);
}

TEST_P(Markup, InAMessageBoxIsPlain) {
    WithDialog([&](QDialog& box) {
        ExpectPlain(box.findChild<QLabel*>("qt_msgbox_label"), shown);
        ExpectAllPlain(box);
    });
    cQtMessageBox("Vigrel").Show(text, eMessageIcon::Warning, eMessageButtons::Ok);
    EXPECT_TRUE(m_Looked);
}

TEST_P(Markup, InADialogOfTheToolkitIsPlain) {
    WithDialog([&](QDialog& dialog) { ExpectAllPlain(dialog); });
    QInputDialog::getText(nullptr, "Title", shown);
    EXPECT_TRUE(m_Looked);
}

TEST_P(Markup, InTheAboutBoxIsPlain) {
    cQtScreen screen;
    cAboutWindow window(m_Windows, screen, m_Texts, std::make_unique<cFakeTimer>(500));
    window.Show();
    ExpectAllPlain(window);
    EXPECT_TRUE(window.findChild<QLabel*>("Label")->text().startsWith(ToQString(m_Texts.GetText(10000))));
}

TEST_P(Markup, InTheLanguageWindowIsPlain) {
    const cFakeLocale locale;
    cLanguageSelection selection(m_Files, m_Ini, locale);
    cLanguageWindow window(selection);
    window.show();
    EXPECT_EQ(window.findChild<QComboBox*>("Combo_Language")->itemText(0), ToQString(m_Texts.GetText(0)));
    ExpectAllPlain(window);
}

TEST_P(Markup, InTheNotificationIconLeavesNothingThatADesktopCouldInterpret) {
    QSystemTrayIcon icon;
    SetPlainToolTip(icon, shown);
    EXPECT_FALSE(icon.toolTip().contains('<'));
    EXPECT_FALSE(icon.toolTip().contains('&'));
    EXPECT_EQ(icon.toolTip().size(), shown.size());
    EXPECT_FALSE(Qt::mightBeRichText(icon.toolTip()));
}

}  // namespace
}  // namespace vigrel::testing
