#include "vigrel-report/record/log_forms.h"

#include <gtest/gtest.h>

#include "report/written_station.h"
#include "vigrel-report/record/alarm_names.h"

namespace vigrel::report {
namespace {

using testing::DeliveredTexts;

const std::vector<std::string> kLanguageNumbers = {"044", "045", "046", "047", "049", "358"};

// The words of all six languages, as an installation has them.
std::vector<cLogPhrases> AllPhrases() {
    testing::cFakeFiles files;
    for (const std::string& number : kLanguageNumbers) {
        std::ifstream file(std::string(VIGREL_SHARE_DIR) + "/Vigrel_Texts." + number, std::ios::binary);
        files.Put("/share/Vigrel_Texts." + number, std::string(std::istreambuf_iterator<char>(file), {}));
    }
    return ReadPhrases(files, "/share/");
}

class LogForms : public ::testing::TestWithParam<std::string> {
  protected:
    cLogLine Read(const std::string& text) {
        m_Line = text;
        return m_Forms.Read(m_Line);
    }
    std::map<int, std::string> m_Texts = DeliveredTexts(GetParam());
    cLogForms m_Forms{AllPhrases()};
    std::string m_Line;
};

TEST_P(LogForms, KnowEveryLineOfTheDeliveredTexts) {
    const std::string alarm = "Active - Fan 3 tripped (Boiler room/Technical//)";
    EXPECT_EQ(Read(m_Texts[10040]).kind, eLine::Start);
    EXPECT_EQ(Read(m_Texts[10011]).kind, eLine::Started);
    EXPECT_EQ(Read(m_Texts[10020]).kind, eLine::EndBySession);
    EXPECT_EQ(Read(m_Texts[10021]).kind, eLine::EndByOperator);
    EXPECT_EQ(Read(std::string(120, '-')).kind, eLine::Known);
    EXPECT_EQ(Read(m_Texts[10046]).kind, eLine::Known);
    EXPECT_EQ(Read(m_Texts[10047] + " (type 1): serial-4711").kind, eLine::Known);
    EXPECT_EQ(Read(m_Texts[10044]).kind, eLine::Known);
    EXPECT_EQ(Read(m_Texts[10017] + " 12412 " + m_Texts[10018]).kind, eLine::Known);
    EXPECT_EQ(Read(m_Texts[141] + " C:\\App\\LogFiles\\20260101.LOG)").kind, eLine::Known);
    EXPECT_EQ(Read(m_Texts[10027] + " 1").kind, eLine::Known);
    EXPECT_EQ(Read("17 " + m_Texts[10041]).kind, eLine::Known);
    EXPECT_EQ(Read("... 17 " + m_Texts[10048]).kind, eLine::Known);
    for (const auto& [id, kind] : std::map<int, eLine>{{10039, eLine::Acknowledged},
                                                       {10043, eLine::PopupOpened},
                                                       {10037, eLine::PopupClosed},
                                                       {10038, eLine::PrintFailed}}) {
        const cLogLine line = Read(m_Texts[id] + " " + alarm);
        EXPECT_EQ(line.kind, kind) << id;
        EXPECT_EQ(line.alarm, alarm) << id;
    }
}

TEST_P(LogForms, KnowWhatAStationSaysOfItsSurroundings) {
    for (const std::string& text :
         {m_Texts[11006], m_Texts[11007], m_Texts[11008],
          m_Texts[11002] + ": Vigrel_Texts.046: Permission denied",
          m_Texts[11003] + ": /app: Permission denied", m_Texts[10053] + " (/app/Alarms: Permission denied)",
          "Alarms\\A0000x.alm " + m_Texts[11005], "Vigrel_Texts.046: 2 " + m_Texts[11000] + ": 10052, 10053",
          "7 " + m_Texts[11004] + " A0000001 A0000002"}) {
        EXPECT_EQ(Read(text).kind, eLine::Known) << text;
    }
    EXPECT_EQ(Read("some " + m_Texts[11004] + " x").kind, eLine::Unknown);
    EXPECT_EQ(Read("Alarms\\A0000001.alm").kind, eLine::Unknown);
}

TEST_P(LogForms, KnowWhatTheEditorSaysOfDefinitions) {
    for (const std::string& line :
         {m_Texts[803] + " 'Receiver_7.dat' (9) " + m_Texts[804],
          m_Texts[888] + " 'Receiver_7.dat' (version 1 -> 2)",
          m_Texts[930] + " 'Profile_7.dat' (version 1 -> 2)", m_Texts[976] + " 'North' Receiver_7.dat",
          m_Texts[977] + " 'North' Receiver_7.dat Err:Permission denied",
          m_Texts[978] + " Receiver_7.dat Err:Permission denied",
          m_Texts[979] + " Receiver_7.dat Err:Disk full", m_Texts[980] + " Profile_7.dat Err:Disk full",
          m_Texts[981] + " 'North' Profile_7.dat", m_Texts[982] + " Profile_7.dat Err:Permission denied"}) {
        EXPECT_EQ(Read(line).kind, eLine::Known) << line;
    }
}

TEST_P(LogForms, NameTheSender) {
    const cLogLine alarm = Read("Boiler room " + m_Texts[10030] + " Active - Fan (A/B//)");
    EXPECT_EQ(alarm.kind, eLine::Alarm);
    EXPECT_EQ(alarm.sender, "Boiler room");
    EXPECT_EQ(alarm.alarm, "Active - Fan (A/B//)");
    EXPECT_EQ(Read("PLC1 " + m_Texts[10028]).sender, "PLC1");
    EXPECT_EQ(Read("PLC1 " + m_Texts[10028]).kind, eLine::KeepAlive);
    EXPECT_EQ(Read("PLC1" + m_Texts[10029]).kind, eLine::UnknownSender);
    EXPECT_EQ(Read("PLC1 " + m_Texts[10042] + " -> hello").kind, eLine::Message);
    const cLogLine row = Read("PLC1 - " + m_Texts[10013] + " 15 " + m_Texts[10014]);
    EXPECT_EQ(row.kind, eLine::SenderRow);
    EXPECT_EQ(row.sender, "PLC1");
    EXPECT_EQ(row.number, 15);
    const cLogLine unsupervised = Read("PLC1 - " + m_Texts[10012]);
    EXPECT_EQ(unsupervised.kind, eLine::SenderRow);
    EXPECT_EQ(unsupervised.number, 0);
    const cLogLine removed = Read("12 " + m_Texts[10036]);
    EXPECT_EQ(removed.kind, eLine::Removed);
    EXPECT_EQ(removed.number, 12);
    EXPECT_EQ(m_Forms.LostSender("PLC 7 - " + m_Texts[10031] + " 2026-03-15 12:30:15"), "PLC 7");
    EXPECT_EQ(m_Forms.LostSender("PLC 7 - " + m_Texts[10032]), "PLC 7");
}

TEST_P(LogForms, WordsInATextThatASenderChoseAreText) {
    const cLogLine message =
        Read("PLC1 " + m_Texts[10042] + " -> X " + m_Texts[10030] + " Active - Fire (a/b/c/d)");
    EXPECT_EQ(message.kind, eLine::Message);
    EXPECT_EQ(message.sender, "PLC1");
    EXPECT_EQ(Read("PLC1 " + m_Texts[10042] + " -> Y " + m_Texts[10028]).kind, eLine::Message);
    const cLogLine alarm = Read("PLC1 " + m_Texts[10030] + " Active - x " + m_Texts[10042] + " -> (a/b/c/d)");
    EXPECT_EQ(alarm.kind, eLine::Alarm);
    EXPECT_EQ(alarm.sender, "PLC1");
}

TEST_P(LogForms, LinesOfOtherProgramsAreUnknown) {
    for (const char* text :
         {"", "systemd[1]: Started cron", "GET /index.html 200", "Active - Fan (A/B/C/D)", " "}) {
        EXPECT_EQ(Read(text).kind, eLine::Unknown) << text;
    }
    EXPECT_EQ(Read(m_Texts[10040] + "!").kind, eLine::Unknown);
    EXPECT_EQ(Read("many " + m_Texts[10036]).kind, eLine::Unknown);
    EXPECT_EQ(Read("... " + m_Texts[10048]).kind, eLine::Unknown);
}

INSTANTIATE_TEST_SUITE_P(Languages, LogForms, ::testing::ValuesIn(kLanguageNumbers));

TEST(LogFormsOfNoLanguage, KnowNothing) {
    cLogForms forms({cLogPhrases(), cLogPhrases()});
    EXPECT_EQ(forms.Read("").kind, eLine::Unknown);
    EXPECT_EQ(forms.Read("PLC1 x").kind, eLine::Unknown);
    EXPECT_EQ(cLogForms({}).Read("x").kind, eLine::Unknown);
}

// --- the text of an alarm

bool IsTechnical(std::string_view category) {
    return category == "Technical";
}

TEST(AlarmText, HasAStateAndIsWhole) {
    EXPECT_EQ(SplitAlarm("Inactive - Fan (A/B//)")->state, 0);
    EXPECT_EQ(SplitAlarm("Active - Fan (A/B//)")->body, "Fan (A/B//)");
    EXPECT_EQ(SplitAlarm("Acked - Fan (A/B//)")->state, 2);
    EXPECT_FALSE(SplitAlarm("Active - Fan (A/B"));
    EXPECT_FALSE(SplitAlarm("Broken - Fan (A/B//)"));
    EXPECT_FALSE(SplitAlarm(""));
}

TEST(AlarmText, IsCutIntoItsParts) {
    const cCutAlarm cut = CutAlarm("Fan 3 tripped (Boiler room/Technical/22 C/x)", IsTechnical);
    EXPECT_EQ(cut.fields, (AlarmFields{"Fan 3 tripped", "Boiler room", "Technical", "22 C", "x"}));
    EXPECT_TRUE(cut.certain);
}

TEST(AlarmText, WithBracketsAndSlashesIsCutByItsCategory) {
    const cCutAlarm cut = CutAlarm("Fan 1/2 (north) (Room 3/4/Technical//)", IsTechnical);
    EXPECT_EQ(cut.fields, (AlarmFields{"Fan 1/2 (north)", "Room 3/4", "Technical", "", ""}));
    EXPECT_TRUE(cut.certain);
    EXPECT_FALSE(CutAlarm("Fan (Room 3/4/Other//)", IsTechnical).certain);
    EXPECT_FALSE(CutAlarm("no parts)", IsTechnical).certain);
    EXPECT_FALSE(CutAlarm("", IsTechnical).certain);
}

TEST(AlarmNames, TellSendersApartWithoutCaseAndSourcesByTheirTexts) {
    cAlarmNames names;
    EXPECT_EQ(names.Sender("PLC1"), names.Sender("plc1"));
    const std::uint32_t one = names.SourceOf(names.Sender("PLC1"), names.Body("Fan (A/B/21 C/)"));
    EXPECT_EQ(names.SourceOf(names.Sender("plc1"), names.Body("Fan (A/B/22 C/)")), one);
    EXPECT_NE(names.SourceOf(names.Sender("PLC2"), names.Body("Fan (A/B/21 C/)")), one);
    EXPECT_NE(names.SourceOf(names.Sender("PLC1"), names.Body("Fan (X/B/21 C/)")), one);
    EXPECT_EQ(names.Source(one).place, "A");
}

}  // namespace
}  // namespace vigrel::report
