#include "link/sender_table.h"

#include <algorithm>

#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr double kMinutesPerDay = 1440;

}  // namespace

void cSenderTable::WarnTooMany() {
    m_Services.messageBox.Show(m_Services.texts.GetText(TextTooManySenders), eMessageIcon::Warning,
                               eMessageButtons::Ok);
}

void cSenderTable::MarkSeen(cSender& sender) const {
    sender.LastSeen = m_Services.clock.Now();
    sender.LastSeenSteady = m_Services.clock.Steady();
}

void cSenderTable::AddSender(const std::string& entry) {
    cSender& sender = m_Senders[static_cast<std::size_t>(m_SenderCount)];
    MarkSeen(sender);
    sender.AlarmRaised = false;
    sender.SenderName = GetField(entry, 0, "=");
    sender.KeepAliveMinutes = m_Services.ini.Int16("Senders", sender.SenderName, GetField(entry, 1, "="));
    sender.NotYetSeen = true;
    ++m_SenderCount;
}

void cSenderTable::ReadSenders() {
    const cIniEntries section =
        ReadIniEntries(m_Services.files, "Senders", kSenderBuffer, m_Services.ini.FullPath(kIniFile));
    // Nobody would miss a sender that the station does not know.
    if (!section.problem.empty()) throw cFailure(eFailure::InputOutput, section.problem);
    if (section.characters >= static_cast<std::int32_t>(kSenderBuffer) - 2) WarnTooMany();
    m_SenderCount = 0;
    for (const std::string& entry : section.entries) {
        // An empty one is the end of the list: a zero byte in the file can bring one about.
        if (entry.empty()) break;
        if (entry.find('=') == std::string::npos || Trim(entry).starts_with(';')) continue;
        AddSender(entry);
        if (m_SenderCount == kMostSenders) {
            WarnTooMany();
            break;
        }
    }
}

void cSenderTable::LogSenders() {
    const cTexts& texts = m_Services.texts;
    for (std::int16_t i = 0; i < m_SenderCount; ++i) {
        const cSender& sender = m_Senders[static_cast<std::size_t>(i)];
        const std::string minutes = std::to_string(sender.KeepAliveMinutes);
        m_Services.log.WriteLog(
            sender.SenderName + " - " +
            (sender.KeepAliveMinutes == 0
                 ? texts.GetText(TextNotSupervised)
                 : texts.GetText(TextSupervised) + " " + minutes + " " + texts.GetText(TextMinutes)));
    }
}

// Silence is measured on the steady clock: neither the change to summer time nor a corrected clock makes a
// sender look lost.
bool cSenderTable::IsDue(const cSender& sender) const {
    return sender.KeepAliveMinutes > 0 &&
           m_Services.clock.Steady() > sender.LastSeenSteady + sender.KeepAliveMinutes / kMinutesPerDay;
}

std::string cSenderTable::StateText(const cSender& sender) const {
    if (sender.NotYetSeen) return sender.SenderName + " - " + m_Services.texts.GetText(TextSenderNeverHeard);
    const auto format = [&](const std::string& pattern) {
        return FormatDateTime(sender.LastSeen, pattern, m_Services.forms);
    };
    return sender.SenderName + " - " + m_Services.texts.GetText(TextSenderLost) + " " +
           format(m_Services.settings.m_DateFormat) + " " + format(m_Services.settings.m_TimeFormat);
}

void cSenderTable::Raise(const cSender& sender, std::int16_t status) {
    const std::string text = StateText(sender);
    m_Services.ProcessAlarm(m_Services.maker.Make([&](cVigrelRecieverAlarm& alarm) {
        alarm.m_Sender = sender.SenderName;
        alarm.m_Alarm.m_TimeStampFromSCADA = m_Services.clock.Now();
        alarm.m_Alarm.m_Status = status;
        alarm.m_Alarm.SetCondition(ConditionText, "VigrelAlarmReceiver");
        alarm.m_Alarm.SetCondition(ConditionCategory, m_Services.settings.m_SystemErrorCategory);
        alarm.m_Alarm.SetCondition(ConditionDetail, text);
    }));
}

void cSenderTable::Tick() {
    for (std::int16_t i = 0; i < m_SenderCount; ++i) {
        cSender& sender = m_Senders[static_cast<std::size_t>(i)];
        if (!IsDue(sender)) continue;
        if (m_Services.settings.m_AutoResetKeepAliveTimer || !sender.AlarmRaised) {
            Raise(sender, StatusActive);
            sender.AlarmRaised = true;
        }
        MarkSeen(sender);
    }
}

eHeard cSenderTable::Heard(std::string_view name, std::string_view text) {
    const auto end = m_Senders.begin() + m_SenderCount;
    const auto found = std::find_if(
        m_Senders.begin(), end, [&](const cSender& sender) { return EqualsNoCase(sender.SenderName, name); });
    if (found == end) return eHeard::Unknown;
    MarkSeen(*found);
    const bool returns = found->AlarmRaised;
    if (returns) {
        Raise(*found, StatusInactive);
        found->AlarmRaised = false;
    }
    found->NotYetSeen = false;
    if (!text.empty()) return eHeard::Known;
    // One that returns is called what the station calls it, not as it spells itself.
    m_Services.log.WriteLog((returns ? found->SenderName : std::string(name)) + " " +
                            m_Services.texts.GetText(TextKeepAlive));
    return eHeard::KeepAlive;
}

}  // namespace vigrel
