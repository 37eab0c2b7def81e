#pragma once

namespace vigrel {

// While the bare desktop is shown, as at a key of many desktops, window managers put new windows away with
// all others: nobody would see an alarm. Ends that. To be called behind what brings a window up unasked.
void LeaveShownDesktop();

}  // namespace vigrel
