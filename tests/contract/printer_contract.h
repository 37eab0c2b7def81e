#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "platform/suite_library.h"

namespace vigrel::testing {

// What the system may rely on, whoever prints. A rig offers cPrinterPorts& Ports(), with printers at the
// ports 0 and 1, Printed(port): what the printer has got, SetBroken(port, broken): the printer takes nothing,
// at once.
template <class Rig>
class PrinterContract : public ::testing::Test {
  protected:
    std::int16_t Send(const std::string& line, std::int16_t port = 0) {
        return m_Rig.Ports().SendPRN(line, port);
    }
    Rig m_Rig;
};
TYPED_TEST_SUITE_P(PrinterContract);

TYPED_TEST_P(PrinterContract, EveryByteComesAsItStands) {
    std::string line;
    for (int code = 0; code < 256; ++code) line += static_cast<char>(code);
    line += "\r\n";
    EXPECT_NE(this->Send(line), 0);
    EXPECT_EQ(this->m_Rig.Printed(0), line);
}

TYPED_TEST_P(PrinterContract, LinesStandInTheirOrderBehindEachOther) {
    std::string all;
    for (const std::string line : {"one\r\n", "two\r\n", "without an end"}) {
        EXPECT_NE(this->Send(line), 0);
        all += line;
    }
    EXPECT_EQ(this->m_Rig.Printed(0), all);
}

TYPED_TEST_P(PrinterContract, EachPortHasItsOwnPrinter) {
    EXPECT_NE(this->Send("a\r\n", 0), 0);
    EXPECT_NE(this->Send("b\r\n", 1), 0);
    EXPECT_EQ(this->m_Rig.Printed(0), "a\r\n");
    EXPECT_EQ(this->m_Rig.Printed(1), "b\r\n");
}

TYPED_TEST_P(PrinterContract, APortBelowZeroFails) {
    EXPECT_EQ(this->Send("a\r\n", -1), 0);
    EXPECT_EQ(this->Send("a\r\n", std::numeric_limits<std::int16_t>::min()), 0);
    EXPECT_EQ(this->m_Rig.Printed(0), "");
}

TYPED_TEST_P(PrinterContract, ALineThatFailsIsLostAndTheNextIsTriedAnew) {
    this->m_Rig.SetBroken(0, true);
    EXPECT_EQ(this->Send("lost\r\n"), 0);
    EXPECT_NE(this->Send("of another\r\n", 1), 0);
    this->m_Rig.SetBroken(0, false);
    EXPECT_NE(this->Send("next\r\n"), 0);
    EXPECT_EQ(this->m_Rig.Printed(0), "next\r\n");
}

REGISTER_TYPED_TEST_SUITE_P(PrinterContract, EveryByteComesAsItStands, LinesStandInTheirOrderBehindEachOther,
                            EachPortHasItsOwnPrinter, APortBelowZeroFails,
                            ALineThatFailsIsLostAndTheNextIsTriedAnew);

}  // namespace vigrel::testing
