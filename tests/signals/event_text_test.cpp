#include "signals/event_text.h"

#include <gtest/gtest.h>

#include <ostream>

#include "signals/event_text_station.h"

namespace vigrel::testing {
namespace {

struct cRow {
    const char* name;
    std::string text;
    std::string result;
    std::int16_t status = StatusActive;
};
std::ostream& operator<<(std::ostream& out, const cRow& row) {
    return out << '"' << row.text << '"';
}

class EventText : public ::testing::TestWithParam<cRow> {};

TEST_P(EventText, Expands) {
    cEventTextStation station;
    station.alarm.m_Alarm.m_Status = GetParam().status;
    EXPECT_EQ(station.Expand(GetParam().text), GetParam().result);
}

std::string NameOf(const ::testing::TestParamInfo<cRow>& info) {
    return info.param.name;
}

const cRow kForms[] = {
    {"TrueFormStaysFalseFormGoes", "{ACTIVE?ALARM }{ACKED?Ack }[SENDER]", "ALARM PLC1"},
    {"WordsAreReadInAnyCase", "{acked?gone}[T0]", "Fan 3 tripped"},
    {"MixedCaseWordIsTrue", "{aCtIvE?x}", "x"},
    {"UnknownWordRemovesTheForm", "{FOO?x}y", "y"},
    {"FormWithoutMarkIsPlain", "{no mark}y", "{no mark}y"},
    {"MarkBehindTheFormIsNoMark", "{no mark}y?", "{no mark}y?"},
    {"EmptyWordRemovesTheForm", "{?x}y", "y"},
    {"NoBlankOfAWordIsTrimmed", "{ ACTIVE?x}{ACTIVE ?y}z", "z"},
    {"TrueFormMayBeEmpty", "a{ACTIVE?}b", "ab"},
    {"TextBeginsBehindTheFirstMark", "{ACTIVE?a?b}", "a?b"},
    {"FalseFormDirectlyFollowedByASecond", "{ACKED?a}{ACTIVE?b}", "b"},
    {"FormsDoNotNest", "{ACTIVE?a{ACKED?b}c}", "{ACTIVE?ac}"},
    {"InnerTrueFormOfAnOuterOne", "{ACTIVE?a{ACTIVE?b}c}", "{ACTIVE?abc}"},
    {"DoubleCurlyBracketsKeepTheOuterOnes", "{{ACTIVE?x}}", "{x}"},
    {"OpenCurlyBracketIsPlain", "a{ACTIVE?b", "a{ACTIVE?b"},
    {"ClosingCurlyBracketIsPlain", "a}b{ACTIVE?c}}", "a}bc}"},
    {"OpenCurlyBracketBehindAForm", "{ACTIVE?a}{", "a{"},
    {"FieldInsideATrueForm", "{ACTIVE?[SENDER]}", "PLC1"},
    {"FieldInsideAFalseForm", "{ACKED?[SENDER]}", ""},
    {"ModifierInsideAFalseFormIsNotCollected", "{ACKED?[R:Fan:Pump]}[T0]", "Fan 3 tripped"},
    {"ModifierInsideATrueFormIsCollected", "{ACTIVE?[R:Fan:Pump]}[T0]", "Pump 3 tripped"},
    {"FormsAreExpandedBeforeFields", "[{ACTIVE?SENDER}]", "PLC1"},
    {"FormMayOpenABracketThatAnotherCloses", "{ACTIVE?[}SENDER{ACTIVE?]}", "PLC1"},
    {"InactiveEvent", "{INACTIVE?0}{ACTIVE?1}{ACKED?2}{MESSAGE?3}", "0", StatusInactive},
    {"ActiveEvent", "{INACTIVE?0}{ACTIVE?1}{ACKED?2}{MESSAGE?3}", "1", StatusActive},
    {"AcknowledgedEvent", "{INACTIVE?0}{ACTIVE?1}{ACKED?2}{MESSAGE?3}", "2", StatusAcked},
    {"EventOfAnotherStatus", "{INACTIVE?0}{ACTIVE?1}{ACKED?2}{MESSAGE?3}[STATUS][STATUS$]", "7", 7},
};
INSTANTIATE_TEST_SUITE_P(Forms, EventText, ::testing::ValuesIn(kForms), NameOf);

const cRow kFields[] = {
    {"EmptyTemplate", "", ""},
    {"EmptyTemplateOfAnInactiveEvent", "", "", StatusInactive},
    {"EmptyTemplateOfAnAcknowledgedEvent", "", "", StatusAcked},
    {"PlainText", "a \\ \"b\" %", "a \\ \"b\" %"},
    {"AlarmDate", "[ALARMDATE]", "2026-03-14"},
    {"AlarmTime", "[ALARMTIME]", "06:07:08"},
    {"Date", "[DATE]", "2026-03-15"},
    {"TimeIsAFieldNotACondition", "[TIME]", "12:30:15"},
    {"Status", "[STATUS]", "1"},
    {"StatusTextInactive", "[STATUS$]", "Normal", StatusInactive},
    {"StatusTextActive", "[STATUS$]", "Alarm", StatusActive},
    {"StatusTextAcknowledged", "[STATUS$]", "Acknowledged", StatusAcked},
    {"Object", "[OBJECT]", "Plant"},
    {"AlarmId", "[ALARMID]", "12AB"},
    {"Sender", "[SENDER]", "PLC1"},
    {"ExtraText", "[EXTRATEXT]", "extra"},
    {"NotObserved", "[OBSERVED]", "0"},
    {"NamesAreReadInAnyCase", "[sender][Status][t0]", "PLC11Fan 3 tripped"},
    {"NamesAreNotTrimmed", "[ SENDER][SENDER ]", "[ SENDER][SENDER ]"},
    {"AllConditions", "[T0]|[T1]|[T2]|[T3]|[T4]|[T5]",
     "Fan 3 tripped|banana|HVAC|a:b-c||[SENDER] {ACTIVE?x}"},
    {"TAloneIsT0", "[T]", "Fan 3 tripped"},
    {"WordThatBeginsWithTIsT0", "[Tilt]|[TEXT]", "Fan 3 tripped|Fan 3 tripped"},
    {"ConditionNumberIsANumericReading", "[T1x]|[T 1]|[T1.5]|[T0.5]", "banana|banana|HVAC|Fan 3 tripped"},
    {"ConditionNumberRoundedTo6IsUnknown", "[T5.5]", "[T5.5]"},
    {"ConditionsFrom6OnAreUnknown", "[T6]|[T9]|[T99999]", "[T6]|[T9]|[T99999]"},
    {"NegativeConditionIsEmpty", "a[T-1]b[T-99999]c", "abc"},
    {"LineBreak", "[13][10][OBJECT]", "\r\nPlant"},
    {"CharacterCodes", "[65][229][255][1]", "A\xE5\xFF\x01"},
    {"CodesAreReadAsNumbers", "[65.4][ 66 ][6.7e1]", "ABC"},
    {"CodesOutsideOneByteAreUnknown", "[0][256][99999][-65][0.5]", "[0][256][99999][-65][0.5]"},
    {"CodeWithARangeIsUnknown", "[65:0-0]", "[65:0-0]"},
    {"UnknownTokenStays", "[WHAT]", "[WHAT]"},
    {"UnknownTokenStaysWithItsFields", "[WHAT:1-2:3]", "[WHAT:1-2:3]"},
    {"EmptyTokenStays", "[]|[:1]|[::]", "[]|[:1]|[::]"},
    {"DoubleBracketsKeepTheOuterOnes", "[[SENDER]]", "[PLC1]"},
    {"DoubleBracketsAroundACondition", "[[T0]]", "[Fan 3 tripped]"},
    {"OpenBracketIsPlain", "[SENDER", "[SENDER"},
    {"ClosingBracketIsPlain", "SENDER][SENDER]]", "SENDER]PLC1]"},
    {"OpenBracketBehindAToken", "[SENDER][", "PLC1["},
    {"ValueIsNotExpanded", "[T5]", "[SENDER] {ACTIVE?x}"},
    {"ValueInsideOpenBracketsIsNotExpanded", "[[T5][SENDER]]", "[[SENDER] {ACTIVE?x}PLC1]"},
};
INSTANTIATE_TEST_SUITE_P(Fields, EventText, ::testing::ValuesIn(kFields), NameOf);

const cRow kShapes[] = {
    {"WidthPads", "[SENDER::6]!", "PLC1  !"},
    {"WidthCuts", "[SENDER::2]!", "PL!"},
    {"WidthOfAnEmptyValue", "[T4::3]!", "   !"},
    {"WidthZeroEmpties", "[SENDER::0]!", "!"},
    {"WidthThatIsNoNumberEmpties", "[SENDER::x]!", "!"},
    {"NegativeWidthIsSkipped", "[SENDER::-2]!", "PLC1!"},
    {"WidthBeyond32BitsIsSkipped", "[SENDER::9999999999]!", "PLC1!"},
    {"WidthBeyondTheLongestValueIsSkipped", "[SENDER::2000000000]!", "PLC1!"},
    {"WidthIsRounded", "[SENDER::2.5]!", "PL!"},
    {"Range", "[T0:0-2]", "Fan"},
    {"RangeOfOnePosition", "[T0:2]", "n"},
    {"RangeFromTo", "[T0:2-4]", "n 3"},
    {"RangeFromTheBeginning", "[T0:-4]", "Fan 3"},
    {"RangeWithoutAnEndIsOneCharacter", "[T0:3-]|[T0:4-]", " |3"},
    {"RangeBackwardsIsOneCharacter", "[T0:4-2]", "3"},
    {"RangeOfPositionZero", "[T0:0]|[T0:0-0]|[T0:-]", "F|F|F"},
    {"RangeThatIsNoNumberIsTheFirstCharacter", "[T0:x]|[T0:x-y]", "F|F"},
    {"RangeReachesPastTheEnd", "[T0:6-99]", "tripped"},
    {"RangeBeyondTheEndIsEmpty", "[T0:13-20]|[T0:50]|[T0:32767]", "||"},
    {"RangeNumbersAreRounded", "[T0:0.5-1.5]", "Fan"},
    {"FailedRangeNumberIsZero", "[T0:99999-3]|[T0:2-99999]|[T0:0-99999]", "Fan |n|F"},
    {"EmptyRangeAndWidthShapeNothing", "[T1:::]|[T1:]|[T1::]", "banana|banana|banana"},
    {"RangeComesBeforeWidth", "[T0:0-2:5]!|[T0:6-12:4]!", "Fan  !|trip!"},
    {"ThirdFieldIsNotLookedAt", "[T1::3:9]", "ban"},
    {"EveryFieldCanBeShaped", "[SENDER:0-1][STATUS::2][OBJECT:0:3]|[ALARMDATE:0-3]|[OBSERVED::2]|",
     "PL1 P  |2026|0 |"},
    {"TextThatBeginsWithTCanBeShaped", "[TEXT:0-2:4]|", "Fan |"},
};
INSTANTIATE_TEST_SUITE_P(Shapes, EventText, ::testing::ValuesIn(kShapes), NameOf);

const cRow kModifiers[] = {
    {"ReplaceIgnoresCase", "[R:fan:Pump][T0]", "Pump 3 tripped"},
    {"ReplaceByItsLongName", "[replace:FAN:Pump][T0]", "Pump 3 tripped"},
    {"ReplaceEveryOccurrence", "[R:an:x][T1]", "bxxa"},
    {"ReplaceByNothing", "[R:a:][T1]|[R:a][T1]", "bnn|bnn"},
    {"ReplaceOfWhatIsNotThere", "[R:z:x][T1]", "banana"},
    {"ReplaceOfNothing", "[R::x][T1]|[R][T1]", "banana|banana"},
    {"ReplaceByTheSame", "[R:a:a][T1]", "banana"},
    {"ReplaceByTheOtherCaseReplacesTheFirstEachTime", "[R:a:A][T1]", "bAnana"},
    {"ReplaceByWhatHoldsTheFind", "[R:a:aa][T1]", "baaaanana"},
    {"ReplaceByWhatEndsInTheFind", "[R:a:xa][T1]", "bxxxanana"},
    {"ReplaceThatMakesANewOccurrenceInFront", "[R:ab:a][65][R:b:abb ab][R:ab:a][66]", "Aa ab"},
    {"ReplaceSeesOccurrencesThatEarlierRoundsMade", "[R:n:][R:b:a][R:aa:a][T1]", "aa"},
    {"CutUntil", "[CU:3][T0]", " tripped"},
    {"CutUntilByItsLongName", "[CutUntil:3 ][T0]", "tripped"},
    {"CutUntilIgnoresCase", "[CU:FAN ][T0]", "3 tripped"},
    {"CutUntilTakesTheFirstOccurrence", "[CU:an][T1]", "ana"},
    {"CutUntilWithAnOffset", "[CU:3:1][T0]|[CU:3:-1][T0]|[CU:3:-3][T0]", "tripped|3 tripped|n 3 tripped"},
    {"CutUntilInFrontOfTheValueLeavesIt", "[CU:3:-6][T0]|[CU:3:-99][T0]", "Fan 3 tripped|Fan 3 tripped"},
    {"CutUntilBehindTheValueEmptiesIt", "[CU:3:99][T0]", ""},
    {"CutUntilWithAnOffsetBeyond16BitsCutsAtTheFind", "[CU:3:99999][T0]", "3 tripped"},
    {"CutUntilOfWhatIsNotThere", "[CU:z][T1]|[CU:zzz][T1]|[CU:z:3][T1]|[CU:][T1]|[CU][T1]",
     "banana|banana|banana|banana|banana"},
    {"CutFrom", "[CF:trip][T0]", "Fan 3 "},
    {"CutFromByItsLongName", "[CUTFROM:TRIP][T0]", "Fan 3 "},
    {"CutFromWithAnOffset", "[CF:3:1][T0]|[CF:3:-1][T0]", "Fan 3|Fan"},
    {"CutFromBehindTheValueLeavesIt", "[CF:3:99][T0]", "Fan 3 tripped"},
    {"CutFromInFrontOfTheValueEmptiesIt", "[CF:3:-5][T0]|[CF:3:-99][T0]|[CF:F][T0]", "||"},
    {"CutFromWithAnOffsetBeyond16BitsCutsAtTheFind", "[CF:3:99999][T0]", "Fan "},
    {"CutFromOfWhatIsNotThere", "[CF:z][T1]|[CF:z:3][T1]|[CF:][T1]|[CF][T1]", "banana|banana|banana|banana"},
    {"SeveralModifiersActInTheirOrder", "[CU:fan :0][CF:trip][T0]", "3 "},
    {"LaterModifierSeesWhatTheEarlierLeft", "[R:Fan:Pump][R:ump:ipe][T0]", "Pipe 3 tripped"},
    {"ModifiersAreSpentByOneValue", "[R:a:o][T1][T1]",
     "bonono"
     "banana"},
    {"ModifierWaitsOverPlainText", "[R:a:o] x [T1]", " x bonono"},
    {"ModifierWaitsOverUnknownTokens", "[R:a:o][WHAT][T1]", "[WHAT]bonono"},
    {"ModifierActsOnTheNextValueWhateverItIs", "[R:P:p][OBSERVED][SENDER]|[R:A:b][65][65]", "0PLC1|bA"},
    {"ModifierAtTheEndVanishes", "a[CU:x]", "a"},
    {"ModifierBehindTheLastValueDoesNothing", "[T1][R:a:o]", "banana"},
    {"ModifiersActBehindTheWidth", "[R:a:bbb][T1::4]", "bbbbnbbb"},
    {"ModifiersActBehindTheRange", "[CU:b][T1:1-3]", "ana"},
    {"ModifierNamesAreNotPrefixes", "[RE:a:o][CUT:a][T1]", "[RE:a:o][CUT:a]banana"},
    {"ModifierIsItselfNotShaped", "[R:a:o:3][T1]", "bonono"},
    {"ModifierThatHoldsTheListsSeparatorIsTwo",
     "[R:a:o\xFF"
     "CU:n][T1]",
     "ono"},
    {"ValueOfANegativeConditionTakesTheModifiers", "[R:a:o][T-1][T1]", "banana"},
};
INSTANTIATE_TEST_SUITE_P(Modifiers, EventText, ::testing::ValuesIn(kModifiers), NameOf);

// The examples of section "Templates" of docs/installer.md.
TEST(EventText, ExpandsTheExamplesOfTheManual) {
    cEventTextStation station;
    station.files.Put("C:\\App\\Vigrel_Texts.046", "838=Active\r\n");
    station.texts.LoadTexts();
    station.alarm.m_Alarm.SetCondition(1, "Building A");
    station.alarm.m_Alarm.SetCondition(2, "Ventilation");
    EXPECT_EQ(station.Expand("{ACTIVE?ALARM }{INACTIVE?over }[T0]"), "ALARM Fan 3 tripped");
    EXPECT_EQ(station.Expand("[SENDER::6]!"), "PLC1  !");
    EXPECT_EQ(station.Expand("[T0:0-4]"), "Fan 3");
    EXPECT_EQ(station.Expand("[T0:6-999:4]!"), "trip!");
    EXPECT_EQ(station.Expand("[R:fan:Pump][T0]"), "Pump 3 tripped");
    EXPECT_EQ(station.Expand("[CF:tripped][T0]"), "Fan 3 ");
    EXPECT_EQ(station.Expand("[CU:building ][T1]"), "A");
    EXPECT_EQ(station.Expand("[CU:fan ][CF: trip][T0]"), "3");
    EXPECT_EQ(station.Expand("[[SENDER]] [OBJECT]"), "[PLC1] Plant");
    EXPECT_EQ(station.Expand("[STATUS] [STATUS$]"), "1 Active");
    EXPECT_EQ(station.Expand("[WHAT]"), "[WHAT]");
    EXPECT_EQ(station.Expand("{ACTIVE?ALARM}{INACTIVE?Over}{ACKED?Acknowledged}: [T2][13][10][T0]"),
              "ALARM: Ventilation\r\nFan 3 tripped");
    EXPECT_EQ(station.Expand("[STATUS$::10] [SENDER::12] [T2::12] [T0]"),
              "Active     PLC1         Ventilation  Fan 3 tripped");
}

// --- messages

std::string ExpandMessage(std::string_view message) {
    cEventTextStation station;
    station.alarm.m_Alarm.m_Status = StatusMessage;
    station.alarm.m_Alarm.SetCondition(0, message);
    return station.Expand("ignored [SENDER]");
}

TEST(EventTextOfAMessage, IsTheMessagesOwnTextAsATemplate) {
    EXPECT_EQ(ExpandMessage("Test"), "Test");
    EXPECT_EQ(ExpandMessage("from [SENDER]"), "from PLC1");
    EXPECT_EQ(ExpandMessage("{MESSAGE?yes}{ACTIVE?no}[STATUS]"), "yes3");
    EXPECT_EQ(ExpandMessage(""), "");
}

TEST(EventTextOfAMessage, HasNoStatusText) {
    EXPECT_EQ(ExpandMessage("a[STATUS$]b"), "ab");
}

TEST(EventTextOfAMessage, ItsTextIsAConditionToo) {
    EXPECT_EQ(ExpandMessage("[T0:1-2]"), "T0");
}

// --- what is looked at

TEST(EventText, FormatsDatesAndTimesBySettings) {
    cEventTextStation station;
    station.settings.m_DateFormat = "dddd dd/mm";
    station.settings.m_TimeFormat = "hh:mm";
    station.forms.dateSeparator = ".";
    EXPECT_EQ(station.Expand("[ALARMDATE] [ALARMTIME] [DATE] [TIME]"),
              "Saturday 14.03 06:07 Sunday 15.03 12:30");
    station.settings.m_DateFormat = "ww";
    EXPECT_EQ(station.Expand("[DATE]"), "12");
}

TEST(EventText, ADateThatCantBeShownIsEmpty) {
    cEventTextStation station;
    station.alarm.m_Alarm.m_TimeStampFromSCADA = 1e9;
    EXPECT_EQ(station.Expand("a[ALARMDATE]b[ALARMTIME]c"), "abc");
}

TEST(EventText, TellsWhetherTheEventIsObserved) {
    cEventTextStation station;
    station.alarm.m_Observed = True16;
    EXPECT_EQ(station.Expand("[OBSERVED]"), "1");
    station.alarm.m_Observed = 7;
    EXPECT_EQ(station.Expand("[OBSERVED]"), "1");
}

TEST(EventText, ReadsTheObjectAfreshForEachToken) {
    cEventTextStation station;
    EXPECT_EQ(station.Expand("[OBJECT]"), "Plant");
    station.files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nObject=Works\r\n");
    EXPECT_EQ(station.Expand("[OBJECT]"), "Works");
    station.files.Put("C:\\App\\VigrelReceiver.INI", "");
    EXPECT_EQ(station.Expand("<[OBJECT]>"), "<>");
}

TEST(EventText, NothingCarriesOverToTheNextEvent) {
    cEventTextStation station;
    EXPECT_EQ(station.Expand("[R:a:o]"), "");
    EXPECT_EQ(station.Expand("[T1]"), "banana");
}

// --- size

TEST(EventText, ABracketBehindPosition32767IsPlainText) {
    const cEventTextStation station;
    const std::string front(32767 - 4, 'x');
    EXPECT_EQ(station.Expand(front + "[T1]"), front + "banana");
    EXPECT_EQ(station.Expand(front + "x[T1]"), front + "x[T1]");
    EXPECT_EQ(station.Expand(front + "xxxx[T1]"), front + "xxxx[T1]");
    const std::string form(32767 - 10, 'x');
    EXPECT_EQ(station.Expand(form + "{ACTIVE?a}"), form + "a");
    EXPECT_EQ(station.Expand(form + "x{ACTIVE?a}"), form + "x{ACTIVE?a}");
}

TEST(EventText, PositionsCountInTheTextAsItHasBecome) {
    cEventTextStation station;
    const std::string front(32000, 'x');
    // What forms and modifiers take away lets the tokens behind move into reach.
    EXPECT_EQ(station.Expand("{ACKED?" + front + "}" + front + "[T1]"), front + "banana");
    EXPECT_EQ(station.Expand(front + "[R:y:" + std::string(500, 'z') + "]" + std::string(600, 'x') + "[T1]"),
              front + std::string(600, 'x') + "banana");
    // A value pushes them out of reach.
    station.alarm.m_Sender = std::string(700, 's');
    EXPECT_EQ(station.Expand(front + "[SENDER][SENDER]"),
              front + station.alarm.m_Sender + station.alarm.m_Sender);
    EXPECT_EQ(station.Expand(front + "[SENDER]" + std::string(67, 'x') + "[SENDER]"),
              front + station.alarm.m_Sender + std::string(67, 'x') + "[SENDER]");
}

TEST(EventText, AWidthOf65535IsTheWidest) {
    const cEventTextStation station;
    EXPECT_EQ(station.Expand("[T1::65535]").size(), 65535u);
    EXPECT_EQ(station.Expand("[T1::65536]"), "banana");
}

TEST(EventText, ReplacementsEndAtTheLongestValue) {
    cEventTextStation station;
    station.alarm.m_Sender = std::string(30000, 'a');
    std::string doubled;
    for (int i = 0; i < 3000; ++i) doubled += "[R:a:aa]";
    const std::string result = station.Expand(doubled + "[SENDER]");
    EXPECT_GT(result.size(), 60000u);
    EXPECT_LE(result.size(), 65535u);
    EXPECT_EQ(result, std::string(result.size(), 'a'));
}

TEST(EventText, ReplacementRoundsEndBehindPosition32767) {
    cEventTextStation station;
    station.alarm.m_Sender = std::string(40000, 'a');
    // Rounds at positions 1, 3, 5, ... 32767.
    EXPECT_EQ(station.Expand("[R:a:bb][SENDER]"), std::string(32768, 'b') + std::string(40000 - 16384, 'a'));
    // Every removal moves the next occurrence to position 1.
    EXPECT_EQ(station.Expand("[R:a:][SENDER]"), "");
}

TEST(EventText, AnOccurrenceBehindPosition32767IsNotFound) {
    cEventTextStation station;
    station.alarm.m_Sender = std::string(32767, 'a') + "bc";
    EXPECT_EQ(station.Expand("[CU:b][SENDER]"), station.alarm.m_Sender);
    EXPECT_EQ(station.Expand("[CF:b][SENDER]"), station.alarm.m_Sender);
    EXPECT_EQ(station.Expand("[R:b:x][SENDER]"), station.alarm.m_Sender);
    station.alarm.m_Sender.erase(0, 1);
    EXPECT_EQ(station.Expand("[CF:b][SENDER]"), std::string(32766, 'a'));
}

}  // namespace
}  // namespace vigrel::testing
