#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vigrel-report/figures/settings.h"
#include "vigrel-report/page/words.h"
#include "vigrel-report/record/time_zone.h"

namespace vigrel::report {

// What the command line asks for.
struct cOptions {
    bool help = false, version = false, json = false, quiet = false;
    std::vector<std::string> folders;      // as in common/path_text.h
    std::string page, csvFolder;           // the same; empty: none
    std::optional<eLanguage> language;     // nothing: that of the first folder
    std::optional<DateTime> from, before;  // local
    std::string last;                      // "day", "week", "month", "year", or a number of days
    cSettings settings;                    // but for its periods
};

// Reads the words of a command line (without the program's name, UTF-8). Throws cFailure (InvalidCall) with a
// description for the user.
cOptions ReadReportOptions(const std::vector<std::string>& words);
std::string ReportHelpText();

// The period that the options ask for, and the one before it, at a moment. A period ends with that moment at
// the latest. Throws cFailure (InvalidCall) for an empty one.
struct cPeriods {
    cSpan period, before;
};
cPeriods FindPeriods(const cOptions& options, Moment now, const cTimeZone& zone);

}  // namespace vigrel::report
