// Colours, sounds and lights of categories.

#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

const std::string kFire = " [CategorySpecificSetting_Fire] ";

class CategoriesCheck : public testing::cCheckedStation {
  protected:
    // The base without its colours in General.
    static std::string WithoutColours(const std::string& rest = "") {
        std::string content = Content("", rest);
        return content.erase(content.find(Colours()), Colours().size());
    }
};

TEST_F(CategoriesCheck, ABackColourWithoutForeColourIsTold) {
    EXPECT_EQ(Rest("BackColor_Active=255,255,255"), "warning back-without-fore" + kFire + "BackColor_Active");
}

TEST_F(CategoriesCheck, AForeColourWithoutBackColourDoesNothing) {
    EXPECT_EQ(Rest("ForeColor_Active=255,255,255"), "warning fore-without-back" + kFire + "ForeColor_Active");
    EXPECT_EQ(RestMessage("BackColor_Active=\r\nForeColor_Active=255,255,255"),
              "does nothing without BackColor_Active in the same section");
}

TEST_F(CategoriesCheck, WithoutColoursTheListIsBlackOnBlack) {
    EXPECT_EQ(Whole(WithoutColours()),
              "error no-contrast [General] BackColor_Inactive\n"
              "error no-contrast [General] BackColor_Active\n"
              "error no-contrast [General] BackColor_Acked\n"
              "error no-contrast [General] BackColor_Message");
    EXPECT_EQ(Check(WithoutColours()).m_All[0].message,
              "text and ground of state Inactive have the same colour, black: nothing can be read");
}

TEST_F(CategoriesCheck, AWeakContrastIsToldWhereTheGroundIsSet) {
    const std::string line = "BackColor_Active=255,255,255\r\nForeColor_Active=";
    EXPECT_EQ(Rest(line + "118,118,118"), "");
    EXPECT_EQ(Rest(line + "128,128,128"), "warning weak-contrast" + kFire + "BackColor_Active");
    EXPECT_EQ(RestMessage(line + "128,128,128"),
              "text and ground of state Active have a contrast of 3.9; 4.5 is needed to be read well");
    EXPECT_EQ(RestMessage(line + "255,255,255"),
              "text and ground of state Active have the same colour: nothing can be read");
}

TEST_F(CategoriesCheck, ASoundThatIsNotThereStaysSilent) {
    EXPECT_EQ(Rest("EventSignal=3\r\nEventSoundFile=Sounds\\bell.wav"), "");
    EXPECT_EQ(Rest("EventSignal=2\r\nEventSoundFile=sounds/BELL.wav"), "");
    EXPECT_EQ(Rest("EventSignal=3\r\nEventSoundFile=Sounds\\bel.wav"),
              "error sound-missing" + kFire + "EventSoundFile");
    EXPECT_EQ(RestMessage("EventSignal=3\r\nEventSoundFile=Sounds\\bel.wav"),
              "there is no file C:\\App\\Sounds\\bel.wav: it stays silent");
    EXPECT_EQ(Rest("EventSignal=1\r\nEventSoundFile=Sounds\\bel.wav"),
              "warning sound-missing" + kFire + "EventSoundFile");
}

TEST_F(CategoriesCheck, ASignalThatPlaysNeedsASoundFile) {
    EXPECT_EQ(Rest("EventSignal=2"), "error sound-not-set" + kFire + "EventSignal");
    EXPECT_EQ(Rest("EventSignal=3"), "error sound-not-set" + kFire + "EventSignal");
    EXPECT_EQ(Rest("EventSignal=1"), "");
    EXPECT_EQ(General("EventSignal=3"), "error sound-not-set [General] EventSignal");
}

TEST_F(CategoriesCheck, AnInheritedSoundIsToldOnceInGeneral) {
    EXPECT_EQ(General("EventSignal=3\r\nEventSoundFile=Sounds\\bel.wav"),
              "error sound-missing [General] EventSoundFile");
    EXPECT_EQ(Lines(Check(Content("EventSoundFile=Sounds\\bell.wav", "EventSignal=3"))), "");
}

TEST_F(CategoriesCheck, AFileThatIsNoWaveFileIsTold) {
    m_Files.Put(kApp + "Sounds\\song.mp3", "ID3");
    EXPECT_EQ(Rest("EventSignal=3\r\nEventSoundFile=Sounds\\song.mp3"),
              "warning sound-not-wave" + kFire + "EventSoundFile");
}

TEST_F(CategoriesCheck, ASoundThatCantBeReadIsAnError) {
    m_Files.SetUnreadable(kApp + "Sounds\\bell.wav", true);
    EXPECT_EQ(Rest("EventSignal=3\r\nEventSoundFile=Sounds\\bell.wav"),
              "error sound-unreadable" + kFire + "EventSoundFile");
}

TEST_F(CategoriesCheck, LightKeysWithoutALightDoNothing) {
    EXPECT_EQ(Rest("USBLED_Control_Active=0/2/0/0\r\nUSBLED_Power_Active=50/50/50/50"),
              "warning light-without-name" + kFire + "USBLED_Control_Active");
    EXPECT_EQ(Rest("USBLED_DeviceName_Acked=A\r\nUSBLED_Control_Active=0/2/0/0"),
              "warning light-without-name" + kFire + "USBLED_Control_Active");
}

TEST_F(CategoriesCheck, ALightThatOnlyGeneralNamesIsNeverOfferedToBeStopped) {
    EXPECT_EQ(General("USBLED_DeviceName_Active=A"),
              "warning light-in-general-only [General] USBLED_DeviceName_Active");
    EXPECT_EQ(Lines(Check(Content("USBLED_DeviceName_Active=A", "USBLED_DeviceName_Active=A"))), "");
}

TEST_F(CategoriesCheck, TheCategoryOfLostSendersShouldHaveASection) {
    EXPECT_EQ(General("SystemErrorCategory=vigrel"), "");
    EXPECT_EQ(General("SystemErrorCategory=Lost"),
              "remark category-without-section [General] SystemErrorCategory");
    EXPECT_NE(GeneralMessage("SystemErrorCategory=Fier").find("is \"Fire\" meant?"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::testing
