#pragma once

#include "common/setting_keys.h"
#include "receiver-check/finding.h"

namespace vigrel {

// What happens to a number that its reader can't hold.
enum class eOverflow { EndsStart, StopsPopups, Skipped };

// Finds what is wrong with the value of a place, read as the key says.
void CheckValue(const cSettingKey& key, eOverflow overflow, const cPlace& place, cFindings& findings);

}  // namespace vigrel
