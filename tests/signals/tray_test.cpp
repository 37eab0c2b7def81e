#include "signals/tray.h"

#include <gtest/gtest.h>

#include "support/fake_devices.h"
#include "support/fake_station.h"
#include "support/fake_timer.h"

namespace vigrel::testing {
namespace {

std::string Tip(int count) {
    return "Vigrel Alarm Receiver\r\nAlarm receiver of the Vigrel suite\r\nNya larm: " +
           std::to_string(count);
}

class Tray : public ::testing::Test, protected cFakeStation {
  protected:
    Tray() {
        view.SetUpColumns(settings);
        transcript.Take();
    }
    AlarmPtr AddAlarm(bool observed = false) {
        store.m_Alarms.push_back(MakeAlarm());
        store.m_Alarms.back()->m_Observed = observed ? True16 : False16;
        state.m_ListChanged = true;
        return store.m_Alarms.back();
    }
    std::string Tick() {
        m_Tray.TickTray();
        return transcript.Take();
    }
    // The images after each of some ticks: "2 1 2".
    std::string Icons(int ticks) {
        std::string icons;
        for (int tick = 0; tick < ticks; ++tick) {
            Tick();
            icons += (icons.empty() ? "" : " ") + std::to_string(m_Area.m_Image);
        }
        return icons;
    }

    cFakeNotificationArea m_Area{&transcript};
    cFakeTimer m_Timer;
    cTray m_Tray{{m_Area, m_Timer, list, mainWindow, store.m_Alarms, state, settings}};
};

// --- set-up

TEST_F(Tray, AProgramOutsideTheTaskBarShowsItsIcon) {
    settings.m_ShowInTaskBar = false;
    m_Tray.SetUp();
    EXPECT_EQ(transcript.Take(), "tray: icon -1\ntray: tooltip Vigrel Alarm Receiver\ntray: visible\n");
}

TEST_F(Tray, AProgramInTheTaskBarFeedsAnIconThatStaysInvisible) {
    m_Tray.SetUp();
    EXPECT_EQ(transcript.Take(), "");
    AddAlarm();
    EXPECT_EQ(Icons(3), "2 1 2");
    EXPECT_EQ(m_Area.m_ToolTip, Tip(1));
    EXPECT_FALSE(m_Area.m_Visible);
}

// --- flashing

TEST_F(Tray, TheFirstTickSetsTheRestingIconAndItStandsStill) {
    EXPECT_EQ(Tick(), "tray: icon 2\n");
    EXPECT_EQ(Tick(), "");
    Tick();
    for (int tick = 0; tick < 20; ++tick) EXPECT_EQ(Tick(), "");
}

TEST_F(Tray, AnAlarmWithAnyMarkCountsAsObserved) {
    AddAlarm()->m_Observed = 1;
    EXPECT_EQ(Icons(3), "2 2 2");
    EXPECT_EQ(m_Area.m_ToolTip, Tip(0));
}

TEST_F(Tray, WhileAnythingIsNotObservedTheIconChangesOnEveryTick) {
    AddAlarm();
    EXPECT_EQ(Icons(8), "2 1 2 1 2 1 2 1");
}

TEST_F(Tray, TheFlashKeepsThePhaseOfTheTicks) {
    Icons(3);
    AddAlarm();
    EXPECT_EQ(Icons(3), "1 2 1");
}

TEST_F(Tray, AcknowledgingEndsTheFlashing) {
    const AlarmPtr alarm = AddAlarm();
    EXPECT_EQ(Icons(2), "2 1");
    alarm->m_Observed = True16;
    state.m_ListChanged = true;
    EXPECT_EQ(Icons(4), "2 2 2 2");
}

TEST_F(Tray, FlashingGoesOnWithTheSoundOff) {
    AddAlarm();
    state.m_SoundState = 0;
    EXPECT_EQ(Icons(4), "2 1 2 1");
    m_Area.OnFirstClick();
    EXPECT_EQ(Icons(2), "2 1");
}

TEST_F(Tray, ObservedAlarmsDoNotFlash) {
    AddAlarm(true);
    EXPECT_EQ(Icons(4), "2 2 2 2");
}

// --- counting

TEST_F(Tray, AChangedListIsCountedAndRedrawnOnce) {
    AddAlarm();
    EXPECT_EQ(Tick(), "list: redraw\ntray: icon 2\n");
    EXPECT_FALSE(state.m_ListChanged);
    EXPECT_EQ(Tick(), "tray: icon 1\n");
}

TEST_F(Tray, AnUnchangedListIsNotCountedAgain) {
    AddAlarm();
    Icons(3);
    AddAlarm();
    state.m_ListChanged = false;
    Icons(2);
    EXPECT_EQ(m_Area.m_ToolTip, Tip(1));
    state.m_ListChanged = true;
    Tick();
    EXPECT_EQ(m_Area.m_ToolTip, Tip(2));
}

TEST_F(Tray, MoreAlarmsThanTheCountHoldsReadAs32767) {
    store.m_Alarms.assign(100000, MakeAlarm());
    state.m_ListChanged = true;
    EXPECT_EQ(Icons(4), "2 1 2 1");
    EXPECT_EQ(m_Area.m_ToolTip, Tip(32767));
    store.m_Alarms.resize(32767);
    state.m_ListChanged = true;
    Tick();
    EXPECT_EQ(m_Area.m_ToolTip, Tip(32767));
    store.m_Alarms.resize(32766);
    state.m_ListChanged = true;
    Tick();
    EXPECT_EQ(m_Area.m_ToolTip, Tip(32766));
}

// --- the tooltip

TEST_F(Tray, TheFirstTwoTicksLeaveTheTooltipOfTheStart) {
    settings.m_ShowInTaskBar = false;
    m_Tray.SetUp();
    Icons(2);
    EXPECT_EQ(m_Area.m_ToolTip, "Vigrel Alarm Receiver");
    EXPECT_EQ(Tick(), "tray: tooltip " + Tip(0) + "\n");
}

TEST_F(Tray, TheDelayOfTheTooltipIsCountedInTheTimersIntervals) {
    m_Timer.SetInterval(1001);
    Tick();
    EXPECT_EQ(m_Area.m_ToolTip, Tip(0));
}

TEST_F(Tray, TheTooltipIsSetOnlyWhenItDiffers) {
    AddAlarm(true);
    Icons(3);
    AddAlarm(true);
    EXPECT_EQ(Tick(), "list: redraw\n");
    AddAlarm();
    EXPECT_EQ(Tick(), "list: redraw\ntray: tooltip " + Tip(1) + "\n");
}

TEST_F(Tray, SixtyDaysOfTicksFlashAndCountAsTheFirstDay) {
    // What is counted are milliseconds: with longer intervals the days go by in fewer ticks.
    m_Timer.SetInterval(5000);
    const AlarmPtr alarm = AddAlarm();
    for (int day = 1; day <= 60; ++day) {
        for (int tick = 0; tick < 86400 / 5; ++tick) m_Tray.TickTray();
        transcript.Take();
        alarm->m_Observed = True16;
        state.m_ListChanged = true;
        EXPECT_EQ(Tick(), "list: redraw\ntray: tooltip " + Tip(0) + "\ntray: icon 2\n") << day;
        EXPECT_EQ(Tick(), "") << day;
        alarm->m_Observed = False16;
        state.m_ListChanged = true;
        EXPECT_EQ(Icons(4), "2 1 2 1") << day;
        EXPECT_EQ(m_Area.m_ToolTip, Tip(1)) << day;
    }
}

// --- notices

TEST_F(Tray, AClickSilencesTheSoundOnlyWhenSetSo) {
    for (const auto* click : {&m_Area.OnFirstClick, &m_Area.OnSecondClick}) {
        settings.m_EventSignalStopByNotifyClick = false;
        state.m_SoundState = 4;
        (*click)();
        EXPECT_EQ(state.m_SoundState, 4);
        settings.m_EventSignalStopByNotifyClick = true;
        (*click)();
        EXPECT_EQ(state.m_SoundState, 0);
    }
    EXPECT_EQ(transcript.Take(), "");
    EXPECT_EQ(Log(), "");
}

TEST_F(Tray, OpeningBringsTheHiddenWindowBackInItsOrdinaryState) {
    mainWindow.m_State = eWindowState::Minimised;
    m_Area.OnOpen();
    EXPECT_EQ(transcript.Take(),
              "Vigrel_Receiver_Main: normal\nVigrel_Receiver_Main: show\nVigrel_Receiver_Main: focus\n");
    EXPECT_EQ(Log(), "");
}

TEST_F(Tray, OpeningShowsAWindowThatTakesNoFocusYet) {
    mainWindow.m_RefusesFocus = true;
    mainWindow.m_State = eWindowState::Minimised;
    EXPECT_NO_THROW(m_Area.OnOpen());
    EXPECT_TRUE(mainWindow.Visible());
    EXPECT_EQ(mainWindow.State(), eWindowState::Normal);
}

TEST_F(Tray, OpeningMakesAMaximisedWindowOrdinary) {
    mainWindow.m_State = eWindowState::Maximised;
    m_Area.OnOpen();
    EXPECT_EQ(mainWindow.State(), eWindowState::Normal);
}

TEST_F(Tray, OpeningLeavesTheSoundAlone) {
    settings.m_EventSignalStopByNotifyClick = true;
    state.m_SoundState = 4;
    m_Area.OnOpen();
    EXPECT_EQ(state.m_SoundState, 4);
}

}  // namespace
}  // namespace vigrel::testing
