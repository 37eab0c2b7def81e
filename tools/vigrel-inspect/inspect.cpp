#include "vigrel-inspect/inspect.h"

#include <array>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/text.h"
#include "schedule/definition_files.h"
#include "vigrel-inspect/formats.h"

namespace vigrel {
namespace {

constexpr std::array<std::pair<eFileKind, std::string_view>, 5> kKinds = {
    {{eFileKind::Alarm, "alarm"},
     {eFileKind::Receiver, "receiver"},
     {eFileKind::Profile, "profile"},
     {eFileKind::Schedule, "schedule"},
     {eFileKind::Calendar, "calendar"}}};

void ReadFields(eFileKind kind, std::string_view fileName, std::string_view content,
                cInspection& inspection) {
    cFieldReader file(content, inspection);
    switch (kind) {
        case eFileKind::Alarm:
            return ReadAlarmFields(file, fileName);
        case eFileKind::Receiver:
            return ReadReceiverFields(file, fileName, inspection);
        case eFileKind::Profile:
            return ReadProfileFields(file, inspection);
        case eFileKind::Schedule:
            return ReadScheduleFields(file);
        case eFileKind::Calendar:
            return ReadCalendarFields(content, inspection);
    }
}

std::string_view WordOf(eFileKind kind) {
    for (const auto& [known, word] : kKinds) {
        if (known == kind) return word;
    }
    return "unknown";
}

}  // namespace

std::optional<eFileKind> KindFromWord(std::string_view word) {
    for (const auto& [kind, known] : kKinds) {
        if (EqualsNoCase(known, word)) return kind;
    }
    return std::nullopt;
}

std::optional<eFileKind> KindOfFile(std::string_view fileName, std::string_view content) {
    const std::string name = ToUpper(fileName);
    if (name.ends_with(".ALM")) return eFileKind::Alarm;
    if (name.starts_with("RECEIVER_") && name.ends_with(".DAT")) return eFileKind::Receiver;
    if (name.starts_with("PROFILE_") && name.ends_with(".DAT")) return eFileKind::Profile;
    if (content.size() == kCalendarFileSize) return eFileKind::Calendar;
    // A schedule has no mark of its own: it is one when all of it reads as one.
    const bool isSchedule = Inspect(eFileKind::Schedule, fileName, content).problems.empty();
    return isSchedule ? std::optional(eFileKind::Schedule) : std::nullopt;
}

cInspection Inspect(eFileKind kind, std::string_view fileName, std::string_view content) {
    cInspection inspection;
    inspection.kind = WordOf(kind);
    inspection.size = content.size();
    // What ends the reading has been noted.
    SkipFailure([&] { ReadFields(kind, fileName, content, inspection); });
    return inspection;
}

cInspection InspectUnknown(std::string_view content) {
    cInspection inspection;
    inspection.kind = "unknown";
    inspection.size = content.size();
    inspection.problems.push_back({0, "", "the kind can't be told from the name; --as says it"});
    return inspection;
}

}  // namespace vigrel
