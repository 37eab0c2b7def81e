#include "tool_support/csv.h"

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/printable.h"

namespace vigrel {
namespace {

bool LooksLikeFormula(std::string_view text) {
    return !text.empty() && std::string_view("=+-@\t\r").find(text[0]) != std::string_view::npos &&
           !IsNumeric(text);
}

}  // namespace

void cCsvLine::Cell(std::string_view text) {
    Add(text, m_Terminal ? Printable(text) : CodePageToUtf8(text));
}

void cCsvLine::CellOfUtf8(std::string_view utf8) {
    Add(utf8, utf8);
}

void cCsvLine::Add(std::string_view text, std::string_view shown) {
    m_Line += m_Line.empty() ? "\"" : ",\"";
    if (!m_Exact && LooksLikeFormula(text)) m_Line += '\'';
    for (std::size_t quote = shown.find('"'); quote != std::string_view::npos; quote = shown.find('"')) {
        m_Line.append(shown.substr(0, quote)).append("\"\"");
        shown.remove_prefix(quote + 1);
    }
    m_Line.append(shown).append("\"");
}

}  // namespace vigrel
