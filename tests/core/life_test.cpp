// The receiver's life: what reaches it while it starts, while it runs, and once it has ended.

#include <gtest/gtest.h>

#include "common/text.h"
#include "link/frame.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

class Life : public ::testing::Test, public cFakeReceiver {
  protected:
    // Everything that can come to a program whose event loop turns, an hour later and past a midnight.
    void EverythingHappens() {
        for (int hour = 0; hour < 26; ++hour) {
            clock.AddSeconds(3600);
            // Ticks that were on their way, whatever the timers are now.
            if (timerKeepAlive.OnTick) timerKeepAlive.OnTick();
            if (timerPlay.OnTick) timerPlay.OnTick();
        }
        listener.m_Listening = true;
        listener.Knock(7);
        data.Arrive(MakeFrame("PLC1", "S1||Fan"));
        data.PeerCloses();
        data.PeerFails();
        if (waveDevice.OnDone) waveDevice.OnDone();
        for (const auto* event :
             {&trayArea.OnFirstClick, &trayArea.OnSecondClick, &trayArea.OnOpen, &trayArea.OnHostGone,
              &mainWindow.OnActivate, &mainWindow.OnResize, &list.OnFocusChange}) {
            if (*event) (*event)();
        }
        for (const auto* entry :
             {&menus.OnMenuFileOpens, &menus.OnMenuStopSound, &menus.OnMenuStopLight, &menus.OnMenuAckAll,
              &menus.OnMenuAckAllAndClosePopups, &menus.OnMenuExit}) {
            if (*entry) (*entry)();
        }
        list.PressKey(120, 0);
        if (list.OnRowDoubleClick) list.OnRowDoubleClick(1);
        if (list.OnColumnWidthChanged) list.OnColumnWidthChanged(0);
    }
    // What the machine shows of the receiver: its folder's files, windows, sounds, replies.
    std::string Traces() {
        std::string traces = transcript.Text() + data.TakeSent() + "|";
        for (const char* folder : {"C:\\App\\", "C:\\App\\Alarms\\", "C:\\App\\LogFiles\\"}) {
            for (const std::string& file : files.ListFiles(folder, "*")) {
                traces += file + "=" + files.ReadFile(folder + file) + ";";
            }
        }
        return traces;
    }
    // The box of the start stands while everything happens: nothing of the receiver's moves.
    void StandsStillAtItsBox() {
        int boxes = 0;
        messageBox.m_OnShow = [&] {
            ++boxes;
            const std::string before = Traces();
            EverythingHappens();
            EXPECT_EQ(Traces(), before);
        };
        Load();
        EXPECT_EQ(boxes, 1);
    }
};

constexpr const char* kSenders = "[Senders]\r\nPLC1=1\r\n";

TEST_F(Life, ASecondInstanceAtItsBoxDeletesNoLogOverMidnight) {
    Ini("KeepForDays=365\r\n", kSenders);
    files.Put("C:\\App\\LogFiles\\20260301.Log", "old");
    singleInstance.m_Another = true;
    StandsStillAtItsBox();
    EXPECT_TRUE(files.FileExists("C:\\App\\LogFiles\\20260301.Log"));
}

TEST_F(Life, NoSenderIsMissedWhileTheBoxOfATakenPortStands) {
    Ini("Columns=t0\r\nViewPopupForm=1\r\n", kSenders);
    listener.m_PortInUse = true;
    StandsStillAtItsBox();
    EXPECT_TRUE(AlarmFiles().empty());
}

TEST_F(Life, NoSenderIsMissedWhileTheBoxOfTooManySendersStands) {
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=1\r\n";
    Ini("Columns=t0\r\n", senders);
    StandsStillAtItsBox();
    EXPECT_TRUE(AlarmFiles().empty());
}

TEST_F(Life, TheBoxOfTheSuiteLibraryHoldsEverythingToo) {
    runningApps.m_Missing = true;
    StandsStillAtItsBox();
}

TEST_F(Life, TheLanguageWindowHoldsEverythingToo) {
    files.Put("C:\\App\\VigrelReceiver.INI", "");
    std::string before, behind;
    otherWindows.m_OnLanguageWindow = [&] {
        before = Traces();
        EverythingHappens();
        behind = Traces();
    };
    EXPECT_EQ(Load(), eStartUp::NoLanguage);
    EXPECT_NE(before, "");
    EXPECT_EQ(behind, before);
}

TEST_F(Life, AStartThatWasGivenUpStaysDead) {
    Ini("", kSenders);
    listener.m_PortInUse = true;
    Load();
    const std::string before = Traces();
    EverythingHappens();
    EXPECT_EQ(Traces(), before);
}

TEST_F(Life, TheFirstIntervalsBeginWhenTheStartHasEnded) {
    Ini("", "[TCPIP]\r\nPort=12500\r\n");
    listener.m_PortInUse = true;
    messageBox.m_OnShow = [&] {
        EXPECT_FALSE(timerKeepAlive.Enabled());
        EXPECT_FALSE(timerPlay.Enabled());
    };
    Load();
    EXPECT_FALSE(timerKeepAlive.Enabled());
    listener.m_PortInUse = false;
    EXPECT_EQ(Load(), eStartUp::Running);
    EXPECT_TRUE(timerKeepAlive.Enabled());
    EXPECT_TRUE(timerPlay.Enabled());
}

// --- the end

TEST_F(Life, BehindAnAcceptedCloseNothingIsProcessedOrAnswered) {
    Ini("Columns=t0\r\nViewPopupForm=1\r\nShowInTaskBar=0\r\nEventSignal=3\r\n", kSenders);
    Start();
    listener.Knock(1);
    data.Arrive(MakeFrame("PLC1", "S1||before"));
    data.TakeSent();
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::SessionEnd));
    const std::string before = Traces();
    EverythingHappens();
    EXPECT_EQ(Traces(), before);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_EQ(popups.Open(), "");
    EXPECT_FALSE(timerKeepAlive.Enabled());
    EXPECT_FALSE(timerPlay.Enabled());
}

TEST_F(Life, ARefusedCloseLeavesEverythingGoing) {
    Start();
    EXPECT_FALSE(mainWindow.CloseFor(eCloseReason::Control));
    listener.Knock(1);
    data.Arrive(MakeFrame("PLC1", "S1||behind"));
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Life, WhileTheQuestionStandsAlarmsAreTaken) {
    Start();
    messageBox.m_OnShow = [&] {
        listener.Knock(1);
        data.Arrive(MakeFrame("PLC1", "S1||meanwhile"));
    };
    messageBox.m_Answers = {eMessageAnswer::Yes};
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::Control));
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Life, AskedToEndAgainWhileTheQuestionStandsItAsksNoSecondOne) {
    Start();
    messageBox.m_OnShow = [&] {
        messageBox.m_OnShow = nullptr;
        receiver->Stop(eCloseReason::Interrupt);
        mainWindow.CloseFor(eCloseReason::Control);
        menus.OnMenuExit();
    };
    messageBox.m_Answers = {eMessageAnswer::No};
    receiver->Stop(eCloseReason::Interrupt);
    EXPECT_EQ(messageBox.m_Shown.size(), 1u);
    // An answered question can be asked again.
    receiver->Stop(eCloseReason::Interrupt);
    EXPECT_EQ(messageBox.m_Shown.size(), 2u);
}

TEST_F(Life, AnEndWhileTheQuestionStandsIsNotDoneTwice) {
    Start();
    messageBox.m_OnShow = [&] { receiver->Stop(eCloseReason::SessionEnd); };
    messageBox.m_Answers = {eMessageAnswer::Yes};
    EXPECT_FALSE(mainWindow.CloseFor(eCloseReason::Control));
    EXPECT_FALSE(mainWindow.m_Open);
    const std::string log = Log();
    EXPECT_TRUE(log.ends_with("T10020\n")) << log;
    EXPECT_EQ(log.find("T10021"), std::string::npos);
}

TEST_F(Life, MenuExitAsksToClose) {
    Start();
    menus.OnMenuExit();
    EXPECT_EQ(messageBox.m_Shown.size(), 1u);
    EXPECT_TRUE(mainWindow.m_Open);
}

// --- told to end

TEST_F(Life, AStopAtABoxOfTheStartIsObeyed) {
    listener.m_PortInUse = true;
    Make();
    messageBox.m_OnShow = [&] {
        receiver->Stop(eCloseReason::SessionEnd);
        EXPECT_TRUE(otherWindows.m_DialogsRefused);
    };
    EXPECT_EQ(receiver->Start(), eStartUp::Stopped);
    EXPECT_EQ(transcript.Text().find("Vigrel_Receiver_Main: show"), std::string::npos);
}

TEST_F(Life, AStopInAStartThatGoesOnEndsTheStationInItsOrder) {
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=0\r\n";
    Ini("DisableShutdown=1\r\n", senders);
    Make();
    messageBox.m_OnShow = [&] { receiver->Stop(eCloseReason::SessionEnd); };
    EXPECT_EQ(receiver->Start(), eStartUp::Stopped);
    EXPECT_TRUE(Log().ends_with("T10011\nT10020\n")) << Log();
    EXPECT_FALSE(otherWindows.m_DialogsRefused);
}

TEST_F(Life, AnInterruptIsRefusedWhereTheStationMayNotBeClosed) {
    Ini("DisableShutdown=1\r\n");
    Make();
    EXPECT_EQ(receiver->Start(), eStartUp::Running);
    receiver->Stop(eCloseReason::Interrupt);
    EXPECT_TRUE(mainWindow.m_Open);
    EXPECT_TRUE(messageBox.m_Shown.empty());
    receiver->Stop(eCloseReason::SessionEnd);
    EXPECT_FALSE(mainWindow.m_Open);
    EXPECT_TRUE(Log().ends_with("T10020\n")) << Log();
}

TEST_F(Life, AnInterruptIsAskedAboutLikeAnyClose) {
    Make();
    EXPECT_EQ(receiver->Start(), eStartUp::Running);
    receiver->Stop(eCloseReason::Interrupt);
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"question, yes/no: T10022"});
    EXPECT_TRUE(mainWindow.m_Open);
    messageBox.m_Answers = {eMessageAnswer::Yes};
    receiver->Stop(eCloseReason::Interrupt);
    EXPECT_FALSE(mainWindow.m_Open);
    EXPECT_TRUE(Log().ends_with("T10021\n")) << Log();
}

TEST_F(Life, AnInterruptInTheStartCannotKeepTheSessionsEndOut) {
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=0\r\n";
    Ini("DisableShutdown=1\r\n", senders);
    Make();
    messageBox.m_OnShow = [&] {
        receiver->Stop(eCloseReason::SessionEnd);
        receiver->Stop(eCloseReason::Interrupt);
    };
    EXPECT_EQ(receiver->Start(), eStartUp::Stopped);
}

TEST_F(Life, AnInterruptInTheStartIsRefusedWhereTheStationMayNotBeClosed) {
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=0\r\n";
    Ini("DisableShutdown=1\r\n", senders);
    Make();
    messageBox.m_OnShow = [&] { receiver->Stop(eCloseReason::Interrupt); };
    EXPECT_EQ(receiver->Start(), eStartUp::Running);
    EXPECT_TRUE(mainWindow.m_Open);
    EXPECT_TRUE(mainWindow.m_Visible);
    EXPECT_TRUE(Log().ends_with("T10011\n")) << Log();
    listener.Knock(1);
    data.Arrive(MakeFrame("PLC1", "S1||taken"));
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(Life, WhatHasEndedIsNotEndedAgain) {
    Start();
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::SessionEnd));
    const std::string before = Traces();
    const std::vector<std::string> told = serviceManager.m_Told;
    receiver->DisplayIsLost();
    EXPECT_FALSE(mainWindow.CloseFor(eCloseReason::SessionEnd));
    receiver->Stop(eCloseReason::SessionEnd);
    EXPECT_EQ(Traces(), before);
    EXPECT_EQ(serviceManager.m_Told, told);
}

TEST(LifeStates, NothingWakesUpWhatHasEnded) {
    cLife life;
    EXPECT_TRUE(life.Starting());
    life.Run();
    EXPECT_TRUE(life.Running());
    life.End();
    life.Run();
    EXPECT_TRUE(life.Ended());
    EXPECT_FALSE(life.Running());
}

TEST(LifeStates, AGatedEventIsHeardWhileTheReceiverRuns) {
    cLife life;
    int heard = 0;
    std::function<void(int)> event = [&](int by) { heard += by; };
    life.Gate(event);
    event(1);
    EXPECT_EQ(heard, 0);
    life.Run();
    event(10);
    EXPECT_EQ(heard, 10);
    life.End();
    event(100);
    EXPECT_EQ(heard, 10);
}

TEST(LifeStates, AnEventThatNobodyHearsStaysOne) {
    cLife life;
    std::function<void()> nobody;
    life.Gate(nobody);
    EXPECT_FALSE(nobody);
}

TEST_F(Life, ALostDisplayIsTheLastWordOfTheLog) {
    Start();
    receiver->DisplayIsLost();
    const std::string before = Traces();
    EverythingHappens();
    EXPECT_EQ(Traces(), before);
    EXPECT_TRUE(Log().ends_with("T11008\n"));
}

TEST_F(Life, ADisplayThatGoesInTheMiddleOfTheEndTakesNoAlarmAlong) {
    Start();
    files.m_DiskFull = true;
    listener.Knock(1);
    data.Arrive(MakeFrame("PLC1", "S1||Fan"));
    files.m_DiskFull = false;
    ASSERT_TRUE(AlarmFiles().empty());
    // Accepted; what belongs to it comes next.
    EXPECT_TRUE(receiver->Form_QueryUnload(eCloseReason::SessionEnd));
    receiver->DisplayIsLost();
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_TRUE(Log().ends_with("T10020\n")) << Log();
}

TEST_F(Life, NoEventReachesAReceiverThatIsGone) {
    Start();
    receiver.reset();
    EXPECT_FALSE(timerKeepAlive.OnTick);
    EXPECT_FALSE(menus.OnMenuExit);
    EXPECT_FALSE(list.OnBeforeDrawRow);
    EXPECT_FALSE(list.OnRowHeight);
    const std::string before = Traces();
    EverythingHappens();
    EXPECT_EQ(Traces(), before);
    EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::Control));
}

}  // namespace
}  // namespace vigrel::testing
