#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "events/vigrel_reciever_alarm.h"
#include "platform/files.h"

namespace vigrel {

// The names of the store's form in a folder, sorted.
std::vector<std::string> AlarmFileNames(const cFileReader& files, const std::string& alarmFolder);

struct cAlarmFolder {
    std::string path;  // with trailing separator
    std::vector<std::string> names;
};
// The folder that holds the alarm files: the application folder's "Alarms", or the given one itself. Throws
// cFailure when there is no alarm file in either and the folder is no application folder.
cAlarmFolder FindAlarmFolder(const cFileReader& files, const std::string& folder);

struct cStoredAlarm {
    cVigrelRecieverAlarm alarm;
    std::string problem;  // what is wrong with the file; empty: nothing
};
// What can be read of each of these files of a folder (with its separator), in the order of the names. No
// file keeps the others away.
using TakeStoredAlarm = std::function<void(const std::string& name, const cStoredAlarm& stored)>;
void ReadStoredAlarms(const cFileReader& files, const std::string& folder,
                      const std::vector<std::string>& names, const TakeStoredAlarm& take);

// "inactive", "active", "acked", "message"; empty for another number.
std::string StateName(std::int16_t status);
std::optional<std::int16_t> StateFromName(std::string_view name);

}  // namespace vigrel
