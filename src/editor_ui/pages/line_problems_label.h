#pragma once

#include <string_view>
#include <vector>

#include "common/line_problem.h"
#include "windows/plain_text.h"

namespace vigrel {

// Tells which lines of a text file were skipped, and why. It takes no room while there is nothing to tell.
class cLineProblemsLabel : public cPlainLabel {
    Q_OBJECT
  public:
    cLineProblemsLabel();
    void Show(std::string_view file, const std::vector<cLineProblem>& problems);
};

}  // namespace vigrel
