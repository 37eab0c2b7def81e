#include "life/naive_template.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace vigrel::testing {
namespace {

constexpr std::size_t kNowhere = std::string::npos;

std::size_t FindAnyCase(const std::string& text, const std::string& what, std::size_t from = 0) {
    return InLowerCase(text).find(InLowerCase(what), from);
}

bool IsNumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == kNowhere;
}

// What stands in the innermost brackets that open at a place; kNowhere for no such brackets.
std::size_t Closing(const std::string& text, std::size_t open, char opening, char closing) {
    const std::size_t close = text.find(closing, open + 1);
    return close == kNowhere || text.find(opening, open + 1) < close ? kNowhere : close;
}

bool Matches(const std::string& word, int status) {
    return (word == "active" && status == 1) || (word == "inactive" && status == 0) ||
           (word == "acked" && status == 2);
}

std::string WithoutConditions(std::string text, int status) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t close = text[i] == '{' ? Closing(text, i, '{', '}') : kNowhere;
        const std::size_t mark = text.find('?', i);
        if (close == kNowhere || mark >= close) {
            ++i;
            continue;
        }
        const bool kept = Matches(InLowerCase(text.substr(i + 1, mark - i - 1)), status);
        const std::string inner = text.substr(mark + 1, close - mark - 1);
        text = text.substr(0, i) + (kept ? inner : "") + text.substr(close + 1);
    }
    return text;
}

// A field's value, and whether there is such a field.
struct cValue {
    bool known;
    std::string text;
};

cValue Named(const cNaiveAlarm& alarm, const std::string& name, const std::string& extra,
             const std::string& object) {
    constexpr const char* kStates[] = {"T837", "T838", "T839"};
    if (name == "alarmdate") return {true, NaiveDate(alarm.sourced)};
    if (name == "alarmtime") return {true, NaiveTime(alarm.sourced)};
    if (name == "date") return {true, NaiveDate(alarm.created)};
    if (name == "time") return {true, NaiveTime(alarm.created)};
    if (name == "status") return {true, std::to_string(alarm.status)};
    if (name == "status$") return {true, kStates[alarm.status]};
    if (name == "object") return {true, object};
    if (name == "alarmid") return {true, "0000"};
    if (name == "sender") return {true, alarm.sender};
    if (name == "extratext") return {true, extra};
    if (name == "observed") return {true, alarm.acknowledged ? "1" : "0"};
    return {false, ""};
}

// Of a token that is neither a field's name nor a modifier: a character by its number, or a condition.
cValue NumberedValue(const cNaiveAlarm& alarm, const std::string& token) {
    if (IsNumber(token)) {
        const int code = std::atoi(token.c_str());
        if (code >= 1 && code <= 255) return {true, std::string(1, static_cast<char>(code))};
        return {false, ""};
    }
    if (token.empty() || InLowerCase(token)[0] != 't') return {false, ""};
    const int condition = std::atoi(CutAt(token, ':')[0].substr(1).c_str());
    if (condition > 5) return {false, ""};
    return {true, alarm.texts[static_cast<std::size_t>(condition)]};
}

std::string Shaped(std::string value, const std::vector<std::string>& fields) {
    const std::string range = FieldOf(fields, 1), width = FieldOf(fields, 2);
    if (!range.empty()) {
        const std::vector<std::string> ends = CutAt(range, '-');
        const int from = std::atoi(ends[0].c_str());
        const int to = std::max(from, std::atoi(FieldOf(ends, 1).c_str()));
        const auto first = static_cast<std::size_t>(from), last = static_cast<std::size_t>(to);
        value = first < value.size() ? value.substr(first, last - first + 1) : "";
    }
    if (!width.empty()) value.resize(static_cast<std::size_t>(std::atoi(width.c_str())), ' ');
    return value;
}

std::string Replaced(std::string value, const std::string& find, const std::string& with) {
    if (find.empty() || find == with) return value;
    std::size_t at = FindAnyCase(value, find);
    while (at != kNowhere) {
        value.replace(FindAnyCase(value, find), find.size(), with);
        at = FindAnyCase(value, find, at + with.size());
    }
    return value;
}

std::string Modified(const std::string& value, const std::vector<std::string>& modifier) {
    const std::string name = InLowerCase(modifier[0]), find = FieldOf(modifier, 1), by = FieldOf(modifier, 2);
    if (name == "r" || name == "replace") return Replaced(value, find, by);
    if (find.empty() || FindAnyCase(value, find) == kNowhere) return value;
    const int at = static_cast<int>(FindAnyCase(value, find)) + std::atoi(by.c_str());
    if (name == "cf" || name == "cutfrom") return at < 0 ? "" : value.substr(0, static_cast<std::size_t>(at));
    const int behind = at + static_cast<int>(find.size());
    if (behind < 0) return value;
    return static_cast<std::size_t>(behind) < value.size() ? value.substr(static_cast<std::size_t>(behind))
                                                           : "";
}

bool IsModifier(const std::string& name) {
    constexpr const char* kNames[] = {"r", "replace", "cf", "cutfrom", "cu", "cutuntil"};
    return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames);
}

}  // namespace

std::string NaiveExpanded(const cNaiveAlarm& alarm, const std::string& pattern, const std::string& extra,
                          const std::string& object) {
    std::string text = WithoutConditions(pattern, alarm.status);
    std::vector<std::vector<std::string>> modifiers;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t close = text[i] == '[' ? Closing(text, i, '[', ']') : kNowhere;
        if (close == kNowhere) {
            ++i;
            continue;
        }
        const std::string token = text.substr(i + 1, close - i - 1);
        const std::vector<std::string> fields = CutAt(token, ':');
        cValue value = Named(alarm, InLowerCase(fields[0]), extra, object);
        if (!value.known && IsModifier(InLowerCase(fields[0]))) {
            modifiers.push_back(fields);
            text.erase(i, close + 1 - i);
            continue;
        }
        if (!value.known) value = NumberedValue(alarm, token);
        if (!value.known) {
            ++i;
            continue;
        }
        value.text = Shaped(value.text, fields);
        for (const std::vector<std::string>& modifier : modifiers)
            value.text = Modified(value.text, modifier);
        modifiers.clear();
        text.replace(i, close + 1 - i, value.text);
        i += value.text.size();
    }
    return text;
}

}  // namespace vigrel::testing
