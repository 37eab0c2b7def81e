#include "common/failure.h"
#include "signals/popups_fixture.h"

namespace vigrel::testing {
namespace {

// --- one popup at a time

class OnePopup : public cPopupsTest {
  protected:
    OnePopup() {
        m_Settings.m_ViewOnlyOnePopupForm = true;
        m_Settings.m_PopupFormTopMostCategory = "A,B";
    }
};

TEST_F(OnePopup, TheBestCategoryTakesOverAndTheOthersComeBackInTurn) {
    Show("C");
    EXPECT_EQ(m_Maker.Visible(), "1");
    Show("B");
    EXPECT_EQ(m_Maker.Visible(), "2");
    Show("A");
    EXPECT_EQ(m_Maker.Visible(), "3");
    m_Maker[3].Close();
    EXPECT_EQ(m_Maker.Visible(), "2");
    m_Maker[2].Close();
    EXPECT_EQ(m_Maker.Visible(), "1");
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "");
}

TEST_F(OnePopup, OfOneCategoryTheOlderStaysAndTheNewerWaits) {
    Show("B");
    Show("B");
    EXPECT_EQ(m_Maker.Visible(), "1");
    EXPECT_EQ(m_State.m_PopupFormCount, 2);
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(OnePopup, OfUnlistedCategoriesTheOlderStays) {
    Show("X");
    Show("Y");
    EXPECT_EQ(m_Maker.Visible(), "1");
}

TEST_F(OnePopup, OfOneStampTheLastOpenedShows) {
    m_Popups.ShowPopup(Alarm("B"));
    m_Popups.ShowPopup(Alarm("B"));
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(OnePopup, ACategoryBehindAnEmptyFieldHasNoPriority) {
    m_Settings.m_PopupFormTopMostCategory = "A,,B";
    Show("C");
    Show("B");
    EXPECT_EQ(m_Maker.Visible(), "1");
    Show("A");
    EXPECT_EQ(m_Maker.Visible(), "3");
}

TEST_F(OnePopup, ACategoryThatIsListedTwiceHasItsFirstPlace) {
    m_Settings.m_PopupFormTopMostCategory = "A,B,A";
    Show("B");
    Show("A");
    EXPECT_EQ(m_Maker.Visible(), "2");
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr)->m_PriorityIndex, 0);
}

TEST_F(OnePopup, FieldsOfTheListAreTrimmedAndCategoriesAreNot) {
    m_Settings.m_PopupFormTopMostCategory = "A , B";
    Show("X");
    Show(" B");
    EXPECT_EQ(m_Maker.Visible(), "1");
    Show("b");
    EXPECT_EQ(m_Maker.Visible(), "3");
}

TEST_F(OnePopup, TheNewWindowIsHiddenAgainBeforeTheSelection) {
    Show("B");
    m_Transcript.Take();
    Show("B");
    std::string steps = m_Transcript.Take();
    EXPECT_EQ(steps.substr(steps.find("popup 2: show")),
              "popup 2: show\n"
              "popup 2: hide\n"
              "popup 2: hide\n"
              "popup 1: show\n"
              "popup 2: topmost\n"
              "popup 2: left 2100\n"
              "popup 2: top 2600\n");
}

TEST_F(OnePopup, TheNewWindowOfAnUnlistedCategoryIsNotTopmost) {
    Show("C");
    EXPECT_FALSE(m_Maker[1].m_TopMost);
    EXPECT_EQ(Steps("not topmost"), "not topmost");
    Show("b");
    EXPECT_TRUE(m_Maker[2].m_TopMost);
}

TEST_F(OnePopup, WithoutAListEveryNewWindowIsTopmost) {
    m_Settings.m_PopupFormTopMostCategory = "";
    Show("C");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
}

TEST_F(OnePopup, TheTopmostTestTakesTheListAsWritten) {
    // Category " B" has no priority, since fields are trimmed, and yet is found in the list as it is written.
    m_Settings.m_PopupFormTopMostCategory = "A, B";
    Show(" b");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr)->m_PriorityIndex, kUnlistedPriority);
    // Category "B" has priority 1, and stands nowhere between two commas.
    Show("B");
    EXPECT_FALSE(m_Maker[2].m_TopMost);
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr)->m_PriorityIndex, 1);
}

TEST_F(OnePopup, TheTopmostTestLeavesOuterBlanksOfTheListAlone) {
    m_Settings.m_PopupFormTopMostCategory = " A,B ";
    Show("A");
    Show("B");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
    EXPECT_TRUE(m_Maker[2].m_TopMost);
}

TEST_F(OnePopup, ACategoryBehindAnEmptyFieldIsTopmostAllTheSame) {
    m_Settings.m_PopupFormTopMostCategory = "A,,B";
    Show("B");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
}

TEST_F(OnePopup, ASelectedPopupThatWasMinimisedBecomesNormal) {
    Show("B");
    Show("C");
    m_Maker[1].m_State = eWindowState::Minimised;
    m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(m_Maker[1].m_State, eWindowState::Normal);
    m_Maker[1].m_State = eWindowState::Maximised;
    m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(m_Maker[1].m_State, eWindowState::Maximised);
}

TEST_F(OnePopup, TheExcludedPopupIsNeitherChosenNorHidden) {
    Show("A");
    Show("B");
    Show("C");
    const Vigrel_Receiver_Popup* first = m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(&m_Popups.SelectTopPopup(first)->m_Window, &m_Maker[2]);
    EXPECT_EQ(m_Maker.Visible(), "1 2");
}

TEST_F(OnePopup, AStampOfThisVeryMomentIsEarlyEnough) {
    Show("X");
    EXPECT_EQ(&m_Popups.SelectTopPopup(nullptr)->m_Window, &m_Maker[1]);
}

TEST_F(OnePopup, AnUnlistedPopupFromAheadOfTheClockWaitsUntilTheClockReachesIt) {
    Show("X");
    Show("Y");
    m_Clock.AddSeconds(-3600);
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "");
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr), nullptr);
    m_Clock.AddSeconds(3600);
    m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(OnePopup, AListedPopupFromAheadOfTheClockStaysInSight) {
    Show("B");
    Show("B");
    m_Clock.AddSeconds(-3600);
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(OnePopup, BehindAClockSetBackTheNewestUnlistedPopupTakesOver) {
    Show("X");
    m_Clock.AddSeconds(-3600);
    Show("Y");
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(OnePopup, WithoutPopupsNothingIsSelected) {
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr), nullptr);
    EXPECT_FALSE(m_Main.m_Visible);
}

// --- all popups showing

class AllPopups : public cPopupsTest {
  protected:
    AllPopups() { m_Settings.m_PopupFormTopMostCategory = "A,B"; }
};

TEST_F(AllPopups, WithoutAListEveryPopupLiesOverTheOlderOnes) {
    m_Settings.m_PopupFormTopMostCategory = "";
    Show("X");
    Show("Y");
    Show("");
    EXPECT_EQ(m_Maker.Stacked(), "3 2 1");
    EXPECT_EQ(m_Maker.Visible(), "1 2 3");
}

TEST_F(AllPopups, UnlistedPopupsAloneLieNewestOnTop) {
    Show("X");
    Show("Y");
    EXPECT_EQ(m_Maker.Stacked(), "2 1");
    EXPECT_EQ(Steps("behind"), "");
}

TEST_F(AllPopups, OfUnlistedCategoriesNotEvenOneOfTheFirstDayOfAllIsChosen) {
    m_Clock.m_Now = 0.5;
    Show("X");
    Show("Y");
    EXPECT_EQ(Steps("behind"), "");
}

TEST_F(AllPopups, APopupOfTheFirstCategoryLiesOverAll) {
    Show("A");
    Show("X");
    Show("A");
    EXPECT_EQ(m_Maker.Stacked(), "3 1 2");
    EXPECT_EQ(Steps("behind"), "behind popup 1");
}

TEST_F(AllPopups, TheFirstCategoryOfTheListIsTrimmed) {
    m_Settings.m_PopupFormTopMostCategory = "A ,B";
    Show("A");
    Show("A");
    EXPECT_EQ(Steps("behind"), "");
}

TEST_F(AllPopups, OthersGoBehindTheOldestOfTheBestCategory) {
    Show("A");
    Show("A");
    Show("X");
    Show("B");
    EXPECT_EQ(Steps("behind"), "behind popup 1, behind popup 1");
    EXPECT_EQ(m_Maker.Stacked(), "2 1 4 3");
}

TEST_F(AllPopups, ABetterPopupThatIsNotOfTheFirstCategoryGoesBehindTheChosenOneAllTheSame) {
    m_Settings.m_PopupFormTopMostCategory = "A,B,C";
    Show("C");
    Show("B");
    EXPECT_EQ(Steps("behind"), "behind popup 1");
    EXPECT_EQ(m_Maker.Stacked(), "1 2");
    Show("X");
    EXPECT_EQ(Steps("behind"), "behind popup 2");
}

TEST_F(AllPopups, OfOneStampTheLastOpenedIsChosen) {
    m_Popups.ShowPopup(Alarm("B"));
    m_Popups.ShowPopup(Alarm("B"));
    m_Transcript.Take();
    m_Popups.ShowPopup(Alarm("X"));
    EXPECT_EQ(Steps("behind"), "behind popup 2");
}

TEST_F(AllPopups, AnEmptyCategoryIsTheFirstOfAnEmptyList) {
    m_Settings.m_PopupFormTopMostCategory = "";
    Show("");
    EXPECT_EQ(Steps("behind"), "");
    // Of a list that begins with an empty field it is the first too.
    m_Settings.m_PopupFormTopMostCategory = "B";
    Show("B");
    m_Settings.m_PopupFormTopMostCategory = ",B";
    Show("");
    EXPECT_EQ(Steps("behind"), "");
    Show("X");
    EXPECT_EQ(Steps("behind"), "behind popup 2");
}

TEST_F(AllPopups, TheFirstCategoryIsComparedWithoutRegardToCase) {
    Show("B");
    Show("a");
    EXPECT_EQ(m_Maker.Stacked(), "2 1");
}

TEST_F(AllPopups, EveryNewPopupIsTopmost) {
    Show("X");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
}

TEST_F(AllPopups, AClosedPopupRestoresTheNextOneAndHidesNone) {
    Show("X");
    Show("A");
    Show("B");
    m_Maker[3].m_State = eWindowState::Minimised;
    m_Maker[2].Close();
    EXPECT_EQ(m_Maker.Visible(), "1 3");
    EXPECT_EQ(m_Maker[3].m_State, eWindowState::Normal);
}

}  // namespace
}  // namespace vigrel::testing
