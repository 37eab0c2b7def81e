#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// One line of comma-separated values: UTF-8, every cell quoted, ended by CR LF. A cell that a spreadsheet
// would take for a formula, which a sender must not be able to bring in, gets an apostrophe in front unless
// exact is asked for.
class cCsvLine {
  public:
    // For a terminal control characters are escaped, lest a sender steers it.
    explicit cCsvLine(bool exact = false, bool terminal = false) : m_Exact(exact), m_Terminal(terminal) {}
    void Cell(std::string_view text);  // in the code page
    void CellOfUtf8(std::string_view utf8);
    std::string Line() const { return m_Line + "\r\n"; }

  private:
    // What a text looks like decides; what is shown of it stands in the cell.
    void Add(std::string_view text, std::string_view shown);

    bool m_Exact, m_Terminal;
    std::string m_Line;
};

}  // namespace vigrel
