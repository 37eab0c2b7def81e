#pragma once

#include <string>
#include <vector>

#include "architecture/source_tree.h"

namespace vigrel::testing {

// A unit is a header together with its source file. Units that include each other, directly or by way of
// others, can only be understood together: one line for each such group, its units in order.
std::vector<std::string> FindUnitCycles(const cSourceTree& tree);

}  // namespace vigrel::testing
