#include "link/record_decoder.h"

#include <array>

#include "common/dates.h"
#include "common/failure.h"
#include "common/text.h"
#include "link/frame.h"

namespace vigrel {
namespace {

constexpr std::int32_t kSystem = 63;  // alarms from the link; the station's own keep 0

std::string Field(std::string_view text, std::int16_t index) {
    return GetField(text, index, std::string(1, kFieldSeparator));
}

// A sub-field of the payload without its outer blanks.
std::string SubField(std::string_view payload, std::int16_t index) {
    return Trim(GetField(payload, index, "|"));
}

std::int16_t KindOf(std::string_view field) {
    constexpr std::array<std::string_view, 4> kinds{"S0", "S1", "S2", "S3"};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (field.substr(0, 2) == kinds[i]) return static_cast<std::int16_t>(i);
    }
    return -1;
}

// The number of the digits at the front, blanks ignored; 0 when there are none. At most four characters come
// in.
int LeadingDigits(std::string_view text) {
    int value = 0;
    for (const char c : text) {
        if (c == ' ') continue;
        if (c < '0' || c > '9') break;
        value = value * 10 + (c - '0');
    }
    return value;
}

// Midnight of the day, or today when the text is empty or makes no date. The length of what stands in front
// of the first "-" alone tells a year of four digits from one of two.
DateTime EventDate(std::string_view text, DateTime now) {
    const bool fourDigits = GetField(text, 0, "-").size() == 4;
    const std::size_t shift = fourDigits ? 2 : 0;
    const auto part = [&](std::size_t position, std::size_t length) {
        return LeadingDigits(Mid(text, position, length));
    };
    DateTime date = 0;
    SkipFailure([&] { date = DateSerial(part(1, 2 + shift), part(4 + shift, 2), part(7 + shift, 2)); });
    return date == 0 || text.empty() ? DateOf(now) : date;
}

// The time of day, or that of now when the text says midnight or nothing: most senders that mean midnight
// have no time to tell.
DateTime EventTime(std::string_view text, DateTime now) {
    const auto part = [&](std::size_t position) { return LeadingDigits(Mid(text, position, 2)); };
    const DateTime time = TimeSerial(part(1), part(4), part(7));
    return time == 0 ? now - DateOf(now) : time;
}

// A name as a log line shows it. A peer can send names of any length; what is cut is told.
std::string LoggedName(const std::string& name) {
    constexpr std::size_t kMost = 100;
    if (name.size() <= kMost) return name;
    return name.substr(0, kMost) + "... (+" + std::to_string(name.size() - kMost) + ")";
}

}  // namespace

void cRecordDecoder::ProcessRecord(const std::string& line) {
    if (line.empty() || line == kPositive || line == kNegative) return;
    bool accepted = false;
    if (line.front() == kStx && line.back() == kEtx) {
        cFrame frame = ReadFrame(line);
        accepted = Take(frame);
    }
    m_Services.SendReply(std::string(accepted ? kPositive : kNegative) + std::string(kReplyEnd));
}

// Whether the frame is accepted.
bool cRecordDecoder::Take(cFrame& frame) {
    if (frame.valid) TakeRecord(frame);
    eHeard heard = eHeard::Known;
    SkipFailure([&] { heard = m_Services.senders.Heard(frame.sender, frame.text); });
    if (heard == eHeard::Unknown) LogUnknown(frame);
    return frame.valid || heard == eHeard::KeepAlive;
}

void cRecordDecoder::LogUnknown(const cFrame& frame) {
    const std::string line = LoggedName(frame.sender) + m_Services.texts.GetText(TextUnknownSender);
    frame.valid ? m_Services.log.WriteLog(line) : m_Services.log.WriteRefusal(line);
}

cRecordDecoder::cFrame cRecordDecoder::ReadFrame(const std::string& line) {
    cFrame frame;
    SkipFailure([&] { frame.sender = Mid(Field(line, 0), 2); });
    // A field that can't be read is no empty one, which would pass for a keep-alive: what it held would be
    // answered as if it were stored.
    if (!SkipFailure([&] { frame.text = Field(line, 1); })) frame.text = line;
    frame.kind = KindOf(frame.text);
    std::string checksum;
    SkipFailure([&] { checksum = Mid(Field(line, 2), 1, 2); });
    frame.valid = frame.kind >= 0 && checksum == CalcChecksum(frame.sender + kFieldSeparator + frame.text);
    return frame;
}

void cRecordDecoder::TakeRecord(cFrame& frame) {
    frame.text = Mid(frame.text, 3);
    SkipFailure([&] { ReplaceText(frame.text, std::string(1, kLineBreakInText), "\n"); });
    if (frame.text.empty()) return;
    if (frame.kind == StatusMessage) {
        m_Services.log.WriteLog(LoggedName(frame.sender) + " " +
                                m_Services.texts.GetText(TextMessageReceived) + " -> " +
                                SubField(frame.text, 2));
        return;
    }
    const AlarmPtr alarm = m_Services.maker.Make([&](cVigrelRecieverAlarm& made) { Decode(frame, made); });
    SkipFailure([&] { m_Services.ProcessAlarm(alarm); });
    m_Services.log.WriteLog(LoggedName(frame.sender) + " " + m_Services.texts.GetText(TextAlarmReceived) +
                            " " + alarm->SysLogText());
}

void cRecordDecoder::Decode(const cFrame& frame, cVigrelRecieverAlarm& alarm) const {
    cAlarm& event = alarm.m_Alarm;
    const DateTime now = m_Services.clock.Now();
    const DateTime date = EventDate(SubField(frame.text, 0), now);
    const DateTime time = EventTime(SubField(frame.text, 1), now);
    alarm.m_Sender = frame.sender;
    for (std::int16_t i = 0; i < 6; ++i) {
        event.SetCondition(i, SubField(frame.text, static_cast<std::int16_t>(i + 2)));
    }
    event.m_System = kSystem;
    event.m_TimeStampFromSCADA = date + time;
    event.m_Status = frame.kind;
}

}  // namespace vigrel
