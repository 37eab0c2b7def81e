#include "definitions/receiver.h"

#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"

namespace vigrel {
namespace {

constexpr std::size_t kReserved = 10;

std::size_t SettingIndex(std::int16_t index) {
    return CheckedIndex(index, cReceiver::kSettings, "setting");
}

}  // namespace

constexpr cDefinitionKind cReceiver::kKind = {.folderAndStem = "Receivers\\Receiver_",
                                              .oldestVersion = 3,
                                              .textUpgraded = TextReceiverUpgraded,
                                              .textUnknownVersion = TextReceiverOfUnknownVersion,
                                              .textLoadFailed = TextReceiverNotLoaded,
                                              .textSaveFailed = TextReceiverNotSaved,
                                              .textRemoved = TextReceiverRemoved,
                                              .textRemoveFailed = TextReceiverNotRemoved,
                                              .namesFileByNumber = true};

std::string cReceiver::CreateFileName(std::int16_t DiskIdentity) const {
    return DefinitionFileName(m_Services, kKind, DiskIdentity);
}

bool cReceiver::RemoveFromDisk() {
    return RemoveDefinition(m_Services, kKind, m_DiskIdentity, m_ReceiverName);
}

const cVariant& cReceiver::GetSetting(std::int16_t Index) const {
    return m_Settings[SettingIndex(Index)];
}

void cReceiver::SaveSetting(std::int16_t Index, const cVariant& NewValue) {
    m_Settings[SettingIndex(Index)] = NewValue;
}

bool cReceiver::HasChangedSinceLastLoadFromDisk() const {
    return Fields(*this) != m_Original;
}

void cReceiver::RememberOriginalSettings() {
    m_Original = Fields(*this);
}

bool cReceiver::HasSameContentAs(const cReceiver& other) const {
    return Fields(*this) == Fields(other);
}

void cReceiver::CopyFrom(const cReceiver& other) {
    SetReceiverTypeId(other.m_ReceiverTypeId);
    m_ReceiverName = other.m_ReceiverName;
    m_Enabled = other.m_Enabled;
    m_ParallellNumbers = other.m_ParallellNumbers;
    m_Settings = other.m_Settings;
}

void cReceiver::SetReceiverTypeId(std::int16_t TypeId) {
    m_ReceiverTypeId = TypeId;
    m_ReceiverTypeIndex = m_Services.receiverTypes.RowOf(TypeId);
    if (m_ReceiverTypeIndex < 0) {
        m_ReceiverTypeName =
            "(" + m_Services.texts.GetText(TextUnknownReceiverType) + ": " + Digits(TypeId, 4) + ")";
    } else {
        const cReceiverType& type =
            m_Services.receiverTypes.m_ReceiverTypes[static_cast<std::size_t>(m_ReceiverTypeIndex)];
        m_ReceiverTypeName = type.m_TypeName;
        m_KeepAliveInterval = 0;
        SkipFailure([&] { ReadKeepAliveInterval(type); });
    }
    m_LastKeepAlive = m_KeepAliveInterval > 0 ? m_Services.clock.Now() : 0;
}

void cReceiver::ReadKeepAliveInterval(const cReceiverType& type) {
    const std::string kind = ToUpper(type.m_Kind);
    if (kind == "XRT" || kind == "XRTTCP") {
        if (const auto number = m_Settings[1].Number()) m_KeepAliveInterval = ToInt32(*number);
    } else if (kind == "T940SI") {
        m_KeepAliveInterval =
            ToInt32(Val(m_Services.ini.GetIniString("ReceiverTypeSettings", "T11", "", type.m_SettingsFile)));
    }
}

bool cReceiver::LoadFromDisk(std::int16_t DiskIdentity) {
    return LoadObject(m_Services, *this, DiskIdentity,
                      [this](cBinaryReader& file, std::int16_t version) { ReadRecord(file, version); });
}

void cReceiver::ReadRecord(cBinaryReader& file, std::int16_t version) {
    if (version == 3) {
        ReadVersion3(file);
    } else {
        ReadVersion4And5(file, version);
    }
}

void cReceiver::ReadVersion3(cBinaryReader& file) {
    const std::int32_t typeId = file.Int32();
    m_Enabled = True16;
    m_ReceiverName = file.String();
    SetReceiverTypeId(ToInt16(typeId));
    m_ParallellNumbers.clear();
    for (cVariant& setting : m_Settings) setting = cVariant::Read(file);
}

void cReceiver::ReadVersion4And5(cBinaryReader& file, std::int16_t version) {
    file.Int16();  // the identity: the name of the file has it
    m_Enabled = file.Int16();
    SetReceiverTypeId(file.Int16());
    m_ReceiverName = file.String();
    for (cVariant& setting : m_Settings) setting = cVariant::Read(file);
    file.Skip(kReserved);
    m_ParallellNumbers = file.String();
    // What follows, four strings in version 4 and the filler in version 5, carries nothing.
    if (version == kDefinitionVersion) m_FileDateTimeStamp = file.Double();
}

bool cReceiver::SaveToDisk() {
    return SaveObject(m_Services, *this, [this](cBinaryWriter& file) { WriteRecord(file); });
}

void cReceiver::WriteRecord(cBinaryWriter& file) const {
    file.Int16(m_DiskIdentity);
    file.Int16(m_Enabled);
    file.Int16(m_ReceiverTypeId);
    file.String(m_ReceiverName);
    for (const cVariant& setting : m_Settings) setting.Write(file);
    file.Zeros(kReserved);
    file.String(m_ParallellNumbers);
    file.Double(m_Services.clock.Now());
    file.Zeros(kDefinitionFiller);
}

}  // namespace vigrel
