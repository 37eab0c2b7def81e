// The configuration as a file: what a reader of single keys never tells.

#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

class FileCheck : public testing::cCheckedStation {};

TEST_F(FileCheck, OfAGoodStationThereIsNothingToRemark) {
    EXPECT_EQ(Whole(Content()), "");
}

TEST_F(FileCheck, CaseOfSectionsAndKeysIsNoMatter) {
    EXPECT_EQ(General("SHOWINTASKBAR=0"), "");
    EXPECT_EQ(Rest("[tcpip]\r\nport=12500\r\n[SENDERS]\r\nPLC1=5\r\n[T0]\r\nCOLUMNWIDTH=50"), "");
}

TEST_F(FileCheck, AMissingFileIsMadeOfTheTemplate) {
    EXPECT_EQ(Lines(CheckInstallation(m_Files, kApp, &m_Machine)),
              "error no-configuration VigrelReceiver.INI\nremark language-not-set [General] Language");
    m_Files.Put(kApp + "Templates\\VigrelReceiver.oni", "[General]\r\n");
    EXPECT_EQ(Lines(CheckInstallation(m_Files, kApp, &m_Machine)),
              "remark no-configuration VigrelReceiver.INI\nremark language-not-set [General] Language");
}

TEST_F(FileCheck, AFileThatCantBeReadIsAnError) {
    m_Files.Put(kApp + "VigrelReceiver.INI", Content());
    m_Files.SetUnreadable(kApp + "VigrelReceiver.INI", true);
    const cFindings findings = CheckInstallation(m_Files, kApp, &m_Machine);
    EXPECT_EQ(Lines(findings),
              "error unreadable VigrelReceiver.INI\nremark language-not-set [General] Language");
    EXPECT_NE(findings.m_All[0].message.find("VigrelReceiver.INI"), std::string::npos);
}

TEST_F(FileCheck, AnEmptyFileIsAListWithoutColumnsInBlackOnBlack) {
    const std::string lines = Whole("; nothing\r\n");
    EXPECT_NE(lines.find("warning no-general VigrelReceiver.INI"), std::string::npos);
    EXPECT_NE(lines.find("error no-columns [General] Columns"), std::string::npos);
    EXPECT_NE(lines.find("error no-contrast [General] BackColor_Active"), std::string::npos);
    EXPECT_EQ(Whole(""), lines);
}

TEST_F(FileCheck, KeysBeforeAnySectionAreNotRead) {
    const cFindings findings = Check("Port=12500\r\n" + Content());
    EXPECT_EQ(Lines(findings), "warning key-before-section Port");
    EXPECT_EQ(findings.m_All[0].place, (cPlace{"VigrelReceiver.INI", 1, "", "Port", "12500"}));
}

TEST_F(FileCheck, OfRepeatedSectionsOnlyTheFirstCounts) {
    const cFindings findings = Check(Content("", "[TCPIP]\r\nPort=12500\r\n[tcpip]\r\nPort=none"));
    EXPECT_EQ(Lines(findings), "warning section-repeated [tcpip]");
    EXPECT_EQ(findings.m_All[0].place.line, 17u);
    EXPECT_EQ(findings.m_All[0].message,
              "the section stands in line 15 already; nothing below this one is read");
}

TEST_F(FileCheck, OfRepeatedKeysOnlyTheFirstCounts) {
    const cFindings findings = Check(Content("MaxDays=5\r\nMaxdays=none"));
    EXPECT_EQ(Lines(findings), "warning key-repeated [General] Maxdays");
    EXPECT_EQ(findings.m_All[0].place.line, 3u);
    EXPECT_EQ(findings.m_All[0].message, "the key stands in line 2 already; only the first one counts");
}

TEST_F(FileCheck, ALineThatIsNeitherKeyNorHeaderNorRemarkIsTold) {
    EXPECT_EQ(General("ShowInTaskBar"), "warning line-unreadable [General]");
    EXPECT_EQ(General("// a remark"), "warning line-unreadable [General]");
    EXPECT_EQ(General("; a remark\r\n  ; another\r\n\r\n  "), "");
}

TEST_F(FileCheck, AHeaderWithoutItsEndIsAnError) {
    EXPECT_EQ(Rest("[TCPIP"), "error header-open [CategorySpecificSetting_Fire]");
}

TEST_F(FileCheck, BlanksBesideABracketHideSendersAndCategories) {
    EXPECT_EQ(Rest(" [Senders]\r\nPLC1=5"), "error header-not-seen [Senders]");
    EXPECT_EQ(Rest("[Senders ]\r\nPLC1=5"), "error header-not-seen [Senders]");
    EXPECT_EQ(Rest("[ CategorySpecificSetting_Gas]"), "error header-not-seen [CategorySpecificSetting_Gas]");
    EXPECT_EQ(Rest("[CategorySpecificSetting_Gas ]"), "");
}

TEST_F(FileCheck, AnIndentedHeaderDoesNotEndTheSendersAboveIt) {
    EXPECT_EQ(Rest(" [TCPIP]\r\nPort=12412"), "warning header-indented [TCPIP]");
    EXPECT_EQ(Rest("[ TCPIP ]\r\nPort=12412"), "");
}

TEST_F(FileCheck, AByteOrderMarkHidesTheFirstHeader) {
    const std::string lines = Whole("\xEF\xBB\xBF" + Content());
    EXPECT_NE(lines.find("error byte-order-mark VigrelReceiver.INI"), std::string::npos);
    EXPECT_NE(lines.find("warning no-general"), std::string::npos);
}

TEST_F(FileCheck, Utf16IsAnError) {
    EXPECT_NE(Whole(std::string("\xFF\xFE[\0G\0", 6)).find("error utf-16"), std::string::npos);
}

TEST_F(FileCheck, Utf8IsToldOnceAndLettersOfTheCodePageAreNot) {
    const cFindings findings = Check(Content("Object=G\xC3\xA4vle\r\nCountryFilter=\xC3\x96"));
    EXPECT_EQ(Lines(findings), "warning utf-8 VigrelReceiver.INI");
    EXPECT_EQ(findings.m_All[0].place.line, 2u);
    EXPECT_EQ(General("Object=G\xE4vle \xC5\xC4\xD6\xE5\xE4\xF6"), "");
}

TEST_F(FileCheck, CategoriesBehindTheBufferOfSectionNamesAreLost) {
    std::string sections;
    const auto add = [&](int from, int to) {
        for (int i = from; i < to; ++i) {
            sections += "[CategorySpecificSetting_" + std::to_string(1000 + i) + "abc]\r\n";
        }
    };
    // Each name takes 32 characters with its zero; 69 are those of the three sections above.
    add(0, 253);
    EXPECT_EQ(Rest(sections), "");
    add(253, 256);
    EXPECT_EQ(Rest(sections), "error section-names-too-long [CategorySpecificSetting_1253abc]");
}

TEST_F(FileCheck, OtherSectionsBehindTheBufferOfSectionNamesAreARemark) {
    const std::string lines = Rest("[" + std::string(8110, 'x') + "]\r\n[t1]\r\n[t2]\r\n[AlarmDateTime]");
    EXPECT_NE(lines.find("remark section-names-too-long VigrelReceiver.INI"), std::string::npos);
}

TEST_F(FileCheck, ACategoryOfTwoSectionsHasTheFirst) {
    EXPECT_EQ(Rest("[CategorySpecificSetting_ fire]"),
              "warning category-repeated [CategorySpecificSetting_ fire]");
    EXPECT_EQ(Rest("[CategorySpecificSetting_]"), "warning category-without-name [CategorySpecificSetting_]");
}

TEST_F(FileCheck, AValueThatIsCutIsTold) {
    EXPECT_EQ(General("Object=" + std::string(2047, 'x')), "");
    EXPECT_EQ(General("Object=" + std::string(2048, 'x')), "warning value-too-long [General] Object");
}

}  // namespace
}  // namespace vigrel::testing
