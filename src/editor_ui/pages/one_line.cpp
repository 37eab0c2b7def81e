#include "editor_ui/pages/one_line.h"

namespace vigrel {
namespace {

bool IsBreak(QChar c) {
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

}  // namespace

QString OneLine(const QString& text) {
    QString line;
    bool isBroken = false;
    for (const QChar c : text) {
        if (IsBreak(c)) {
            isBroken = !line.isEmpty();
            continue;
        }
        if (isBroken) line += ' ';
        isBroken = false;
        line += c;
    }
    return line;
}

}  // namespace vigrel
