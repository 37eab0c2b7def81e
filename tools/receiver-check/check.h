#pragma once

#include <string>

#include "platform/files.h"
#include "receiver-check/finding.h"
#include "receiver-check/machine.h"

namespace vigrel {

// Reads an application folder (with a trailing backslash) as the receiver would, and tells what an installer
// should know: by file and line, the files first. Without a machine only the files are looked at.
cFindings CheckInstallation(const cFileReader& files, const std::string& applicationPath,
                            const cMachine* machine);

}  // namespace vigrel
