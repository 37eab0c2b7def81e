#include "tool_support/csv.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

TEST(CsvLine, QuotesCellsAndDisarmsFormulas) {
    cCsvLine line, exact(true);
    for (cCsvLine* one : {&line, &exact}) {
        for (const char* cell : {"a\"b", "=1+1", "-5", "@x", "\xE5"}) one->Cell(cell);
    }
    EXPECT_EQ(line.Line(), "\"a\"\"b\",\"'=1+1\",\"-5\",\"'@x\",\"\xC3\xA5\"\r\n");
    EXPECT_EQ(exact.Line(), "\"a\"\"b\",\"=1+1\",\"-5\",\"@x\",\"\xC3\xA5\"\r\n");
}

TEST(CsvLine, TakesCellsInTheCodePageOrInUtf8) {
    cCsvLine line;
    line.Cell("\xE5");
    line.CellOfUtf8("\xCE\xA9\"");
    line.CellOfUtf8("=1+1");
    EXPECT_EQ(line.Line(), "\"\xC3\xA5\",\"\xCE\xA9\"\"\",\"'=1+1\"\r\n");
}

TEST(CsvLine, ControlCharactersAreEscapedOnATerminalAlone) {
    cCsvLine file, terminal(false, true);
    file.Cell("a\x1B[2J");
    terminal.Cell("a\x1B[2J");
    EXPECT_EQ(file.Line(), "\"a\x1B[2J\"\r\n");
    EXPECT_EQ(terminal.Line(), "\"a\\x1B[2J\"\r\n");
}

}  // namespace
}  // namespace vigrel::testing
