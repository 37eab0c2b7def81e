#include "events/vigrel_reciever_alarm.h"

namespace vigrel {
namespace {

std::string_view StateWord(std::int16_t status) {
    const auto index = static_cast<std::size_t>(status);
    return index < kStateSuffixes.size() ? kStateSuffixes[index] : "";
}

}  // namespace

std::string cVigrelRecieverAlarm::SysLogText() const {
    std::string text =
        std::string(StateWord(m_Alarm.m_Status)) + " - " + m_Alarm.GetCondition(ConditionText) + " (";
    for (int i = 1; i <= 4; ++i) text += m_Alarm.GetCondition(i) + (i < 4 ? "/" : ")");
    return text;
}

void cVigrelRecieverAlarm::WriteToDisk(cBinaryWriter& file) const {
    m_Alarm.WriteToDisk(file);
    file.String(m_Sender);
    file.Int16(m_Observed);
    file.Double(m_CreatedTime);
    file.Int32(m_FileId);
    WriteSpare(file);
}

void cVigrelRecieverAlarm::ReadFromDisk(cBinaryReader& file) {
    m_Alarm.ReadFromDisk(file);
    m_Sender = file.String();
    m_Observed = file.Int16();
    m_CreatedTime = file.Double();
    m_FileId = file.Int32();
    SkipSpare(file);
}

}  // namespace vigrel
