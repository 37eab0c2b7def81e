#include "link/alarm_intake.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

class AlarmIntake : public ::testing::Test, public cFakeStation {
  protected:
    AlarmIntake() {
        LoadTexts({10038});
        view.SetUpColumns(settings);
        files.m_OnCall = [this](std::string_view operation, std::string_view path) {
            if (operation == "rename" && path.find(".alm") != std::string_view::npos)
                transcript.Add(last->m_Record != 0 ? "alarm with a row saved" : "alarm without a row saved");
        };
        mainWindow.Show();
        transcript.Take();
    }
    std::string Process(std::int16_t status, const std::string& category = "Fire") {
        transcript.Take();
        last = MakeAlarm("text", category, status);
        intake.ProcessAlarm(last);
        return transcript.Take();
    }
    bool Happens(const std::string& step, std::int16_t status, const std::string& category = "Fire") {
        return Process(status, category).find(step) != std::string::npos;
    }

    AlarmPtr last;
    bool printed = true;
    bool failing = false;
    void Step(const std::string& step) {
        transcript.Add(step);
        if (failing) throw cFailure(eFailure::Device, "made to fail");
    }
    cAlarmIntake intake{{listed,
                         view,
                         mainWindow,
                         log,
                         texts,
                         settings,
                         {[this](const AlarmPtr&) {
                              Step("popup, " + std::to_string(store.m_Alarms.size()) + " in the store");
                          },
                          [this](const cCategorySpecificSetting&) { Step("sound"); },
                          [this](const cVigrelRecieverAlarm&) {
                              Step("print");
                              return printed;
                          },
                          [this](const cVigrelRecieverAlarm&) { Step("light"); }}}};
};

TEST_F(AlarmIntake, TheStepsRunInTheirOrder) {
    settings.m_ViewPopupForm = true;
    mainWindow.SetState(eWindowState::Minimised);
    EXPECT_EQ(Process(StatusActive),
              "alarm with a row saved\npopup, 1 in the store\nsound\nVigrel_Receiver_Main: normal\n"
              "Vigrel_Receiver_Main: focus\nVigrel_Receiver_Main: show\nprint\nlist: take over 1 row\n"
              "list: show record 1\nlist: clear selection\nlight\n");
    EXPECT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(list.Rows().size(), 1u);
}

TEST_F(AlarmIntake, AnAlarmThatTheLimitTakesAtOnceLeavesNoFile) {
    settings.m_MaxEvents = 1;
    Process(StatusActive);
    const AlarmPtr kept = last;
    clock.AddSeconds(-60);  // a clock set back: the next alarm is the oldest
    Process(StatusActive);
    EXPECT_EQ(store.m_Alarms.front(), kept);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_TRUE(files.FileExists(store.FileName(kept->m_FileId)));
}

TEST_F(AlarmIntake, WithTheDefaultsThereIsNoPopupAndTheRestForEveryStatus) {
    for (std::int16_t status = 0; status < 3; ++status) {
        const std::string steps = Process(status);
        EXPECT_EQ(steps.find("popup"), std::string::npos);
        for (const char* step : {"sound", "focus", "print", "light"}) {
            EXPECT_NE(steps.find(step), std::string::npos) << step << status;
        }
    }
}

TEST_F(AlarmIntake, APopupAndTheWindowComeTogether) {
    settings.m_ViewPopupForm = true;
    const std::string steps = Process(StatusActive);
    EXPECT_NE(steps.find("popup"), std::string::npos);
    EXPECT_NE(steps.find("focus"), std::string::npos);
}

TEST_F(AlarmIntake, PopupsOnlyForActiveEventsWhenSetSo) {
    settings.m_ViewPopupForm = true;
    settings.m_PopupFormOnlyForActive = true;
    EXPECT_FALSE(Happens("popup", StatusInactive));
    EXPECT_TRUE(Happens("popup", StatusActive));
    EXPECT_FALSE(Happens("popup", StatusAcked));
}

TEST_F(AlarmIntake, PopupsOnlyForListedCategoriesByWholeNames) {
    settings.m_ViewPopupForm = true;
    settings.m_ViewOnlyPopupFormForCategory = ",FIREDOOR, GAS,";
    EXPECT_FALSE(Happens("popup", StatusActive, "Fire"));
    EXPECT_TRUE(Happens("popup", StatusActive, "FireDoor"));
    EXPECT_FALSE(Happens("popup", StatusActive, "Gas"));
    EXPECT_TRUE(Happens("popup", StatusActive, " gas"));
}

TEST_F(AlarmIntake, SoundOnlyForActiveEventsWhenSetSoAndTheWindowComesAllTheSame) {
    settings.m_EventSignalOnlyForActive = true;
    const std::string steps = Process(StatusInactive);
    EXPECT_EQ(steps.find("sound"), std::string::npos);
    EXPECT_NE(steps.find("focus"), std::string::npos);
    EXPECT_TRUE(Happens("sound", StatusActive));
    EXPECT_FALSE(Happens("sound", StatusAcked));
}

TEST_F(AlarmIntake, TheWindowComesByItsTwoSettings) {
    settings.m_EventRestoreOnlyForActive = true;
    EXPECT_FALSE(Happens("focus", StatusInactive));
    EXPECT_TRUE(Happens("focus", StatusActive));
    settings.m_EventRestore = false;
    EXPECT_FALSE(Happens("focus", StatusActive));
}

// Each of the settings that keep a signal to active events keeps that one alone.
TEST_F(AlarmIntake, ASettingForActiveEventsRestrictsItsOwnStepAlone) {
    settings.m_ViewPopupForm = true;
    const std::vector<std::pair<bool*, std::string>> restricted{
        {&settings.m_PopupFormOnlyForActive, "popup"},
        {&settings.m_EventSignalOnlyForActive, "sound"},
        {&settings.m_EventRestoreOnlyForActive, "focus"}};
    for (const auto& [setting, restrictedStep] : restricted) {
        *setting = true;
        for (const std::int16_t status : {StatusInactive, StatusActive, StatusAcked}) {
            for (const std::string step : {"popup", "sound", "focus", "print", "light"}) {
                const bool happens = step != restrictedStep || status == StatusActive;
                EXPECT_EQ(Happens(step, status), happens) << step << " at status " << status;
            }
        }
        *setting = false;
    }
}

TEST_F(AlarmIntake, PrinterAndLightAskForNoOtherSetting) {
    settings.m_EventRestore = false;
    EXPECT_TRUE(Happens("print", StatusActive));
    EXPECT_TRUE(Happens("light", StatusActive));
    settings.m_PrinterPort = 0;
    EXPECT_TRUE(Happens("light", StatusActive));
}

TEST_F(AlarmIntake, AHiddenWindowIsShownThoughItTakesNoFocus) {
    mainWindow.Hide();
    Process(StatusActive);
    EXPECT_TRUE(mainWindow.Visible());
}

TEST_F(AlarmIntake, AMaximisedWindowStaysMaximised) {
    mainWindow.SetState(eWindowState::Maximised);
    Process(StatusActive);
    EXPECT_EQ(mainWindow.State(), eWindowState::Maximised);
}

TEST_F(AlarmIntake, PortZeroPrintsNothing) {
    settings.m_PrinterPort = 0;
    EXPECT_FALSE(Happens("print", StatusActive));
    settings.m_PrinterPort = -1;
    EXPECT_FALSE(Happens("print", StatusActive));
}

TEST_F(AlarmIntake, OnlyAFailedPrintIsLogged) {
    printed = false;
    Process(StatusActive);
    EXPECT_EQ(Log(), "T10038 Active - text (/Fire//)\n");
}

TEST_F(AlarmIntake, AStepThatFailsStopsNoneBehindIt) {
    failing = true;
    settings.m_ViewPopupForm = true;
    const std::string steps = Process(StatusActive);
    for (const char* step : {"popup", "sound", "focus", "print", "light"}) {
        EXPECT_NE(steps.find(step), std::string::npos) << step;
    }
    EXPECT_EQ(list.Rows().size(), 1u);
    EXPECT_EQ(Log(), "");
}

TEST_F(AlarmIntake, AFileThatCannotBeWrittenStopsNoSignal) {
    files.m_DiskFull = true;
    settings.m_ViewPopupForm = true;
    const std::string steps = Process(StatusActive);
    EXPECT_NE(steps.find("popup"), std::string::npos);
    EXPECT_NE(steps.find("light"), std::string::npos);
    EXPECT_EQ(store.m_Alarms.size(), 1u);
}

TEST_F(AlarmIntake, AnEventOfACategoryWithoutSectionUsesTheDefaultSettings) {
    Process(StatusActive, "Unknown");
    EXPECT_EQ(&last->m_CategorySpecificSetting.get(), &categories.m_DefaultCategorySetting);
}

TEST_F(AlarmIntake, TheOperatorsSelectionGoesAtTheNextEvent) {
    Process(StatusActive);
    list.Select(last->m_Record);
    Process(StatusInactive);
    EXPECT_TRUE(list.SelectedRows().empty());
}

}  // namespace
}  // namespace vigrel::testing
