#include "vigrel-report/page/document.h"

namespace vigrel::report {
namespace {

using W = eWord;

Cell YesNo(bool yes) {
    return yes ? W::Yes : W::No;
}
Cell PriorityCell(std::optional<ePriority> priority) {
    if (!priority) return W::NotMapped;
    return *priority == ePriority::High ? W::High : *priority == ePriority::Medium ? W::Medium : W::Low;
}
Cell EndCell(eEnd end) {
    return end == eEnd::BySession    ? W::EndBySession
           : end == eEnd::ByOperator ? W::EndByOperator
                                     : W::EndUnexpected;
}

Cell ValueCell(eUnit unit, std::optional<double> value) {
    if (!value) return std::monostate();
    switch (unit) {
        case eUnit::Count:
            return cNumber{*value, 0};
        case eUnit::Number:
            return cNumber{*value, *value < 10 ? 2 : *value < 100 ? 1 : 0};
        case eUnit::Share:
            return cPercent{*value};
        case eUnit::Duration:
            return cDuration{*value};
    }
    return std::monostate();
}

// The limit of a figure in words; nothing when none is quoted.
Cell LimitCell(const cForms& forms, const cLimit& limit, const cJudged& line) {
    if (limit.kind == cLimit::None) return std::monostate();
    if (limit.kind == cLimit::AtMost && limit.value == 0) return W::NoneAllowed;
    const std::string shown =
        line.unit == eUnit::Share ? forms.WholePercent(limit.value) : forms.Number(limit.value);
    // Up to the double an operator still manages.
    if (line.figure == eFigure::RateTenMinutes || line.figure == eFigure::RateHour)
        return forms.Say(W::Manageable, {shown, forms.Number(2 * limit.value)});
    const W form = limit.kind == cLimit::AtMost  ? W::AtMost
                   : limit.kind == cLimit::Below ? W::Under
                                                 : W::AtLeast;
    return forms.Say(form, {shown});
}

class cTables {
  public:
    cTables(const cReport& report, const cForms& forms)
        : m_Report(report), m_Figures(report.figures), m_Forms(forms) {}

    std::vector<cTable> Make() {
        return {Summary(),
                Days(),
                MonthsTable(m_Figures, m_Forms.Zone()),
                Floods(),
                Sources(),
                Chattering(),
                Fleeting(),
                StaleDays(),
                StaleMonthsTable(m_Figures, m_Forms.Zone()),
                Long("stale", W::Stale, m_Figures.nuisance.stale),
                Long("standing", W::Standing, m_Figures.nuisance.standing),
                Priorities(),
                Acknowledgement(),
                Hours(),
                Senders(),
                Stations(),
                Outages()};
    }

  private:
    Cell Source(std::uint32_t source) const { return SourceText(m_Report.names, source); }
    // Alarm, place, category, sender.
    std::vector<Cell> SourceCells(std::uint32_t number) const {
        const cSource& source = m_Report.names.Source(number);
        return {NameText(source.alarm), NameText(source.place), NameText(source.category),
                NameText(m_Report.names.SenderName(source.sender))};
    }
    static std::vector<cColumn> SourceColumns(std::vector<cColumn> others) {
        std::vector<cColumn> columns = {
            {"alarm", W::Alarm}, {"place", W::Place}, {"category", W::Category}, {"sender", W::Sender}};
        columns.insert(columns.end(), others.begin(), others.end());
        return columns;
    }
    void AddSourceRow(cTable& table, std::uint32_t source, const std::vector<Cell>& others) const {
        std::vector<Cell> row = SourceCells(source);
        row.insert(row.end(), others.begin(), others.end());
        table.rows.push_back(std::move(row));
    }

    cTable Summary() const {
        cTable table{"summary",
                     W::Summary,
                     {{"figure", W::Figure},
                      {"value", W::Value},
                      {"limit", W::Limit},
                      {"verdict", W::Verdict},
                      {"before", W::Before}},
                     {}};
        for (const cJudged& line : Judge(m_Figures, m_Report.before)) {
            table.rows.push_back({FigureWord(line.figure), ValueCell(line.unit, line.value),
                                  LimitCell(m_Forms, LimitOf(m_Figures, line.figure), line), line.verdict,
                                  ValueCell(line.unit, line.before)});
        }
        return table;
    }
    cTable Days() const {
        cTable table{"days",
                     W::Days,
                     {{"day", W::Day},
                      {"alarms", W::Alarms},
                      {"most_in_10_minutes", W::LargestTen},
                      {"in_flood", W::InFlood},
                      {"record", W::Observed}},
                     {}};
        for (const cDayLoad& day : m_Figures.load.days) {
            table.rows.push_back({cDayCell{day.midnight}, CountCell(day.alarms), CountCell(day.peak),
                                  DurationCell(day.flooded), DurationCell(day.observed)});
        }
        return table;
    }
    cTable Floods() const {
        cTable table{"floods",
                     W::Floods,
                     {{"begin", W::Begin},
                      {"end", W::End},
                      {"duration", W::Duration},
                      {"alarms", W::Alarms},
                      {"most_in_10_minutes", W::LargestTen},
                      {"first_source", W::FirstSource}},
                     {}};
        for (const cFlood& flood : m_Figures.load.floods) {
            table.rows.push_back({cTimeCell{flood.span.begin}, cTimeCell{flood.span.end},
                                  DurationCell(flood.span.Length()), CountCell(flood.alarms),
                                  CountCell(flood.peak),
                                  flood.firstSource ? Source(*flood.firstSource) : Cell()});
        }
        return table;
    }
    cTable Sources() const {
        cTable table{"sources",
                     W::Sources,
                     SourceColumns({{"alarms", W::Alarms}, {"share", W::Share}, {"together", W::Cumulative}}),
                     {}};
        table.columns.insert(table.columns.begin(), {"rank", W::Rank});
        const auto all = static_cast<double>(m_Figures.load.activations);
        std::size_t sum = 0;
        for (const cSourceCount& count : m_Figures.sources.ranking) {
            sum += count.activations;
            AddSourceRow(
                table, count.source,
                {CountCell(count.activations), cPercent{static_cast<double>(count.activations) / all},
                 cPercent{static_cast<double>(sum) / all}});
            table.rows.back().insert(table.rows.back().begin(), CountCell(table.rows.size()));
        }
        return table;
    }
    cTable Chattering() const {
        cTable table{"chattering",
                     W::Chattering,
                     SourceColumns({{"bursts", W::Bursts},
                                    {"alarms", W::Alarms},
                                    {"most_in_one", W::MostInBurst},
                                    {"first", W::First}}),
                     {}};
        for (const cChattering& found : m_Figures.nuisance.chattering) {
            AddSourceRow(table, found.source,
                         {CountCell(found.bursts), CountCell(found.activations), CountCell(found.most),
                          cTimeCell{found.first}});
        }
        return table;
    }
    cTable Fleeting() const {
        cTable table{"fleeting", W::Fleeting, SourceColumns({{"alarms", W::Alarms}}), {}};
        for (const cFleeting& found : m_Figures.nuisance.fleeting) {
            AddSourceRow(table, found.source, {CountCell(found.activations)});
        }
        return table;
    }
    cTable StaleDays() const {
        cTable table{"stale_days", W::StaleDays, {{"day", W::Day}, {"alarms", W::Alarms}}, {}};
        for (const cStaleDay& day : m_Figures.nuisance.staleDays) {
            table.rows.push_back({cDayCell{day.midnight}, CountCell(day.alarms)});
        }
        return table;
    }
    cTable Long(const char* key, eWord title, const std::vector<cStale>& alarms) const {
        cTable table{key,
                     title,
                     SourceColumns({{"since", W::Since},
                                    {"active_for", W::ActiveFor},
                                    {"still_active", W::Still},
                                    {"acknowledged", W::Acknowledged}}),
                     {}};
        for (const cStale& found : alarms) {
            AddSourceRow(table, found.source,
                         {cTimeCell{found.since}, DurationCell(found.activeFor), YesNo(found.active),
                          YesNo(found.acknowledged)});
        }
        return table;
    }
    cTable Priorities() const {
        cTable table{"priorities",
                     W::Priorities,
                     {{"category", W::Category},
                      {"priority", W::Priority},
                      {"alarms", W::Alarms},
                      {"share", W::Share}},
                     {}};
        const auto all = static_cast<double>(m_Figures.load.activations);
        for (const cGroupAnswers& group : m_Figures.answers.categories) {
            table.rows.push_back({NameText(group.category), PriorityCell(group.priority),
                                  CountCell(group.activations),
                                  cPercent{static_cast<double>(group.activations) / all}});
        }
        return table;
    }
    static std::vector<Cell> AnswerRow(Cell group, const cAnswerTimes& times) {
        const bool any = times.count > 0;
        return {std::move(group),
                CountCell(times.count),
                any ? Cell(cDuration{times.median}) : Cell(),
                any ? DurationCell(times.ninetieth) : Cell(),
                any ? DurationCell(times.most) : Cell(),
                CountCell(times.untimed),
                CountCell(times.never)};
    }
    cTable Acknowledgement() const {
        cTable table{"acknowledgement",
                     W::Acknowledgement,
                     {{"group", W::Category},
                      {"count", W::Count},
                      {"median", W::MedianTime},
                      {"ninetieth", W::Ninetieth},
                      {"longest", W::Longest},
                      {"time_not_known", W::Untimed},
                      {"never", W::Never}},
                     {}};
        table.rows.push_back(AnswerRow(W::All, m_Figures.answers.all));
        for (const cGroupAnswers& group : m_Figures.answers.priorities) {
            if (group.activations == 0) continue;
            const std::string name =
                m_Forms.Say(W::Priority) + ": " + m_Forms.Text(PriorityCell(group.priority));
            table.rows.push_back(AnswerRow(name, group.times));
        }
        for (const cGroupAnswers& group : m_Figures.answers.categories) {
            table.rows.push_back(AnswerRow(NameText(group.category), group.times));
        }
        return table;
    }
    static Cell MeanCell(const cHourCell& cell) {
        return cell.observed == 0 ? Cell() : Cell(cNumber{cell.Mean(), 2});
    }
    cTable Hours() const {
        cTable table{"hours", W::HourGrid, {{"hour", W::Hour}}, {}};
        static constexpr const char* kDays[] = {"monday", "tuesday",  "wednesday", "thursday",
                                                "friday", "saturday", "sunday"};
        for (std::size_t day = 0; day < 7; ++day) table.columns.push_back({kDays[day], WeekdayWord(day)});
        table.columns.push_back({"all", W::All});
        for (std::size_t hour = 0; hour < 24; ++hour) {
            std::vector<Cell> row = {std::string(hour < 10 ? "0" : "") + std::to_string(hour)};
            for (std::size_t day = 0; day < 7; ++day)
                row.push_back(MeanCell(m_Figures.hours.cells[day][hour]));
            row.push_back(MeanCell(m_Figures.hours.OfHour(hour)));
            table.rows.push_back(std::move(row));
        }
        std::vector<Cell> row = {W::All};
        cHourCell all;
        for (std::size_t day = 0; day < 7; ++day) {
            const cHourCell sum = m_Figures.hours.OfWeekday(day);
            row.push_back(MeanCell(sum));
            all.alarms += sum.alarms;
            all.observed += sum.observed;
        }
        row.push_back(MeanCell(all));
        table.rows.push_back(std::move(row));
        return table;
    }
    cTable Senders() const {
        cTable table{"senders",
                     W::Senders,
                     {{"station", W::Station},
                      {"sender", W::Sender},
                      {"allowed_silence", W::AllowedMinutes},
                      {"lost", W::Lost},
                      {"returned", W::Returned},
                      {"without_contact", W::Without},
                      {"lost_at_end", W::StillLost},
                      {"longest_silence", W::LongestSilence}},
                     {}};
        for (const cStationFigures& station : m_Figures.stations) {
            for (const cSenderFigures& sender : station.senders) {
                table.rows.push_back(
                    {StationText(station), NameText(m_Report.names.SenderName(sender.sender)),
                     sender.minutes && *sender.minutes > 0 ? DurationCell(*sender.minutes * kMinute) : Cell(),
                     CountCell(sender.lost), CountCell(sender.returned), DurationCell(sender.without),
                     YesNo(sender.isLost),
                     sender.longestSilence > 0 ? DurationCell(sender.longestSilence) : Cell()});
            }
        }
        return table;
    }
    cTable Stations() const {
        cTable table{"stations",
                     W::StationLife,
                     {{"station", W::Station},
                      {"starts", W::Starts},
                      {"orderly_ends", W::OrderlyEnds},
                      {"unexpected_ends", W::UnexpectedEnds},
                      {"ran", W::Ran},
                      {"did_not_run", W::DidNotRun},
                      {"not_known", W::NotKnown},
                      {"failed_prints", W::FailedPrints},
                      {"removed_by_limits", W::Removed},
                      {"messages", W::Messages},
                      {"from_unknown_senders", W::UnknownSenders}},
                     {}};
        for (const cStationFigures& station : m_Figures.stations) {
            table.rows.push_back({StationText(station), CountCell(station.starts),
                                  CountCell(station.orderlyEnds), CountCell(station.unexpectedEnds),
                                  DurationCell(station.running), DurationCell(station.notRunning),
                                  DurationCell(station.notKnown), CountCell(station.failedPrints),
                                  cNumber{static_cast<double>(station.removed), 0},
                                  CountCell(station.messages), CountCell(station.unknownSenders)});
        }
        return table;
    }
    cTable Outages() const {
        cTable table{"outages",
                     W::Outages,
                     {{"station", W::Station},
                      {"begin", W::Begin},
                      {"end", W::End},
                      {"duration", W::Duration},
                      {"kind", W::Kind}},
                     {}};
        for (const cStationFigures& station : m_Figures.stations) {
            for (const cOutage& outage : station.outages) {
                AddOutage(table, station, outage.span, EndCell(outage.end));
            }
            for (const cSpan& gap : station.gaps) AddOutage(table, station, gap, W::NoRecord);
        }
        return table;
    }
    static void AddOutage(cTable& table, const cStationFigures& station, const cSpan& span, Cell kind) {
        table.rows.push_back({StationText(station), cTimeCell{span.begin}, cTimeCell{span.end},
                              DurationCell(span.Length()), std::move(kind)});
    }

    const cReport& m_Report;
    const cFigures& m_Figures;
    const cForms& m_Forms;
};

}  // namespace

std::vector<cTable> MakeTables(const cReport& report, const cForms& forms) {
    return cTables(report, forms).Make();
}

}  // namespace vigrel::report
