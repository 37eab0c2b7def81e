#include "signals/printing.h"

#include "common/numbers.h"

namespace vigrel {
namespace {

constexpr std::size_t kLineLength = 80;

char ConvertToPrinterChar(char character) {
    switch (character) {
        case '\xC4':
            return '\x8E';  // Ä
        case '\xC5':
            return '\x8F';  // Å
        case '\xD6':
            return '\x99';  // Ö
        case '\xE4':
            return '\x84';  // ä
        case '\xE5':
            return '\x86';  // å
        case '\xF6':
            return '\x94';  // ö
        default:
            return character;
    }
}

}  // namespace

std::string ConvertToPrinterChars(std::string_view text) {
    std::string converted(text);
    for (char& character : converted) character = ConvertToPrinterChar(character);
    return converted;
}

bool cPrinting::PrintEventText(std::string_view text) {
    if (m_Settings.m_PrinterPort == 0) return true;
    std::string rest = m_Settings.m_PrinterISOLatConv ? ConvertToPrinterChars(text) : std::string(text);
    bool printed = true;
    for (std::size_t from = 0; from < rest.size(); from += kLineLength) {
        // A failed line is not sent again, and the last one decides: what is on paper is what counts by then.
        printed = m_Ports.SendPRN(rest.substr(from, kLineLength) + "\r\n",
                                  ToInt16(m_Settings.m_PrinterPort - 1)) != 0;
    }
    return printed;
}

}  // namespace vigrel
