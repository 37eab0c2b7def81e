#include "common/protocol_trace.h"

#include <algorithm>

#include "common/dates.h"
#include "common/numbers.h"
#include "common/settings.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::size_t kLineLimit = 180;
constexpr int kOutgoing = 1, kIncoming = 2;
constexpr std::string_view kLineEnd = "\r\n";

struct cDirection {
    std::string_view tag;
    int icon;
};

// By kind: the server, the other receivers and the clients of the suite, to and fro.
cDirection DirectionOf(std::int16_t kind) {
    constexpr std::array<std::string_view, 6> kTags{"V<-S", "V->S", "V<-R", "V->R", "V<-C", "V->C"};
    if (kind < 1 || kind > static_cast<std::int16_t>(kTags.size())) return {"V<>?", kIncoming};
    return {kTags[static_cast<std::size_t>(kind) - 1], kind % 2 == 0 ? kOutgoing : kIncoming};
}

std::string Visible(char character) {
    const int code = Code(character);
    if (code >= 0x20 && code <= 0x7F) return std::string(1, character);
    return "<" + std::to_string(code) + ">";
}

std::string Time(DateTime now, std::string_view pattern) {
    return FormatDateTime(now, pattern, cLocaleForms());
}

}  // namespace

cProtocolTrace::cProtocolTrace(cReceiverState& state, const cClock& clock, cFiles& files,
                               std::string_view applicationPath)
    : m_State(state),
      m_Clock(clock),
      m_Files(files),
      m_Path(std::string(applicationPath) + "LogFiles\\Debug.txt") {}

void cProtocolTrace::WriteTrace(std::string_view text, std::int16_t kind) {
    if (!m_State.m_DebugMode) return;
    const cDirection direction = DirectionOf(kind);
    std::string line;
    for (const char character : text) {
        // Tested behind whole renderings only, so that none is split.
        line += Visible(character);
        if (line.size() <= kLineLimit) continue;
        AddRow(direction.tag, line, direction.icon);
        line.clear();
    }
    if (!line.empty()) AddRow(direction.tag, line, direction.icon);
    while (m_Rows.size() > kMaxRows) {
        m_Rows.pop_front();
        ++m_RowsGone;
    }
    if (OnChange) OnChange();
}

void cProtocolTrace::AddRow(std::string_view tag, std::string_view text, int icon) {
    m_Rows.push_back({Time(m_Clock.Now(), "hh:nn:ss"), std::string(tag), std::string(text), icon});
}

void cProtocolTrace::Menu_Save() const {
    std::string block;
    const auto line = [&](const std::string& text) { (block += text) += kLineEnd; };
    line(std::string(120, '-'));
    line("DEBUG INFO");
    line("Saved from " + std::string(kProductName) + " version " + kVersion + std::string(6, ' ') +
         Time(m_Clock.Now(), "yy-mm-dd hh:nn:ss"));
    line(std::string(80, '-'));
    std::int64_t number = 0;
    for (const cTraceRow& row : m_Rows) {
        line(Digits(number++, 3) + " " + row.time + " " + row.tag + " " + row.text);
    }
    m_Files.AppendFile(m_Path, block);
}

double TraceColumnWidth(const cSettingStore& settings, int column, double presentWidth) {
    const std::string key = "DebugViewColWidth" + std::to_string(column);
    const std::string width =
        settings.GetSetting("Vigrel Alarm Server 3", "Parameters", key, NumberText(presentWidth));
    return std::max(Val(width), 100.0);
}

double LastTraceColumnWidth(double innerWidth, double width1, double width2) {
    return innerWidth - width1 - width2 - 300;
}

}  // namespace vigrel
