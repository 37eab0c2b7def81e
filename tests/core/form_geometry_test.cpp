#include "core/form_geometry.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_files.h"
#include "support/fake_windows.h"

namespace vigrel::testing {
namespace {

class FormGeometry : public ::testing::Test {
  protected:
    void Restore(const std::string& left, const std::string& top, const std::string& width,
                 const std::string& height) {
        files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nVigrel_Receiver_Main.Left=" + left +
                                                     "\r\nVigrel_Receiver_Main.Top=" + top +
                                                     "\r\nVigrel_Receiver_Main.Width=" + width +
                                                     "\r\nVigrel_Receiver_Main.Height=" + height + "\r\n");
        RestoreFormGeometry(window, ini, screen);
    }
    cFakeFiles files;
    cIni ini{files, "C:\\App\\"};
    cFakeScreen screen;  // 19,200 by 15,360 twips
    cFakeWindow window;
};

TEST_F(FormGeometry, WithoutKeysTheDefaultsApply) {
    RestoreFormGeometry(window, ini, screen);
    EXPECT_EQ(window.m_Left, 100);
    EXPECT_EQ(window.m_Top, 100);
    EXPECT_EQ(window.m_Width, 8000);
    EXPECT_EQ(window.m_Height, 5000);
}

TEST_F(FormGeometry, WhatIsSavedComesBack) {
    files.PutFolder("C:\\App\\");
    window.m_Left = 1215;
    window.m_Top = 330.5;
    window.m_Width = 9000;
    window.m_Height = 6015;
    SaveFormGeometry(window, ini);
    EXPECT_EQ(files.ReadFile("C:\\App\\VigrelReceiver.INI"),
              "[General]\r\nVigrel_Receiver_Main.Left=1215\r\nVigrel_Receiver_Main.Top=330.5\r\n"
              "Vigrel_Receiver_Main.Height=6015\r\nVigrel_Receiver_Main.Width=9000\r\n");
    cFakeWindow other;
    RestoreFormGeometry(other, ini, screen);
    EXPECT_EQ(other.m_Left, 1215);
    EXPECT_EQ(other.m_Top, 330.5);
    EXPECT_EQ(other.m_Width, 9000);
    EXPECT_EQ(other.m_Height, 6015);
}

TEST_F(FormGeometry, GeometryIsStoredInSinglePrecision) {
    files.PutFolder("C:\\App\\");
    window.m_Top = 1000 / 3.0;
    SaveFormGeometry(window, ini);
    EXPECT_EQ(ini.GetIniString("General", "Vigrel_Receiver_Main.Top", ""), "333.3333");
}

// A window that keeps a record of what is set, and whose edge of one name can't be.
class cStubbornWindow : public cFakeWindow {
  public:
    explicit cStubbornWindow(std::string stubborn) : m_Stubborn(std::move(stubborn)) {}
    void SetTop(double twips) override {
        Note("top");
        cFakeWindow::SetTop(twips);
    }
    void SetLeft(double twips) override {
        Note("left");
        cFakeWindow::SetLeft(twips);
    }
    void SetHeight(double twips) override {
        Note("height");
        cFakeWindow::SetHeight(twips);
    }
    void SetWidth(double twips) override {
        Note("width");
        cFakeWindow::SetWidth(twips);
    }
    std::string m_Set;

  private:
    void Note(const std::string& edge) {
        m_Set += edge + " ";
        if (edge == m_Stubborn) throw cFailure(eFailure::InvalidCall, edge + " can't be set");
    }
    std::string m_Stubborn;
};

TEST_F(FormGeometry, TopLeftHeightAndWidthAreSetInThisOrderAndOneThatCannotBeIsSkipped) {
    for (const std::string stubborn : {"none", "top", "left", "height", "width"}) {
        cStubbornWindow other(stubborn);
        EXPECT_NO_THROW(RestoreFormGeometry(other, ini, screen));
        EXPECT_EQ(other.m_Set, "top left height width ") << stubborn;
    }
}

TEST_F(FormGeometry, AWindowBeyondTheScreenComesBackIntoView) {
    Restore("30000", "20000", "8000", "5000");
    EXPECT_EQ(window.m_Left, 19200 - 8000);
    EXPECT_EQ(window.m_Top, 15360 - 5000);
}

TEST_F(FormGeometry, TheStoredPlaceOfAMinimisedWindowComesBackAtTheEdge) {
    Restore("-48000", "-48000", "2400", "400");
    EXPECT_EQ(window.m_Left, 0);
    EXPECT_EQ(window.m_Top, 0);
}

TEST_F(FormGeometry, AWindowLargerThanTheScreenStandsAtTheEdgeAndKeepsItsSize) {
    Restore("500", "500", "30000", "20000");
    EXPECT_EQ(window.m_Left, 0);
    EXPECT_EQ(window.m_Top, 0);
    EXPECT_EQ(window.m_Width, 30000);
    EXPECT_EQ(window.m_Height, 20000);
}

}  // namespace
}  // namespace vigrel::testing
