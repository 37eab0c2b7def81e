#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/popup_window.h"

namespace vigrel::testing {

// What the system may rely on, whoever makes its popups. A rig offers cPopupMaker& Maker(), cWindowList&
// Windows() and Order(): the popups that show, the uppermost first.
template <class Rig>
class PopupContract : public ::testing::Test {
  protected:
    using Popups = std::vector<const cPopupWindow*>;
    cPopupWindow& Make() { return m_Rig.Maker().MakePopup(); }
    cPopupWindow& MakeShown() {
        cPopupWindow& popup = Make();
        popup.Show();
        return popup;
    }
    std::size_t OpenCount() { return m_Rig.Windows().OpenWindows().size(); }
    Popups Order() { return m_Rig.Order(); }
    Rig m_Rig;
};
TYPED_TEST_SUITE_P(PopupContract);

TYPED_TEST_P(PopupContract, IsOpenFromTheStartAndDoesNotShow) {
    cPopupWindow& first = this->Make();
    cPopupWindow& second = this->Make();
    EXPECT_EQ(first.Name(), kPopupKind);
    EXPECT_FALSE(first.Visible());
    EXPECT_EQ(first.State(), eWindowState::Normal);
    EXPECT_EQ(this->m_Rig.Windows().OpenWindows(), (std::vector<cWindow*>{&first, &second}));
    EXPECT_TRUE(this->Order().empty());
}

TYPED_TEST_P(PopupContract, HasTheDesignGeometry) {
    const cPopupWindow& popup = this->Make();
    EXPECT_NEAR(popup.InnerWidth(), 6768, 15);
    EXPECT_NEAR(popup.InnerHeight(), 1260, 15);
    for (int picture = 0; picture < cPopupWindow::kPictures; ++picture) {
        EXPECT_EQ(popup.PictureLeft(picture), 90);
        EXPECT_EQ(popup.PictureWidth(picture), 384);
    }
}

TYPED_TEST_P(PopupContract, CaptionPlaceAndSizeReadBack) {
    cPopupWindow& popup = this->Make();
    popup.SetCaption("Title \xE5");
    popup.SetLeft(1500);
    popup.SetTop(3000);
    popup.SetWidth(6000);
    popup.SetHeight(2250);
    const auto check = [&](const char* when) {
        EXPECT_EQ(popup.Caption(), "Title \xE5") << when;
        EXPECT_EQ(popup.Left(), 1500) << when;
        EXPECT_EQ(popup.Top(), 3000) << when;
        EXPECT_EQ(popup.Width(), 6000) << when;
        EXPECT_EQ(popup.Height(), 2250) << when;
        EXPECT_LE(popup.InnerWidth(), 6000) << when;
        EXPECT_LE(popup.InnerHeight(), 2250) << when;
    };
    check("before it shows");
    popup.Show();
    this->Order();
    check("while it shows");
    popup.Hide();
    this->Order();
    check("hidden again");
}

TYPED_TEST_P(PopupContract, ShowAndHideAreToldAtOnce) {
    cPopupWindow& popup = this->MakeShown();
    EXPECT_TRUE(popup.Visible());
    EXPECT_EQ(this->Order().size(), 1u);
    popup.Hide();
    EXPECT_FALSE(popup.Visible());
    EXPECT_TRUE(this->Order().empty());
    EXPECT_EQ(this->OpenCount(), 1u);
}

TYPED_TEST_P(PopupContract, AHiddenWindowTakesNoFocus) {
    EXPECT_THROW(this->Make().SetFocus(), cFailure);
}

TYPED_TEST_P(PopupContract, AMinimisedWindowStillShowsAndBecomesNormalAgain) {
    cPopupWindow& popup = this->MakeShown();
    this->Order();
    popup.SetState(eWindowState::Minimised);
    EXPECT_EQ(popup.State(), eWindowState::Minimised);
    EXPECT_TRUE(popup.Visible());
    EXPECT_THROW(popup.SetFocus(), cFailure);
    popup.SetState(eWindowState::Normal);
    EXPECT_EQ(popup.State(), eWindowState::Normal);
}

TYPED_TEST_P(PopupContract, TheLabelRefusesNegativeSizes) {
    cPopupWindow& popup = this->Make();
    popup.SetLabelWidth(0);
    popup.SetLabelHeight(0);
    popup.SetLabelLeft(-15);
    popup.SetLabelTop(-15);
    EXPECT_THROW(popup.SetLabelWidth(-1), cFailure);
    EXPECT_THROW(popup.SetLabelHeight(-1), cFailure);
}

TYPED_TEST_P(PopupContract, APictureThatIsNotThereIsAFailure) {
    cPopupWindow& popup = this->Make();
    for (const int picture : {-1, 4}) {
        EXPECT_THROW(popup.SetPictureVisible(picture, true), cFailure);
        EXPECT_THROW(popup.SetPictureBackColour(picture, 0), cFailure);
        EXPECT_THROW(popup.PictureLeft(picture), cFailure);
        EXPECT_THROW(popup.PictureWidth(picture), cFailure);
    }
}

TYPED_TEST_P(PopupContract, AChangeOfSizeIsToldOfAWindowThatShows) {
    cPopupWindow& popup = this->MakeShown();
    this->Order();
    int resizes = 0;
    popup.OnResize = [&] { ++resizes; };
    popup.SetWidth(9000);
    EXPECT_GE(resizes, 1);
}

TYPED_TEST_P(PopupContract, AShownPopupLiesOverTheOthers) {
    const cPopupWindow& first = this->MakeShown();
    cPopupWindow& second = this->MakeShown();
    const cPopupWindow& third = this->MakeShown();
    EXPECT_EQ(this->Order(), (typename TestFixture::Popups{&third, &second, &first}));
    second.Hide();
    this->Order();
    second.Show();
    EXPECT_EQ(this->Order(), (typename TestFixture::Popups{&second, &third, &first}));
    // One that shows already stays where it is.
    second.PlaceBehind(*dynamic_cast<cPopupWindow*>(this->m_Rig.Windows().OpenWindows()[0]));
    second.Show();
    EXPECT_EQ(this->Order(), (typename TestFixture::Popups{&third, &first, &second}));
}

TYPED_TEST_P(PopupContract, ATopmostPopupComesToTheTopOrDirectlyBehindAnother) {
    cPopupWindow& first = this->MakeShown();
    cPopupWindow& second = this->MakeShown();
    cPopupWindow& third = this->MakeShown();
    first.SetTopMost(true);
    EXPECT_EQ(this->Order(), (typename TestFixture::Popups{&first, &third, &second}));
    second.SetTopMost(true);
    second.PlaceBehind(first);
    EXPECT_EQ(this->Order(), (typename TestFixture::Popups{&first, &second, &third}));
}

TYPED_TEST_P(PopupContract, ACloseAsksThenUnloadsWhileTheWindowIsStillOpen) {
    cPopupWindow& popup = this->MakeShown();
    this->Make();
    std::string steps;
    popup.OnQueryUnload = [&](eCloseReason reason) {
        steps += "query " + std::to_string(static_cast<int>(reason)) + " ";
        return true;
    };
    popup.OnUnload = [&] { steps += "unload of " + std::to_string(this->OpenCount()) + " "; };
    popup.Close();
    EXPECT_EQ(steps, "query 1 unload of 2 ");
    EXPECT_EQ(this->OpenCount(), 1u);
    EXPECT_TRUE(this->Order().empty());
}

TYPED_TEST_P(PopupContract, ARefusedCloseIsAFailureAndChangesNothing) {
    cPopupWindow& popup = this->MakeShown();
    bool unloaded = false;
    popup.OnQueryUnload = [](eCloseReason) { return false; };
    popup.OnUnload = [&] { unloaded = true; };
    EXPECT_THROW(popup.Close(), cFailure);
    EXPECT_FALSE(unloaded);
    EXPECT_TRUE(popup.Visible());
    EXPECT_EQ(this->OpenCount(), 1u);
    popup.OnQueryUnload = nullptr;
    popup.Close();
    EXPECT_TRUE(unloaded);
}

REGISTER_TYPED_TEST_SUITE_P(PopupContract, IsOpenFromTheStartAndDoesNotShow, HasTheDesignGeometry,
                            CaptionPlaceAndSizeReadBack, ShowAndHideAreToldAtOnce, AHiddenWindowTakesNoFocus,
                            AMinimisedWindowStillShowsAndBecomesNormalAgain, TheLabelRefusesNegativeSizes,
                            APictureThatIsNotThereIsAFailure, AChangeOfSizeIsToldOfAWindowThatShows,
                            AShownPopupLiesOverTheOthers, ATopmostPopupComesToTheTopOrDirectlyBehindAnother,
                            ACloseAsksThenUnloadsWhileTheWindowIsStillOpen,
                            ARefusedCloseIsAFailureAndChangesNothing);

}  // namespace vigrel::testing
