#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "e2e/station.h"

namespace vigrel::testing {

// Somebody at the screen with a keyboard.

// To be called before the station starts: it shows its windows, in English.
void OnScreen(cStation& station);
// The window of a program that shows by now, or within the time; empty when there is none.
std::string FindWindow(pid_t process, const std::string& title = "", double seconds = 20);
std::string TitleOf(const std::string& window);
// The window that has the keyboard, of any program.
std::string ActiveWindow();
// Gives the window the keyboard, then presses keys by their names ("Return", "Tab", "s").
void Press(const std::string& window, const std::vector<std::string>& keys);
// Presses keys for whatever has the keyboard.
void PressHere(const std::vector<std::string>& keys);

}  // namespace vigrel::testing
