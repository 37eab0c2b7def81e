#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/binary.h"
#include "platform/clock.h"

namespace vigrel {

// The condition texts that mean something to the station; the others are the senders' own.
enum eCondition : int {
    ConditionText = 0,      // what happened
    ConditionCategory = 2,  // by which it looks, sounds and shines
    ConditionDetail = 4     // of the station's own alarms: which sender
};

// States of an event, as records, files and settings number them.
enum eStatus : std::int16_t { StatusInactive = 0, StatusActive = 1, StatusAcked = 2, StatusMessage = 3 };

// The suite's core record of one event. The class is shared with the alarm server: most fields serve its
// forwarding and are only stored and copied here.
class cAlarm {
  public:
    explicit cAlarm(const cClock& clock) : m_TimeStampFromPC(clock.Now()) {}

    std::int32_t m_EventId = 0;
    DateTime m_TimeStampFromSCADA = 0;  // at the event's source
    DateTime m_TimeStampFromPC;         // when the object was made
    std::int16_t m_Status = 0;
    std::string m_ParallellReceivers;
    std::int16_t m_ParallellNumbers = 0;
    std::int32_t m_System = 0;
    std::string m_SequenceReceivers;
    std::string m_SequenceReceiverConfirm;
    std::int16_t m_SequenceNumbers = 0;
    Boolean16 m_WaitingForConfirmation = False16;
    DateTime m_TimeToContinue = 0;
    DateTime m_TimeToSend = 0;
    std::int16_t m_NextSequenceReceiver = 0;
    std::string m_ExpectConfirmationFrom;
    std::int32_t m_RepeatCount = 0;
    Boolean16 m_TriedToSendAtLeastOnce = False16;
    Boolean16 m_ShouldNotBeRepeatedAnyMore = False16;
    std::int16_t m_SimulationBehaviour = 0;

    // Takes over all fields but those of the sending itself: m_TimeToSend, m_ExpectConfirmationFrom,
    // m_RepeatCount, m_TriedToSendAtLeastOnce, m_ShouldNotBeRepeatedAnyMore.
    void CopyFromOtherObject(const cAlarm& copyObject);
    // The low 16 bits as four hexadecimal digits.
    std::string ViewEventIdAsHex() const;
    // Condition texts 0 to 5; 0 is the main text, 2 the category. Another number throws cFailure
    // (OutOfBounds).
    void SetCondition(int conditionNumber, std::string_view newCondition);
    const std::string& GetCondition(int conditionNumber) const;

    // The record of docs/formats/alarm-file.md. Reading leaves alone what the record lacks.
    void WriteToDisk(cBinaryWriter& file) const;
    void ReadFromDisk(cBinaryReader& file);

  private:
    std::array<std::string, 6> m_Conditions;
};

// The room for later fields with which each record of an alarm file ends: written empty, read over.
void WriteSpare(cBinaryWriter& file);
void SkipSpare(cBinaryReader& file);

}  // namespace vigrel
