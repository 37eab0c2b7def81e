#include "receiver_ui/tray/notification_icon.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <deque>
#include <memory>
#include <utility>

#include "adapters/qt/qt_timer.h"
#include "signals/tray.h"
#include "support/fake_station.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

// The notification area of a desktop.
class cTrayer {
  public:
    bool Start() {
        m_Host.start("trayer", {"--edge", "bottom", "--align", "right", "--widthtype", "request", "--height",
                                "24", "--SetDockType", "true"});
        return m_Host.waitForStarted() && WaitUntil([] { return QSystemTrayIcon::isSystemTrayAvailable(); });
    }
    ~cTrayer() { Stop(); }
    void Stop() {
        if (m_Host.state() == QProcess::NotRunning) return;
        m_Host.kill();
        m_Host.waitForFinished();
        EXPECT_TRUE(WaitUntil([] { return !QSystemTrayIcon::isSystemTrayAvailable(); }));
    }

  private:
    QProcess m_Host;
};

class NotificationIcon : public ::testing::Test {
  protected:
    NotificationIcon() {
        m_Icon.OnFirstClick = [this] { m_Notices += "first "; };
        m_Icon.OnSecondClick = [this] { m_Notices += "second "; };
        m_Icon.OnOpen = [this] { m_Notices += "open "; };
        m_Icon.OnHostGone = [this] { ++m_Gone; };
    }
    // Whether it shows and has found its place.
    bool Shows() {
        QRect place;
        return WaitUntil([&] {
            RunEvents(200);
            return std::exchange(place, m_Icon.Place()) == m_Icon.Place() && place.width() > 1 &&
                   place.y() > 0;
        });
    }
    // What the screen shows there.
    QImage Picture() const {
        const QRect place = m_Icon.Place();
        return QGuiApplication::primaryScreen()
            ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
            .toImage();
    }
    bool HasColour(QRgb colour) const {
        const QImage image = Picture();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if ((image.pixel(x, y) | 0xFF000000) == (colour | 0xFF000000)) return true;
            }
        }
        return false;
    }
    // The notices that a gesture with the mouse brings.
    std::string Gesture(const QStringList& clicks) {
        m_Notices.clear();
        const QPoint place = m_Icon.Place().center();
        QStringList words{"mousemove", QString::number(place.x()), QString::number(place.y())};
        QProcess mouse;
        mouse.start("xdotool", words + clicks);
        EXPECT_TRUE(WaitUntil([&] { return mouse.state() == QProcess::NotRunning; }));
        RunEvents(100);
        // The next gesture is one of its own.
        RunEvents(QApplication::doubleClickInterval());
        return m_Notices;
    }

    cNotificationIcon m_Icon;
    cTrayer m_Host;
    std::string m_Notices;
    int m_Gone = 0;  // how often the host was told to be gone
};

// Milliseconds after which a host that has come or gone is noticed, and after which one that is gone is told
// of.
constexpr int kNoticed = 1500, kSettled = kNoticed + cTrayHost::kSettleMilliseconds;

// Colours of the two images.
constexpr QRgb kFlashRed = 0xD8301F, kRestingBlue = 0x2578C8;

TEST_F(NotificationIcon, GesturesBringTheirNotices) {
    ASSERT_TRUE(m_Host.Start());
    m_Icon.SetVisible(true);
    ASSERT_TRUE(Shows());
    EXPECT_EQ(Gesture({"click", "1"}), "first ");
    EXPECT_EQ(Gesture({"click", "2"}), "second ");
    EXPECT_EQ(Gesture({"click", "--repeat", "2", "--delay", "60", "1"}), "first open ");
    EXPECT_EQ(Gesture({"click", "3"}), "open ");
    EXPECT_EQ(Gesture({"click", "1"}), "first ");
}

TEST_F(NotificationIcon, TheIconWaitsForAHostAndShowsOnceThereIsOne) {
    EXPECT_FALSE(m_Icon.HostAvailable());
    m_Icon.SetIcon(1);
    m_Icon.SetToolTip("tip");
    m_Icon.SetVisible(true);
    RunEvents(50);
    EXPECT_FALSE(m_Icon.HostAvailable());
    ASSERT_TRUE(m_Host.Start());
    EXPECT_TRUE(m_Icon.HostAvailable());
    ASSERT_TRUE(Shows());
    EXPECT_TRUE(WaitUntil([this] { return HasColour(kFlashRed); }));
}

TEST_F(NotificationIcon, TheIconComesBackWithItsHost) {
    ASSERT_TRUE(m_Host.Start());
    m_Icon.SetVisible(true);
    ASSERT_TRUE(Shows());
    m_Host.Stop();
    EXPECT_FALSE(m_Icon.HostAvailable());
    m_Icon.SetIcon(1);
    cTrayer next;
    ASSERT_TRUE(next.Start());
    EXPECT_TRUE(WaitUntil([this] { return Shows() && HasColour(kFlashRed); }));
    EXPECT_EQ(Gesture({"click", "1"}), "first ");
}

TEST_F(NotificationIcon, AHostThatGoesIsToldOfOnceAndSoIsTheNext) {
    ASSERT_TRUE(m_Host.Start());
    RunEvents(kNoticed);
    m_Host.Stop();
    EXPECT_TRUE(WaitUntil([this] { return m_Gone > 0; }, kSettled));
    RunEvents(kSettled);
    EXPECT_EQ(m_Gone, 1);
    cTrayer next;
    ASSERT_TRUE(next.Start());
    RunEvents(kNoticed);
    next.Stop();
    EXPECT_TRUE(WaitUntil([this] { return m_Gone > 1; }, kSettled));
}

TEST_F(NotificationIcon, AHostThatStartsAnewWasNeverGone) {
    ASSERT_TRUE(m_Host.Start());
    RunEvents(kNoticed);
    m_Host.Stop();
    RunEvents(kNoticed);
    cTrayer next;
    ASSERT_TRUE(next.Start());
    RunEvents(kSettled);
    EXPECT_EQ(m_Gone, 0);
}

TEST_F(NotificationIcon, AnInvisibleIconDoesNotShow) {
    ASSERT_TRUE(m_Host.Start());
    m_Icon.SetIcon(1);
    RunEvents(200);
    EXPECT_LE(m_Icon.Place().width(), 1);
    m_Icon.SetVisible(true);
    EXPECT_TRUE(Shows());
    m_Icon.SetVisible(false);
    EXPECT_TRUE(WaitUntil([this] { return m_Icon.Place().width() <= 1; }));
}

TEST_F(NotificationIcon, AnImageThatThereIsNoneOfChangesNothing) {
    ASSERT_TRUE(m_Host.Start());
    m_Icon.SetIcon(1);
    m_Icon.SetVisible(true);
    ASSERT_TRUE(Shows());
    for (const int image : {3, -2, 1000}) m_Icon.SetIcon(image);
    RunEvents(100);
    EXPECT_TRUE(WaitUntil([this] { return HasColour(kFlashRed); }));
}

TEST_F(NotificationIcon, TheTooltipIsKeptAsItWasSet) {
    EXPECT_EQ(m_Icon.ToolTip(), "");
    m_Icon.SetToolTip("one\r\ntwo \xE5");
    EXPECT_EQ(m_Icon.ToolTip(), "one\r\ntwo \xE5");
}

// The rules of the tray and the real icon together.
TEST_F(NotificationIcon, WhileAnythingIsNotObservedTheScreenChangesOnEveryTick) {
    ASSERT_TRUE(m_Host.Start());
    cFakeStation station;
    cQtTimer timer(500);
    station.settings.m_ShowInTaskBar = false;
    cTray tray({m_Icon, timer, station.list, station.mainWindow, station.store.m_Alarms, station.state,
                station.settings});
    tray.SetUp();
    ASSERT_TRUE(Shows());
    station.store.m_Alarms.push_back(station.MakeAlarm());
    station.state.m_ListChanged = true;
    for (int tick = 0; tick < 6; ++tick) {
        tray.TickTray();
        const QRgb colour = tick % 2 == 1 ? kFlashRed : kRestingBlue;
        EXPECT_TRUE(WaitUntil([&] { return HasColour(colour); }, 1000)) << tick;
        const QString folder = qEnvironmentVariable("VIGREL_TEST_PICTURES");
        if (!folder.isEmpty())
            Picture().scaled(192, 192).save(QString("%1/tray-%2.png").arg(folder).arg(tick));
    }
    station.store.m_Alarms[0]->m_Observed = True16;
    station.state.m_ListChanged = true;
    for (int tick = 0; tick < 4; ++tick) {
        tray.TickTray();
        RunEvents(60);
        EXPECT_TRUE(HasColour(kRestingBlue)) << tick;
    }
}

}  // namespace
}  // namespace vigrel::testing
