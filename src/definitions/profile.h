#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "common/binary.h"
#include "definitions/definition_file.h"
#include "platform/clock.h"
#include "schedule/time_schedule.h"

namespace vigrel {

// Which alarms go to which receivers, and when: kept in a file of its own together with its time schedule
// (docs/formats/profile.md).
//
// Operations on the file never throw: a failure is a line in the log and a false result. An index outside its
// range throws cFailure (OutOfBounds).
class cProfile {
  public:
    static constexpr int kStates = 3;
    static constexpr int kConditions = 6;
    static constexpr int kSystems = 64;
    static const cDefinitionKind kKind;

    explicit cProfile(const cDefinitionServices& services) : m_Services(services) {}

    std::int16_t m_DiskIdentity = -1;  // the number in the file name; -1 for one that was never saved
    Boolean16 m_Enabled = True16;
    std::string m_ParentName;  // upper case; part of the name, see SetName
    std::int16_t m_NestingLevels = 0;
    Boolean16 m_UseTimeSchedule = False16;
    std::string m_ParallellReceivers;
    std::string m_SequentialReceivers;
    std::int16_t m_TimeSchedule_ViewDayType = 0;
    std::int16_t m_Calendar_ViewTimeAxis = 0;
    Boolean16 m_UseExternalTag = False16;
    std::string m_ExternalTagName;
    Boolean16 m_IgnoreExternalTagInOtherProfiles = False16;
    Boolean16 m_UseExternalFile = False16;
    std::string m_ExternalFileName;
    std::string m_ExternalFileText;
    Boolean16 m_ScanSpecificSystems = False16;
    std::int16_t m_OffDutyAlarmBehaviour = 0;
    // None until the profile is loaded or copied, or its maker gives it one; without one it can't be saved.
    std::unique_ptr<cTimeSchedule> m_TimeSchedule;

    DateTime m_FileDateTimeStamp = 0;  // of the last save, as the file told at the last load

    // As it was at the last load or save; none for a profile that had neither, which differs from a disabled
    // one without content.
    std::unique_ptr<cProfile> m_Original;

    Boolean16 m_HasUpdatedDiskIdentity = False16;  // the last save had to invent m_DiskIdentity

    void RememberOriginalSettings();
    std::string CreateFileName(std::int16_t DiskIdentity) const;
    bool HasChangedSinceLastLoadFromDisk() const;
    // Whether both would be stored alike.
    bool HasSameContentAs(const cProfile& other) const;
    // Takes over everything but the identity of the file; the schedule as a schedule of its own.
    void CopyFrom(const cProfile& other);
    const std::string& GetName() const { return m_Name; }
    bool SaveToDisk();
    const std::string& GetCondition(std::int16_t ConditionNumber) const;
    std::int16_t GetState(std::int16_t Index) const;
    // With nesting of profiles on, each "@" in the name is a level, and what stands before the last one is
    // the parent.
    void SetName(std::string_view NewName);
    void SetState(std::int16_t Index, std::int16_t Status);
    bool RemoveFromDisk();
    std::int16_t GetSystem(std::int16_t Index) const;
    void SetSystem(std::int16_t Index, std::int16_t Status);
    // A file of an older version is brought up to the current one at once. After a failed load the object is
    // partly filled and must not be saved.
    bool LoadFromDisk(std::int16_t DiskIdentity);
    void SetCondition(std::int16_t ConditionNumber, std::string_view NewCondition);

  private:
    void ReadRecord(cBinaryReader& file, std::int16_t version);
    void WriteRecord(cBinaryWriter& file) const;
    // The fields of the record in the order of the file, the one list for reading, writing, comparing and
    // copying: those of version 4, and all of them.
    static constexpr auto FieldsOfVersion4();
    static constexpr auto Fields();

    const cDefinitionServices& m_Services;
    std::string m_Name;
    std::array<std::int16_t, kStates> m_State{};
    std::array<std::string, kConditions> m_Condition;
    std::array<std::int16_t, kSystems> m_System{};
};

}  // namespace vigrel
