#include "vigrel-report/options.h"

#include <charconv>

#include "common/code_page.h"
#include "common/text.h"
#include "tool_support/options.h"

namespace vigrel::report {
namespace {

constexpr std::string_view kHelp =
    R"(vigrel-report tells what the alarms of a station tell: how many came, when there were too many, what makes
most of them, what stands for days, how soon they are answered, and when the station or a sender was
away. It reads application folders while their stations run, and never changes anything in them.

Usage:
  vigrel-report [options] FOLDER...

Period (default: --last week):
  --last PERIOD   the last whole day, week (Monday to Sunday), month, year, or so many days: 30
  --from DATE     from this moment on
  --to DATE       up to this moment; a day alone means the whole day

Output (without any: a short text):
  --html FILE     a page that needs nothing else; - is standard output
  --csv FOLDER    a table for spreadsheets in each of several files, in a folder that is there
  --json          a JSON object on standard output
  --language L    en, sv, de, da, nb, fi; default: the language of the first folder
  --quiet         no progress

--version prints the version.

Figures:
  --operators N            operators who share the alarms (1)
  --priority CATEGORY=P    high, medium or low; may be repeated
  --working-hours 7-17     hours of the working day (7-17)
  --working-days 1-5       1 is Monday (1-5)

Several folders are the stations of one plant: what more than one of them received is counted once.

A DATE is 2026-03-15, "2026-03-15 12:30" or "2026-03-15 12:30:15", in local time.

Exit code: 0 done, 1 a folder or file can't be read or written, 2 wrong command line.

Examples:
  vigrel-report --last week --html report.html ~/.local/share/VigrelReceiver
  vigrel-report --from 2026-03-01 --to 2026-03-31 --priority Fire=high --priority Technical=low .
  vigrel-report --last 30 --json /srv/station1 /srv/station2 > report.json
)";

std::optional<int> WholeNumber(const std::string& text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

int NumberIn(const std::string& option, const std::string& text, int least, int most) {
    const auto number = WholeNumber(text);
    if (!number || *number < least || *number > most) {
        RefuseOption(option + ": \"" + text + "\" is not a number from " + std::to_string(least) + " to " +
                     std::to_string(most));
    }
    return *number;
}

// "7-17"
std::pair<int, int> RangeIn(const std::string& option, const std::string& text, int least, int most) {
    const std::size_t dash = text.find('-');
    if (dash == std::string::npos) RefuseOption(option + ": \"" + text + "\" is not of the form FROM-TO");
    const int first = NumberIn(option, text.substr(0, dash), least, most);
    const int last = NumberIn(option, text.substr(dash + 1), least, most);
    if (last < first) RefuseOption(option + ": \"" + text + "\" ends before it begins");
    return {first, last};
}

ePriority PriorityIn(const std::string& word, const std::string& text) {
    if (EqualsNoCase(text, "high")) return ePriority::High;
    if (EqualsNoCase(text, "medium")) return ePriority::Medium;
    if (EqualsNoCase(text, "low")) return ePriority::Low;
    RefuseOption("--priority: \"" + word + "\" is not CATEGORY=high, medium or low");
}

class cOptionReader {
  public:
    cOptions Read(const std::vector<std::string>& words) {
        ReadOptionWords(words, m_Table);
        Check();
        return m_Options;
    }

  private:
    using Text = const std::string&;

    void Check() const {
        if (m_Options.help || m_Options.version) return;
        if (m_Options.folders.empty()) RefuseOption("no folder was named");
        const bool dates = m_Options.from || m_Options.before;
        if (dates && !m_Options.last.empty()) RefuseOption("--last and --from, --to exclude each other");
        if (m_Options.before && !m_Options.from) RefuseOption("--to needs --from");
        if (m_Options.json && m_Options.page == "-")
            RefuseOption("--json and --html - both want standard output");
    }
    void SetLast(Text word) {
        for (const char* known : {"day", "week", "month", "year"}) {
            if (EqualsNoCase(word, known)) {
                m_Options.last = known;
                return;
            }
        }
        if (!WholeNumber(word))
            RefuseOption("--last: \"" + word + "\" is not day, week, month, year or a number of days");
        m_Options.last = std::to_string(NumberIn("--last", word, 1, 3660));
    }
    void SetPriority(Text word) {
        const std::size_t equals = word.rfind('=');
        if (equals == std::string::npos) PriorityIn(word, "");
        m_Options.settings.priorities[ToUpper(word.substr(0, equals))] =
            PriorityIn(word, word.substr(equals + 1));
    }
    void SetLanguage(Text word) {
        m_Options.language = LanguageFromCode(ToLower(word));
        if (!m_Options.language) m_Options.language = LanguageFromNumber(word);
        if (!m_Options.language)
            RefuseOption("--language: \"" + word + "\" is not one of en, sv, de, da, nb, fi");
    }
    void SetHours(Text word) {
        const auto [first, last] = RangeIn("--working-hours", word, 0, 24);
        m_Options.settings.workBegins = first;
        m_Options.settings.workEnds = last;
    }
    void SetDays(Text word) {
        const auto [first, last] = RangeIn("--working-days", word, 1, 7);
        for (int day = 1; day <= 7; ++day) {
            m_Options.settings.workDays[static_cast<std::size_t>(day - 1)] = day >= first && day <= last;
        }
    }

    cOptions m_Options;
    cOptionTable m_Table{
        {{"--help", &m_Options.help},
         {"-h", &m_Options.help},
         {"--version", &m_Options.version},
         {"--json", &m_Options.json},
         {"--quiet", &m_Options.quiet}},
        {{"--last", [this](Text word) { SetLast(word); }},
         {"--from", [this](Text word) { m_Options.from = DateFromWord("--from", word); }},
         {"--to", [this](Text word) { m_Options.before = EndFromWord("--to", word); }},
         {"--language", [this](Text word) { SetLanguage(word); }},
         {"--operators",
          [this](Text word) { m_Options.settings.operators = NumberIn("--operators", word, 1, 1000); }},
         {"--priority", [this](Text word) { SetPriority(word); }},
         {"--working-hours", [this](Text word) { SetHours(word); }},
         {"--working-days", [this](Text word) { SetDays(word); }}},
        [this](Text path) { m_Options.folders.push_back(path); },
        {{"--html", [this](Text path) { m_Options.page = path; }},
         {"--csv", [this](Text path) { m_Options.csvFolder = path; }}}};
};

// The first day of the month, or year, so many of them before a day.
Moment MonthBegin(const cWallParts& day, int monthsBack, const cTimeZone& zone) {
    return zone.ToMoments(WallTimeFromParts(day.year, day.month - monthsBack, 1)).first;
}

cPeriods LastPeriods(const std::string& last, Moment now, const cTimeZone& zone) {
    const cWallParts today = SplitWallTime(zone.ToWall(now));
    const auto days = [&](int end, int length) {
        return cPeriods{{zone.Midnight(now, -end - length), zone.Midnight(now, -end)},
                        {zone.Midnight(now, -end - 2 * length), zone.Midnight(now, -end - length)}};
    };
    if (last == "day") return days(0, 1);
    if (last.empty() || last == "week") return days(today.weekday, 7);
    if (last == "month" || last == "year") {
        const int months = last == "year" ? 12 : 1, since = last == "year" ? today.month - 1 : 0;
        const Moment end = MonthBegin(today, since, zone), begin = MonthBegin(today, since + months, zone);
        return {{begin, end}, {MonthBegin(today, since + 2 * months, zone), begin}};
    }
    return days(0, *WholeNumber(last));
}

}  // namespace

cOptions ReadReportOptions(const std::vector<std::string>& words) {
    return cOptionReader().Read(words);
}

std::string ReportHelpText() {
    return std::string(kHelp);
}

cPeriods FindPeriods(const cOptions& options, Moment now, const cTimeZone& zone) {
    if (!options.from) return LastPeriods(options.last, now, zone);
    const Moment from = zone.ToMoments(WallTimeOf(*options.from)).first;
    const Moment to = options.before ? std::min(zone.ToMoments(WallTimeOf(*options.before)).first, now) : now;
    if (to <= from) RefuseOption("the period ends before it begins, or lies ahead");
    return {{from, to}, {from - (to - from), from}};
}

}  // namespace vigrel::report
