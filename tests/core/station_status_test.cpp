// What the service manager is told of the station.

#include "core/station_status.h"

#include <gtest/gtest.h>

#include "link/frame.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

using cLines = std::vector<std::string>;

class StationStatus : public ::testing::Test, public testing::cFakeReceiver {
  protected:
    cLines Told() { return std::exchange(serviceManager.m_Told, {}); }
    void Send(int count = 1) {
        for (int i = 0; i < count; ++i) data.Arrive(MakeFrame("PLC1", "S1|||alarm"));
    }
};

TEST_F(StationStatus, TheStartIsOverWhenThePortIsOpen) {
    listener.m_PortInUse = true;
    EXPECT_EQ(Load(), eStartUp::PortTaken);
    EXPECT_EQ(Told(), cLines{"stopping"});
    listener.m_PortInUse = false;
    Start();
    EXPECT_EQ(Told(), (cLines{"T11009 12412; T11010: 0, T11011: 0", "ready"}));
}

TEST_F(StationStatus, ItCountsAlarmsAndThoseThatNobodyHasAcknowledged) {
    Ini("Columns=t0\r\n", "[TCPIP]\r\nAddress=192.168.1.10\r\n");
    Start();
    listener.Knock(1);
    Send(3);
    Told();
    timerKeepAlive.Tick();
    EXPECT_EQ(Told(), cLines{"T11009 192.168.1.10 12412; T11010: 3, T11011: 3"});
    receiver->Menu_AckAll();
    Send();
    timerKeepAlive.Tick();
    EXPECT_EQ(Told(), cLines{"T11009 192.168.1.10 12412; T11010: 4, T11011: 1"});
}

TEST_F(StationStatus, WhatIsAsItWasIsNotToldAgain) {
    Start();
    Told();
    for (int i = 0; i < 5; ++i) timerKeepAlive.Tick();
    EXPECT_EQ(Told(), cLines{});
}

TEST_F(StationStatus, AlarmsThatAreNotOnDiskAreToldWithTheirTimeAndTheReasonUntilTheyAre) {
    Start();
    listener.Knock(1);
    files.m_DiskFull = true;
    Send(2);
    Told();
    timerKeepAlive.Tick();
    const std::string normal = "T11009 12412; T11010: 2, T11011: 2";
    const cLines told = Told();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].substr(0, normal.size() + 38), normal + "; T10049 2, T10050 2026-03-15 12:30:15");
    EXPECT_NE(told[0].find(".alm"), std::string::npos) << told[0];
    files.m_DiskFull = false;
    timerKeepAlive.Tick();
    EXPECT_EQ(Told(), cLines{normal});
}

TEST_F(StationStatus, ASingleAlarmThatIsNotOnDiskIsTold) {
    Start();
    listener.Knock(1);
    files.m_DiskFull = true;
    Send();
    Told();
    timerKeepAlive.Tick();
    const cLines told = Told();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].find("; T10049 1, "), std::string::npos) << told[0];
}

TEST_F(StationStatus, APrinterThatFailsIsTold) {
    Start();
    Told();
    printerPorts.m_Problem = "port 1: /dev/lp0: no paper";
    timerKeepAlive.Tick();
    EXPECT_EQ(Told(), cLines{"T11009 12412; T11010: 0, T11011: 0; T11012 port 1: /dev/lp0: no paper"});
}

TEST_F(StationStatus, TheEndIsToldWhenItBegins) {
    Start();
    Told();
    messageBox.m_Answers = {eMessageAnswer::No, eMessageAnswer::Yes};
    mainWindow.CloseFor(eCloseReason::Control);
    EXPECT_EQ(Told(), cLines{});
    mainWindow.CloseFor(eCloseReason::Control);
    EXPECT_EQ(Told(), cLines{"stopping"});
}

}  // namespace
}  // namespace vigrel::testing
