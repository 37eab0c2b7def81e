#include "common/window_procedures.h"

#include <gtest/gtest.h>

#include "support/fake_windows.h"

namespace vigrel::testing {
namespace {

TEST(CenterForm, PlacesAFormInTheMiddleOfTheScreen) {
    cFakeScreen screen;
    cFakeWindow form;
    form.m_Width = 8000;
    form.m_Height = 5000;
    CenterForm(form, screen);
    EXPECT_EQ(form.m_Left, (1280 * 15 - 8000) / 2);
    EXPECT_EQ(form.m_Top, (1024 * 15 - 5000) / 2);
}

TEST(CenterForm, AFormLargerThanTheScreenStandsAtItsEdge) {
    cFakeScreen screen;
    cFakeWindow form;
    form.m_Left = form.m_Top = 77;
    form.m_Width = screen.m_Width + 1;
    form.m_Height = screen.m_Height + 1;
    CenterForm(form, screen);
    EXPECT_EQ(form.m_Left, 0);
    EXPECT_EQ(form.m_Top, 0);
}

TEST(CenterForm, EachDirectionIsPlacedByItself) {
    cFakeScreen screen;
    cFakeWindow form;
    form.m_Width = screen.m_Width * 2;
    form.m_Height = screen.m_Height / 2;
    CenterForm(form, screen);
    EXPECT_EQ(form.m_Left, 0);
    EXPECT_EQ(form.m_Top, screen.m_Height / 4);
}

TEST(SetTopMost, PutsAFormOverAllOthersAndBack) {
    cFakeWindow form;
    EXPECT_NE(SetTopMost(form, true), 0);
    EXPECT_TRUE(form.m_TopMost);
    EXPECT_NE(SetTopMost(form, false), 0);
    EXPECT_FALSE(form.m_TopMost);
}

}  // namespace
}  // namespace vigrel::testing
