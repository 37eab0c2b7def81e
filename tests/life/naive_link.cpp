#include "life/naive_link.h"

#include <algorithm>
#include <cstdio>

namespace vigrel::testing {
namespace {

const std::string kAccepted =
    "\x04"
    "04\n\r";
const std::string kRefused =
    "\x05"
    "05\n\r";

std::string Checksum(const std::string& text) {
    int sum = 0;
    for (const char c : text) sum += static_cast<unsigned char>(c);
    char digits[8];
    std::snprintf(digits, sizeof digits, "%02X", sum % 256);
    return digits;
}

// What is no kind of record is -1.
int StatusOf(const std::string& kind) {
    if (kind == "S0") return 0;
    if (kind == "S1") return 1;
    if (kind == "S2") return 2;
    return kind == "S3" ? 3 : -1;
}

}  // namespace

std::string cNaiveLink::Arrive(const std::string& bytes) {
    if (!m_Open) return "";
    for (const char c : bytes) {
        if (c != '\r') m_Buffer += c;
    }
    std::string replies;
    while (m_Buffer.find('\n') != std::string::npos) {
        const std::size_t end = m_Buffer.find('\n');
        replies += Answer(m_Buffer.substr(0, end));
        m_Buffer = m_Buffer.substr(end + 1);
    }
    return replies;
}

std::string cNaiveLink::Answer(const std::string& line) {
    if (line.empty() ||
        line ==
            "\x04"
            "04" ||
        line ==
            "\x05"
            "05")
        return "";
    if (line.front() != 2 || line.back() != 3) return kRefused;
    const std::vector<std::string> fields = CutAt(line, '\xFF');
    const std::string sender = fields[0].substr(1);
    std::string text = FieldOf(fields, 1);
    const int status = StatusOf(text.substr(0, 2));
    bool accepted = status >= 0 && FieldOf(fields, 2).substr(0, 2) == Checksum(sender + "\xFF" + text);
    if (accepted) {
        text = text.substr(2);
        std::replace(text.begin(), text.end(), '\x10', '\n');
        if (!text.empty() && status != 3) TakeRecord(sender, status, text);
    }
    if (cSender* known = Find(sender)) {
        NoteHeard(*known);
        if (known->lost) Raise(*known, 0);
        known->lost = false;
        known->heard = true;
        if (text.empty()) accepted = true;
    }
    return accepted ? kAccepted : kRefused;
}

void cNaiveLink::TakeRecord(const std::string& sender, int status, const std::string& text) {
    const std::vector<std::string> fields = CutAt(text, '|');
    cNaiveAlarm alarm;
    alarm.sender = sender;
    alarm.status = status;
    alarm.sourced =
        NaiveMoment(WithoutOuterBlanks(FieldOf(fields, 0)), WithoutOuterBlanks(FieldOf(fields, 1)), m_Now);
    alarm.created = m_Now;
    for (std::size_t i = 0; i < alarm.texts.size(); ++i)
        alarm.texts[i] = WithoutOuterBlanks(FieldOf(fields, i + 2));
    OnAlarm(alarm);
}

void cNaiveLink::Raise(const cSender& sender, int status) {
    cNaiveAlarm alarm;
    alarm.sender = sender.name;
    alarm.status = status;
    alarm.sourced = m_Now;
    alarm.created = m_Now;
    alarm.texts[0] = "VigrelAlarmReceiver";
    alarm.texts[2] = m_SystemCategory;
    alarm.texts[4] =
        sender.name + " - " +
        (sender.heard ? "T10031 " + NaiveDate(sender.lastHeard) + " " + NaiveTime(sender.lastHeard)
                      : "T10032");
    OnAlarm(alarm);
}

cNaiveLink::cSender* cNaiveLink::Find(const std::string& name) {
    for (cSender& sender : m_Senders) {
        if (InLowerCase(sender.name) == InLowerCase(name)) return &sender;
    }
    return nullptr;
}

void cNaiveLink::NoteHeard(cSender& sender) const {
    sender.lastHeard = m_Now;
    sender.lastHeardSteady = m_Steady;
}

void cNaiveLink::Tick() {
    for (cSender& sender : m_Senders) {
        if (sender.minutes == 0 || m_Steady <= sender.lastHeardSteady + sender.minutes / 1440.0) continue;
        if (m_AutoReset || !sender.lost) Raise(sender, 1);
        sender.lost = true;
        NoteHeard(sender);
    }
}

void cNaiveLink::Restart() {
    m_Open = false;
    for (cSender& sender : m_Senders) {
        NoteHeard(sender);
        sender.lost = sender.heard = false;
    }
}

}  // namespace vigrel::testing
