#include "vigrel-inspect/options.h"

#include <utility>

#include "common/text.h"
#include "tool_support/options.h"
#include "tool_support/stored_alarms.h"

namespace vigrel {
namespace {

constexpr std::string_view kHelp =
    R"(vigrel-inspect prints the binary files of an alarm receiver. It never changes a file.

Usage:
  vigrel-inspect [--json] [--as KIND] FILE...
  vigrel-inspect --at DATE [--calendar FILE] FILE...
  vigrel-inspect FOLDER --alarms --csv [FILTER...] [--bom] [--exact] [--quiet]

Files:
  Alarms (A0042917.alm), receivers (Receiver_0007.dat), profiles (Profile_0012.dat), schedule
  sections and calendars. Every field is printed with its place, and whatever doesn't fit the form
  of the file is named at the end.
  --json         print a JSON array with one object a file
  --as KIND      read every FILE as this kind, whatever its name:
                 alarm, receiver, profile, schedule, calendar

What is in force:
  --at DATE      tell for each FILE, a profile or a time schedule, what it has in force at this moment,
                 until when, and why
  --calendar F   the calendar that gives dates their day types; without it the weekday counts

Alarms as a table:
  --alarms       export the stored alarms of FOLDER, an application folder or its folder Alarms,
                 oldest first; a damaged file is told in the last column
  --csv          as comma-separated values: UTF-8, every cell quoted, one header line
  --from DATE    only alarms created at this moment or later
  --to DATE      only alarms created up to this moment; a day alone means the whole day
  --category C   only alarms of this category; may be repeated
  --sender S     only alarms of this sender; may be repeated
  --status S     only alarms of this state: inactive, active, acked, message; may be repeated
  --observed Y   only alarms that the operator has (yes) or has not (no) acknowledged
  --bom          begin with a byte order mark, by which some spreadsheet programs know UTF-8
  --exact        leave cells alone that a spreadsheet would take for a formula; without it such a
                 cell gets an apostrophe in front
  --quiet        no progress on standard error

A DATE is 2026-03-15, "2026-03-15 12:30" or "2026-03-15 12:30:15", in local time.

--version prints the version.

Exit code: 0 everything fits, 1 something doesn't fit or can't be read, 2 wrong command line.

Examples:
  vigrel-inspect Receivers/Receiver_0007.dat
  vigrel-inspect --json Profiles/*.dat > profiles.json
  vigrel-inspect --as calendar old-calendar.bin
  vigrel-inspect Profiles/Profile_0012.dat --at "2026-12-24 18:00" --calendar Calendar.cal
  vigrel-inspect ~/.local/share/VigrelReceiver --alarms --csv > alarms.csv
  vigrel-inspect . --alarms --csv --from 2026-03-01 --to 2026-03-31 --status active --observed no
)";

std::int16_t StateFromWord(const std::string& word) {
    const auto state = StateFromName(word);
    if (!state) RefuseOption("--status: \"" + word + "\" is none of inactive, active, acked, message");
    return *state;
}

bool YesNoFromWord(const std::string& option, const std::string& word) {
    if (EqualsNoCase(word, "yes")) return true;
    if (EqualsNoCase(word, "no")) return false;
    RefuseOption(option + ": \"" + word + "\" is neither yes nor no");
}

eFileKind KindFromOption(const std::string& word) {
    const auto kind = KindFromWord(word);
    if (!kind) RefuseOption("--as: \"" + word + "\" is none of alarm, receiver, profile, schedule, calendar");
    return *kind;
}

class cOptionReader {
  public:
    cInspectOptions Read(const std::vector<std::string>& words) {
        ReadOptionWords(words, m_Table);
        Check();
        return m_Options;
    }

  private:
    using Setter = cOptionTable::Setter;

    Setter Filter(Setter set) {
        return [this, set = std::move(set)](const std::string& word) {
            set(word);
            m_Filtered = true;
        };
    }
    void Check() const {
        if (m_Options.help || m_Options.version) return;
        if (m_Options.paths.empty()) RefuseOption("no file was named");
        if (!m_Options.calendar.empty() && !m_Options.at) RefuseOption("--calendar needs --at");
        if (m_Options.at && (m_Options.alarms || m_Options.json || m_Options.kind)) {
            RefuseOption("--at goes with none of --alarms, --json and --as");
        }
        if (m_Options.alarms) {
            if (!m_Csv) RefuseOption("--alarms needs --csv");
            if (m_Options.json || m_Options.kind)
                RefuseOption("--json and --as are for files, not for --alarms");
            if (m_Options.paths.size() > 1) RefuseOption("--alarms takes one folder");
        } else if (m_Csv || m_Filtered || m_Options.exact || m_Options.mark) {
            RefuseOption("--csv and its filters need --alarms");
        }
    }

    cInspectOptions m_Options;
    bool m_Csv = false, m_Filtered = false;
    cOptionTable m_Table{
        {{"--help", &m_Options.help},
         {"-h", &m_Options.help},
         {"--json", &m_Options.json},
         {"--alarms", &m_Options.alarms},
         {"--csv", &m_Csv},
         {"--exact", &m_Options.exact},
         {"--bom", &m_Options.mark},
         {"--quiet", &m_Options.quiet},
         {"--version", &m_Options.version}},
        {{"--as", [this](const std::string& word) { m_Options.kind = KindFromOption(word); }},
         {"--at", [this](const std::string& word) { m_Options.at = DateFromWord("--at", word); }},
         {"--from", Filter([this](auto& word) { m_Options.filter.from = DateFromWord("--from", word); })},
         {"--to", Filter([this](auto& word) { m_Options.filter.before = EndFromWord("--to", word); })},
         {"--category", Filter([this](auto& word) { m_Options.filter.categories.push_back(word); })},
         {"--sender", Filter([this](auto& word) { m_Options.filter.senders.push_back(word); })},
         {"--status", Filter([this](auto& word) { m_Options.filter.states.push_back(StateFromWord(word)); })},
         {"--observed",
          Filter([this](auto& word) { m_Options.filter.observed = YesNoFromWord("--observed", word); })}},
        [this](const std::string& path) { m_Options.paths.push_back(path); },
        {{"--calendar", [this](const std::string& path) { m_Options.calendar = path; }}}};
};

}  // namespace

cInspectOptions ReadOptions(const std::vector<std::string>& words) {
    return cOptionReader().Read(words);
}

std::string HelpText() {
    return std::string(kHelp);
}

}  // namespace vigrel
