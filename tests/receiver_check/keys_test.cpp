// Keys that nobody reads, and values that are not read as they are written.

#include "common/setting_keys.h"
#include "receiver-check/names.h"
#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

class KeysCheck : public testing::cCheckedStation {};

TEST_F(KeysCheck, AFlagIsZeroOrOne) {
    for (const std::string value : {"yes", "true", "on", "2", "-1", "1.5", "no", ""}) {
        EXPECT_EQ(General("ShowInTaskBar=" + value), "warning flag-not-0-or-1 [General] ShowInTaskBar")
            << value;
    }
    EXPECT_EQ(GeneralMessage("ShowInTaskBar=yes"), "is neither 0 nor 1 and so means off");
    EXPECT_EQ(GeneralMessage("ShowInTaskBar="), "is empty and so means off");
    for (const std::string value : {"0", "1", " 1 ", "\"1\"", "1.0"}) {
        EXPECT_EQ(General("ShowInTaskBar=" + value), "") << value;
    }
}

TEST_F(KeysCheck, ARemarkBehindAFlagIsTold) {
    EXPECT_EQ(General("ShowInTaskBar=1 ; button"), "warning number-with-rest [General] ShowInTaskBar");
    EXPECT_EQ(GeneralMessage("ShowInTaskBar=0 ; no button"),
              "only the number at the beginning counts: it means off");
}

TEST_F(KeysCheck, RubbishBehindANumberIsTold) {
    EXPECT_EQ(General("MaxDays=30 days"), "warning number-with-rest [General] MaxDays");
    EXPECT_EQ(GeneralMessage("MaxDays=30 days"), "only the number at the beginning counts: it means 30");
    EXPECT_EQ(GeneralMessage("EventFontSize=10,5"),
              "only the number at the beginning counts: it means 10; the decimal sign is \".\"");
}

TEST_F(KeysCheck, AValueWithoutNumberMeansZero) {
    EXPECT_EQ(General("MaxDays=many"), "warning number-unreadable [General] MaxDays");
    EXPECT_EQ(General("MaxDays="), "warning number-missing [General] MaxDays");
    EXPECT_EQ(General("MaxDays=-1"), "");
}

TEST_F(KeysCheck, ANumberBeyondItsBitsEndsTheStart) {
    EXPECT_EQ(General("KeepForDays=32768"), "error number-overflow [General] KeepForDays");
    EXPECT_EQ(GeneralMessage("KeepForDays=32768"), "does not fit 16 bits: the start ends with a message");
    EXPECT_EQ(General("KeepForDays=32767"), "");
    EXPECT_EQ(General("MaxEvents=2147483648"), "error number-overflow [General] MaxEvents");
    EXPECT_EQ(Rest("[t0]\r\nColumnWidth=3000000000"), "error number-overflow [t0] ColumnWidth");
}

TEST_F(KeysCheck, ANumberBeyondItsBitsIsSkippedAmongCategoryKeysAndOfAColumnThatIsNotShown) {
    EXPECT_EQ(Rest("FontBold_Active=99999"),
              "warning number-overflow [CategorySpecificSetting_Fire] FontBold_Active");
    EXPECT_EQ(General("FontBold_Active=99999"), "warning number-overflow [General] FontBold_Active");
    EXPECT_EQ(Rest("[t5]\r\nColumnWidth=3000000000"), "warning number-overflow [t5] ColumnWidth");
}

TEST_F(KeysCheck, ANumberBeyondItsBitsStopsPopups) {
    EXPECT_EQ(RestMessage("[PopupForm]\r\nX_Start=3000000000"), "does not fit 32 bits: no popup opens");
}

TEST_F(KeysCheck, ANumberOutsideItsRangeIsTold) {
    EXPECT_EQ(General("KeepForDays=-1"), "warning number-out-of-range [General] KeepForDays");
    EXPECT_EQ(GeneralMessage("EventSignal=4"), "is not in 0 to 3");
    EXPECT_EQ(Rest("USBLED_DeviceName_Active=A\r\nUSBLED_PreScalar_Active=0"),
              "warning number-out-of-range [CategorySpecificSetting_Fire] USBLED_PreScalar_Active");
}

TEST_F(KeysCheck, AFractionOfAWholeNumberIsRounded) {
    EXPECT_EQ(General("MaxDays=2.5"), "remark number-rounded [General] MaxDays");
    EXPECT_EQ(GeneralMessage("MaxDays=2.5"), "is rounded to 2");
    EXPECT_EQ(General("EventFontSize=10.5"), "");
}

TEST_F(KeysCheck, AColourIsThreeNumbersUpTo255) {
    const auto lines = [](const std::string& value) {
        return "BackColor_Active=" + value + "\r\nForeColor_Active=0,0,0";
    };
    const std::string place = " [CategorySpecificSetting_Fire] BackColor_Active";
    EXPECT_EQ(Rest(lines("255,255,255")), "");
    EXPECT_EQ(Rest(lines("255,255")), "warning wrong-count" + place);
    EXPECT_EQ(Rest(lines("255,255,255,0")), "warning wrong-count" + place);
    EXPECT_EQ(Rest(lines("255,red,255")), "warning part-unreadable" + place);
    EXPECT_EQ(Rest(lines("255,255,255 white")), "warning part-with-rest" + place);
    EXPECT_EQ(Rest(lines("256,255,255")), "warning part-out-of-range" + place);
    EXPECT_EQ(RestMessage(lines("255,300,255")), "\"300\" is not in 0 to 255: it counts as 255");
    EXPECT_EQ(RestMessage(lines("255,-1,255")), "\"-1\" is not in 0 to 255: the colour becomes white");
    EXPECT_EQ(RestMessage(lines("255,40000,255")), "\"40000\" is not in 0 to 255: the colour becomes white");
}

TEST_F(KeysCheck, PicturesAreTwoNumbersOfTheStrip) {
    EXPECT_EQ(General("Icon_Active=2,47"), "");
    EXPECT_EQ(General("Icon_Active=5"), "warning icon-alone [General] Icon_Active");
    EXPECT_EQ(General("Icon_Active=2,48"), "warning part-out-of-range [General] Icon_Active");
    EXPECT_EQ(GeneralMessage("Icon_Active=2,48"), "\"48\" is not in 0 to 47: no picture is shown");
    EXPECT_EQ(General("Icon_Active=2,3,4"), "warning wrong-count [General] Icon_Active");
    EXPECT_EQ(General("Icon_Active="), "");
}

TEST_F(KeysCheck, ALightHasFourLeds) {
    const auto light = [&](const std::string& line) {
        return Rest("USBLED_DeviceName_Active=A\r\nUSBLED_" + line);
    };
    const std::string place = " [CategorySpecificSetting_Fire] USBLED_";
    EXPECT_EQ(light("Control_Active=0/2/0/0"), "");
    EXPECT_EQ(light("Control_Active=0/2/0"), "warning wrong-count" + place + "Control_Active");
    EXPECT_EQ(light("Control_Active=0/3/0/0"), "warning part-out-of-range" + place + "Control_Active");
    EXPECT_EQ(light("Control_Active=0/on/0/0"), "warning part-unreadable" + place + "Control_Active");
    EXPECT_EQ(light("FreqDuty_Active=50,50/50,50/50,50/50,50"), "");
    EXPECT_EQ(light("FreqDuty_Active=50,50/50,50/50,50"), "warning wrong-count" + place + "FreqDuty_Active");
    EXPECT_EQ(light("FreqDuty_Active=50,50/50/50,50/50,50"),
              "warning wrong-count" + place + "FreqDuty_Active");
    EXPECT_EQ(light("FreqDuty_Active=50,256/50,50/50,50/50,50"),
              "warning part-out-of-range" + place + "FreqDuty_Active");
}

TEST_F(KeysCheck, AnUnknownKeyComesWithTheNearestKnownOne) {
    EXPECT_EQ(General("MaxEvent=5"), "warning unknown-key [General] MaxEvent");
    EXPECT_EQ(GeneralMessage("MaxEvent=5"), "nobody reads a key of this name here; is \"MaxEvents\" meant?");
    EXPECT_EQ(GeneralMessage("Colour=5"), "nobody reads a key of this name here");
    EXPECT_EQ(RestMessage("BackColour_Active=1,2,3"),
              "nobody reads a key of this name here; is \"BackColor_Active\" meant?");
}

TEST_F(KeysCheck, AKeyInTheWrongSectionIsToldWhereItBelongs) {
    EXPECT_EQ(GeneralMessage("WindowPosition=STATIC"),
              "nobody reads a key of this name here; it belongs to section PopupForm");
    EXPECT_EQ(Rest("MaxDays=3"), "warning unknown-key [CategorySpecificSetting_Fire] MaxDays");
    EXPECT_EQ(Rest("[t0]\r\nMaxDays=3"), "warning unknown-key [t0] MaxDays");
}

TEST_F(KeysCheck, AnUnknownSectionComesWithTheNearestKnownOne) {
    EXPECT_EQ(Rest("[PopupForms]\r\nX_Size=none"), "warning unknown-section [PopupForms]");
    EXPECT_EQ(RestMessage("[PopupForms]"), "nobody reads a section of this name; is \"PopupForm\" meant?");
    EXPECT_EQ(RestMessage("[ColumnWidth]\r\nt0=5"),
              "nobody reads a section of this name: ColumnWidth is a key of each column's own section");
    EXPECT_EQ(RestMessage("[CategorySetting_Gas]"),
              "nobody reads a section of this name: a category's is named CategorySpecificSetting_NAME");
}

TEST_F(KeysCheck, KeysOfTheInstallersChoiceAreNotUnknown) {
    EXPECT_EQ(Rest("[CategoryTranslations]\r\nFire=Brand\r\n[Senders]\r\nPLC1=5"), "");
}

TEST_F(KeysCheck, EveryKeyOfTheTableIsKnownWithItsDefault) {
    std::string section, general, rest;
    for (const cSettingKey& key : SettingKeys()) {
        // What these defaults mean is told by other tests.
        if (key.section == "PrinterPorts" || key.name == "Language" || key.name == "Columns") continue;
        if (key.kind == eValueKind::Rgb || key.name.starts_with("USBLED_")) continue;
        if (key.section == "General") {
            general += key.name + "=" + key.defaultValue + "\r\n";
            continue;
        }
        if (section != key.section) rest += "[" + key.section + "]\r\n";
        section = key.section;
        rest += key.name + "=" + key.defaultValue + "\r\n";
    }
    EXPECT_EQ(Lines(Check(Content(general, rest))), "");
}

TEST(NearestName, IsTheOneThatASlipOfTheHandExplains) {
    const std::vector<std::string> known{"Port", "Format", "MaxEvents", "MaxDays"};
    EXPECT_EQ(NearestName("Prot", known), "Port");
    EXPECT_EQ(NearestName("FORMATT", known), "Format");
    EXPECT_EQ(NearestName("MaxEvent", known), "MaxEvents");
    EXPECT_EQ(NearestName("MxEvnts", known), std::nullopt);
    EXPECT_EQ(NearestName("X", {"Y"}), std::nullopt);
    EXPECT_EQ(NearestName("", known), std::nullopt);
}

TEST(NameDistance, CountsStepsCaseApart) {
    EXPECT_EQ(NameDistance("abc", "ABC"), 0u);
    EXPECT_EQ(NameDistance("abc", "acb"), 1u);
    EXPECT_EQ(NameDistance("abc", "ab"), 1u);
    EXPECT_EQ(NameDistance("", "abc"), 3u);
    EXPECT_EQ(NameDistance("kitten", "sitting"), 3u);
}

}  // namespace
}  // namespace vigrel::testing
