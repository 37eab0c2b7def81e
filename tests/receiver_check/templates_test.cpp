#include <map>
#include <string>

#include "common/failure.h"
#include "receiver-check/sample_texts.h"
#include "receiver_check/checked_station.h"
#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

class CheckedTemplates : public testing::cCheckedStation {
  protected:
    // What is told of a template, as messages.
    std::string Told(const std::string& text) { return GeneralMessage("EventPopupFormat=" + text); }
    std::string Names(const std::string& text) { return General("EventPopupFormat=" + text); }
};

TEST_F(CheckedTemplates, WhatTheManualTeachesHasNoSlip) {
    for (const std::string text :
         {"[T2] - [STATUS$][13][10][T0][13][10]{ACTIVE?now}{inactive?over}{ACKED?[SENDER::6]}{MESSAGE?x}",
          "[T0:2-5:10] [T0:-4] [T0:2-] [T0::20] [T1:::] [T]", "[R:fan:Pump][CF: trip:2][CU:fan ][T0]",
          "[[SENDER]] {{ACTIVE?x}} [OBJECT] [ALARMID] [OBSERVED] [EXTRATEXT]", ""}) {
        EXPECT_EQ(Names(text), "") << text;
    }
}

TEST_F(CheckedTemplates, ABracketWithoutPartner) {
    EXPECT_EQ(Told("[DATE [TIME]"),
              "\"[DATE [TIME]\" has a \"[\" without \"]\", which is plain text; is \"[DATE]\" meant?");
    EXPECT_EQ(Told("[T0] [SENDER"),
              "\"[SENDER\" has a \"[\" without \"]\", which is plain text; is \"[SENDER]\" meant?");
    EXPECT_EQ(Told("T0] x"), "\"T0]\" ends in a \"]\" without \"[\", which is plain text");
    EXPECT_EQ(Told("{ACTIVE?x"), "\"{ACTIVE?x\" has a \"{\" without \"}\", which is plain text");
}

TEST_F(CheckedTemplates, ANameThatIsNoField) {
    EXPECT_EQ(Told("[T9]"), "\"[T9]\" is no text and stays as it is written: there are T0 to T5");
    EXPECT_EQ(Told("[STATUSS]"),
              "\"[STATUSS]\" is no field and stays as it is written; is \"STATUS\" meant?");
    EXPECT_EQ(Told("[256]"), "\"[256]\" is no field and stays as it is written");
    EXPECT_EQ(Told("[TIEM]"),
              "\"[TIEM]\" is read as a text of the alarm, by the number behind the T; is \"TIME\" meant?");
}

TEST_F(CheckedTemplates, AFormThatVanishesOrIsPlainText) {
    EXPECT_EQ(
        Told("{ACTIV?x}"),
        "\"{ACTIV?x}\" is removed with its text: the word isn't one of ACTIVE, INACTIVE, ACKED, MESSAGE; "
        "is \"ACTIVE\" meant?");
    EXPECT_EQ(Told("{ACTIVE ?x}"),
              "\"{ACTIVE ?x}\" is removed with its text: the word isn't one of ACTIVE, INACTIVE, ACKED, "
              "MESSAGE; is \"ACTIVE\" meant?");
    EXPECT_EQ(Told("{ACTIVE}"), "\"{ACTIVE}\" has no \"?\" and is plain text");
    EXPECT_EQ(Told("{ACTIVE?a{ACKED?b}c}"),
              "\"{ACTIVE?a{ACKED?b}c}\": forms don't nest; only the inner one is one");
}

// What people write who have the manual's page open and another system's in mind.
TEST_F(CheckedTemplates, TheTenTypicalSlipsAreAllFound) {
    const std::map<std::string, std::string> slips{
        {"[DATE [TIME]", "bracket"},  // a forgotten bracket between two fields
        {"[T0] at [T1", "bracket"},   // and at the end
        {"[T9]", "field"},            // a text that there is not
        {"[TO]", "field"},            // the letter for the digit
        {"[STATUSS]", "field"},       // misspelt
        {"{ACTIV?x}", "form"},        // misspelt
        {"{ACTIVE x}", "form"},       // no question mark
        {"{T0}", "form"},             // the brackets of a form around a field
        {"[TIME:hh.mm]", "range"},    // a format in place of a range
        {"[T0]\\n[T1]", "line"},      // another language's new line
    };
    ASSERT_EQ(slips.size(), 10u);
    for (const auto& [text, kind] : slips) {
        EXPECT_EQ(Names(text), "warning template-" + kind + " [General] EventPopupFormat") << text;
    }
}

TEST_F(CheckedTemplates, AFieldInTheBracketsOfAFormAndAFormWithoutItsMark) {
    EXPECT_EQ(Told("{T0:0-9}"), "\"{T0:0-9}\" is plain text; is \"[T0:0-9]\" meant?");
    EXPECT_EQ(Told("{ACTIVE: now}"), "\"{ACTIVE: now}\" has no \"?\" and is plain text");
    EXPECT_EQ(Names("{see the plan} {[T0]} {ACTIVES}"), "");
}

TEST_F(CheckedTemplates, ANewLineOfAnotherLanguage) {
    EXPECT_EQ(Told("[T0]\\n"), "\"\\n\" is plain text; a new line is \"[13][10]\"");
}

TEST_F(CheckedTemplates, ARangeThatIsNone) {
    EXPECT_EQ(
        Told("[DATE:yyyy]"),
        "\"[DATE:yyyy]\": behind the name stand a range such as 0-9 and a width, as in [T0:0-9:10]; dates "
        "and times follow DateFormat and TimeFormat");
}

TEST_F(CheckedTemplates, AModifierWithoutWork) {
    EXPECT_EQ(Told("[T0][R:a:b]"), "\"[R:a:b]\" has no field behind it to work on");
    EXPECT_EQ(Told("[CF][T0]"), "\"[CF]\" looks for nothing and does nothing");
}

TEST_F(CheckedTemplates, EachIsToldOnceAtItsOwnKey) {
    EXPECT_EQ(Rest("EventPopupFormat=[WHAT]"),
              "warning template-field [CategorySpecificSetting_Fire] EventPopupFormat");
    EXPECT_EQ(Rest("EventPopupFormat=[WHAT] [WHAT] [WHAT]"),
              "warning template-field [CategorySpecificSetting_Fire] EventPopupFormat");
    EXPECT_EQ(Rest("[Printer]\r\nPort=1\r\nFormat=[DAET]\r\n[PrinterPorts]\r\n1=/dev/null"),
              "warning template-field [Printer] Format");
}

TEST_F(CheckedTemplates, ASampleShowsWhatThePopupsAndThePrinterWouldShow) {
    m_Files.Put(kApp + "VigrelReceiver.INI",
                Content("EventPopupFormat=[T2]: [T0][13][10][SENDER]",
                        "EventPopupFormat={ACTIVE?NOW }[T0] [EXTRATEXT]\r\nExtraText=Run\r\nEventSignal=3\r\n"
                        "EventSoundFile=Sounds\\bell.wav\r\n[Printer]\r\nFormat=[T1::4]|"));
    const std::string text = SampleTexts(cInstallation(m_Files, kApp), &m_Machine, testing::cFakeClock());
    EXPECT_NE(text.find("Any other category, popup, state 1:\n    Sample: Fan 3 tripped\n    PLC1\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("Category Fire, popup, state 1:\n    NOW Fan 3 tripped Run\n    (sound: " + kApp +
                        "Sounds\\bell.wav, 1.5 s, again and again)\n"),
              std::string::npos)
        << text;
    EXPECT_TRUE(text.ends_with("Printed line:\n    Buil|\n")) << text;
}

// They would all be empty, as if the station had been set up so.
TEST_F(CheckedTemplates, WithoutAConfigurationThatCanBeReadThereIsNoSample) {
    const auto refusal = [this]() -> std::string {
        const auto failure = CatchFailure(
            [this] { SampleTexts(cInstallation(m_Files, kApp), &m_Machine, testing::cFakeClock()); });
        return failure ? failure->what() : "";
    };
    EXPECT_EQ(refusal(), kApp + "VigrelReceiver.INI: the file does not exist");
    m_Files.Put(kApp + "VigrelReceiver.INI", Content("", ""));
    EXPECT_EQ(refusal(), "");
    m_Files.SetUnreadable(kApp + "VigrelReceiver.INI", true);
    EXPECT_NE(refusal(), "");
}

}  // namespace
}  // namespace vigrel::testing
