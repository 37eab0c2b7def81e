#include "common/failure.h"
#include "signals/popups_fixture.h"

namespace vigrel::testing {
namespace {

// --- one popup at a time

class cOnePopup : public cPopupsTest {
  protected:
    cOnePopup() {
        m_Settings.m_ViewOnlyOnePopupForm = true;
        m_Settings.m_PopupFormTopMostCategory = "A,B";
    }
};

TEST_F(cOnePopup, TheBestCategoryTakesOverAndTheOthersComeBackInTurn) {
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

TEST_F(cOnePopup, OfOneCategoryTheOlderStaysAndTheNewerWaits) {
    Show("B");
    Show("B");
    EXPECT_EQ(m_Maker.Visible(), "1");
    EXPECT_EQ(m_State.m_PopupFormCount, 2);
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(cOnePopup, OfUnlistedCategoriesTheOlderStays) {
    Show("X");
    Show("Y");
    EXPECT_EQ(m_Maker.Visible(), "1");
}

TEST_F(cOnePopup, OfOneStampTheLastOpenedShows) {
    m_Popups.ShowPopup(Alarm("B"));
    m_Popups.ShowPopup(Alarm("B"));
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(cOnePopup, ACategoryBehindAnEmptyFieldHasNoPriority) {
    m_Settings.m_PopupFormTopMostCategory = "A,,B";
    Show("C");
    Show("B");
    EXPECT_EQ(m_Maker.Visible(), "1");
    Show("A");
    EXPECT_EQ(m_Maker.Visible(), "3");
}

TEST_F(cOnePopup, FieldsOfTheListAreTrimmedAndCategoriesAreNot) {
    m_Settings.m_PopupFormTopMostCategory = "A , B";
    Show("X");
    Show(" B");
    EXPECT_EQ(m_Maker.Visible(), "1");
    Show("b");
    EXPECT_EQ(m_Maker.Visible(), "3");
}

TEST_F(cOnePopup, TheNewWindowIsHiddenAgainBeforeTheSelection) {
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

TEST_F(cOnePopup, TheNewWindowOfAnUnlistedCategoryIsNotTopmost) {
    Show("C");
    EXPECT_FALSE(m_Maker[1].m_TopMost);
    EXPECT_EQ(Steps("not topmost"), "not topmost");
    Show("b");
    EXPECT_TRUE(m_Maker[2].m_TopMost);
}

TEST_F(cOnePopup, WithoutAListEveryNewWindowIsTopmost) {
    m_Settings.m_PopupFormTopMostCategory = "";
    Show("C");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
}

TEST_F(cOnePopup, TheTopmostTestTakesTheListAsWritten) {
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

TEST_F(cOnePopup, TheTopmostTestLeavesOuterBlanksOfTheListAlone) {
    m_Settings.m_PopupFormTopMostCategory = " A,B ";
    Show("A");
    Show("B");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
    EXPECT_TRUE(m_Maker[2].m_TopMost);
}

TEST_F(cOnePopup, ACategoryBehindAnEmptyFieldIsTopmostAllTheSame) {
    m_Settings.m_PopupFormTopMostCategory = "A,,B";
    Show("B");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
}

TEST_F(cOnePopup, ASelectedPopupThatWasMinimisedBecomesNormal) {
    Show("B");
    Show("C");
    m_Maker[1].m_State = eWindowState::Minimised;
    m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(m_Maker[1].m_State, eWindowState::Normal);
    m_Maker[1].m_State = eWindowState::Maximised;
    m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(m_Maker[1].m_State, eWindowState::Maximised);
}

TEST_F(cOnePopup, TheExcludedPopupIsNeitherChosenNorHidden) {
    Show("A");
    Show("B");
    Show("C");
    const Vigrel_Receiver_Popup* first = m_Popups.SelectTopPopup(nullptr);
    EXPECT_EQ(&m_Popups.SelectTopPopup(first)->m_Window, &m_Maker[2]);
    EXPECT_EQ(m_Maker.Visible(), "1 2");
}

TEST_F(cOnePopup, AStampOfThisVeryMomentIsEarlyEnough) {
    Show("X");
    EXPECT_EQ(&m_Popups.SelectTopPopup(nullptr)->m_Window, &m_Maker[1]);
}

TEST_F(cOnePopup, AnUnlistedPopupFromAheadOfTheClockWaitsUntilTheClockReachesIt) {
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

TEST_F(cOnePopup, AListedPopupFromAheadOfTheClockStaysInSight) {
    Show("B");
    Show("B");
    m_Clock.AddSeconds(-3600);
    m_Maker[1].Close();
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(cOnePopup, BehindAClockSetBackTheNewestUnlistedPopupTakesOver) {
    Show("X");
    m_Clock.AddSeconds(-3600);
    Show("Y");
    EXPECT_EQ(m_Maker.Visible(), "2");
}

TEST_F(cOnePopup, WithoutPopupsNothingIsSelected) {
    EXPECT_EQ(m_Popups.SelectTopPopup(nullptr), nullptr);
    EXPECT_FALSE(m_Main.m_Visible);
}

// --- all popups showing

class cAllPopups : public cPopupsTest {
  protected:
    cAllPopups() { m_Settings.m_PopupFormTopMostCategory = "A,B"; }
};

TEST_F(cAllPopups, WithoutAListEveryPopupLiesOverTheOlderOnes) {
    m_Settings.m_PopupFormTopMostCategory = "";
    Show("X");
    Show("Y");
    Show("");
    EXPECT_EQ(m_Maker.Stacked(), "3 2 1");
    EXPECT_EQ(m_Maker.Visible(), "1 2 3");
}

TEST_F(cAllPopups, UnlistedPopupsAloneLieNewestOnTop) {
    Show("X");
    Show("Y");
    EXPECT_EQ(m_Maker.Stacked(), "2 1");
    EXPECT_EQ(Steps("behind"), "");
}

TEST_F(cAllPopups, APopupOfTheFirstCategoryLiesOverAll) {
    Show("A");
    Show("X");
    Show("A");
    EXPECT_EQ(m_Maker.Stacked(), "3 1 2");
    EXPECT_EQ(Steps("behind"), "behind popup 1");
}

TEST_F(cAllPopups, OthersGoBehindTheOldestOfTheBestCategory) {
    Show("A");
    Show("A");
    Show("X");
    Show("B");
    EXPECT_EQ(Steps("behind"), "behind popup 1, behind popup 1");
    EXPECT_EQ(m_Maker.Stacked(), "2 1 4 3");
}

TEST_F(cAllPopups, ABetterPopupThatIsNotOfTheFirstCategoryGoesBehindTheChosenOneAllTheSame) {
    m_Settings.m_PopupFormTopMostCategory = "A,B,C";
    Show("C");
    Show("B");
    EXPECT_EQ(Steps("behind"), "behind popup 1");
    EXPECT_EQ(m_Maker.Stacked(), "1 2");
    Show("X");
    EXPECT_EQ(Steps("behind"), "behind popup 2");
}

TEST_F(cAllPopups, OfOneStampTheLastOpenedIsChosen) {
    m_Popups.ShowPopup(Alarm("B"));
    m_Popups.ShowPopup(Alarm("B"));
    m_Transcript.Take();
    m_Popups.ShowPopup(Alarm("X"));
    EXPECT_EQ(Steps("behind"), "behind popup 2");
}

TEST_F(cAllPopups, AnEmptyCategoryIsTheFirstOfAnEmptyList) {
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

TEST_F(cAllPopups, TheFirstCategoryIsComparedWithoutRegardToCase) {
    Show("B");
    Show("a");
    EXPECT_EQ(m_Maker.Stacked(), "2 1");
}

TEST_F(cAllPopups, EveryNewPopupIsTopmost) {
    Show("X");
    EXPECT_TRUE(m_Maker[1].m_TopMost);
}

TEST_F(cAllPopups, AClosedPopupRestoresTheNextOneAndHidesNone) {
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
