#include "editor_ui/pages/typed_cells.h"

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/one_line.h"

namespace vigrel {

TypedTexts cTypedCells::Texts() const {
    TypedTexts texts;
    for (std::size_t row = 0; row < m_Rows.size(); ++row) {
        for (const auto& [column, typed] : m_Rows[row]) texts[QString("%1.%2").arg(row).arg(column)] = typed;
    }
    return texts;
}

void cTypedCells::Restore(const TypedTexts& texts, std::size_t rows) {
    Clear(rows);
    for (const auto& [cell, typed] : texts) {
        const auto row = static_cast<std::size_t>(cell.section('.', 0, 0).toInt());
        if (row < rows) m_Rows[row][cell.section('.', 1).toInt()] = typed;
    }
}

std::string CellText(const QString& typed) {
    const QString text = OneLine(typed);
    if (!FitsCodePage(text)) {
        throw cFailure(eFailure::InvalidCall,
                       Pattern("Reasons", "the text has characters that can't be stored"));
    }
    return FromQString(text.trimmed());
}

}  // namespace vigrel
