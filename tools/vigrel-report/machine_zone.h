#pragma once

#include "vigrel-report/record/time_zone.h"

namespace vigrel::report {

// The time zone of this machine, or of the variable TZ, with its changes from 1990 to 2060.
cTimeZone MachineZone();

}  // namespace vigrel::report
