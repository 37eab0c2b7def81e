#include "vigrel-inspect/formats.h"

#include "common/date_text.h"
#include "common/dates.h"
#include "common/numbers.h"
#include "definitions/definition_file.h"
#include "schedule/definition_files.h"
#include "vigrel-inspect/week_days.h"

namespace vigrel {
namespace {

std::string DayTypeName(int dayType) {
    if (dayType < kWeekDays) return std::string(kWeekDayNames[static_cast<std::size_t>(dayType)]);
    return "special day " + std::to_string(dayType - kWeekDays + 1);
}

void ReadSpares(cFieldReader& file, const std::string& owner) {
    for (int i = 1; i <= 10; ++i) file.EmptyString(owner + " spare " + std::to_string(i));
    file.Zeros(owner + " reserved", 40);
}

void ReadNumbered(const std::string& name, int count, const std::function<void(const std::string&)>& read) {
    for (int i = 0; i < count; ++i) read(name + " " + std::to_string(i));
}

// The version of a definition; throws nothing for an unknown one, which is a problem.
bool ReadVersion(cFieldReader& file, int oldest, cInspection& inspection) {
    const std::int16_t version = file.Int16("version");
    inspection.version = version;
    if (version >= oldest && version <= kDefinitionVersion) return true;
    file.Problem("version " + std::to_string(version) + " is not known; known are " + std::to_string(oldest) +
                 " to " + std::to_string(kDefinitionVersion));
    return false;
}

void ReadSettings(cFieldReader& file) {
    ReadNumbered("setting", 4, [&](const std::string& name) { file.Variant(name); });
}

void ReadReceiverVersion3(cFieldReader& file) {
    file.ExpectRange(file.Int32("type id"), -32768, 32767);
    file.String("name");
    ReadSettings(file);
}

void ReadReceiverVersion4And5(cFieldReader& file, std::string_view fileName, int version) {
    const std::int16_t identity = file.Int16("identity");
    const std::int64_t number = NumberInName(fileName);
    if (number >= 0 && number != identity)
        file.Problem("the name of the file says " + std::to_string(number));
    file.Boolean("enabled");
    file.Int16("type id");
    file.String("name");
    ReadSettings(file);
    file.Zeros("reserved", 10);
    file.String("parallel numbers");
    if (version == 4) {
        for (int i = 1; i <= 4; ++i) file.String("unread " + std::to_string(i));
    } else {
        file.Date("saved at");
        file.Zeros("filler", kDefinitionFiller);
    }
}

void ReadProfileRecord(cFieldReader& file) {
    file.Zeros("reserved 1", 2);
    file.Boolean("enabled");
    file.String("name");
    ReadNumbered("state", 3, [&](const std::string& name) { file.Int16(name); });
    file.Boolean("use schedule");
    file.Zeros("reserved 2", 4);
    file.String("parallel receivers");
    file.String("sequential receivers");
    ReadNumbered("condition", 6, [&](const std::string& name) { file.String(name); });
    file.Int16("view day type");
    file.Int16("view time axis");
    file.Boolean("use external tag");
    file.String("external tag");
    file.Boolean("ignore tag in other profiles");
    file.Boolean("use external file");
    file.String("external file");
    file.String("external file text");
    file.Boolean("scan specific systems");
    ReadNumbered("system", 64, [&](const std::string& name) { file.Int16(name); });
}

void ReadPeriod(cFieldReader& file, const std::string& name) {
    const std::int16_t start = file.Int16(name + " start");
    file.ExpectRange(start, 0, kMinutesOfDay);
    const std::int16_t stop = file.Int16(name + " stop");
    file.ExpectRange(stop, 0, kMinutesOfDay);
    if (stop < start) file.Problem("the period stops before it starts");
}

}  // namespace

std::int64_t NumberInName(std::string_view fileName) {
    const std::string_view stem = fileName.substr(0, fileName.rfind('.'));
    const std::size_t letter = stem.find_last_not_of("0123456789");
    const std::string_view digits = stem.substr(letter == std::string_view::npos ? 0 : letter + 1);
    return digits.empty() || digits.size() > 9 ? -1 : static_cast<std::int64_t>(Val(digits));
}

void ReadAlarmFields(cFieldReader& file, std::string_view fileName) {
    file.Date("time at source");
    file.Date("time at PC");
    file.Int32("event id");
    file.ExpectRange(file.Int16("status"), 0, 3);
    for (int i = 0; i < 6; ++i) file.String("t" + std::to_string(i) + (i == 2 ? " (category)" : ""));
    file.String("sequence receivers");
    file.String("sequence receiver confirm");
    file.Int16("sequence numbers");
    file.String("parallel receivers");
    file.Int16("parallel numbers");
    ReadSpares(file, "alarm");
    file.String("sender");
    file.Boolean("observed");
    file.Date("created");
    const std::int32_t fileId = file.Int32("file id");
    const std::int64_t number = NumberInName(fileName);
    if (number >= 0 && number != fileId) file.Problem("the name of the file says " + std::to_string(number));
    ReadSpares(file, "wrapper");
    file.ExpectEnd();
}

void ReadReceiverFields(cFieldReader& file, std::string_view fileName, cInspection& inspection) {
    if (!ReadVersion(file, 3, inspection)) return;
    if (*inspection.version == 3) {
        ReadReceiverVersion3(file);
    } else {
        ReadReceiverVersion4And5(file, fileName, *inspection.version);
    }
    file.ExpectEnd();
}

void ReadProfileFields(cFieldReader& file, cInspection& inspection) {
    if (!ReadVersion(file, 4, inspection)) return;
    ReadProfileRecord(file);
    if (*inspection.version == kDefinitionVersion) {
        file.Int16("off duty alarm behaviour");
        file.Date("saved at");
        file.Zeros("filler", kDefinitionFiller);
    }
    ReadScheduleFields(file);
}

void ReadScheduleFields(cFieldReader& file) {
    for (int dayType = 0; dayType < kDayTypes; ++dayType) {
        const std::string day = DayTypeName(dayType);
        file.Boolean(day + " active");
        file.Boolean(day + " grouped");
        const std::int16_t count = file.Int16(day + " periods");
        if (count < 0) file.Problem("a count can't be negative");
        for (int i = 1; i <= count; ++i) ReadPeriod(file, day + " period " + std::to_string(i));
        file.Int16(day + " axis");
    }
    file.Boolean("use calendar");
    file.ExpectEnd();
}

void ReadCalendarFields(std::string_view content, cInspection& inspection) {
    cBinaryReader file(content);
    for (std::int32_t day = 0; day < kCalendarDays; ++day) {
        const std::size_t from = file.Position();
        const std::int16_t value = file.Int16();
        if (!file.Complete()) {
            inspection.problems.push_back(
                {from, "",
                 "the file ends at day " + std::to_string(day) + " of " + std::to_string(kCalendarDays)});
            return;
        }
        if (value == 0) continue;
        const std::string date = DateTimeText(kFirstCalendarDay + day).substr(0, 10);
        const bool known = value > 0 && value <= kDayTypes;
        inspection.fields.push_back(
            {date + (known ? " (" + DayTypeName(value - 1) + ")" : ""), from, 2, std::int64_t{value}});
        if (!known) inspection.problems.push_back({from, date, std::to_string(value) + " is not in 0 to 23"});
    }
    if (content.size() > kCalendarFileSize) {
        inspection.problems.push_back(
            {kCalendarFileSize, "",
             std::to_string(content.size() - kCalendarFileSize) + " bytes lie behind the last day"});
    }
}

}  // namespace vigrel
