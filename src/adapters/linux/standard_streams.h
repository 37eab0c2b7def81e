#pragma once

namespace vigrel {

// Gives to nobody each of the three standard streams that the process was started without: otherwise the next
// file or connection would get its number, and with it all that is told on standard error. To be called
// before anything is opened.
void OpenStandardStreams();

}  // namespace vigrel
