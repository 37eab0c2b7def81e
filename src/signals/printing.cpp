#include "signals/printing.h"

#include "common/numbers.h"

namespace vigrel {
namespace {

constexpr std::size_t kLineLength = 80;

char ToPrinterChar(char character) {
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
    for (char& character : converted) character = ToPrinterChar(character);
    return converted;
}

bool cPrinting::PrintEventText(std::string_view text) {
    if (m_Settings.m_PrinterPort == 0) return true;
    const std::string printed =
        m_Settings.m_PrinterISOLatConv ? ConvertToPrinterChars(text) : std::string(text);
    bool result = true;
    for (std::size_t at = 0; at < printed.size(); at += kLineLength) {
        const std::int16_t port = ToInt16(m_Settings.m_PrinterPort - 1);
        result = m_Ports.SendPRN(printed.substr(at, kLineLength) + "\r\n", port) != 0;
    }
    return result;
}

}  // namespace vigrel
