// Stations in a desktop's session that ends, or does not end after all.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>

#include "e2e/definitions/session_manager.h"
#include "e2e/station.h"
#include "e2e/windows/operator.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

using eMessage = cSessionManager::eMessage;

class EndOfTheSession : public ::testing::Test {
  protected:
    EndOfTheSession() { OnScreen(m_Station); }
    void ExpectSaved() { EXPECT_EQ(m_Session.Await(eMessage::SaveYourselfDone), true); }
    void ExpectToRun() {
        EXPECT_EQ(m_Station.Send({"--t0", "received"}).exitCode, 0);
        EXPECT_EQ(m_Station.AlarmFiles().size(), ++m_Alarms);
        EXPECT_NE(m_Station.Log().back(), "T10020");
    }
    void ExpectToEndWithTheSession() {
        m_Session.Send(eMessage::Die);
        EXPECT_EQ(m_Station.WaitForEnd(), 0);
        const std::vector<std::string> log = m_Station.Log();
        EXPECT_EQ(std::count(log.begin(), log.end(), "T10020"), 1);
        EXPECT_EQ(log.back(), "T10020");
    }

    cTemporaryFolder m_Folder;
    cSessionManager m_Session{(m_Folder.Path() / "session").string()};
    cStation m_Station;
    std::size_t m_Alarms = 0;
};

TEST_F(EndOfTheSession, EndsAStationThatMayNotBeClosedAndDoesNotAskIt) {
    m_Station.Configure("[General]\r\nDisableShutdown=1\r\n");
    ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
    m_Session.EndSession();
    ExpectSaved();
    // The other programs may still be asked.
    ExpectToRun();
    ExpectToEndWithTheSession();
}

TEST_F(EndOfTheSession, ThatAnotherProgramCallsOffLeavesTheStationRunning) {
    ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
    for (int i = 0; i < 2; ++i) {
        m_Session.EndSession();
        ExpectSaved();
        m_Session.Send(eMessage::ShutdownCancelled);
        ExpectToRun();
    }
    m_Session.EndSession();
    ExpectSaved();
    ExpectToEndWithTheSession();
}

TEST_F(EndOfTheSession, IsNotMeantWhereTheSessionIsOnlySaved) {
    ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
    m_Session.SaveSession();
    ExpectSaved();
    m_Session.Send(eMessage::SaveComplete);
    ExpectToRun();
    ExpectToEndWithTheSession();
}

TEST_F(EndOfTheSession, IsNotHeldUpByTheQuestionOfTheEnd) {
    ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
    ASSERT_NE(FindWindow(m_Station.Process(), "T10000"), "");
    kill(m_Station.Process(), SIGINT);
    ASSERT_NE(FindWindow(m_Station.Process(), "^Vigrel Alarm Receiver$"), "");
    m_Session.EndSession();
    ExpectSaved();
    ExpectToRun();
    ExpectToEndWithTheSession();
}

TEST_F(EndOfTheSession, EndsAStationThatStillAsksForItsLanguage) {
    std::filesystem::remove(m_Station.Folder() / "Vigrel_Texts.046");
    m_Station.Launch();
    ASSERT_NE(FindWindow(m_Station.Process(), "Select Language"), "");
    m_Session.EndSession();
    ExpectSaved();
    m_Session.Send(eMessage::Die);
    EXPECT_EQ(m_Station.WaitForEnd(), 0);
    EXPECT_TRUE(m_Station.Log().empty());
}

TEST_F(EndOfTheSession, EndsAStationWhoseStartTellsOfTooManySenders) {
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=1\r\n";
    m_Station.Configure(senders);
    m_Station.Launch();
    ASSERT_NE(FindWindow(m_Station.Process(), "^Vigrel Alarm Receiver$"), "");
    m_Session.EndSession();
    ExpectSaved();
    ExpectToEndWithTheSession();
}

}  // namespace
}  // namespace vigrel::testing
