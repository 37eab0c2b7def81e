#pragma once

#include <string>

#include "receiver-check/finding.h"

namespace vigrel {

// Output is UTF-8.

// One line for each finding, as compilers write them, and a line that counts them:
// "VigrelReceiver.INI:12: warning: [General] ShowInTaskBar=yes: is neither ... [flag-not-0-or-1]".
std::string ReportText(const cFindings& findings);

// A JSON object: folder, errors, warnings, remarks, findings (severity, name, file, line, section, key,
// value, message; null for what a finding doesn't have).
std::string ReportJson(const std::string& folder, const cFindings& findings);

}  // namespace vigrel
