// Random histories of a station with its real windows, beside the plain second one: what list and popups show
// is what there is to show, whatever the operator does with mouse, keys and menus.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QTest>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/qt_text.h"
#include "common/text.h"
#include "core/vigrel_receiver_main.h"
#include "life/side_by_side.h"
#include "receiver_ui/main/main_window.h"
#include "receiver_ui/popups/popup_widget.h"
#include "support/fake_receiver.h"
#include "windows/desktop.h"
#include "windows/open_windows.h"

namespace vigrel::testing {
namespace {

// A receiver with real windows; everything else is a fake.
struct cReceiverWithWindows {
    explicit cReceiverWithWindows(cFakeFiles& disk) : files(disk) {}
    cFakeFiles& files;
    cTranscript transcript;
    cFakeClock clock;
    cFakeRandom random;
    cFakeLocale locale;
    cFakeSingleInstance singleInstance;
    cFakeListener listener{&transcript};
    cFakeDataSocket data{listener};
    cFakeTimer timerKeepAlive{10000}, timerPlay{500}, timerSave{10};
    cOpenWindows windows;
    cMainWindow mainWindow{windows};
    cPopupWidgetMaker popups{windows};
    cQtScreen screen;
    cFakeMessageBox messageBox{&transcript};
    cFakeClipboard clipboard;
    cFakeBeeper beeper{&transcript};
    cFakeWaveDevice waveDevice{&transcript};
    cFakeNotificationArea trayArea{&transcript};
    cFakeSignalLight light{&transcript};
    cFakeRunningApps runningApps{&transcript};
    cFakePrinterPorts printerPorts;
    cFakeOtherWindows otherWindows{transcript};
    cFakeStatus status;
    cDeliveredTexts deliveredTexts;
    cFakeServiceManager serviceManager;
    cVigrelReceiverMain receiver{
        {files,        files,        clock,          random,         locale,        singleInstance,
         listener,     data,         timerKeepAlive, timerPlay,      timerSave,     mainWindow.List(),
         mainWindow,   mainWindow,   screen,         windows,        popups,        messageBox,
         clipboard,    beeper,       waveDevice,     trayArea,       light,         runningApps,
         printerPorts, otherWindows, status,         deliveredTexts, serviceManager},
        "C:\\App\\",
        ""};
};

class cWindowedStation {
  public:
    cWindowedStation() {
        m_Disk.Put("C:\\App\\Vigrel_Texts.046",
                   "837=T837\r\n838=T838\r\n839=T839\r\n10031=T10031\r\n10032=T10032\r\n");
    }
    bool HasStarted() const { return m_Station != nullptr; }
    void Restart(const cPlan& plan) {
        const cFakeClock clock = m_Station ? m_Station->clock : cFakeClock();
        if (m_Station) m_Station->mainWindow.CloseFor(eCloseReason::SessionEnd);
        m_Disk.Put("C:\\App\\VigrelReceiver.INI", IniOf(plan));
        m_Station.reset();
        m_Numbers.clear();
        m_Station = std::make_unique<cReceiverWithWindows>(m_Disk);
        m_Station->clock = clock;
        if (m_Station->receiver.Form_Load() != eStartUp::Running)
            throw std::logic_error("the station did not start");
        m_Station->mainWindow.Show();
        m_Station->transcript.Take();
    }
    void EventIsOver() {
        m_Station->waveDevice.RunEvents();
        QCoreApplication::processEvents();
        m_Station->popups.Stack().Apply();
        for (cWindow* window : m_Station->windows.OpenWindows()) {
            if (dynamic_cast<cPopupWidget*>(window) && !m_Numbers.contains(window))
                m_Numbers.insert({window, static_cast<int>(m_Numbers.size()) + 1});
        }
    }
    void TimePasses(double seconds) { m_Station->clock.AddSeconds(seconds); }
    void SetClock(double seconds) { m_Station->clock.m_Now += seconds / 86400; }
    void Connect() { m_Station->listener.Knock(++m_Connections); }
    std::string Arrive(const std::string& bytes) {
        m_Station->data.Arrive(bytes);
        return m_Station->data.TakeSent();
    }
    void PeerCloses() { m_Station->data.PeerCloses(); }
    void Tick() { m_Station->timerKeepAlive.Tick(); }
    void PlayTick() { m_Station->timerPlay.Tick(); }
    void PlayEnds() { m_Station->waveDevice.EndPlay(); }
    void SaveTurn() { m_Station->timerSave.Tick(); }
    void ClickIcon() { m_Station->trayArea.OnFirstClick(); }
    void StopSound() { Choose("Menu_StopSound"); }
    // By the mouse and by the keyboard in turn.
    void Acknowledge(std::size_t row) {
        if (row >= CountRows()) return;
        cReportView& view = m_Station->mainWindow.List().View();
        const QModelIndex cell = view.model()->index(static_cast<int>(row), 1);
        view.scrollTo(cell);
        if (row % 2 == 0) {
            const QPoint place = view.visualRect(cell).center();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
        } else {
            view.setCurrentIndex(cell);
            QTest::keyClick(&view, Qt::Key_Return);
        }
    }
    void AcknowledgeAll() {
        m_ByKey = !m_ByKey;
        if (m_ByKey) {
            QTest::keyClick(&m_Station->mainWindow.List().View(), Qt::Key_F9);
        } else {
            Choose("Menu_AckAll");
        }
    }
    bool AcknowledgeAllAndClose() { return Choose("Menu_AckAll_AndClosePopups"); }
    // One that shows, by its picture, its close control or Esc. Its number; 0 for none.
    int ClosePopup(std::size_t place) {
        const std::vector<cPopupWidget*> shown = Shown();
        if (place >= shown.size()) return 0;
        cPopupWidget& popup = *shown[place];
        const int number = m_Numbers[&popup];
        if (place % 3 == 0) {
            ClickPicture(popup);
        } else if (place % 3 == 1) {
            QTest::keyClick(&popup, Qt::Key_Escape);
        } else {
            QCloseEvent event;  // as the window system sends it
            QSpontaneKeyEvent::setSpontaneous(&event);
            qApp->notify(&popup, &event);
        }
        return number;
    }
    std::string Told() {
        return (PopupText("rows: " + Rows() + "\npopups: ") + Popups() +
                PopupText("\nicon: " + std::to_string(m_Station->trayArea.m_Image) + "\nsound: " + Sounded() +
                          "printed: " + Printed()))
            .toStdString();
    }
    // What the plain station tells, as windows show it.
    static std::string AsShown(const std::string& told) { return PopupText(told).toStdString(); }

  private:
    std::size_t CountRows() {
        m_Station->mainWindow.List().Rows();  // what waits for its turn reaches the view
        QCoreApplication::processEvents();
        return static_cast<std::size_t>(m_Station->mainWindow.List().View().model()->rowCount());
    }
    // False where it can't be chosen.
    bool Choose(const char* entry) {
        cMainWindow& window = m_Station->mainWindow;
        emit window.findChild<QAction*>("Menu_File")->menu()->aboutToShow();
        auto* action = window.findChild<QAction*>(entry);
        const bool enabled = action->isEnabled();
        action->trigger();
        return enabled;
    }
    // The popups on the screen, the uppermost first.
    std::vector<cPopupWidget*> Shown() {
        std::vector<cPopupWidget*> shown;
        for (cStackedPopup* popup : m_Station->popups.Stack().Order()) {
            if (popup->OnScreen()) shown.push_back(dynamic_cast<cPopupWidget*>(popup));
        }
        return shown;
    }
    static void ClickPicture(cPopupWidget& popup) {
        for (auto* picture : popup.findChildren<QAbstractButton*>()) {
            if (picture->isVisible()) return QTest::mouseClick(picture, Qt::LeftButton);
        }
        FAIL() << "a popup without a picture";
    }
    std::string Rows() {
        std::string rows;
        const std::size_t count = CountRows();
        const auto* model = dynamic_cast<cReportModel*>(m_Station->mainWindow.List().View().model());
        for (std::size_t row = 0; row < count; ++row) {
            const auto cell = [&](int column) { return model->index(static_cast<int>(row), column); };
            for (int column = 1; column < kIconColumn; ++column)
                rows += FromQString(model->data(cell(column), Qt::DisplayRole).toString()) + "|";
            rows += "#" + std::to_string(model->Item(cell(kIconColumn)).icon) + " ";
        }
        return rows;
    }
    QString Popups() {
        QString told;
        for (cPopupWidget* popup : Shown()) {
            told += QString::number(m_Numbers[popup]) +
                    (popup->windowFlags().testFlag(Qt::WindowStaysOnTopHint) ? " top " : " ") +
                    popup->findChild<cPopupLabel*>()->toPlainText() + "; ";
        }
        return told;
    }
    std::string Sounded() {
        std::string told;
        for (const std::string& line : SplitLines(m_Station->transcript.Take())) {
            if (line == "beep") told += "beep\n";
            if (line.starts_with("sound: ")) told += line.substr(7) + "\n";
        }
        return told;
    }
    std::string Printed() {
        std::string told;
        for (const std::string& line : m_Station->printerPorts.m_Lines) told += line;
        m_Station->printerPorts.m_Lines.clear();
        return told;
    }

    cFakeFiles m_Disk;
    std::unique_ptr<cReceiverWithWindows> m_Station;
    std::map<const cWindow*, int> m_Numbers;  // of popups, from 1, in the order in which they open
    int m_Connections = 0;
    bool m_ByKey = false;
};

TEST(WindowHistories, AreLivedAlikeByAPlainSecondStation) {
    EXPECT_EQ(FirstDisagreement<cWindowedStation>(HistoriesToLive(3), 600), "");
}

}  // namespace
}  // namespace vigrel::testing
