#pragma once

#include <map>
#include <string>
#include <vector>

#include "common/failure.h"
#include "editor_ui/pages/reasons.h"
#include "editor_ui/pages/typed_texts.h"

namespace vigrel {

// What was typed in the cells of a table and can't be taken over. It goes with the rows.
class cTypedCells {
  public:
    using cCells = std::map<int, cTypedText>;  // of a row, by column

    // Nothing typed in so many rows.
    void Clear(std::size_t rows) { m_Rows.assign(rows, {}); }
    void Insert(std::size_t row) {
        m_Rows.insert(m_Rows.begin() + static_cast<std::ptrdiff_t>(row), cCells());
    }
    void Remove(std::size_t row) { m_Rows.erase(m_Rows.begin() + static_cast<std::ptrdiff_t>(row)); }
    void Swap(std::size_t row, std::size_t other) { std::swap(m_Rows[row], m_Rows[other]); }
    // By row.
    const std::vector<cCells>& Rows() const { return m_Rows; }
    // As texts by cell, and back.
    TypedTexts Texts() const;
    void Restore(const TypedTexts& texts, std::size_t rows);

    // What a row becomes by what was typed in a cell: with all that was refused in it so far, since each may
    // be right beside the other; else with this cell alone; else it stays, and so does the text in its cell.
    // Set and check throw cFailure where a text is no value, or the row none that can be.
    template <class Row, class Set, class Check>
    Row Taken(const Row& before, std::size_t row, int column, const QString& text, Set set, Check check) {
        cCells& cells = m_Rows[row];
        cells[column] = {text, {}};
        Row whole = before, alone = before;
        const auto fault = CatchFailure([&] {
            for (const auto& [each, typed] : cells) set(whole, each, typed.text);
            check(whole);
        });
        if (!fault) {
            cells.clear();
            return whole;
        }
        const auto own = CatchFailure([&] {
            set(alone, column, text);
            check(alone);
        });
        if (!own) {
            cells.erase(column);
            return alone;
        }
        cells[column].problem = Told(own->Description());
        return before;
    }

  private:
    std::vector<cCells> m_Rows;
};

// What a cell holds, for the file. Throws cFailure for letters that the code page lacks.
std::string CellText(const QString& typed);

}  // namespace vigrel
