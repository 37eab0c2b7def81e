#include "definitions/profile.h"

#include <tuple>

#include "common/code_page.h"
#include "common/failure.h"

namespace vigrel {
namespace {

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

// Bytes of the record that carry nothing.
struct cGap {
    std::size_t bytes;
};

void ReadValue(cBinaryReader& file, std::int16_t& value) {
    value = file.Int16();
}
void ReadValue(cBinaryReader& file, std::string& value) {
    value = file.String();
}
template <class Value, std::size_t Size>
void ReadValue(cBinaryReader& file, std::array<Value, Size>& values) {
    for (Value& value : values) ReadValue(file, value);
}
void WriteValue(cBinaryWriter& file, std::int16_t value) {
    file.Int16(value);
}
void WriteValue(cBinaryWriter& file, const std::string& value) {
    file.String(value);
}
template <class Value, std::size_t Size>
void WriteValue(cBinaryWriter& file, const std::array<Value, Size>& values) {
    for (const Value& value : values) WriteValue(file, value);
}

// What happens to a field of a record, and to a gap.
struct cReadField {
    cBinaryReader& file;
    cProfile& profile;
    void operator()(cGap gap) const { file.Skip(gap.bytes); }
    template <class Value>
    void operator()(Value cProfile::*field) const {
        ReadValue(file, profile.*field);
    }
};
struct cWriteField {
    cBinaryWriter& file;
    const cProfile& profile;
    void operator()(cGap gap) const { file.Zeros(gap.bytes); }
    template <class Value>
    void operator()(Value cProfile::*field) const {
        WriteValue(file, profile.*field);
    }
};
struct cCopyField {
    const cProfile& from;
    cProfile& to;
    void operator()(cGap) const {}
    template <class Value>
    void operator()(Value cProfile::*field) const {
        to.*field = from.*field;
    }
};
struct cSameField {
    const cProfile &a, &b;
    bool operator()(cGap) const { return true; }
    template <class Value>
    bool operator()(Value cProfile::*field) const {
        return a.*field == b.*field;
    }
};

template <class Fields, class Step>
void ForEachField(const Fields& fields, const Step& step) {
    std::apply([&](const auto&... field) { (step(field), ...); }, fields);
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

constexpr auto cProfile::FieldsOfVersion4() {
    return std::make_tuple(cGap{2}, &cProfile::m_Enabled, &cProfile::m_Name, &cProfile::m_State,
                           &cProfile::m_UseTimeSchedule, cGap{4}, &cProfile::m_ParallellReceivers,
                           &cProfile::m_SequentialReceivers, &cProfile::m_Condition,
                           &cProfile::m_TimeSchedule_ViewDayType, &cProfile::m_Calendar_ViewTimeAxis,
                           &cProfile::m_UseExternalTag, &cProfile::m_ExternalTagName,
                           &cProfile::m_IgnoreExternalTagInOtherProfiles, &cProfile::m_UseExternalFile,
                           &cProfile::m_ExternalFileName, &cProfile::m_ExternalFileText,
                           &cProfile::m_ScanSpecificSystems, &cProfile::m_System);
}

constexpr auto cProfile::Fields() {
    return std::tuple_cat(FieldsOfVersion4(), std::make_tuple(&cProfile::m_OffDutyAlarmBehaviour));
}

void cProfile::RememberOriginalSettings() {
    m_Original = std::make_unique<cProfile>(m_Services);
    m_Original->CopyFrom(*this);
}

std::string cProfile::CreateFileName(std::int16_t DiskIdentity) const {
    return DefinitionFileName(m_Services, kKind, DiskIdentity);
}

bool cProfile::HasChangedSinceLastLoadFromDisk() const {
    if (m_Original) return !HasSameContentAs(*m_Original);
    cProfile none(m_Services);
    none.m_Enabled = False16;
    return !HasSameContentAs(none);
}

bool cProfile::HasSameContentAs(const cProfile& other) const {
    const bool same = std::apply(
        [&](const auto&... field) {
            return (cSameField{*this, other}(field) && ...);
        },
        Fields());
    return same && m_ParentName == other.m_ParentName && m_NestingLevels == other.m_NestingLevels &&
           PeriodText(m_TimeSchedule) == PeriodText(other.m_TimeSchedule);
}

void cProfile::CopyFrom(const cProfile& other) {
    ForEachField(Fields(), cCopyField{other, *this});
    m_ParentName = other.m_ParentName;
    m_NestingLevels = other.m_NestingLevels;
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
    return LoadObject(m_Services, *this, DiskIdentity,
                      [this](cBinaryReader& file, std::int16_t version) { ReadRecord(file, version); });
}

void cProfile::ReadRecord(cBinaryReader& file, std::int16_t version) {
    if (version == kDefinitionVersion) {
        ForEachField(Fields(), cReadField{file, *this});
        m_FileDateTimeStamp = file.Double();
        file.Skip(kDefinitionFiller);
    } else {
        ForEachField(FieldsOfVersion4(), cReadField{file, *this});
    }
    SetName(std::string(m_Name));
    m_TimeSchedule = std::make_unique<cTimeSchedule>();
    m_TimeSchedule->ReadFromDisk(file);
}

bool cProfile::SaveToDisk() {
    return SaveObject(m_Services, *this, [this](cBinaryWriter& file) { WriteRecord(file); });
}

void cProfile::WriteRecord(cBinaryWriter& file) const {
    if (!m_TimeSchedule)
        throw cFailure(eFailure::ObjectMissing, Pattern("Reasons", "the profile has no time schedule"));
    ForEachField(Fields(), cWriteField{file, *this});
    file.Double(m_Services.clock.Now());
    file.Zeros(kDefinitionFiller);
    m_TimeSchedule->SaveToDisk(file);
}

}  // namespace vigrel
