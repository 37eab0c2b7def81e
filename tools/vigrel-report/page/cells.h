#pragma once

#include <string>
#include <variant>
#include <vector>

#include "vigrel-report/figures/figures.h"
#include "vigrel-report/page/words.h"

namespace vigrel::report {

// What a cell of a table holds; each writer gives it the form of its output.
struct cNumber {
    double value = 0;
    int decimals = 0;
};
struct cPercent {
    double share = 0;  // 0 to 1
};
struct cDuration {
    double seconds = 0;
};
struct cTimeCell {
    Moment moment = 0;
};
struct cDayCell {
    Moment moment = 0;
};
// Nothing; text in UTF-8, without control characters.
using Cell = std::variant<std::monostate, std::string, eWord, cNumber, cPercent, cDuration, cTimeCell,
                          cDayCell, eVerdict>;
Cell CountCell(std::size_t count);
Cell DurationCell(Seconds seconds);

// The forms that people read, in the report's language. UTF-8.
class cForms {
  public:
    cForms(eLanguage language, const cTimeZone& zone) : m_Language(language), m_Zone(zone) {}

    eLanguage Language() const { return m_Language; }
    const cTimeZone& Zone() const { return m_Zone; }
    std::string Say(eWord word, const std::vector<std::string>& values = {}) const;
    std::string Number(double value, int decimals = 0) const;
    std::string Count(std::size_t count) const { return Number(static_cast<double>(count)); }
    std::string Percent(double share) const;
    std::string WholePercent(double share) const;
    std::string Duration(double seconds) const;  // its two largest units
    std::string Time(Moment moment) const;       // 2026-03-15 12:30
    std::string Day(Moment moment) const;
    std::string Text(const Cell& cell) const;

  private:
    eLanguage m_Language;
    const cTimeZone& m_Zone;
};

// 2026-03-15, and with the time of day.
std::string DayText(WallTime wall);
std::string TimeText(WallTime wall);

}  // namespace vigrel::report
