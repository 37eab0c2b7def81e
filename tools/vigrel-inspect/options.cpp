#include "vigrel-inspect/options.h"

#include <functional>
#include <map>

#include "common/code_page.h"
#include "common/date_text.h"
#include "common/failure.h"
#include "common/path_text.h"
#include "common/text.h"

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

[[noreturn]] void Refuse(const std::string& description) {
    throw cFailure(eFailure::InvalidCall, description);
}

DateTime DateFromWord(const std::string& option, const std::string& word) {
    const auto date = ParseDateTimeText(word);
    if (!date)
        Refuse(option + ": \"" + word + "\" is no date; write it like 2026-03-15 or \"2026-03-15 12:30\"");
    return *date;
}

// The first moment that is too late for --to: a day alone and a minute alone are meant as a whole.
DateTime EndFromWord(const std::string& option, const std::string& word) {
    const DateTime date = DateFromWord(option, word);
    const std::size_t length = Trim(word).size();
    if (length <= 10) return date + 1;
    return date + (length <= 16 ? 60.0 : 1.0) / 86400;
}

std::int16_t StateFromWord(const std::string& word) {
    const auto state = StateFromName(word);
    if (!state) Refuse("--status: \"" + word + "\" is none of inactive, active, acked, message");
    return *state;
}

bool YesNoFromWord(const std::string& option, const std::string& word) {
    if (EqualsNoCase(word, "yes")) return true;
    if (EqualsNoCase(word, "no")) return false;
    Refuse(option + ": \"" + word + "\" is neither yes nor no");
}

eFileKind KindFromOption(const std::string& word) {
    const auto kind = KindFromWord(word);
    if (!kind) Refuse("--as: \"" + word + "\" is none of alarm, receiver, profile, schedule, calendar");
    return *kind;
}

// A word with characters that the code page lacks can't be a text of the system.
std::string ToCodePage(const std::string& word) {
    std::string text = Utf8ToCodePage(word);
    if (CodePageToUtf8(text) != word) Refuse("\"" + text + "\" has characters outside the code page 1252");
    return text;
}

// The words are UTF-8, or whatever bytes a path has.
class cOptionReader {
  public:
    cInspectOptions Read(const std::vector<std::string>& words) {
        for (std::size_t i = 0; i < words.size(); ++i) {
            const std::string& word = words[i];
            if (m_OnlyPaths || !word.starts_with("-") || word == "-") {
                m_Options.paths.push_back(PathText(word));
            } else if (word == "--") {
                m_OnlyPaths = true;
            } else if (const auto flag = m_Flags.find(word); flag != m_Flags.end()) {
                *flag->second = true;
            } else if (const auto value = m_Values.find(word); value != m_Values.end()) {
                if (++i >= words.size()) Refuse(word + " needs a value");
                value->second(word == "--calendar" ? PathText(words[i]) : ToCodePage(words[i]));
                m_Filtered = m_Filtered || (word != "--as" && word != "--at" && word != "--calendar");
            } else {
                Refuse("the option " + Utf8ToCodePage(word) + " is not known");
            }
        }
        Check();
        return m_Options;
    }

  private:
    void Check() const {
        if (m_Options.help || m_Options.version) return;
        if (m_Options.paths.empty()) Refuse("no file was named");
        if (!m_Options.calendar.empty() && !m_Options.at) Refuse("--calendar needs --at");
        if (m_Options.at && (m_Options.alarms || m_Options.json || m_Options.kind)) {
            Refuse("--at goes with none of --alarms, --json and --as");
        }
        if (m_Options.alarms) {
            if (!m_Csv) Refuse("--alarms needs --csv");
            if (m_Options.json || m_Options.kind) Refuse("--json and --as are for files, not for --alarms");
            if (m_Options.paths.size() > 1) Refuse("--alarms takes one folder");
        } else if (m_Csv || m_Filtered || m_Options.exact || m_Options.mark) {
            Refuse("--csv and its filters need --alarms");
        }
    }

    cInspectOptions m_Options;
    bool m_Csv = false, m_Filtered = false, m_OnlyPaths = false;
    std::map<std::string, bool*> m_Flags = {{"--help", &m_Options.help},
                                            {"-h", &m_Options.help},
                                            {"--json", &m_Options.json},
                                            {"--alarms", &m_Options.alarms},
                                            {"--csv", &m_Csv},
                                            {"--exact", &m_Options.exact},
                                            {"--bom", &m_Options.mark},
                                            {"--quiet", &m_Options.quiet},
                                            {"--version", &m_Options.version}};
    std::map<std::string, std::function<void(const std::string&)>> m_Values = {
        {"--as", [this](const std::string& word) { m_Options.kind = KindFromOption(word); }},
        {"--at", [this](const std::string& word) { m_Options.at = DateFromWord("--at", word); }},
        {"--calendar", [this](const std::string& word) { m_Options.calendar = word; }},
        {"--from", [this](const std::string& word) { m_Options.filter.from = DateFromWord("--from", word); }},
        {"--to", [this](const std::string& word) { m_Options.filter.before = EndFromWord("--to", word); }},
        {"--category", [this](const std::string& word) { m_Options.filter.categories.push_back(word); }},
        {"--sender", [this](const std::string& word) { m_Options.filter.senders.push_back(word); }},
        {"--status",
         [this](const std::string& word) { m_Options.filter.states.push_back(StateFromWord(word)); }},
        {"--observed",
         [this](const std::string& word) { m_Options.filter.observed = YesNoFromWord("--observed", word); }},
    };
};

}  // namespace

cInspectOptions ReadOptions(const std::vector<std::string>& words) {
    return cOptionReader().Read(words);
}

std::string HelpText() {
    return std::string(kHelp);
}

}  // namespace vigrel
