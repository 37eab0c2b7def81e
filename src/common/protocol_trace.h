#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "common/receiver_state.h"
#include "common/text_ids.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/setting_store.h"

namespace vigrel {

struct cTraceRow {
    std::string time;  // "12:30:15"
    std::string tag;   // "V<-S"
    std::string text;  // control characters made visible; at most 185 characters
    int icon;          // 1 outgoing, 2 incoming or unknown
};

// What crosses the server link, for fault finding: an ordered list of rows in memory, the oldest of which go.
class cProtocolTrace {
  public:
    static constexpr std::size_t kMaxRows = 400;

    // applicationPath ends in a backslash.
    cProtocolTrace(cReceiverState& state, const cClock& clock, cFiles& files,
                   std::string_view applicationPath);

    // Adds the text as rows, unless m_DebugMode is off. Kinds: 1 received on the data socket, 2 sent on it;
    // 3 to 6 are those of the suite's other links, and any other shows as unknown.
    void WriteTrace(std::string_view text, std::int16_t kind);
    // Appends all rows to LogFiles\Debug.txt behind four header lines. Throws cFailure when the file can't be
    // written.
    void Menu_Save() const;
    // The window of the trace is closed: m_DebugMode is off, and stays so for the rest of the run.
    void Form_Unload() { m_State.m_DebugMode = false; }

    const std::deque<cTraceRow>& Rows() const { return m_Rows; }
    // How many rows are gone from the front, so that a view can tell which of its rows still stand.
    std::uint64_t RowsGone() const { return m_RowsGone; }

    // Rows were added, and old ones may be gone.
    std::function<void()> OnChange;

  private:
    void AddRow(std::string_view tag, std::string_view text, int icon);

    cReceiverState& m_State;
    const cClock& m_Clock;
    cFiles& m_Files;
    std::string m_Path;
    std::deque<cTraceRow> m_Rows;
    std::uint64_t m_RowsGone = 0;
};

// The columns of the debug list. Widths are in twips.
struct cTraceColumn {
    eText caption;
    double width;
    bool centred;
};
inline constexpr std::array<cTraceColumn, 3> kTraceColumns{
    {{TextTraceTime, 823, false}, {TextTraceDirection, 853, true}, {TextTraceText, 2000, false}}};

// The width of column 1, 2 or 3: the one that the user's settings hold, or else its present one; at least
// 100.
double TraceColumnWidth(const cSettingStore& settings, int column, double presentWidth);
// The width of column 3 beside the other two in a window of that inner width; below 0 when there is no room.
double LastTraceColumnWidth(double innerWidth, double width1, double width2);

}  // namespace vigrel
