#pragma once

namespace vigrel {

// From here on, what the process makes is for its user alone; for the group too when the umask that it was
// started with shuts everybody else out (such as 027), since then somebody has thought about it. To be called
// first of all.
void KeepFilesPrivate();

}  // namespace vigrel
