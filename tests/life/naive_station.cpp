#include "life/naive_station.h"

#include <cctype>
#include <cstdio>

namespace vigrel::testing {
namespace {

const std::string kAccepted =
    "\x04"
    "04\n\r";
const std::string kRefused =
    "\x05"
    "05\n\r";

std::vector<std::string> CutAt(const std::string& text, char separator) {
    std::vector<std::string> fields(1);
    for (const char c : text) {
        if (c == separator) {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    return fields;
}

std::string FieldOf(const std::vector<std::string>& fields, std::size_t i) {
    return i < fields.size() ? fields[i] : "";
}

std::string InLowerCase(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string Checksum(const std::string& text) {
    int sum = 0;
    for (const char c : text) sum += static_cast<unsigned char>(c);
    char digits[8];
    std::snprintf(digits, sizeof digits, "%02X", sum % 256);
    return digits;
}

std::string WithoutOuterBlanks(std::string text) {
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

}  // namespace

std::string cNaiveStation::Arrive(const std::string& bytes) {
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

std::string cNaiveStation::Answer(const std::string& line) {
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
    const std::string kind = text.substr(0, 2);
    bool accepted = (kind == "S0" || kind == "S1" || kind == "S2" || kind == "S3") &&
                    FieldOf(fields, 2).substr(0, 2) == Checksum(sender + "\xFF" + text);
    if (accepted) {
        text = text.substr(2);
        if (!text.empty() && kind != "S3") Keep(WithoutOuterBlanks(FieldOf(CutAt(text, '|'), 2)));
    }
    if (cSender* known = Find(sender)) {
        known->lastHeard = m_Now;
        if (known->lost) Keep("VigrelAlarmReceiver");
        known->lost = false;
        if (text.empty()) accepted = true;
    }
    return accepted ? kAccepted : kRefused;
}

cNaiveStation::cSender* cNaiveStation::Find(const std::string& name) {
    for (cSender& sender : m_Senders) {
        if (InLowerCase(sender.name) == InLowerCase(name)) return &sender;
    }
    return nullptr;
}

void cNaiveStation::Keep(const std::string& text) {
    m_Alarms.push_back({text});
    if (m_Alarms.size() > m_Most) m_Alarms.pop_front();
}

void cNaiveStation::Tick() {
    for (cSender& sender : m_Senders) {
        if (sender.minutes == 0 || m_Now <= sender.lastHeard + sender.minutes * 60) continue;
        Keep("VigrelAlarmReceiver");
        sender.lost = true;
        sender.lastHeard = m_Now;
    }
}

void cNaiveStation::Acknowledge(std::size_t row) {
    if (row < m_Alarms.size()) m_Alarms[row].acknowledged = true;
}

void cNaiveStation::AcknowledgeAll() {
    for (cAlarm& alarm : m_Alarms) alarm.acknowledged = true;
}

void cNaiveStation::Restart() {
    m_Open = false;
    for (cSender& sender : m_Senders) {
        sender.lastHeard = m_Now;
        sender.lost = false;
    }
}

std::vector<std::string> cNaiveStation::Rows() const {
    std::vector<std::string> rows;
    for (const cAlarm& alarm : m_Alarms)
        rows.push_back(alarm.text + "|" + (alarm.acknowledged ? "#27" : "#26"));
    return rows;
}

}  // namespace vigrel::testing
