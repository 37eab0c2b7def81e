#include "events/alarm.h"

#include "common/failure.h"
#include "common/numbers.h"

namespace vigrel {
namespace {

constexpr int kSpareStrings = 10;
constexpr std::size_t kReserved = 40;

std::size_t Index(int conditionNumber) {
    if (conditionNumber < 0 || conditionNumber > 5) {
        throw cFailure(eFailure::OutOfBounds,
                       "condition " + std::to_string(conditionNumber) + " is not one of 0 to 5");
    }
    return static_cast<std::size_t>(conditionNumber);
}

}  // namespace

void WriteSpare(cBinaryWriter& file) {
    for (int i = 0; i < kSpareStrings; ++i) file.String("");
    file.Zeros(kReserved);
}

void SkipSpare(cBinaryReader& file) {
    for (int i = 0; i < kSpareStrings; ++i) file.String();
    file.Skip(kReserved);
}

void cAlarm::CopyFromOtherObject(const cAlarm& copyObject) {
    m_EventId = copyObject.m_EventId;
    m_TimeStampFromSCADA = copyObject.m_TimeStampFromSCADA;
    m_TimeStampFromPC = copyObject.m_TimeStampFromPC;
    m_Status = copyObject.m_Status;
    m_ParallellReceivers = copyObject.m_ParallellReceivers;
    m_ParallellNumbers = copyObject.m_ParallellNumbers;
    m_System = copyObject.m_System;
    m_SequenceReceivers = copyObject.m_SequenceReceivers;
    m_SequenceNumbers = copyObject.m_SequenceNumbers;
    m_SequenceReceiverConfirm = copyObject.m_SequenceReceiverConfirm;
    m_WaitingForConfirmation = copyObject.m_WaitingForConfirmation;
    m_TimeToContinue = copyObject.m_TimeToContinue;
    m_NextSequenceReceiver = copyObject.m_NextSequenceReceiver;
    m_Conditions = copyObject.m_Conditions;
    m_SimulationBehaviour = copyObject.m_SimulationBehaviour;
}

std::string cAlarm::ViewEventIdAsHex() const {
    return LastDigits(HexText(static_cast<std::uint32_t>(m_EventId)), 4);
}

void cAlarm::SetCondition(int conditionNumber, std::string_view newCondition) {
    m_Conditions[Index(conditionNumber)] = newCondition;
}

const std::string& cAlarm::GetCondition(int conditionNumber) const {
    return m_Conditions[Index(conditionNumber)];
}

void cAlarm::WriteToDisk(cBinaryWriter& file) const {
    file.Double(m_TimeStampFromSCADA);
    file.Double(m_TimeStampFromPC);
    file.Int32(m_EventId);
    file.Int16(m_Status);
    for (const std::string& condition : m_Conditions) file.String(condition);
    file.String(m_SequenceReceivers);
    file.String(m_SequenceReceiverConfirm);
    file.Int16(m_SequenceNumbers);
    file.String(m_ParallellReceivers);
    file.Int16(m_ParallellNumbers);
    WriteSpare(file);
}

void cAlarm::ReadFromDisk(cBinaryReader& file) {
    m_TimeStampFromSCADA = file.Double();
    m_TimeStampFromPC = file.Double();
    m_EventId = file.Int32();
    m_Status = file.Int16();
    for (std::string& condition : m_Conditions) condition = file.String();
    m_SequenceReceivers = file.String();
    m_SequenceReceiverConfirm = file.String();
    m_SequenceNumbers = file.Int16();
    m_ParallellReceivers = file.String();
    m_ParallellNumbers = file.Int16();
    SkipSpare(file);
}

}  // namespace vigrel
