#include "definitions/profile.h"

#include <tuple>

#include "common/code_page.h"
#include "common/failure.h"

namespace vigrel {
namespace {

std::size_t CheckedIndex(std::int16_t index, int count, const char* what) {
    if (index < 0 || index >= count) {
        throw cFailure(eFailure::OutOfBounds, std::string(what) + " " + std::to_string(index) +
                                                  " is not one of 0 to " + std::to_string(count - 1));
    }
    return static_cast<std::size_t>(index);
}

// The text form by which schedules are copied and compared; empty for none.
std::string PeriodText(const std::unique_ptr<cTimeSchedule>& schedule) {
    std::string text;
    if (schedule) schedule->ComposePeriodArray(text);
    return text;
}

std::unique_ptr<cTimeSchedule> CopyOf(const std::unique_ptr<cTimeSchedule>& schedule) {
    if (!schedule) return nullptr;
    auto copy = std::make_unique<cTimeSchedule>();
    copy->ExtractPeriodArray(PeriodText(schedule));
    return copy;
}

}  // namespace

constexpr cDefinitionKind cProfile::kKind = {.folderAndStem = "Profiles\\Profile_",
                                             .oldestVersion = 4,
                                             .textUpgraded = TextProfileUpgraded,
                                             .textUnknownVersion = TextProfileOfUnknownVersion,
                                             .textLoadFailed = TextProfileNotLoaded,
                                             .textSaveFailed = TextProfileNotSaved,
                                             .textRemoved = TextProfileRemoval,
                                             .textRemoveFailed = TextProfileRemoval,
                                             .namesFileByNumber = false};

template <class Profile>
auto cProfile::Fields(Profile& p) {
    return std::tie(p.m_Name, p.m_Enabled, p.m_ParentName, p.m_NestingLevels, p.m_State, p.m_UseTimeSchedule,
                    p.m_ParallellReceivers, p.m_SequentialReceivers, p.m_Condition,
                    p.m_TimeSchedule_ViewDayType, p.m_Calendar_ViewTimeAxis, p.m_UseExternalTag,
                    p.m_ExternalTagName, p.m_IgnoreExternalTagInOtherProfiles, p.m_UseExternalFile,
                    p.m_ExternalFileName, p.m_ExternalFileText, p.m_ScanSpecificSystems, p.m_System,
                    p.m_OffDutyAlarmBehaviour);
}

template <class Profile>
auto cProfile::OriginalFields(Profile& p) {
    return std::tie(
        p.m_Original_Name, p.m_Original_Enabled, p.m_Original_ParentName, p.m_Original_NestingLevels,
        p.m_Original_State, p.m_Original_UseTimeSchedule, p.m_Original_ParallellReceivers,
        p.m_Original_SequentialReceivers, p.m_Original_Condition, p.m_Original_TimeSchedule_ViewDayType,
        p.m_Original_Calendar_ViewTimeAxis, p.m_Original_UseExternalTag, p.m_Original_ExternalTagName,
        p.m_Original_IgnoreExternalTagInOtherProfiles, p.m_Original_UseExternalFile,
        p.m_Original_ExternalFileName, p.m_Original_ExternalFileText, p.m_Original_ScanSpecificSystems,
        p.m_Original_System, p.m_Original_OffDutyAlarmBehaviour);
}

void cProfile::RememberOriginalSettings() {
    OriginalFields(*this) = Fields(*this);
    m_Original_TimeSchedule = CopyOf(m_TimeSchedule);
}

std::string cProfile::CreateFileName(std::int16_t DiskIdentity) const {
    return DefinitionFileName(m_Services, kKind, DiskIdentity);
}

bool cProfile::HasChangedSinceLastLoadFromDisk() const {
    return Fields(*this) != OriginalFields(*this) ||
           PeriodText(m_TimeSchedule) != PeriodText(m_Original_TimeSchedule);
}

bool cProfile::HasSameContentAs(const cProfile& other) const {
    return Fields(*this) == Fields(other) && PeriodText(m_TimeSchedule) == PeriodText(other.m_TimeSchedule);
}

void cProfile::CopyFrom(const cProfile& other) {
    Fields(*this) = Fields(other);
    m_TimeSchedule = CopyOf(other.m_TimeSchedule);
}

const std::string& cProfile::GetCondition(std::int16_t ConditionNumber) const {
    return m_Condition[CheckedIndex(ConditionNumber, kConditions, "condition")];
}

void cProfile::SetCondition(std::int16_t ConditionNumber, std::string_view NewCondition) {
    m_Condition[CheckedIndex(ConditionNumber, kConditions, "condition")] = NewCondition;
}

std::int16_t cProfile::GetState(std::int16_t Index) const {
    return m_State[CheckedIndex(Index, kStates, "state")];
}

void cProfile::SetState(std::int16_t Index, std::int16_t Status) {
    m_State[CheckedIndex(Index, kStates, "state")] = Status;
}

std::int16_t cProfile::GetSystem(std::int16_t Index) const {
    return m_System[CheckedIndex(Index, kSystems, "system")];
}

void cProfile::SetSystem(std::int16_t Index, std::int16_t Status) {
    m_System[CheckedIndex(Index, kSystems, "system")] = Status;
}

void cProfile::SetName(std::string_view NewName) {
    m_Name = NewName;
    m_ParentName.clear();
    m_NestingLevels = 0;
    if (!m_Services.m_ProfileNesting) return;
    for (std::size_t at = m_Name.find('@'); at != std::string::npos; at = m_Name.find('@', at + 1)) {
        m_ParentName = ToUpper(std::string_view(m_Name).substr(0, at));
        ++m_NestingLevels;
    }
}

bool cProfile::RemoveFromDisk() {
    return RemoveDefinition(m_Services, kKind, m_DiskIdentity, m_Name);
}

bool cProfile::LoadFromDisk(std::int16_t DiskIdentity) {
    const cLoadResult result =
        LoadDefinition(m_Services, kKind, DiskIdentity, m_DiskIdentity,
                       [this](cBinaryReader& file, std::int16_t version) { ReadRecord(file, version); });
    if (result.outdated && !SaveToDisk()) NoteNotUpgraded(m_Services, kKind, DiskIdentity);
    RememberOriginalSettings();
    return result.loaded;
}

void cProfile::ReadRecord(cBinaryReader& file, std::int16_t version) {
    ReadFields(file);
    if (version == kDefinitionVersion) {
        m_OffDutyAlarmBehaviour = file.Int16();
        m_FileDateTimeStamp = file.Double();
        file.Skip(kDefinitionFiller);
    }
    m_TimeSchedule = std::make_unique<cTimeSchedule>();
    m_TimeSchedule->ReadFromDisk(file);
}

// What versions 4 and 5 have in common.
void cProfile::ReadFields(cBinaryReader& file) {
    file.Skip(2);
    m_Enabled = file.Int16();
    SetName(file.String());
    for (std::int16_t& state : m_State) state = file.Int16();
    m_UseTimeSchedule = file.Int16();
    file.Skip(4);
    m_ParallellReceivers = file.String();
    m_SequentialReceivers = file.String();
    for (std::string& condition : m_Condition) condition = file.String();
    m_TimeSchedule_ViewDayType = file.Int16();
    m_Calendar_ViewTimeAxis = file.Int16();
    m_UseExternalTag = file.Int16();
    m_ExternalTagName = file.String();
    m_IgnoreExternalTagInOtherProfiles = file.Int16();
    m_UseExternalFile = file.Int16();
    m_ExternalFileName = file.String();
    m_ExternalFileText = file.String();
    m_ScanSpecificSystems = file.Int16();
    for (std::int16_t& system : m_System) system = file.Int16();
}

bool cProfile::SaveToDisk() {
    const bool saved = SaveDefinition(m_Services, kKind, m_DiskIdentity, m_HasUpdatedDiskIdentity,
                                      [this](cBinaryWriter& file) { WriteRecord(file); });
    if (saved) RememberOriginalSettings();
    return saved;
}

void cProfile::WriteRecord(cBinaryWriter& file) const {
    if (!m_TimeSchedule) throw cFailure(eFailure::ObjectMissing, "the profile has no time schedule");
    file.Zeros(2);
    file.Int16(m_Enabled);
    file.String(m_Name);
    for (const std::int16_t state : m_State) file.Int16(state);
    file.Int16(m_UseTimeSchedule);
    file.Zeros(4);
    file.String(m_ParallellReceivers);
    file.String(m_SequentialReceivers);
    for (const std::string& condition : m_Condition) file.String(condition);
    file.Int16(m_TimeSchedule_ViewDayType);
    file.Int16(m_Calendar_ViewTimeAxis);
    file.Int16(m_UseExternalTag);
    file.String(m_ExternalTagName);
    file.Int16(m_IgnoreExternalTagInOtherProfiles);
    file.Int16(m_UseExternalFile);
    file.String(m_ExternalFileName);
    file.String(m_ExternalFileText);
    file.Int16(m_ScanSpecificSystems);
    for (const std::int16_t system : m_System) file.Int16(system);
    file.Int16(m_OffDutyAlarmBehaviour);
    file.Double(m_Services.clock.Now());
    file.Zeros(kDefinitionFiller);
    m_TimeSchedule->SaveToDisk(file);
}

}  // namespace vigrel
