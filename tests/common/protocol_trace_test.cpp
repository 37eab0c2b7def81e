#include "common/protocol_trace.h"

#include <gtest/gtest.h>

#include <map>

#include "common/failure.h"
#include "common/text.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

constexpr std::int16_t TraceReceived = 1, TraceSent = 2;

class ProtocolTrace : public ::testing::Test {
  protected:
    ProtocolTrace() {
        m_State.m_DebugMode = true;
        m_Files.PutFolder("C:\\App\\LogFiles\\");
    }
    // Rows as "tag/icon text" lines.
    std::string Rows() const {
        std::string text;
        for (const cTraceRow& row : m_Trace.Rows()) {
            text += row.tag + "/" + std::to_string(row.icon) + " " + row.text + "\n";
        }
        return text;
    }
    std::string Saved() const { return m_Files.ReadFile("C:\\App\\LogFiles\\Debug.txt"); }

    cReceiverState m_State;
    cFakeClock m_Clock;
    cFakeFiles m_Files;
    cProtocolTrace m_Trace{m_State, m_Clock, m_Files, "C:\\App\\"};
};

TEST_F(ProtocolTrace, NothingIsAddedWithoutDebugMode) {
    m_State.m_DebugMode = false;
    m_Trace.WriteTrace("abc", TraceReceived);
    EXPECT_TRUE(m_Trace.Rows().empty());
}

TEST_F(ProtocolTrace, AfterTheViewIsClosedNothingMoreIsAdded) {
    m_Trace.WriteTrace("abc", TraceReceived);
    m_Trace.Form_Unload();
    m_Trace.WriteTrace("def", TraceReceived);
    EXPECT_FALSE(m_State.m_DebugMode);
    EXPECT_EQ(Rows(), "V<-S/2 abc\n");
}

TEST_F(ProtocolTrace, EachKindHasItsTagAndIcon) {
    for (std::int16_t kind = 0; kind <= 7; ++kind) m_Trace.WriteTrace("x", kind);
    m_Trace.WriteTrace("x", -1);
    EXPECT_EQ(Rows(),
              "V<>?/2 x\n"
              "V<-S/2 x\n"
              "V->S/1 x\n"
              "V<-R/2 x\n"
              "V->R/1 x\n"
              "V<-C/2 x\n"
              "V->C/1 x\n"
              "V<>?/2 x\n"
              "V<>?/2 x\n");
}

TEST_F(ProtocolTrace, TheBytesOfAFrameAreMadeVisible) {
    m_Trace.WriteTrace(
        "\x02S0\xFFt\xFF"
        "1\x03\n",
        TraceReceived);
    EXPECT_EQ(Rows(), "V<-S/2 <2>S0<255>t<255>1<3><10>\n");
}

TEST_F(ProtocolTrace, Characters32To127StandAndTheirNeighboursDoNot) {
    m_Trace.WriteTrace("\x1F \x7F\x80", TraceReceived);
    EXPECT_EQ(Rows(), "V<-S/2 <31> \x7F<128>\n");
}

TEST_F(ProtocolTrace, ALessThanSignIsNotEscapedAndAZeroIsSeen) {
    m_Trace.WriteTrace(std::string_view("<2>\0", 4), TraceReceived);
    EXPECT_EQ(Rows(), "V<-S/2 <2><0>\n");
}

TEST_F(ProtocolTrace, AnEmptyTextAddsNoRow) {
    m_Trace.WriteTrace("", TraceReceived);
    EXPECT_TRUE(m_Trace.Rows().empty());
}

TEST_F(ProtocolTrace, A180CharactersAreOneRow) {
    m_Trace.WriteTrace(std::string(180, 'x'), TraceSent);
    ASSERT_EQ(m_Trace.Rows().size(), 1u);
    EXPECT_EQ(m_Trace.Rows()[0].text, std::string(180, 'x'));
}

TEST_F(ProtocolTrace, A181CharactersAreOneRowWithNoneLeftOver) {
    m_Trace.WriteTrace(std::string(181, 'x'), TraceSent);
    ASSERT_EQ(m_Trace.Rows().size(), 1u);
    EXPECT_EQ(m_Trace.Rows()[0].text, std::string(181, 'x'));
}

TEST_F(ProtocolTrace, A182CharactersAreARowOf181AndARowOfOne) {
    m_Trace.WriteTrace(std::string(182, 'x'), TraceSent);
    ASSERT_EQ(m_Trace.Rows().size(), 2u);
    EXPECT_EQ(m_Trace.Rows()[0].text, std::string(181, 'x'));
    EXPECT_EQ(m_Trace.Rows()[1].text, "x");
    EXPECT_EQ(m_Trace.Rows()[1].tag, "V->S");
}

TEST_F(ProtocolTrace, ARenderingIsNeverSplitSoThatARowCanReach185Characters) {
    m_Trace.WriteTrace(std::string(180, 'x') + "\xFF" + "y", TraceReceived);
    ASSERT_EQ(m_Trace.Rows().size(), 2u);
    EXPECT_EQ(m_Trace.Rows()[0].text, std::string(180, 'x') + "<255>");
    EXPECT_EQ(m_Trace.Rows()[1].text, "y");
}

TEST_F(ProtocolTrace, EachRowHasItsTime) {
    m_Trace.WriteTrace("a", TraceReceived);
    m_Clock.Set(2026, 3, 15, 9, 5, 7);
    m_Trace.WriteTrace("b", TraceReceived);
    EXPECT_EQ(m_Trace.Rows()[0].time, "12:30:15");
    EXPECT_EQ(m_Trace.Rows()[1].time, "09:05:07");
}

TEST_F(ProtocolTrace, With400RowsOneMoreTakesTheOldestAway) {
    for (int i = 0; i < 400; ++i) m_Trace.WriteTrace(std::to_string(i), TraceReceived);
    EXPECT_EQ(m_Trace.Rows().size(), 400u);
    EXPECT_EQ(m_Trace.Rows().front().text, "0");
    EXPECT_EQ(m_Trace.RowsGone(), 0u);
    m_Trace.WriteTrace("400", TraceReceived);
    EXPECT_EQ(m_Trace.Rows().size(), 400u);
    EXPECT_EQ(m_Trace.Rows().front().text, "1");
    EXPECT_EQ(m_Trace.Rows().back().text, "400");
    EXPECT_EQ(m_Trace.RowsGone(), 1u);
}

TEST_F(ProtocolTrace, ATextOfMoreThan400RowsKeepsItsLast400) {
    m_Trace.WriteTrace(std::string(181u * 402u, 'x') + "y", TraceReceived);
    EXPECT_EQ(m_Trace.Rows().size(), 400u);
    EXPECT_EQ(m_Trace.Rows().back().text, "y");
    EXPECT_EQ(m_Trace.RowsGone(), 3u);
}

TEST_F(ProtocolTrace, TellsItsViewOfEachCall) {
    int changes = 0;
    m_Trace.OnChange = [&] { ++changes; };
    m_Trace.WriteTrace(std::string(400, 'x'), TraceReceived);
    EXPECT_EQ(changes, 1);
    m_State.m_DebugMode = false;
    m_Trace.WriteTrace("x", TraceReceived);
    EXPECT_EQ(changes, 1);
}

// --- saving

TEST_F(ProtocolTrace, ASaveOfAnEmptyListWritesTheFourHeaderLines) {
    m_Trace.Menu_Save();
    EXPECT_EQ(Saved(), std::string(120, '-') +
                           "\r\nDEBUG INFO\r\n"
                           "Saved from Vigrel Alarm Receiver version 3.00.04      26-03-15 12:30:15\r\n" +
                           std::string(80, '-') + "\r\n");
}

TEST_F(ProtocolTrace, ASaveNumbersTheRowsFromZero) {
    for (int i = 0; i < 7; ++i) m_Trace.WriteTrace("x", TraceSent);
    m_Trace.WriteTrace("\x02S0\xFF", TraceReceived);
    m_Trace.Menu_Save();
    const std::vector<std::string> lines = SplitLines(Saved());
    ASSERT_EQ(lines.size(), 12u);
    EXPECT_EQ(lines[4], "000 12:30:15 V->S x");
    EXPECT_EQ(lines[11], "007 12:30:15 V<-S <2>S0<255>");
    EXPECT_TRUE(Saved().ends_with("<255>\r\n"));
}

TEST_F(ProtocolTrace, EverySaveAddsABlock) {
    m_Files.Put("C:\\App\\LogFiles\\Debug.txt", "before\r\n");
    m_Trace.Menu_Save();
    m_Trace.Menu_Save();
    EXPECT_EQ(SplitLines(Saved()).size(), 9u);
    EXPECT_EQ(SplitLines(Saved())[0], "before");
}

TEST_F(ProtocolTrace, AFileThatCantBeWrittenIsAFailure) {
    m_Files.m_DiskFull = true;
    EXPECT_THROW(m_Trace.Menu_Save(), cFailure);
}

// --- columns

class cFakeSettingStore : public cSettingStore {
  public:
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view defaultValue) const override {
        const auto found =
            m_Values.find(std::string(application) + "/" + std::string(section) + "/" + std::string(key));
        return found == m_Values.end() ? std::string(defaultValue) : found->second;
    }
    std::map<std::string, std::string> m_Values;
};

TEST(TraceColumnWidth, AnAbsentSettingKeepsThePresentWidth) {
    const cFakeSettingStore settings;
    EXPECT_EQ(TraceColumnWidth(settings, 1, kTraceColumns[0].width), 823);
    EXPECT_EQ(TraceColumnWidth(settings, 2, kTraceColumns[1].width), 853);
    EXPECT_EQ(TraceColumnWidth(settings, 3, kTraceColumns[2].width), 2000);
    EXPECT_EQ(TraceColumnWidth(settings, 3, 1234.5), 1234.5);
}

TEST(TraceColumnWidth, TheUsersSettingIsTaken) {
    cFakeSettingStore settings;
    settings.m_Values["Vigrel Alarm Server 3/Parameters/DebugViewColWidth2"] = "950";
    EXPECT_EQ(TraceColumnWidth(settings, 1, 823), 823);
    EXPECT_EQ(TraceColumnWidth(settings, 2, 853), 950);
}

TEST(TraceColumnWidth, AWidthBelow100Is100) {
    cFakeSettingStore settings;
    for (const char* width : {"50", "-1", "none", ""}) {
        settings.m_Values["Vigrel Alarm Server 3/Parameters/DebugViewColWidth1"] = width;
        EXPECT_EQ(TraceColumnWidth(settings, 1, 823), 100) << width;
    }
}

TEST(LastTraceColumnWidth, LeavesRoomForAScrollBar) {
    EXPECT_EQ(LastTraceColumnWidth(10000, 823, 853), 8024);
    EXPECT_LT(LastTraceColumnWidth(1500, 823, 853), 0);
}

}  // namespace
}  // namespace vigrel::testing
