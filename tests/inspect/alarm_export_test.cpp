#include "vigrel-inspect/alarm_export.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "common/date_text.h"
#include "common/dates.h"
#include "common/failure.h"
#include "inspect/alarm_samples.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "tool_support/stored_alarms.h"

namespace vigrel::testing {
namespace {

const std::string kHeader =
    "\"file\",\"created\",\"sender\",\"status\",\"observed\",\"time_at_source\",\"time_at_pc\",\"event_id\","
    "\"t0\",\"t1\",\"category\",\"t3\",\"t4\",\"t5\",\"problem\"\r\n";

class AlarmExport : public ::testing::Test {
  protected:
    void Put(const std::string& digits, DateTime created, const std::string& category = "",
             const std::string& sender = "", std::int16_t status = 0, bool observed = false) {
        cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
        alarm.m_CreatedTime = created;
        alarm.m_Alarm.SetCondition(2, category);
        alarm.m_Sender = sender;
        alarm.m_Alarm.m_Status = status;
        alarm.m_Observed = observed ? True16 : False16;
        PutAlarm(digits, alarm);
    }
    void PutAlarm(const std::string& digits, const cVigrelRecieverAlarm& alarm) {
        cBinaryWriter file;
        alarm.WriteToDisk(file);
        m_Files.Put("/app/Alarms/A" + digits + ".alm", file.Bytes());
    }
    cExportResult Export(const cExportWish& wish = {}) {
        return ExportAlarms(m_Files, FindAlarmFolder(m_Files, "/app"), wish,
                            [this](std::size_t done, std::size_t all) {
                                m_Progress += std::to_string(done) + "/" + std::to_string(all) + " ";
                            });
    }
    // The last digits of the files of a table, in its order.
    std::string Names(const cExportWish& wish = {}) {
        const std::string table = Export(wish).table;
        std::string names;
        for (std::size_t at = table.find("\"A0"); at != std::string::npos; at = table.find("\"A0", at + 1)) {
            names += table.substr(at + 8, 1);
        }
        return names;
    }
    std::string NamesWith(void (*change)(cAlarmFilter&)) {
        cExportWish wish;
        change(wish.filter);
        return Names(wish);
    }

    testing::cFakeFiles m_Files;
    testing::cFakeClock m_Clock;
    std::string m_Progress;
};

TEST_F(AlarmExport, EveryAlarmIsALineOfQuotedCells) {
    m_Files.Put("/app/Alarms/A0042917.alm", samples::kAlarm);
    const cExportResult result = Export();
    EXPECT_EQ(result.table,
              kHeader +
                  "\"A0042917.alm\",\"2026-03-15 12:30:15\",\"\xC3\x96st\",\"active\",\"no\","
                  "\"2026-03-15 12:00:00\",\"2026-03-15 12:30:15\",\"12\",\"Pump1\",\"A\",\"Fire\","
                  "\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(result.files, 1u);
    EXPECT_EQ(result.alarms, 1u);
    EXPECT_EQ(result.damaged, 0u);
}

TEST_F(AlarmExport, TheOldestAlarmComesFirst) {
    Put("0000001", 300);
    Put("0000002", 100);
    Put("0000003", 200);
    EXPECT_EQ(Names(), "231");
    EXPECT_EQ(m_Progress, "1/3 2/3 3/3 ");
}

TEST_F(AlarmExport, AlarmsOfOneMomentKeepTheOrderOfTheirNames) {
    for (int i = 9; i >= 1; --i) Put("000000" + std::to_string(i), i % 2 == 0 ? 200 : 100);
    m_Files.m_ListsBackwards = true;
    EXPECT_EQ(Names(), "135792468");
}

TEST_F(AlarmExport, EveryTimeHasItsPlaceAndOneThatIsNoDateIsTold) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    Put("0000001", std::numeric_limits<double>::quiet_NaN());
    Put("0000002", kInfinity);
    Put("0000003", 46000);
    Put("0000004", -kInfinity);
    EXPECT_EQ(Names(), "1243");
    const cExportResult result = Export();
    EXPECT_EQ(result.damaged, 3u);
    EXPECT_NE(result.table.find("the time of arrival is no date of the years 100 to 9999\"\r\n"),
              std::string::npos);
}

TEST_F(AlarmExport, QuotesAreDoubledAndLineEndsStayInsideTheirCell) {
    cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
    alarm.m_Alarm.SetCondition(0, "a \"b\", c\nd");
    PutAlarm("0000001", alarm);
    EXPECT_NE(Export().table.find(",\"a \"\"b\"\", c\nd\","), std::string::npos);
}

TEST_F(AlarmExport, ACellIsNoFormulaForASpreadsheetUnlessItIsWantedExactly) {
    for (const std::string text : {"=1+2", "+A1", "@x", "-x", "\tx"}) {
        cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
        alarm.m_Alarm.SetCondition(0, text);
        PutAlarm("0000001", alarm);
        EXPECT_NE(Export().table.find(",\"'" + text + "\","), std::string::npos) << text;
        EXPECT_NE(Export({{}, true}).table.find(",\"" + text + "\","), std::string::npos) << text;
    }
    cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
    alarm.m_Alarm.SetCondition(0, "-12.5");
    PutAlarm("0000001", alarm);
    EXPECT_NE(Export().table.find(",\"-12.5\","), std::string::npos);
}

TEST_F(AlarmExport, FiltersByMomentCategorySenderStateAndObserved) {
    Put("0000001", 100, "Fire", "North", StatusActive, false);
    Put("0000002", 200, "Water", "South", StatusInactive, true);
    Put("0000003", 300, "fire", "East", StatusMessage, false);
    EXPECT_EQ(Names(), "123");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.from = 200; }), "23");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.before = 200; }), "1");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.categories = {"FIRE"}; }), "13");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.senders = {"north", "South"}; }), "12");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.states = {StatusActive, StatusMessage}; }), "13");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.observed = true; }), "2");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) { f.observed = false; }), "13");
    EXPECT_EQ(NamesWith([](cAlarmFilter& f) {
                  f.categories = {"fire"};
                  f.from = 200;
              }),
              "3");
}

TEST_F(AlarmExport, ADamagedFileHasARowThatSaysSoWhateverTheFilter) {
    m_Files.Put("/app/Alarms/A0000001.alm", samples::kAlarm.substr(0, 40));
    m_Files.Put("/app/Alarms/A0000002.alm", samples::kAlarm + "x");
    m_Files.Put("/app/Alarms/A0000003.alm", samples::kAlarm);
    m_Files.SetUnreadable("/app/Alarms/A0000003.alm", true);
    cExportWish wish;
    wish.filter.senders = {"nobody"};
    const cExportResult result = Export(wish);
    EXPECT_EQ(result.damaged, 3u);
    EXPECT_EQ(result.alarms, 3u);
    EXPECT_NE(result.table.find("the file ends too early, at its byte 40\"\r\n"), std::string::npos);
    EXPECT_NE(result.table.find("1 bytes lie behind the alarm\"\r\n"), std::string::npos);
    EXPECT_NE(result.table.find("the file can't be read\"\r\n"), std::string::npos);
}

TEST_F(AlarmExport, AStatusThatIsNoneIsToldAndHasNoName) {
    Put("0000001", 100, "", "", -1);
    Put("0000002", 200, "", "", 4);
    Put("0000003", 300, "", "", 3);
    const cExportResult result = Export();
    EXPECT_EQ(result.damaged, 2u);
    EXPECT_NE(result.table.find("\"the status is not in 0 to 3\"\r\n"), std::string::npos);
    EXPECT_EQ(StateName(-1), "");
    EXPECT_EQ(StateName(0), "inactive");
    EXPECT_EQ(StateName(3), "message");
    EXPECT_EQ(StateName(4), "");
}

TEST_F(AlarmExport, AFileCutAtAnyLengthIsToldAsDamaged) {
    for (std::size_t length = 0; length < samples::kAlarm.size(); ++length) {
        m_Files.Put("/app/Alarms/A0000001.alm", samples::kAlarm.substr(0, length));
        EXPECT_EQ(Export().damaged, 1u) << length;
    }
}

TEST_F(AlarmExport, OnlyNamesOfSevenDigitsAreAlarms) {
    Put("0000001", 100);
    Put("00000x2", 100);
    Put("x000004", 100);
    Put("000005x", 100);
    m_Files.Put("/app/Alarms/A0000003.alm.$~", samples::kAlarm);
    EXPECT_EQ(Export().files, 1u);
}

TEST_F(AlarmExport, TheFolderIsTheApplicationFolderOrItsAlarms) {
    Put("0000001", 100);
    EXPECT_EQ(FindAlarmFolder(m_Files, "/app").path, "/app/Alarms/");
    EXPECT_EQ(FindAlarmFolder(m_Files, "/app/Alarms/").path, "/app/Alarms/");
    EXPECT_THROW(FindAlarmFolder(m_Files, "/other"), cFailure);
    m_Files.Put("/other/VigrelReceiver.INI", "");
    EXPECT_EQ(FindAlarmFolder(m_Files, "/other").path, "/other/Alarms/");
    EXPECT_EQ(
        ExportAlarms(m_Files, FindAlarmFolder(m_Files, "/other"), {}, [](std::size_t, std::size_t) {}).table,
        kHeader);
}

TEST_F(AlarmExport, OnATerminalControlCharactersAreEscaped) {
    Put("0000001", 1,
        "\x1B[2J\x07\x9B"
        "31m",
        "PLC\n1");
    const std::string file = Export().table;
    EXPECT_NE(file.find("\"\x1B[2J\x07"), std::string::npos) << "a file has the texts as they are";
    const std::string shown = Export({.filter = {}, .exact = false, .terminal = true}).table;
    EXPECT_NE(shown.find("\"\\x1B[2J\\x07"), std::string::npos) << shown;
    EXPECT_NE(shown.find("\"PLC\\n1\""), std::string::npos) << shown;
    for (const char c : shown) {
        const bool plain = static_cast<unsigned char>(c) >= 0x20 && c != 0x7F;
        EXPECT_TRUE(plain || c == '\r' || c == '\n') << static_cast<int>(c);
    }
}

TEST(AlarmFilter, ASecondThatIsShownIsIncludedByFromAndLeftOutByTheEndBeforeIt) {
    const testing::cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    const DateTime second = DateSerial(2026, 3, 15) + TimeSerial(12, 30, 15);
    alarm.m_CreatedTime = second - 0.5e-4 / 86400;
    ASSERT_EQ(DateTimeText(alarm.m_CreatedTime), "2026-03-15 12:30:15");
    cAlarmFilter from, before;
    from.from = second;
    before.before = second;
    EXPECT_TRUE(from.Wants(alarm));
    EXPECT_FALSE(before.Wants(alarm));
    // What has no time is older than all.
    for (const double none : {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL}) {
        alarm.m_CreatedTime = none;
        EXPECT_FALSE(from.Wants(alarm)) << none;
        EXPECT_TRUE(before.Wants(alarm)) << none;
    }
}

}  // namespace
}  // namespace vigrel::testing
