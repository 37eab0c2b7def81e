#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/files.h"
#include "vigrel-report/options.h"
#include "vigrel-report/record/log_forms.h"
#include "vigrel-report/record/station_folder.h"

namespace vigrel::report {

// A report in the forms that were asked for, all UTF-8.
struct cOutput {
    std::string page, json, text;               // empty: not asked for
    std::map<std::string, std::string> tables;  // by file name
};

// What a report needs of its surroundings.
struct cSurroundings {
    const cFileReader& files;
    const cTimeZone& zone;
    std::vector<cLogPhrases> installedPhrases;
    Moment now = 0;
    OnFile onFile;
};

// Throws cFailure when a folder is none of a station, or the period is empty.
cOutput MakeReport(const cOptions& options, const cSurroundings& surroundings);

}  // namespace vigrel::report
