#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vigrel-inspect/alarm_filter.h"
#include "vigrel-inspect/inspect.h"

namespace vigrel {

// What the command line asks for.
struct cInspectOptions {
    bool help = false;
    bool version = false;
    bool json = false;
    bool alarms = false;  // export the alarms of a folder
    bool exact = false;   // cells of the table as they are, also those that a spreadsheet takes for formulas
    bool mark = false;    // a byte order mark in front of the table
    bool quiet = false;   // no progress
    std::optional<eFileKind> kind;
    std::optional<DateTime> at;  // tell what is in force at this moment
    std::string calendar;        // the file by which days are told then; empty for none
    cAlarmFilter filter;
    std::vector<std::string> paths;  // as in common/path_text.h
};

// Reads the words of a command line (without the program's name, UTF-8). Throws cFailure (InvalidCall) with
// a description for the user.
cInspectOptions ReadOptions(const std::vector<std::string>& words);

// What --help prints.
std::string HelpText();

}  // namespace vigrel
