#include "vigrel-report/record/log_reader.h"

#include <algorithm>

#include "vigrel-report/record/merge.h"

namespace vigrel::report {
namespace {

constexpr Seconds kLeastSilence = 5 * kMinute;
// An alarm's file is made before its line is written; a slow disk can lie between. A clock set meanwhile
// can't.
constexpr Seconds kLineBeforeFile = 2, kLineBehindFile = 2 * kMinute;
constexpr std::string_view kLineEnd = "\r\n";

// The second of the day that a record begins with: "HH:NN:SS" and a blank.
std::optional<Seconds> SecondOfDay(std::string_view record) {
    if (record.size() < 9 || record[2] != ':' || record[5] != ':' || record[8] != ' ') return std::nullopt;
    const auto number = [&](std::size_t at) {
        const int tens = record[at] - '0', ones = record[at + 1] - '0';
        return tens < 0 || tens > 9 || ones < 0 || ones > 9 ? -1 : tens * 10 + ones;
    };
    const int hour = number(0), minute = number(3), second = number(6);
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return std::nullopt;
    return hour * kHour + minute * kMinute + second;
}

// Records end with CR LF, and may hold LF alone: texts of senders have line breaks. A copy of a log that
// somebody converted has no CR LF at all.
std::string_view LineEndOf(std::string_view content) {
    return content.find(kLineEnd) != std::string_view::npos ? kLineEnd : kLineEnd.substr(1);
}

}  // namespace

cLogReader::cLogReader(const cTimeZone& zone, cLogForms& forms, cAlarmNames& names, cStationRecord& record)
    : m_Forms(forms), m_Names(names), m_Record(record), m_Time(zone), m_RunTimes(record) {}

bool cLogReader::ReadDay(WallTime midnight, std::string_view content) {
    m_Time.BeginDay(midnight);
    m_RunTimes.BeginDay(midnight);
    m_Understood = 0;
    const std::string_view lineEnd = LineEndOf(content);
    for (std::size_t begin = 0; begin < content.size();) {
        const std::size_t end = std::min(content.find(lineEnd, begin), content.size());
        ReadRecord(content.substr(begin, end - begin));
        begin = end + lineEnd.size();
    }
    return m_Understood > 0;
}

void cLogReader::ReadRecord(std::string_view text) {
    ++m_Record.faults.lines;
    const auto second = SecondOfDay(text);
    if (!second) {
        ++m_Record.faults.damagedLines;
        return;
    }
    const cLogLine line = m_Forms.Read(text.substr(9));
    if (line.kind == eLine::Unknown) {
        ++m_Record.faults.unknownLines;
        return;
    }
    ++m_Understood;
    Take(line, m_Time.At(*second));
    if (line.kind != eLine::PopupOpened) m_PopupAlarm.clear();
}

void cLogReader::Take(const cLogLine& line, const cLogTime::cStamp& stamp) {
    switch (line.kind) {
        case eLine::Alarm:
            return TakeAlarm(line, stamp);
        case eLine::Message:
            m_Record.messages.push_back(stamp.time);
            return Heard(m_Names.Sender(line.sender), stamp.time);
        case eLine::KeepAlive:
            return Heard(m_Names.Sender(line.sender), stamp.time);
        case eLine::UnknownSender:
            m_Record.unknownSenders.push_back(stamp.time);
            return m_RunTimes.Lives(stamp.time);
        case eLine::Acknowledged:
            return TakeAcknowledged(line, stamp);
        case eLine::PopupOpened:
            return TakePopup(line, stamp);
        case eLine::PopupClosed:
            return m_RunTimes.Touch(stamp.time);
        case eLine::PrintFailed:
            return TakePrint(line, stamp);
        case eLine::Removed:
            return m_Record.removals.push_back({stamp.time, line.number});
        case eLine::SenderRow:
            return TakeSenderRow(line);
        case eLine::Start:
            return m_RunTimes.Start(stamp.time);
        case eLine::Started:
            return m_RunTimes.Started(stamp.time);
        case eLine::EndBySession:
            return m_RunTimes.End(stamp.time, eEnd::BySession);
        case eLine::EndByOperator:
            return m_RunTimes.End(stamp.time, eEnd::ByOperator);
        case eLine::Known:
        case eLine::Unknown:
            return;
    }
}

void cLogReader::TakeAlarm(const cLogLine& line, const cLogTime::cStamp& stamp) {
    SettlePrint(line.alarm);
    const std::uint32_t sender = m_Names.Sender(line.sender);
    Heard(sender, stamp.time);
    const auto alarm = SplitAlarm(line.alarm);
    if (!alarm) {
        ++m_Record.faults.damagedLines;
        return;
    }
    m_Record.alarms.push_back({stamp.time, stamp.order, sender, m_Names.Body(alarm->body), alarm->state});
}

void cLogReader::TakeAcknowledged(const cLogLine& line, const cLogTime::cStamp& stamp) {
    m_RunTimes.Touch(stamp.time);
    const auto alarm = SplitAlarm(line.alarm);
    // Rows of alarms that are over can be acknowledged too; that is no answer to an alarm.
    if (!alarm || alarm->state != 1) return;
    const std::uint32_t body = m_Names.Body(alarm->body);
    // The station's own alarms have no line when they come.
    if (m_Names.Fields(body)[0] != kOwnAlarm) m_Acknowledgements.push_back({stamp.order, body});
}

// An alarm of the station's own has no line when it comes, but its popup has.
void cLogReader::TakePopup(const cLogLine& line, const cLogTime::cStamp& stamp) {
    m_RunTimes.Touch(stamp.time);
    m_PopupAlarm = line.alarm;
    const auto alarm = SplitAlarm(line.alarm);
    if (!alarm || alarm->state > 1) return;
    const AlarmFields fields = m_Names.Fields(m_Names.Body(alarm->body));
    if (fields[0] != kOwnAlarm) return;
    const std::string_view sender = m_Forms.LostSender(fields[4]);
    if (!sender.empty())
        m_Record.senderEvents.push_back({stamp.time, m_Names.Sender(sender), alarm->state == 1});
}

// The same words stand for a popup that the system closed. A failed print is told between the alarm's popup
// and the line that says that the alarm was received.
void cLogReader::TakePrint(const cLogLine& line, const cLogTime::cStamp& stamp) {
    SettlePrint({});
    if (line.alarm == m_PopupAlarm) {
        m_Record.failedPrints.push_back(stamp.time);
    } else {
        m_Print = cDoubtfulPrint{std::string(line.alarm), stamp.time};
    }
}

void cLogReader::SettlePrint(std::string_view alarm) {
    if (!m_Print) return;
    if (m_Print->alarm == alarm) {
        m_Record.failedPrints.push_back(m_Print->time);
    } else {
        ++m_Record.faults.doublePrintLines;
    }
    m_Print.reset();
}

void cLogReader::TakeSenderRow(const cLogLine& line) {
    const std::uint32_t sender = m_Names.Sender(line.sender);
    const auto known = std::find_if(m_Record.supervisions.begin(), m_Record.supervisions.end(),
                                    [&](const cSupervision& row) { return row.sender == sender; });
    if (known == m_Record.supervisions.end()) {
        m_Record.supervisions.push_back({sender, line.number});
    } else {
        known->minutes = line.number;
    }
}

void cLogReader::Heard(std::uint32_t sender, Moment time) {
    m_RunTimes.Lives(time);
    cContact& contact = m_Contacts[sender];
    if (contact.run == m_RunTimes.Run() && time - contact.last >= kLeastSilence) {
        m_Record.silences.push_back({sender, {contact.last, time}});
    }
    contact = {time, m_RunTimes.Run()};
}

void cLogReader::Finish(std::vector<cAlarmEvent> stored) {
    SettlePrint({});
    m_RunTimes.Finish();
    for (cAlarmEvent& event : stored) event.order = m_Time.OrderOf(event.time);
    MergeAlarms(m_Record.alarms, std::move(stored), {kLineBeforeFile, kLineBehindFile});
    Acknowledge();
    m_Record.setBacks = m_Time.SetBacks();
}

// Of several alarms with the same words the newest one counts that nobody has acknowledged: rows that were
// removed without having been acknowledged never get another line.
void cLogReader::Acknowledge() {
    std::unordered_map<std::uint32_t, std::vector<std::size_t>> open;  // events by body
    std::size_t next = 0;
    for (const cAcknowledgement& acknowledgement : m_Acknowledgements) {
        for (; next < m_Record.alarms.size() && m_Record.alarms[next].order <= acknowledgement.order;
             ++next) {
            const cAlarmEvent& event = m_Record.alarms[next];
            if (event.state == 1 && !event.unobserved) open[event.body].push_back(next);
        }
        std::vector<std::size_t>& rows = open[acknowledgement.body];
        if (rows.empty()) {
            ++m_Record.faults.acknowledgements;
            continue;
        }
        cAlarmEvent& event = m_Record.alarms[rows.back()];
        event.acknowledgedAfter = acknowledgement.order - event.order;
        rows.pop_back();
    }
}

}  // namespace vigrel::report
