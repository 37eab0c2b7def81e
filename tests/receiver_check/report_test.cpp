// Reports as a whole, the command line, and the delivered configuration.

#include "adapters/linux/linux_files.h"
#include "common/code_page.h"
#include "common/failure.h"
#include "common/path_text.h"
#include "inspect/alarm_samples.h"
#include "receiver-check/options.h"
#include "receiver-check/print.h"
#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

class ReportCheck : public testing::cCheckedStation {
  protected:
    cFindings OddStation() {
        m_Machine.m_Trial = {cMachine::ePort::InUse, ""};
        m_Files.Put(kApp + "Alarms\\A0042917.alm", samples::kAlarm.substr(0, 30));
        return Check(
            "[General]\r\n"
            "Object=G\xE4vle\r\n"
            "Language=044\r\n"
            "Columns=t0,Zone\r\n"
            "ShowInTaskBar=yes\r\n"
            "MaxEvent=500\r\n" +
            Colours() +
            "EventSignal=3\r\n"
            "EventSoundFile=Sounds\\bel.wav\r\n"
            "[CategorySpecificSetting_Vigrel]\r\n"
            "BackColor_Active=255,255,0\r\n"
            "[Senders]\r\n"
            "PLC1 =5\r\n");
    }
};

TEST_F(ReportCheck, AReportIsOneLineForEachFindingAndACount) {
    EXPECT_EQ(
        ReportText(OddStation()),
        R"(VigrelReceiver.INI: warning: [TCPIP] Port: TCP port 12412 is in use (perhaps by the station itself) [port-in-use]
VigrelReceiver.INI:4: warning: [General] Columns=t0,Zone: the first column shows its picture alone, and t0 has none: begin with StateIcon [first-column-blank]
VigrelReceiver.INI:4: warning: [General] Columns=t0,Zone: the column "Zone" is not known and acts as StateIcon [unknown-column]
VigrelReceiver.INI:5: warning: [General] ShowInTaskBar=yes: is neither 0 nor 1 and so means off [flag-not-0-or-1]
VigrelReceiver.INI:6: warning: [General] MaxEvent=500: nobody reads a key of this name here; is "MaxEvents" meant? [unknown-key]
VigrelReceiver.INI:16: error: [General] EventSoundFile=Sounds\bel.wav: there is no file C:\App\Sounds\bel.wav: it stays silent [sound-missing]
VigrelReceiver.INI:18: warning: [CategorySpecificSetting_Vigrel] BackColor_Active=255,255,0: without ForeColor_Active in the same section the text takes a colour that nobody chose [back-without-fore]
VigrelReceiver.INI:20: warning: [Senders] PLC1 =5: the blanks around the name are part of it: "PLC1 " matches no sender that sends its name without them [sender-blanks]
Alarms\A0042917.alm: warning: byte 29, t1: the file ends inside this field [alarm-damaged]
1 error, 8 warnings, 0 remarks
)");
}

TEST_F(ReportCheck, AReportForScriptsIsOneJsonObject) {
    EXPECT_EQ(ReportJson("/srv/G\xE4vle", Check(Content("ShowInTaskBar=\"y\\es\"\r\nDateFormat=\"\""))),
              R"({
  "folder": "/srv/Gävle",
  "errors": 0,
  "warnings": 1,
  "remarks": 0,
  "findings": [
    {"severity": "warning", "name": "flag-not-0-or-1", "file": "VigrelReceiver.INI", "line": 2, "section": "General", "key": "ShowInTaskBar", "value": "y\\es", "message": "is neither 0 nor 1 and so means off"}
  ]
}
)");
    EXPECT_EQ(ReportJson("/srv/station", {}),
              "{\n  \"folder\": \"/srv/station\",\n  \"errors\": 0,\n  \"warnings\": 0,\n  \"remarks\": "
              "0,\n  \"findings\": []\n}\n");
}

TEST_F(ReportCheck, WhatAFindingDoesNotHaveIsNullInJson) {
    m_Machine.m_NotWritable = {{kApp + "Alarms", "Permission denied"}};
    const std::string json = ReportJson("x", Check(Content()));
    EXPECT_NE(
        json.find("\"file\": \"Alarms\", \"line\": null, \"section\": null, \"key\": null, \"value\": null"),
        std::string::npos)
        << json;
}

TEST_F(ReportCheck, WithoutFindingsItSaysSo) {
    EXPECT_EQ(ReportText({}), "Nothing to remark.\n");
}

TEST_F(ReportCheck, NoFileCanSteerTheTerminal) {
    const std::string text = ReportText(Check(Content("ShowInTaskBar=\x1B[2J")));
    EXPECT_EQ(text.find('\x1B'), std::string::npos);
    EXPECT_NE(text.find("ShowInTaskBar=\\x1B[2J"), std::string::npos);
}

// --- the delivered configuration

TEST_F(ReportCheck, TheDeliveredConfigurationHasRemarksAtMost) {
    const std::string share = Utf8ToCodePage(VIGREL_SHARE_DIR);
    const cLinuxFiles delivered;
    for (const std::string folder : {"", "Sounds\\"}) {
        for (const std::string& name : delivered.ListFiles(share + "\\" + folder, "*")) {
            m_Files.Put(kApp + folder + name, delivered.ReadFile(share + "\\" + folder + name));
        }
    }
    const cFindings findings = Check(delivered.ReadFile(share + "\\Templates\\VigrelReceiver.044"));
    EXPECT_EQ(Lines(findings), "remark language-not-set [General] Language");
}

// --- the command line

TEST(CheckOptions, TakeAFolderAndOptionsInAnyOrder) {
    const cCheckOptions options = ReadCheckOptions({"--json", "/srv/Gävle", "--files-only"});
    EXPECT_EQ(options.folder, "/srv/G\xE4vle");
    EXPECT_TRUE(options.json);
    EXPECT_TRUE(options.filesOnly);
    EXPECT_FALSE(ReadCheckOptions({"."}).json);
    EXPECT_EQ(ReadCheckOptions({"--", "-odd"}).folder, "-odd");
    EXPECT_TRUE(ReadCheckOptions({"--help"}).help);
}

TEST(CheckOptions, TheFolderIsWhateverBytesItHas) {
    EXPECT_EQ(PathBytes(ReadCheckOptions({"/srv/Žatec☃"}).folder), "/srv/Žatec☃");
    EXPECT_EQ(ReportJson(PathText("/srv/иван"), {}).find("\"folder\": \"/srv/иван\""), 4u);
}

TEST(CheckOptions, RefuseWhatIsNotOneFolder) {
    const auto refusal = [](const std::vector<std::string>& words) {
        const auto failure = CatchFailure([&] { ReadCheckOptions(words); });
        return failure ? std::string(failure->what()) : "";
    };
    EXPECT_EQ(refusal({}), "no folder was named");
    EXPECT_EQ(refusal({"a", "b"}), "one folder at a time can be checked");
    EXPECT_EQ(refusal({"--fix", "a"}), "the option --fix is not known");
}

TEST(CheckOptions, HelpHasExamplesAndExitCodes) {
    EXPECT_NE(CheckHelpText().find("Examples:\n"), std::string::npos);
    EXPECT_NE(CheckHelpText().find("Exit code: 0"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::testing
