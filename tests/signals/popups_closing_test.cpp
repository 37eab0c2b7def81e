#include "common/failure.h"
#include "signals/popups_fixture.h"

namespace vigrel::testing {
namespace {

class ClosePopup : public cPopupsTest {};

TEST_F(ClosePopup, AClickOnThePictureClosesFromCode) {
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    Show("C");
    Show("C");
    m_Transcript.Take();
    m_Maker[1].OnPictureClick(1);
    EXPECT_EQ(m_Transcript.Take(),
              "acknowledge Alarm 1\n"
              "popup 2: show\n"
              "popup 1: closed\n");
    EXPECT_EQ(m_Maker.Open(), "2");
    EXPECT_EQ(LogText(),
              "shown Active - Alarm 1 (/C//)\n"
              "shown Active - Alarm 2 (/C//)\n"
              "closed Active - Alarm 1 (/C//)\n");
}

// A change of its state can still come from the screen.
TEST_F(ClosePopup, WhatComesToItsWindowBehindTheCloseReachesNobody) {
    Show("C");
    m_Maker[1].Close();
    m_Transcript.Take();
    m_Maker[1].SetWidth(3000);
    EXPECT_EQ(m_Transcript.Take(), "popup 1: width 3000\n");
    EXPECT_FALSE(m_Maker[1].OnResize);
    EXPECT_FALSE(m_Maker[1].OnPictureClick);
}

TEST_F(ClosePopup, TheWindowsOwnCloseAcknowledgesWhenThatIsSet) {
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    Show("C");
    m_Transcript.Take();
    EXPECT_TRUE(m_Maker[1].CloseFor(eCloseReason::Control));
    EXPECT_EQ(m_Transcript.Take(), "acknowledge Alarm 1\npopup 1: closed\n");
}

TEST_F(ClosePopup, WithoutTheSettingNothingIsAcknowledged) {
    Show("C");
    m_Maker[1].Close();
    EXPECT_EQ(m_Transcript.Take().find("acknowledge"), std::string::npos);
}

TEST_F(ClosePopup, ACloseByTheSystemDoesNotAcknowledge) {
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    for (const auto reason :
         {eCloseReason::SessionEnd, eCloseReason::TaskManager, static_cast<eCloseReason>(5)}) {
        const int number = Show("C");
        m_Transcript.Take();
        EXPECT_TRUE(m_Maker[number].CloseFor(reason));
        EXPECT_EQ(m_Transcript.Take(), "popup " + std::to_string(number) + ": closed\n");
    }
    EXPECT_EQ(LogText(),
              "shown Active - Alarm 1 (/C//)\n"
              "ended Active - Alarm 1 (/C//)\n"
              "shown Active - Alarm 2 (/C//)\n"
              "ended Active - Alarm 2 (/C//)\n"
              "shown Active - Alarm 3 (/C//)\n"
              "ended Active - Alarm 3 (/C//)\n");
}

TEST_F(ClosePopup, TheNextOneIsSelectedWhileTheClosingOneStillCounts) {
    m_Settings.m_ViewOnlyOnePopupForm = true;
    Show("C");
    Show("C");
    int countAtShow = 0;
    m_Maker[2].OnResize = [&] { countAtShow = m_State.m_PopupFormCount; };
    m_Maker[2].m_State = eWindowState::Minimised;
    m_Maker[1].Close();
    EXPECT_EQ(countAtShow, 2);
    EXPECT_EQ(m_State.m_PopupFormCount, 1);
}

TEST_F(ClosePopup, AFailedAcknowledgementStillBringsTheNextPopup) {
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    m_Settings.m_ViewOnlyOnePopupForm = true;
    m_FailAck = true;
    Show("C");
    Show("C");
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "2");
    EXPECT_EQ(m_State.m_PopupFormCount, 1);
}

TEST_F(ClosePopup, AnAlarmOutlivesItsStoreInThePopup) {
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    AlarmPtr alarm = Alarm("C");
    m_Popups.ShowPopup(alarm);
    alarm.reset();
    m_Maker[1].Close();
    EXPECT_NE(m_Transcript.Take().find("acknowledge Alarm 1\n"), std::string::npos);
}

// --- the signal

TEST_F(ClosePopup, AnyClosedPopupEndsTheSignal) {
    Show("C");
    Show("C");
    m_State.m_SoundState = 4;
    m_Maker[2].Close();
    EXPECT_EQ(m_State.m_SoundState, 0);
}

TEST_F(ClosePopup, UntilNoMorePopupsTheLastOneAloneEndsTheSignal) {
    m_Settings.m_EventSignalUntilNoMorePopupForms = true;
    Show("C");
    Show("C");
    m_State.m_SoundState = 3;
    m_Maker[1].Close();
    EXPECT_EQ(m_State.m_SoundState, 3);
    m_Maker[2].CloseFor(eCloseReason::SessionEnd);
    EXPECT_EQ(m_State.m_SoundState, 0);
}

TEST_F(ClosePopup, HiddenPopupsKeepTheSignalOn) {
    m_Settings.m_EventSignalUntilNoMorePopupForms = true;
    m_Settings.m_ViewOnlyOnePopupForm = true;
    Show("C");
    Show("C");
    m_State.m_SoundState = 3;
    m_Maker[1].Close();
    EXPECT_EQ(m_State.m_SoundState, 3);
}

// --- closing all

class ClosePopups : public cPopupsTest {};

TEST_F(ClosePopups, ThreePopupsGoOneByOneAndOtherWindowsStay) {
    cFakeWindow debug("Vigrel_Receiver_Debug");
    Show("C");
    m_List.Add(debug);
    Show("C");
    Show("C");
    m_Transcript.Take();
    m_Popups.ClosePopups();
    EXPECT_EQ(m_Transcript.Take(),
              "popup 2: show\n"
              "popup 1: closed\n"
              "popup 3: show\n"
              "popup 2: closed\n"
              "popup 3: closed\n");
    EXPECT_EQ(m_List.m_Windows, (std::vector<cWindow*>{&m_Main, &debug}));
    EXPECT_EQ(m_State.m_PopupFormCount, 0);
}

TEST_F(ClosePopups, APopupThatIsTheFirstOfAllWindowsGoesToo) {
    m_List.Remove(m_Main);
    Show("C");
    Show("C");
    m_Popups.ClosePopups();
    EXPECT_EQ(m_Maker.Open(), "");
}

TEST_F(ClosePopups, HiddenPopupsGoToo) {
    m_Settings.m_ViewOnlyOnePopupForm = true;
    for (int i = 0; i < 3; ++i) Show("C");
    m_Popups.ClosePopups();
    EXPECT_EQ(m_Maker.Open(), "");
    EXPECT_EQ(m_State.m_PopupFormCount, 0);
}

TEST_F(ClosePopups, EachOneIsLoggedAndAcknowledgedInTurn) {
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    Show("C");
    Show("D");
    m_Popups.ClosePopups();
    EXPECT_EQ(Steps("acknowledge"), "acknowledge Alarm 1, acknowledge Alarm 2");
    EXPECT_EQ(LogText(),
              "shown Active - Alarm 1 (/C//)\n"
              "shown Active - Alarm 2 (/D//)\n"
              "closed Active - Alarm 1 (/C//)\n"
              "closed Active - Alarm 2 (/D//)\n");
}

TEST_F(ClosePopups, OneThatRefusesStaysAndTheOthersGo) {
    for (int i = 0; i < 3; ++i) Show("C");
    m_Maker[2].m_RefuseClose = true;
    m_Popups.ClosePopups();
    EXPECT_EQ(m_Maker.Open(), "2");
    EXPECT_EQ(m_State.m_PopupFormCount, 1);
}

TEST_F(ClosePopups, WithACountOfZeroNothingIsWalked) {
    Show("C");
    m_State.m_PopupFormCount = 0;
    m_Popups.ClosePopups();
    EXPECT_EQ(m_Maker.Open(), "1");
}

TEST_F(ClosePopups, PopupsThatAreOpenAtTheEndAreLetGo) {
    {
        cPopups popups(Services(m_List, m_Maker));
        popups.ShowPopup(Alarm("C"));
    }
    m_Transcript.Take();
    m_Maker[1].SetWidth(3000);
    m_Maker[1].Close();
    EXPECT_EQ(m_Transcript.Take(), "popup 1: width 3000\npopup 1: closed\n");
    EXPECT_FALSE(m_Maker[1].OnQueryUnload);
    EXPECT_FALSE(m_Maker[1].OnUnload);
    EXPECT_FALSE(m_Maker[1].OnResize);
    EXPECT_FALSE(m_Maker[1].OnPictureClick);
}

}  // namespace
}  // namespace vigrel::testing
