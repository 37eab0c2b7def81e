#include "signals/text_scan.h"

#include <utility>

namespace vigrel {

cTextScan::cTextScan(std::string_view text, char open, char close)
    : m_Text(text), m_OpenCharacter(open), m_Open(text, open), m_Close(text, close) {}

bool cTextScan::AtBrackets() {
    if (m_Text[m_From] != m_OpenCharacter) return false;
    const std::size_t close = m_Close.From(m_From);
    if (close == std::string_view::npos || m_Out.size() + (close - m_From) + 1 > kLastPosition) return false;
    return m_Open.From(m_From + 1) > close;
}

void cTextScan::Replace(std::string_view replacement) {
    m_Out += replacement;
    m_From = m_Close.From(m_From) + 1;
}

std::string cTextScan::Take() {
    m_Out += m_Text.substr(m_From);
    return std::move(m_Out);
}

}  // namespace vigrel
