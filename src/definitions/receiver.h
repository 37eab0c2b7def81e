#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <tuple>

#include "common/binary.h"
#include "definitions/definition_file.h"
#include "definitions/variant.h"
#include "platform/clock.h"

namespace vigrel {

// One destination to which alarms can go, kept in a file of its own (docs/formats/receiver.md).
//
// Operations on the file never throw: a failure is a line in the log and a false result.
class cReceiver {
  public:
    static constexpr int kSettings = 4;
    static const cDefinitionKind kKind;

    explicit cReceiver(const cDefinitionServices& services) : m_Services(services) {}

    std::int16_t m_DiskIdentity = -1;  // the number in the file name; -1 for one that was never saved
    Boolean16 m_Enabled = True16;
    std::int16_t m_ReceiverTypeIndex = -1;  // row of the receiver type table; -1 for an unknown type
    std::string m_ReceiverTypeName;
    std::string m_ReceiverName;
    std::string m_ParallellNumbers;
    DateTime m_FileDateTimeStamp = 0;  // of the last save, as the file told at the last load
    Boolean16 m_SendingFailed = False16;
    DateTime m_LastKeepAlive = 0;
    std::int32_t m_KeepAliveInterval = 0;          // 0: the receiver is not watched
    Boolean16 m_HasUpdatedDiskIdentity = False16;  // the last save had to invent m_DiskIdentity

    std::string CreateFileName(std::int16_t DiskIdentity) const;
    bool RemoveFromDisk();
    std::int16_t GetReceiverTypeId() const { return m_ReceiverTypeId; }
    // The settings 0 to 3; another index throws cFailure (OutOfBounds).
    const cVariant& GetSetting(std::int16_t Index) const;
    bool HasChangedSinceLastLoadFromDisk() const;
    // Whether both would be stored alike.
    bool HasSameContentAs(const cReceiver& other) const;
    // Takes over everything but the identity of the file.
    void CopyFrom(const cReceiver& other);
    void SaveSetting(std::int16_t Index, const cVariant& NewValue);
    // A file of an older version is brought up to the current one at once. After a failed load the object is
    // partly filled and must not be saved.
    bool LoadFromDisk(std::int16_t DiskIdentity);
    bool SaveToDisk();
    // Sets the type's name and row too. The supervision starts anew, by the settings held at this moment; a
    // type that the table lacks leaves the interval as it was.
    void SetReceiverTypeId(std::int16_t TypeId);
    void RememberOriginalSettings();

  private:
    using Settings = std::array<cVariant, kSettings>;
    void ReadRecord(cBinaryReader& file, std::int16_t version);
    void ReadVersion3(cBinaryReader& file);
    void ReadVersion4And5(cBinaryReader& file, std::int16_t version);
    void WriteRecord(cBinaryWriter& file) const;
    void ReadKeepAliveInterval(const cReceiverType& type);

    const cDefinitionServices& m_Services;
    std::int16_t m_ReceiverTypeId = -1;
    Settings m_Settings;

    // What is stored, compared and copied, as references.
    template <class Receiver>
    static auto Fields(Receiver& receiver) {
        return std::tie(receiver.m_Enabled, receiver.m_ReceiverTypeId, receiver.m_ReceiverName,
                        receiver.m_ParallellNumbers, receiver.m_Settings);
    }
    // Those of the last load or save. A receiver that had neither differs from these.
    std::tuple<Boolean16, std::int16_t, std::string, std::string, Settings> m_Original;
};

}  // namespace vigrel
