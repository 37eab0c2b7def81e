#pragma once

#include <string>

#include "link/frame.h"

namespace vigrel::bench {

inline const std::string kFrame =
    MakeFrame("PLC1", "S12024-03-05|01:02:03|Fan 3 tripped in the plant room|AHU 3|Technical|x|y|z");

}  // namespace vigrel::bench
