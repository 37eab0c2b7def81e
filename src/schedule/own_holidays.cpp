#include "schedule/own_holidays.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/kept_lines.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr int kLeapYear = 2000;
constexpr std::string_view kTo = "..";

[[noreturn]] void Refuse(const cPhrase& description) {
    throw cFailure(eFailure::InvalidCall, description);
}

// A day of a year, or with the year 0 of each.
struct cDay {
    int year, month, day;
};

// A day that the month doesn't have is carried into another month.
bool IsOfYear(const cDay& day, int year) {
    return SplitDateTime(DateSerial(year, day.month, day.day)).month == day.month;
}

std::int32_t IndexIn(const cDay& day, int year) {
    return CalendarIndex(DateSerial(year, day.month, day.day));
}

// The digits of one part of a date; nothing for another text.
std::optional<int> PartOf(std::string_view text, std::size_t from, std::size_t digits) {
    const std::string_view part = text.substr(from, digits);
    if (part.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    return ToInt32(Val(part));
}

std::optional<cDay> DayFromForm(std::string_view text) {
    const std::size_t year = text.size() == 10 ? 5 : 0;
    if (text.size() != year + 5 || text[year + 2] != '-' || (year != 0 && text[4] != '-'))
        return std::nullopt;
    const auto ofYear = PartOf(text, 0, year == 0 ? 0 : 4), month = PartOf(text, year, 2),
               day = PartOf(text, year + 3, 2);
    if (!ofYear || !month || !day) return std::nullopt;
    return cDay{*ofYear, *month, *day};
}

cDay DayFromText(const std::string& text) {
    const auto day = DayFromForm(text);
    if (!day)
        Refuse({Pattern("Reasons", "\"%1\" is no day such as 2026-12-24, or 12-24 for every year"), {text}});
    const bool inSpan = day->year >= kFirstCalendarYear && day->year <= kLastCalendarYear;
    if (text.size() == 10 && !inSpan) {
        Refuse({Pattern("Reasons", "\"%1\" lies outside the years %2 to %3"),
                {text, std::to_string(kFirstCalendarYear), std::to_string(kLastCalendarYear)}});
    }
    if (!IsOfYear(*day, inSpan ? day->year : kLeapYear))
        Refuse({Pattern("Reasons", "\"%1\" is no day of the calendar"), {text}});
    return *day;
}

std::string DaysOf(const cOwnHoliday& holiday) {
    return holiday.m_Last.empty() ? holiday.m_First : holiday.m_First + std::string(kTo) + holiday.m_Last;
}

struct cSpan {
    cDay first, last;
};

cSpan SpanOf(const cOwnHoliday& holiday) {
    const cDay first = DayFromText(holiday.m_First);
    if (holiday.m_Last.empty()) return {first, first};
    const cDay last = DayFromText(holiday.m_Last);
    if ((first.year == 0) != (last.year == 0)) {
        Refuse({Pattern("Reasons", "\"%1\": give both days a year, or none of them"), {DaysOf(holiday)}});
    }
    if (first.year != 0 && IndexIn(last, last.year) < IndexIn(first, first.year)) {
        Refuse({Pattern("Reasons", "\"%1\" ends before it begins"), {DaysOf(holiday)}});
    }
    return {first, last};
}

cOwnHoliday HolidayFromLine(std::string_view line) {
    const auto fields = std::count(line.begin(), line.end(), '|') + 1;
    if (fields != 2) {
        Refuse({Pattern("Reasons", "a holiday has two fields (day | name), this line has %1"),
                {std::to_string(fields)}});
    }
    const std::string days = Trim(line.substr(0, line.find('|')));
    const std::size_t to = days.find(kTo);
    cOwnHoliday holiday;
    holiday.m_First = Trim(days.substr(0, to));
    if (to != std::string::npos) {
        holiday.m_Last = Trim(days.substr(to + kTo.size()));
        if (holiday.m_Last.empty()) Refuse({Pattern("Reasons", "\"%1\" has no last day"), {days}});
    }
    holiday.m_Name = Trim(line.substr(line.find('|') + 1));
    holiday.m_Line = std::string(line);
    CheckOwnHoliday(holiday);
    return holiday;
}

bool SaySame(const cOwnHoliday& a, const cOwnHoliday& b) {
    return a.m_First == b.m_First && a.m_Last == b.m_Last && a.m_Name == b.m_Name;
}

// The line as it was written, unless it says something else by now.
std::string LineFromHoliday(const cOwnHoliday& holiday) {
    bool same = false;
    SkipFailure([&] { same = SaySame(HolidayFromLine(holiday.m_Line), holiday); });
    if (same) return holiday.m_Line;
    return DaysOf(holiday) + " | " + holiday.m_Name;
}

void Mark(std::vector<cHolidayLabel>& labels, const std::string& name, std::int32_t first,
          std::int32_t last) {
    for (std::int32_t day = first; day <= last; ++day) labels.push_back({day, kLikeSunday, True16, name});
}

}  // namespace

bool cOwnHoliday::IsEveryYear() const {
    return m_First.size() == 5;
}

void CheckOwnHoliday(const cOwnHoliday& holiday) {
    SpanOf(holiday);
    if (Trim(holiday.m_Name).empty()) Refuse(Pattern("Reasons", "the name is empty"));
    if (holiday.m_Name.find_first_of("|\r\n") != std::string::npos)
        Refuse(Pattern("Reasons", "the name must not hold \"|\""));
}

std::vector<cLineProblem> cOwnHolidays::Parse(std::string_view text) {
    return ParseKeptLines(text, HolidayFromLine, m_Holidays, m_LinesAfter);
}

std::string cOwnHolidays::Text() const {
    return TextOfKeptLines(m_Holidays, LineFromHoliday, m_LinesAfter);
}

std::vector<cLineProblem> cOwnHolidays::Load(const cFileReader& files, std::string_view path) {
    return LoadLines(files, path, *this);
}

void cOwnHolidays::Save(cFiles& files, std::string_view path) const {
    std::for_each(m_Holidays.begin(), m_Holidays.end(), CheckOwnHoliday);
    ReplaceFile(files, path, Text());
}

void cOwnHolidays::Remove(std::size_t index) {
    RemoveKeptEntry(index, m_Holidays, m_LinesAfter);
}

// Days that end before they begin go over the new year; the first January of all has had them too.
void cOwnHolidays::AddTo(cHolidays& holidays) const {
    std::vector<cHolidayLabel> labels;
    for (const cOwnHoliday& holiday : m_Holidays) {
        const auto [first, last] = SpanOf(holiday);
        if (first.year != 0) {
            Mark(labels, holiday.m_Name, IndexIn(first, first.year), IndexIn(last, last.year));
            continue;
        }
        for (int year = kFirstCalendarYear - 1; year <= kLastCalendarYear; ++year) {
            const bool overNewYear = IndexIn(last, year) < IndexIn(first, year);
            if (!IsOfYear(first, year) && holiday.m_Last.empty()) continue;
            Mark(labels, holiday.m_Name, IndexIn(first, year), IndexIn(last, year + (overNewYear ? 1 : 0)));
        }
    }
    holidays.Add(std::move(labels));
}

}  // namespace vigrel
