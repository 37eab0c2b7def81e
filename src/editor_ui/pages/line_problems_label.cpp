#include "editor_ui/pages/line_problems_label.h"

#include "editor_ui/pages/reasons.h"
#include "windows/short_text.h"

namespace vigrel {

cLineProblemsLabel::cLineProblemsLabel() {
    setObjectName("Label_Problems");
    setWordWrap(true);
    hide();
}

void cLineProblemsLabel::Show(std::string_view file, const std::vector<cLineProblem>& problems) {
    QStringList lines;
    for (const cLineProblem& problem : problems) lines += Told(LineProblemPhrase(file, problem));
    setText(tr("Some lines were not understood. They stay in the file:\n%1").arg(FewLines(lines.join('\n'))));
    setVisible(!lines.isEmpty());
}

}  // namespace vigrel
