#pragma once

#include <functional>
#include <string>

#include "platform/files.h"
#include "tool_support/stored_alarms.h"
#include "vigrel-inspect/alarm_filter.h"

namespace vigrel {

// The stored alarms of a folder as a table of comma-separated values: UTF-8, every cell quoted, lines ended
// by CR LF, one header line, oldest alarm first.
struct cExportWish {
    cAlarmFilter filter;
    bool exact = false;     // leave cells alone that a spreadsheet would take for a formula
    bool terminal = false;  // escape control characters, lest a sender steers the terminal
};

struct cExportResult {
    std::size_t files = 0;    // read
    std::size_t alarms = 0;   // in the table
    std::size_t damaged = 0;  // of the files: not readable, or not of an alarm's form
    std::string table;
};

// Every file of the store's name form is read. A damaged file has a row of its own that says so, as far as it
// could be read, and passes every filter, so that no alarm goes missing unseen. onProgress is told after each
// file how many of how many are read.
cExportResult ExportAlarms(const cFileReader& files, const cAlarmFolder& folder, const cExportWish& wish,
                           const std::function<void(std::size_t done, std::size_t all)>& onProgress);

}  // namespace vigrel
