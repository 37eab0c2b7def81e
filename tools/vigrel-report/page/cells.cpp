#include "vigrel-report/page/cells.h"

#include <cmath>

#include "common/date_text.h"

namespace vigrel::report {

Cell CountCell(std::size_t count) {
    return cNumber{static_cast<double>(count), 0};
}
Cell DurationCell(Seconds seconds) {
    return cDuration{static_cast<double>(seconds)};
}

namespace {

// Digits of a number without sign, in groups of three behind the fourth digit.
std::string Grouped(std::string digits, std::string_view separator) {
    if (digits.size() < 5) return digits;
    for (std::size_t at = digits.size() - 3; at > 0 && at < digits.size(); at -= 3) {
        digits.insert(at, separator);
        if (at < 3) break;
    }
    return digits;
}

// A number in fixed notation: sign, whole digits, decimals.
struct cDigits {
    bool negative = false;
    std::string whole, decimals;
};
cDigits DigitsOf(double value, int decimals) {
    const double scaled = std::round(std::abs(value) * std::pow(10, decimals));
    std::string text = std::to_string(static_cast<long long>(scaled));
    const auto places = static_cast<std::size_t>(decimals);
    if (text.size() <= places) text.insert(0, places + 1 - text.size(), '0');
    return {value < 0 && scaled > 0, text.substr(0, text.size() - places), text.substr(text.size() - places)};
}

}  // namespace

std::string DayText(WallTime wall) {
    return DateTimeText(DateTimeOf(wall)).substr(0, 10);
}

std::string TimeText(WallTime wall) {
    return DateTimeText(DateTimeOf(wall)).substr(0, 16);
}

std::string cForms::Say(eWord word, const std::vector<std::string>& values) const {
    return Filled(Word(m_Language, word), values);
}

std::string cForms::Number(double value, int decimals) const {
    const bool english = m_Language == eLanguage::English;
    const cDigits digits = DigitsOf(value, decimals);
    const std::string whole = Grouped(digits.whole, english ? "," : "\xC2\xA0");
    return (digits.negative ? "\xE2\x88\x92" : "") + whole +
           (decimals > 0 ? (english ? "." : ",") + digits.decimals : "");
}

std::string cForms::Percent(double share) const {
    const double percent = 100 * share;
    return Number(percent, percent < 10 && percent > 0 ? 1 : 0) + "\xC2\xA0%";
}

std::string cForms::WholePercent(double share) const {
    return Number(100 * share) + "\xC2\xA0%";
}

std::string cForms::Duration(double seconds) const {
    const auto whole = static_cast<Seconds>(std::llround(seconds));
    struct cUnit {
        Seconds length;
        std::string name;
    };
    const cUnit units[] = {
        {kDay, Say(eWord::DayUnit)}, {kHour, Say(eWord::HourUnit)}, {kMinute, "min"}, {1, "s"}};
    std::string text;
    Seconds rest = whole;
    int shown = 0;
    for (const cUnit& unit : units) {
        const Seconds count = rest / unit.length;
        rest %= unit.length;
        if (shown > 0 || count > 0) ++shown;
        if (count > 0) {
            text += (text.empty() ? "" : " ") + Number(static_cast<double>(count)) + "\xC2\xA0" + unit.name;
        }
        if (shown == 2) break;
    }
    return text.empty() ? "0\xC2\xA0s" : text;
}

std::string cForms::Time(Moment moment) const {
    return TimeText(m_Zone.ToWall(moment));
}

std::string cForms::Day(Moment moment) const {
    return DayText(m_Zone.ToWall(moment));
}

std::string cForms::Text(const Cell& cell) const {
    struct cVisitor {
        const cForms& forms;
        std::string operator()(std::monostate) const { return "\xE2\x80\x93"; }
        std::string operator()(const std::string& text) const { return text; }
        std::string operator()(eWord word) const { return forms.Say(word); }
        std::string operator()(cNumber number) const { return forms.Number(number.value, number.decimals); }
        std::string operator()(cPercent percent) const { return forms.Percent(percent.share); }
        std::string operator()(cDuration duration) const { return forms.Duration(duration.seconds); }
        std::string operator()(cTimeCell time) const { return forms.Time(time.moment); }
        std::string operator()(cDayCell day) const { return forms.Day(day.moment); }
        std::string operator()(eVerdict verdict) const {
            constexpr eWord kVerdicts[] = {eWord::Within, eWord::Over, eWord::Below, eWord::NotJudged};
            return forms.Say(kVerdicts[static_cast<std::size_t>(verdict)]);
        }
    };
    return std::visit(cVisitor{*this}, cell);
}

}  // namespace vigrel::report
