#pragma once

#include <functional>
#include <string>

#include "platform/files.h"
#include "vigrel-report/record/alarm_names.h"
#include "vigrel-report/record/log_forms.h"
#include "vigrel-report/record/station_record.h"

namespace vigrel::report {

// The words of all text files in a folder (with trailing separator).
std::vector<cLogPhrases> ReadPhrases(const cFileReader& files, const std::string& folder);

// The midnight of the day that a log is named for ("20260315.Log"); nothing for another name.
std::optional<WallTime> DayOfLog(std::string_view fileName);

// Told after each file how many of how many are read.
using OnFile = std::function<void(std::size_t done, std::size_t all)>;

// Reads an application folder. installedPhrases are those of the installation: the folder may have none, or
// older ones. A file that can't be read is told in the record. Throws cFailure when the folder is none of a
// station: neither configuration nor logs nor alarms.
cStationRecord ReadStation(const cFileReader& files, const std::string& folder,
                           const std::vector<cLogPhrases>& installedPhrases, const cTimeZone& zone,
                           cAlarmNames& names, const OnFile& onFile);

}  // namespace vigrel::report
