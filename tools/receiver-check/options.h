#pragma once

#include <string>
#include <vector>

namespace vigrel {

// What the command line asks for.
struct cCheckOptions {
    bool help = false;
    bool json = false;
    bool showTexts = false;
    bool version = false;
    bool filesOnly = false;  // neither port nor rights
    std::string folder;      // in the code page
};

// Reads the words of a command line (without the program's name, UTF-8). Throws cFailure (InvalidCall) with
// a description for the user.
cCheckOptions ReadCheckOptions(const std::vector<std::string>& words);

// What --help prints.
std::string CheckHelpText();

}  // namespace vigrel
