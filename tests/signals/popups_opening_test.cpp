#include <limits>

#include "common/failure.h"
#include "common/text.h"
#include "signals/popups_fixture.h"

namespace vigrel::testing {
namespace {

class ShowPopup : public cPopupsTest {
  protected:
    // The places of the next popups in pixels: "50,50 100,100".
    std::string Places(int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            const int number = Show("C");
            text += (i > 0 ? " " : "") + NumberText(m_Maker[number].Left() / 15) + "," +
                    NumberText(m_Maker[number].Top() / 15);
        }
        return text;
    }
};

TEST_F(ShowPopup, RunsItsStepsInOneOrder) {
    Configure(
        "X_Size=200\nY_Size=100\nWindowPosition=Static\nX_Start=10\nY_Start=20\n"
        "FontName= Verdana \nFontSize=9.5\nFontBold=1\n");
    const auto setting =
        Setting("BackColor_Active=1,0,0\nForeColor_Active=2,0,0\nEventPopupFormat=format\nExtraText=extra\n");
    const AlarmPtr alarm = Alarm("C");
    alarm->m_CategorySpecificSetting = setting;
    m_Files.m_OnCall = [this](std::string_view, std::string_view path) {
        if (path.ends_with(".Log")) m_Transcript.Add("log written");
    };
    EXPECT_EQ(m_Popups.ShowPopup(alarm), 1);
    EXPECT_EQ(m_Transcript.Take(),
              "popup 1: caption \"Title (Plant)\"\n"
              "popup 1: label \"Alarm 1/format/extra\"\n"
              "popup 1: fore colour 2\n"
              "popup 1: label fore colour 2\n"
              "popup 1: back colour 1\n"
              "popup 1: label back colour 1\n"
              "popup 1: picture 0 back colour 1\n"
              "popup 1: picture 1 back colour 1\n"
              "popup 1: picture 2 back colour 1\n"
              "popup 1: picture 3 back colour 1\n"
              "popup 1: label font Verdana 9.5\n"
              "popup 1: label font style bold\n"
              "log written\n"
              "popup 1: picture 1 visible\n"
              "popup 1: left 150\n"
              "popup 1: top 300\n"
              "popup 1: width 3000\n"
              "popup 1: height 1500\n"
              "popup 1: left 288000\n"
              "popup 1: top 230400\n"
              "popup 1: show\n"
              "popup 1: topmost\n"
              "popup 1: left 150\n"
              "popup 1: top 300\n");
    EXPECT_EQ(LogText(), "shown Active - Alarm 1 (/C//)\n");
    EXPECT_EQ(m_State.m_PopupFormCount, 1);
}

TEST_F(ShowPopup, KeepsWhatTheOrderNeedsOfTheEvent) {
    m_Settings.m_PopupFormTopMostCategory = "A,B";
    const AlarmPtr alarm = Alarm("B");
    m_Popups.ShowPopup(alarm);
    const Vigrel_Receiver_Popup* popup = m_Popups.SelectTopPopup(nullptr);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->m_Alarm, alarm);
    EXPECT_EQ(popup->m_TimeStamp, m_Clock.Now());
    EXPECT_EQ(popup->m_FormId, 1);
    EXPECT_EQ(popup->m_PriorityIndex, 1);
}

TEST_F(ShowPopup, ASecondEventOpensASecondPopupEvenForTheSameAlarm) {
    const AlarmPtr alarm = Alarm("C");
    m_Popups.ShowPopup(alarm);
    m_Popups.ShowPopup(alarm);
    EXPECT_EQ(m_Maker.Visible(), "1 2");
    EXPECT_EQ(m_State.m_PopupFormCount, 2);
}

TEST_F(ShowPopup, EachStatusShowsItsOwnPictureAlone) {
    for (std::int16_t status = 0; status < 4; ++status) {
        const int number = Show("C", status);
        for (int picture = 0; picture < 4; ++picture) {
            EXPECT_EQ(m_Maker[number].m_Pictures[picture].visible, picture == status) << status;
        }
    }
}

TEST_F(ShowPopup, TheCaptionNamesTheInstallationAsTheFileHasItNow) {
    Show("C");
    Configure("", "Object=Other\n");
    Show("C");
    Configure("", "");
    Show("C");
    EXPECT_EQ(m_Maker[1].m_Caption, "Title (Plant)");
    EXPECT_EQ(m_Maker[2].m_Caption, "Title (Other)");
    EXPECT_EQ(m_Maker[3].m_Caption, "Title (none)");
}

TEST_F(ShowPopup, NumbersGiveOneFirstAndAFailedCallTakesOneToo) {
    EXPECT_EQ(m_Popups.ShowPopup(Alarm("C")), 1);
    m_Maker.m_FailNext = true;
    SkipFailure([&] { m_Popups.ShowPopup(Alarm("C")); });
    m_Maker.m_FailNext = false;
    EXPECT_EQ(m_Popups.ShowPopup(Alarm("C")), 3);
}

TEST(NextFormId, BehindTenMillionComesZero) {
    EXPECT_EQ(NextFormId(0), 1);
    EXPECT_EQ(NextFormId(9999999), 10000000);
    EXPECT_EQ(NextFormId(10000000), 0);
}

// --- font

TEST_F(ShowPopup, TheFontHasItsDefaults) {
    Show("C");
    EXPECT_EQ(Steps("label font"), "label font MS Sans Serif 8, label font style plain");
}

TEST_F(ShowPopup, BoldAndItalicAreAnyNumberButZero) {
    Configure("FontBold=-1\nFontItalic=2x\n");
    Show("C");
    EXPECT_EQ(Steps("label font style"), "label font style bold italic");
    Configure("FontBold=yes\nFontItalic=1\n");
    Show("C");
    EXPECT_EQ(Steps("label font style"), "label font style italic");
}

TEST_F(ShowPopup, BoldAndItalicAreRoundedAsAllWholeNumbersAre) {
    Configure("FontBold=0.5\nFontItalic=0.6\n");
    Show("C");
    EXPECT_EQ(Steps("label font style"), "label font style italic");
}

// --- place

TEST_F(ShowPopup, ByDefaultTheWindowKeepsItsPlaceAndIsMovedAwayAroundTheShow) {
    Show("C");
    std::string steps;
    for (const std::string& line : SplitLines(m_Transcript.Take())) {
        if (line.find("left") != std::string::npos || line.find("top ") != std::string::npos ||
            line.find("show") != std::string::npos) {
            steps += line.substr(9) + ";";
        }
    }
    EXPECT_EQ(steps, "left 288000;top 230400;show;left 1800;top 2300;");
}

TEST_F(ShowPopup, APlaceThatIsNoWholeTwipIsRoundedToTheEvenNeighbour) {
    m_Screen.m_TwipsPerPixel = 12.5;
    Configure("WindowPosition=STATIC\nX_Start=1\nY_Start=3\n");
    Show("C");
    EXPECT_EQ(m_Maker[1].Left(), 12);
    EXPECT_EQ(m_Maker[1].Top(), 38);
}

TEST_F(ShowPopup, AStaticPlaceIsThatOfEveryPopup) {
    Configure("WindowPosition=sTaTiC\nX_Start=7\nY_Start=9\n");
    EXPECT_EQ(Places(2), "7,9 7,9");
}

TEST_F(ShowPopup, AStaticPlaceBesideTheLeftEdgeIsTheMakers) {
    Configure("WindowPosition=STATIC\nX_Start=-1\nY_Start=9\n");
    Show("C");
    EXPECT_EQ(m_Maker[1].Left(), 1800);
    EXPECT_EQ(m_Maker[1].Top(), 2300);
}

TEST_F(ShowPopup, AnUpperEdgeAboveTheScreenIsTakenAsItIs) {
    Configure("WindowPosition=STATIC\nX_Start=0\nY_Start=-4\n");
    EXPECT_EQ(Places(1), "0,-4");
}

TEST_F(ShowPopup, MovingWithoutBoundsFallsBackToTheStartAtOnce) {
    Configure("WindowPosition=MOVING\n");
    EXPECT_EQ(Places(3), "50,50 50,50 50,50");
}

TEST_F(ShowPopup, MovingRunsToItsBoundAndStartsAnew) {
    Configure("WindowPosition=MOVING\nX_Stop=500\nY_Stop=2000\n");
    EXPECT_EQ(Places(11),
              "50,50 100,100 150,150 200,200 250,250 300,300 350,350 400,400 450,450 500,500 50,50");
}

TEST_F(ShowPopup, MovingTakesBothAxesBackWhenOnePassesItsBound) {
    Configure("WindowPosition=MOVING\nX_Start=0\nY_Start=10\nX_Step=5\nY_Step=20\nX_Stop=500\nY_Stop=50\n");
    EXPECT_EQ(Places(5), "0,10 5,30 10,50 0,10 5,30");
}

TEST_F(ShowPopup, MovingWithANegativeStepNeverStartsAnew) {
    Configure(
        "WindowPosition=MOVING\nX_Start=30\nY_Start=30\nX_Step=0\nY_Step=-20\nX_Stop=500\nY_Stop=500\n");
    EXPECT_EQ(Places(5), "30,30 30,10 30,-10 30,-30 30,-50");
}

TEST_F(ShowPopup, MovingBeyondTheLeftEdgeLeavesThePlaceToTheMaker) {
    Configure("WindowPosition=MOVING\nX_Start=10\nY_Start=0\nX_Step=-20\nY_Step=0\nX_Stop=99\nY_Stop=99\n");
    EXPECT_EQ(Places(1), "10,0");
    Show("C");
    EXPECT_EQ(m_Maker[2].Left(), 2100);
    EXPECT_EQ(m_Maker[2].Top(), 2600);
}

TEST_F(ShowPopup, AStaticPlaceStartsNoMovingSequence) {
    Configure("WindowPosition=STATIC\nX_Start=7\nY_Start=9\n");
    EXPECT_EQ(Places(1), "7,9");
    Configure("WindowPosition=MOVING\nX_Start=50\nY_Start=60\nX_Stop=900\nY_Stop=900\n");
    EXPECT_EQ(Places(2), "50,60 100,110");
}

TEST_F(ShowPopup, AStepIsRoundedBeforeItIsAdded) {
    Configure(
        "WindowPosition=MOVING\nX_Start=51\nY_Start=51\nX_Step=0.5\nY_Step=1.5\nX_Stop=900\nY_Stop=900\n");
    EXPECT_EQ(Places(3), "51,51 51,53 51,55");
}

TEST_F(ShowPopup, MovingStartsOnlyOnceAndGoesOnFromAnotherKindsPlace) {
    Configure("WindowPosition=MOVING\nX_Stop=900\nY_Stop=900\n");
    EXPECT_EQ(Places(2), "50,50 100,100");
    Configure("");
    Show("C");
    Configure("WindowPosition=MOVING\nX_Stop=900\nY_Stop=900\n");
    EXPECT_EQ(Places(1), "49,49");
}

TEST_F(ShowPopup, AStartThatCannotBeReadIsStillTheNextPopupsPlace) {
    Configure("WindowPosition=MOVING\nX_Start=1e10\n");
    EXPECT_THROW(Show("C"), cFailure);
    Configure("WindowPosition=MOVING\nX_Start=70\nY_Start=80\nX_Stop=900\nY_Stop=900\n");
    EXPECT_EQ(Places(2), "70,80 120,130");
}

TEST_F(ShowPopup, ABoundThatIsReachedIsNotPassed) {
    Configure("WindowPosition=MOVING\nX_Stop=100\nY_Stop=100\n");
    EXPECT_EQ(Places(3), "50,50 100,100 50,50");
}

TEST_F(ShowPopup, AnEditOfTheFileTakesEffectAtTheNextPopup) {
    Configure("WindowPosition=STATIC\nX_Start=1\nY_Start=2\n");
    EXPECT_EQ(Places(1), "1,2");
    Configure("WindowPosition=STATIC\nX_Start=3\nY_Start=4\n");
    EXPECT_EQ(Places(1), "3,4");
}

TEST_F(ShowPopup, NumbersAreTheirLeadingPartRounded) {
    Configure("WindowPosition=STATIC\nX_Start=2.5 pixels\nY_Start=none\n");
    EXPECT_EQ(Places(1), "2,0");
}

// --- size

TEST_F(ShowPopup, WithOneSizeOnlyTheDesignSizeStaysOnBothAxes) {
    for (const char* size : {"X_Size=300\n", "Y_Size=300\n", "X_Size=300\nY_Size=-1\n", ""}) {
        Configure(size);
        const int number = Show("C");
        EXPECT_EQ(m_Maker[number].InnerWidth(), 6768) << size;
        EXPECT_EQ(m_Maker[number].InnerHeight(), 1260) << size;
    }
}

TEST_F(ShowPopup, ASizeOfZeroIsASize) {
    Configure("X_Size=0\nY_Size=0\n");
    Show("C");
    EXPECT_EQ(m_Maker[1].Width(), 0);
    EXPECT_EQ(m_Maker[1].Height(), 0);
}

// --- failing steps

TEST_F(ShowPopup, ASettingOutOfRangeOpensNoPopup) {
    Configure("X_Size=99999999999\n");
    EXPECT_THROW(m_Popups.ShowPopup(Alarm("C")), cFailure);
    EXPECT_EQ(m_Maker.Open(), "");
    EXPECT_EQ(m_State.m_PopupFormCount, 0);
}

TEST_F(ShowPopup, ASettingOutOfRangeTakesANumberAllTheSame) {
    Configure("X_Size=99999999999\n");
    SkipFailure([&] { m_Popups.ShowPopup(Alarm("C")); });
    Configure("");
    EXPECT_EQ(m_Popups.ShowPopup(Alarm("C")), 2);
}

TEST_F(ShowPopup, AWindowThatCantBeMadeLeavesNothing) {
    m_Maker.m_FailNext = true;
    EXPECT_THROW(m_Popups.ShowPopup(Alarm("C")), cFailure);
    EXPECT_EQ(m_State.m_PopupFormCount, 0);
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr), nullptr);
}

TEST_F(ShowPopup, AFailureHalfWayLeavesALoadedPopupThatDoesNotShow) {
    EXPECT_THROW(m_Popups.ShowPopup(Alarm("C", 7)), cFailure);
    EXPECT_EQ(m_Maker.Open(), "1");
    EXPECT_EQ(m_Maker.Visible(), "");
    EXPECT_EQ(m_State.m_PopupFormCount, 1);
    const Vigrel_Receiver_Popup* popup = m_Popups.SelectTopPopup(nullptr);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->m_Alarm, nullptr);
    EXPECT_EQ(popup->m_FormId, 0);
    EXPECT_EQ(popup->m_TimeStamp, 0);
}

TEST_F(ShowPopup, AStatusWithoutColoursStopsBehindTheText) {
    EXPECT_THROW(m_Popups.ShowPopup(Alarm("C", 7)), cFailure);
    EXPECT_EQ(m_Maker[1].m_LabelText, "Alarm 1//");
    EXPECT_EQ(m_Maker.Visible(), "");
}

TEST_F(ShowPopup, APopupLeftHalfPreparedCloses) {
    SkipFailure([&] { m_Popups.ShowPopup(Alarm("C", 7)); });
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    m_Transcript.Take();
    m_Popups.ClosePopups();
    EXPECT_EQ(m_Transcript.Take(), "acknowledge nothing\npopup 1: closed\n");
    EXPECT_EQ(LogText(), "closed \n");
    EXPECT_EQ(m_State.m_PopupFormCount, 0);
}

// --- resize

TEST_F(ShowPopup, AResizePutsTheLabelBesideThePicture) {
    Show("C");
    m_Transcript.Take();
    m_Maker[1].SetWidth(5120);
    EXPECT_EQ(m_Transcript.Take(),
              "popup 1: width 5120\n"
              "popup 1: label top 100\n"
              "popup 1: label left 674\n"
              "popup 1: label width 4326\n"
              "popup 1: label height 1160\n");
}

TEST_F(ShowPopup, AWindowNarrowerThanTheLabelsLeftKeepsTheWidthAlone) {
    Show("C");
    m_Maker[1].SetHeight(1510);
    m_Transcript.Take();
    m_Maker[1].SetWidth(600);
    EXPECT_EQ(Steps("label"), "label top 100, label left 674, label height 900");
}

TEST_F(ShowPopup, AWindowLowerThanTheLabelsTopKeepsTheHeightAlone) {
    Show("C");
    m_Transcript.Take();
    m_Maker[1].SetHeight(560);
    EXPECT_EQ(Steps("label"), "label top 100, label left 674, label width 6094");
}

}  // namespace
}  // namespace vigrel::testing
