#pragma once

#include <array>

namespace vigrel {

// With what a program with windows ends. 1 is the toolkit's own, when it gives up without asking us; so it
// stands for nothing that we decide, and a service starts the program again.
inline constexpr int kExitInOrder = 0;
inline constexpr int kExitToolkit = 1;
inline constexpr int kExitRefused = 69;
inline constexpr int kExitFailure = 70;
inline constexpr int kExitDisplayLost = 71;
// What the start lacks can come by itself, as a network or a display does that is up later than we are.
inline constexpr int kExitNotYet = 75;

// The meanings, as --help, the manual and the manual page tell them.
struct cExitCode {
    int code;
    const char* meaning;
};
inline constexpr std::array kExitCodes{
    cExitCode{kExitInOrder, "an orderly end"},
    cExitCode{kExitToolkit, "the window toolkit gave up"},
    cExitCode{kExitRefused, "the start was refused for a reason that was told"},
    cExitCode{kExitFailure, "an unexpected failure, told in a message"},
    cExitCode{kExitDisplayLost, "the display was lost"},
    cExitCode{kExitNotYet, "the display or the address is not there yet"},
};

}  // namespace vigrel
