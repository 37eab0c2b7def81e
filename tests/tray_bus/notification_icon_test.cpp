#include "receiver_ui/tray/notification_icon.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QApplication>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QThread>
#include <initializer_list>
#include <memory>
#include <string>

#include "support/qt_wait.h"
#include "tray_bus/bus_host.h"

namespace vigrel::testing {
namespace {

// Milliseconds after which a host that is gone is told of.
constexpr int kSettled = cTrayHost::kSettleMilliseconds + 1000;

// The toolkit looks for the bus's notification area once in a program, so there is one when a test begins.
class IconOnTheBus : public ::testing::Test {
  protected:
    void SetUp() override {
        m_Host = new cBusHost;
        m_Host->moveToThread(&m_Desktop);
        m_Desktop.start();
        ASSERT_TRUE(Ask([this] { return m_Host->Start(); }));
        m_Icon = std::make_unique<cNotificationIcon>();
        m_Icon->OnFirstClick = [this] { m_Notices += "first "; };
        m_Icon->OnSecondClick = [this] { m_Notices += "second "; };
        m_Icon->OnOpen = [this] { m_Notices += "open "; };
        m_Icon->OnHostGone = [this] { m_Notices += "gone "; };
        m_Icon->SetVisible(true);
        ASSERT_TRUE(WaitUntil([this] { return Ask([this] { return m_Host->HasIcon(); }); }));
        ASSERT_TRUE(m_Icon->HostAvailable());
    }
    void TearDown() override {
        m_Icon.reset();
        m_Host->deleteLater();
        m_Desktop.quit();
        m_Desktop.wait();
    }
    // Has the desktop do something, and waits for its answer.
    template <class Step>
    bool Ask(Step step) {
        bool answer = false;
        QMetaObject::invokeMethod(
            m_Host, [&] { answer = step(); }, Qt::BlockingQueuedConnection);
        return answer;
    }
    void Tell(void (cBusHost::*step)()) {
        QMetaObject::invokeMethod(m_Host, step, Qt::BlockingQueuedConnection);
    }
    // The notices that gestures bring which follow each other at once.
    std::string Gesture(std::initializer_list<const char*> gestures) {
        m_Notices.clear();
        for (const char* gesture : gestures) Ask([&] { return m_Host->Click(gesture); });
        RunEvents(QApplication::doubleClickInterval() + 200);
        return m_Notices;
    }

    QThread m_Desktop;
    cBusHost* m_Host = nullptr;  // of that thread
    std::unique_ptr<cNotificationIcon> m_Icon;
    std::string m_Notices;
};

TEST_F(IconOnTheBus, GesturesBringTheirNotices) {
    EXPECT_EQ(Gesture({"Activate"}), "first ");
    EXPECT_EQ(Gesture({"SecondaryActivate"}), "second ");
    EXPECT_EQ(Gesture({"Activate", "Activate"}), "first open ");
    EXPECT_EQ(Gesture({"ContextMenu"}), "open ");
}

TEST_F(IconOnTheBus, APanelThatGoesIsToldOf) {
    Tell(&cBusHost::StopPanel);
    EXPECT_TRUE(WaitUntil([this] { return !m_Notices.empty(); }, kSettled));
    RunEvents(kSettled);
    EXPECT_EQ(m_Notices, "gone ");
    EXPECT_FALSE(m_Icon->HostAvailable());
}

TEST_F(IconOnTheBus, APanelThatStartsAnewWasNeverGone) {
    Tell(&cBusHost::StopPanel);
    RunEvents(200);
    Tell(&cBusHost::StartPanel);
    RunEvents(kSettled);
    EXPECT_EQ(m_Notices, "");
}

TEST_F(IconOnTheBus, APanelThatHangsHoldsUpNobody) {
    // Nobody answers on the bus any more.
    Tell(&cBusHost::StopPanel);
    m_Desktop.quit();
    m_Desktop.wait();
    QElapsedTimer time;
    time.start();
    m_Icon->HostAvailable();
    m_Icon->SetIcon(1);
    m_Icon->SetToolTip("tip");
    RunEvents(200);
    m_Icon->SetVisible(false);
    EXPECT_LT(time.elapsed(), 1000);
    m_Desktop.start();
}

TEST_F(IconOnTheBus, AWatcherThatGoesIsToldOf) {
    Tell(&cBusHost::StopWatcher);
    EXPECT_TRUE(WaitUntil([this] { return !m_Notices.empty(); }, kSettled));
    EXPECT_EQ(m_Notices, "gone ");
}

// The last test: this program has no bus behind it.
TEST_F(IconOnTheBus, ABusThatDiesTakesItsPanelAlong) {
    const uint bus = QDBusConnection::sessionBus().interface()->servicePid("org.freedesktop.DBus");
    ASSERT_EQ(kill(static_cast<pid_t>(bus), SIGKILL), 0);
    EXPECT_TRUE(WaitUntil([this] { return !m_Notices.empty(); }, kSettled));
    EXPECT_EQ(m_Notices, "gone ");
    EXPECT_FALSE(m_Icon->HostAvailable());
}

}  // namespace
}  // namespace vigrel::testing
