#include "signals/printing.h"

#include <gtest/gtest.h>

#include "support/fake_devices.h"

namespace vigrel::testing {
namespace {

class Printing : public ::testing::Test {
  protected:
    bool Print(const std::string& text) { return m_Printing.PrintEventText(text); }
    // The lines sent, each with its port in front, as "0:text".
    const std::vector<std::string>& Lines() const { return m_Ports.m_Lines; }
    using Texts = std::vector<std::string>;

    cSettings m_Settings;
    cFakePrinterPorts m_Ports;
    cPrinting m_Printing{m_Ports, m_Settings};
};

TEST_F(Printing, TheSwedishLettersBecomeTheirBytesOfCodePage437) {
    EXPECT_EQ(ConvertToPrinterChars("\xC4\xC5\xD6\xE4\xE5\xF6"), "\x8E\x8F\x99\x84\x86\x94");
}

TEST_F(Printing, EveryOtherCharacterStays) {
    const std::string letters = "\xC4\xC5\xD6\xE4\xE5\xF6";
    for (int code = 0; code < 256; ++code) {
        const std::string text(1, static_cast<char>(code));
        if (letters.find(text) == std::string::npos) {
            EXPECT_EQ(ConvertToPrinterChars(text), text) << code;
        }
    }
    EXPECT_EQ(ConvertToPrinterChars("\xDC\xE9"), "\xDC\xE9");
}

TEST_F(Printing, AnEmptyTextSendsNothingAndSucceeds) {
    EXPECT_TRUE(Print(""));
    EXPECT_EQ(Lines(), Texts{});
}

TEST_F(Printing, PortZeroSendsNothingAndSucceeds) {
    m_Settings.m_PrinterPort = 0;
    EXPECT_TRUE(Print("text"));
    EXPECT_EQ(Lines(), Texts{});
}

TEST_F(Printing, PortsAreCountedFromOneInTheSettingsAndFromZeroAtThePort) {
    Print("text");
    m_Settings.m_PrinterPort = 3;
    Print("text");
    EXPECT_EQ(Lines(), (Texts{"0:text\r\n", "2:text\r\n"}));
}

// That nothing is printed below zero is the intake's rule, which asks before it makes a text.
TEST_F(Printing, OnlyZeroIsNoPort) {
    m_Settings.m_PrinterPort = -1;
    EXPECT_FALSE(Print("text"));
}

TEST_F(Printing, EightyCharactersAreOneLine) {
    Print(std::string(80, 'x'));
    EXPECT_EQ(Lines(), Texts{"0:" + std::string(80, 'x') + "\r\n"});
}

TEST_F(Printing, EightyOneCharactersAreTwoLines) {
    Print(std::string(80, 'x') + "y");
    EXPECT_EQ(Lines(), (Texts{"0:" + std::string(80, 'x') + "\r\n", "0:y\r\n"}));
}

TEST_F(Printing, LinesBreakByCountAloneThroughWordsAndLineEnds) {
    const std::string text = std::string(79, 'a') + "\r\n" + std::string(80, 'b');
    Print(text);
    EXPECT_EQ(Lines(), (Texts{"0:" + std::string(79, 'a') + "\r\r\n", "0:\n" + std::string(79, 'b') + "\r\n",
                              "0:b\r\n"}));
}

TEST_F(Printing, TheLettersAreConvertedUnlessSwitchedOff) {
    Print("\xE5\xE4\xF6");
    m_Settings.m_PrinterISOLatConv = false;
    Print("\xE5\xE4\xF6");
    EXPECT_EQ(Lines(), (Texts{"0:\x86\x84\x94\r\n", "0:\xE5\xE4\xF6\r\n"}));
}

TEST_F(Printing, ALineThatFailsStopsNoLineBehindItAndIsNotSentAgain) {
    m_Ports.m_FailLines = {1, 2};
    EXPECT_TRUE(Print(std::string(161, 'x')));
    EXPECT_EQ(Lines().size(), 3u);
}

TEST_F(Printing, OnlyTheLastLineCounts) {
    m_Ports.m_FailLines = {2};
    EXPECT_FALSE(Print(std::string(81, 'x')));
    EXPECT_EQ(Lines().size(), 2u);
}

TEST_F(Printing, AnyResultButZeroIsASuccess) {
    m_Ports.m_Success = -1;
    EXPECT_TRUE(Print("text"));
}

}  // namespace
}  // namespace vigrel::testing
