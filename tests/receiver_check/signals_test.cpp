// Popups and printing.

#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

class PopupsCheck : public testing::cCheckedStation {};

class PrinterCheck : public testing::cCheckedStation {};

TEST_F(PopupsCheck, ABlankBehindACommaClosesACategoryOutOfPopups) {
    const std::string on = "ViewPopupForm=1\r\nViewOnlyPopupFormForCategory=";
    EXPECT_EQ(General(on + "Fire,Vigrel"), "");
    EXPECT_EQ(General(on + "fire,VIGREL"), "");
    EXPECT_EQ(General(on + "Fire, Vigrel"),
              "error category-list-blank [General] ViewOnlyPopupFormForCategory");
    EXPECT_EQ(GeneralMessage(on + "Fire, Vigrel"),
              "the blank beside \"Vigrel\" counts: alarms of this category open no popup");
}

TEST_F(PopupsCheck, ABlankBehindACommaKeepsAPopupFromTheTop) {
    EXPECT_EQ(General("PopupFormTopMostCategory=Fire, Vigrel"),
              "warning category-list-blank [General] PopupFormTopMostCategory");
}

TEST_F(PopupsCheck, ACategoryMissingBesideACommaIsTold) {
    EXPECT_EQ(General("PopupFormTopMostCategory=Fire,,Vigrel"),
              "warning category-list-empty [General] PopupFormTopMostCategory");
}

TEST_F(PopupsCheck, ACategoryWithoutSectionIsARemarkAndAMisspeltOneAWarning) {
    EXPECT_EQ(General("PopupFormTopMostCategory=Gas"),
              "remark category-without-section [General] PopupFormTopMostCategory");
    EXPECT_EQ(General("PopupFormTopMostCategory=Frie"),
              "warning category-without-section [General] PopupFormTopMostCategory");
    EXPECT_EQ(GeneralMessage("PopupFormTopMostCategory=Frie"),
              "the category \"Frie\" has no section; is \"Fire\" meant?");
}

TEST_F(PopupsCheck, SizesAndPlacesThatNoScreenShows) {
    const auto popups = [&](const std::string& lines) { return Rest("[PopupForm]\r\n" + lines); };
    EXPECT_EQ(popups("X_Size=640\r\nY_Size=200"), "");
    EXPECT_EQ(popups("X_Size=0\r\nY_Size=200"), "warning popup-size [PopupForm] X_Size");
    EXPECT_EQ(popups("X_Size=640\r\nY_Size=20000"), "warning popup-size [PopupForm] Y_Size");
    EXPECT_EQ(popups("WindowPosition=STATIC\r\nX_Start=-20"), "warning popup-place [PopupForm] X_Start");
    EXPECT_EQ(popups("WindowPosition=STATIC\r\nY_Start=9000"), "warning popup-place [PopupForm] Y_Start");
    EXPECT_EQ(popups("X_Start=-20"), "") << "the desktop's choice of the place";
    EXPECT_EQ(popups("WindowPosition=MOVING\r\nX_Step=-30\r\nX_Stop=900\r\nY_Stop=900"),
              "warning popup-step [PopupForm] X_Step");
}

TEST_F(PrinterCheck, APrinterThatDoesNotAnswerIsTold) {
    const std::string lines =
        "[Printer]\r\nPort=2\r\nFormat=[T0]\r\n[PrinterPorts]\r\n1=/dev/lp0\r\n2=tcp:p:9100";
    EXPECT_EQ(Rest(lines), "");
    EXPECT_EQ(m_Machine.m_Asked, (std::vector<std::string>{"tcp:p:9100"}));
    m_Machine.m_PrinterProblem = "tcp:p:9100: Connection refused";
    EXPECT_EQ(Rest(lines), "warning printer-silent [PrinterPorts] 2");
    EXPECT_EQ(RestMessage(lines), "the printer doesn't answer: tcp:p:9100: Connection refused");
    EXPECT_EQ(Rest("[PrinterPorts]\r\n1=tcp:p:9100"), "") << "nothing is printed";
}

TEST_F(PopupsCheck, SoundsThatCantBeDecodedOrNeverEnd) {
    const std::string lines = "EventSignal=2\r\nEventSoundFile=Sounds\\bell.wav";
    EXPECT_EQ(Rest(lines), "");
    m_Machine.m_Seconds = 31;
    EXPECT_EQ(RestMessage(lines), kApp + "Sounds\\bell.wav plays for 31 s");
    m_Machine.m_Seconds.reset();
    EXPECT_EQ(Rest(lines), "error sound-not-decoded [CategorySpecificSetting_Fire] EventSoundFile");
}

TEST_F(PopupsCheck, CategoriesOfPopupsDoNothingWhilePopupsAreOff) {
    EXPECT_EQ(General("ViewOnlyPopupFormForCategory=Fire"),
              "remark popups-off [General] ViewOnlyPopupFormForCategory");
}

TEST_F(PopupsCheck, MovingPopupsNeedStops) {
    EXPECT_EQ(Rest("[PopupForm]\r\nWindowPosition=MOVING"),
              "warning moving-without-way [PopupForm] WindowPosition");
    EXPECT_EQ(RestMessage("[PopupForm]\r\nWindowPosition=moving\r\nX_Stop=400"),
              "popups lie on one spot: the first step passes Y_Stop, which is 50");
    EXPECT_EQ(Rest("[PopupForm]\r\nWindowPosition=MOVING\r\nX_Stop=400\r\nY_Stop=400"), "");
    EXPECT_EQ(Rest("[PopupForm]\r\nWindowPosition=MOVING\r\nX_Step=0\r\nY_Step=0"),
              "warning moving-without-way [PopupForm] WindowPosition");
}

TEST_F(PopupsCheck, AnUnknownPositionActsAsDefault) {
    EXPECT_EQ(Rest("[PopupForm]\r\nWindowPosition=FIXED"),
              "warning window-position-unknown [PopupForm] WindowPosition");
    EXPECT_EQ(RestMessage("[PopupForm]\r\nWindowPosition=Movin"),
              "is none of STATIC, MOVING and Default, and acts as Default; is \"MOVING\" meant?");
    EXPECT_EQ(Rest("[PopupForm]\r\nWindowPosition=static"), "");
}

TEST_F(PopupsCheck, OneSizeAloneDoesNothing) {
    EXPECT_EQ(Rest("[PopupForm]\r\nX_Size=500"), "warning size-without-other [PopupForm] X_Size");
    EXPECT_EQ(Rest("[PopupForm]\r\nY_Size=500"), "warning size-without-other [PopupForm] Y_Size");
    EXPECT_EQ(Rest("[PopupForm]\r\nX_Size=500\r\nY_Size=100"), "");
}

TEST_F(PrinterCheck, NothingIsPrintedOnPortZero) {
    EXPECT_EQ(Rest("[Printer]\r\nPort=0"), "");
    EXPECT_EQ(Rest("[Printer]\r\nPort=0\r\nFormat=[T0]"), "warning printing-off [Printer] Port");
}

TEST_F(PrinterCheck, APortWithoutALineIsRemarkedWhenThereIsAFormat) {
    EXPECT_EQ(Rest("[Printer]\r\nFormat=[T0]\r\nPort=2"), "remark printer-port-unset [Printer] Port");
    EXPECT_EQ(RestMessage("[Printer]\r\nFormat=[T0]\r\nPort=2"),
              "section PrinterPorts has no line for port 2: it is the first that is there of /dev/lp1, "
              "/dev/usb/lp1, queue LPT2");
    EXPECT_EQ(Rest("[Printer]\r\nFormat=[T0]\r\nPort=2\r\n[PrinterPorts]\r\n2=/dev/usb/lp0"), "");
}

TEST_F(PrinterCheck, ADeviceIsAPathAHostOrAQueue) {
    const auto device = [&](const std::string& line) { return Rest("[PrinterPorts]\r\n" + line); };
    for (const std::string good :
         {"/dev/usb/lp0", "tcp:192.168.1.20:9100", "tcp:[fe80::1]:9100", "cups:Alarm"}) {
        EXPECT_EQ(device("1=" + good), "") << good;
    }
    for (const std::string bad : {"lp0", "tcp:printer", "tcp::9100", "tcp:printer:0", "tcp:printer:99999",
                                  "tcp:printer:", "cups:", "/", "usb:1"}) {
        EXPECT_EQ(device("1=" + bad), "warning printer-port-malformed [PrinterPorts] 1") << bad;
    }
    EXPECT_EQ(device("1="), "remark printer-port-empty [PrinterPorts] 1");
}

TEST_F(PrinterCheck, PortsAreNumbersFromOne) {
    for (const std::string name : {"LPT1", "0", "01", "-1", "99999"}) {
        EXPECT_EQ(Rest("[PrinterPorts]\r\n" + name + "=/dev/lp0"),
                  "warning printer-port-name [PrinterPorts] " + name);
    }
}

}  // namespace
}  // namespace vigrel::testing
