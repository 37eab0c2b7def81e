#include "signals/event_text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <vector>

#include "common/code_page.h"
#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "events/status_text.h"
#include "signals/conditional_forms.h"
#include "signals/text_scan.h"
#include "signals/value_shape.h"

namespace vigrel {
namespace {

// Stands behind each collected modifier, and so parts a modifier that holds it.
constexpr char kModifierEnd = '\xFF';

// What a field's value is made of.
struct cSource {
    const cSettings& settings;
    const cTexts& texts;
    const cIniReader& ini;
    const cLocaleForms& forms;
    const cVigrelRecieverAlarm& alarm;
    std::string_view extraText;

    const cAlarm& Event() const { return alarm.m_Alarm; }
    std::string Format(DateTime value, const std::string& pattern) const {
        return FormatDateTime(value, pattern, forms);
    }
};

struct cField {
    std::string_view name;
    std::string (*value)(const cSource& source);
};

constexpr std::array<cField, 11> kFields{{
    {"ALARMDATE",
     [](const cSource& s) { return s.Format(s.Event().m_TimeStampFromSCADA, s.settings.m_DateFormat); }},
    {"ALARMTIME",
     [](const cSource& s) { return s.Format(s.Event().m_TimeStampFromSCADA, s.settings.m_TimeFormat); }},
    {"DATE", [](const cSource& s) { return s.Format(s.Event().m_TimeStampFromPC, s.settings.m_DateFormat); }},
    {"TIME", [](const cSource& s) { return s.Format(s.Event().m_TimeStampFromPC, s.settings.m_TimeFormat); }},
    {"STATUS", [](const cSource& s) { return std::to_string(s.Event().m_Status); }},
    {"STATUS$", [](const cSource& s) { return StatusText(s.texts, s.Event().m_Status); }},
    // Nothing unless it is set; the titles have a word for that.
    {"OBJECT", [](const cSource& s) { return s.ini.GetIniString("General", "Object", ""); }},
    {"ALARMID", [](const cSource& s) { return s.Event().ViewEventIdAsHex(); }},
    {"SENDER", [](const cSource& s) { return s.alarm.m_Sender; }},
    {"EXTRATEXT", [](const cSource& s) { return std::string(s.extraText); }},
    {"OBSERVED", [](const cSource& s) { return std::string(s.alarm.m_Observed != False16 ? "1" : "0"); }},
}};

// The integer that a text begins with, not beyond 16 bits: what is cut off lies outside every bound here.
int LeadingInteger(std::string_view text) {
    return static_cast<int>(std::clamp(RoundEven(Val(text)), -32768.0, 32767.0));
}

// The value of a field; empty when making it fails.
std::optional<std::string> NamedField(const cSource& source, std::string_view name) {
    const auto* field = std::find_if(kFields.begin(), kFields.end(),
                                     [name](const cField& candidate) { return candidate.name == name; });
    if (field == kFields.end()) return std::nullopt;
    std::string value;
    SkipFailure([&] { value = field->value(source); });
    return value;
}

std::optional<std::string> CharacterOfCode(std::string_view token) {
    if (!IsNumeric(token)) return std::nullopt;
    const int code = LeadingInteger(token);
    if (code < 1 || code > 255) return std::nullopt;
    return std::string(1, static_cast<char>(code));
}

// Every name that begins with T and is no other field: [T] and [TEXT] are condition 0.
std::optional<std::string> Condition(const cSource& source, std::string_view name) {
    if (!name.starts_with('T')) return std::nullopt;
    const int number = LeadingInteger(name.substr(1));
    if (number > 5) return std::nullopt;
    std::string value;
    SkipFailure([&] { value = source.Event().GetCondition(number); });
    return value;
}

// What was collected for the next value.
class cModifiers {
  public:
    void Add(std::string_view token) { m_List.append(token).push_back(kModifierEnd); }
    // Applies all in the order in which they were collected, and forgets them.
    std::string ApplyTo(std::string value) {
        std::string_view rest = m_List;
        while (!rest.empty()) {
            const std::size_t end = rest.find(kModifierEnd);
            value = ApplyModifier(std::move(value), rest.substr(0, end));
            rest.remove_prefix(end + 1);
        }
        m_List.clear();
        return value;
    }

  private:
    std::string m_List;
};

// What stands in place of a token; nothing for one that is unknown.
std::optional<std::string> ExpandToken(const cSource& source, std::string_view token, cModifiers& modifiers) {
    const std::string name = ToUpper(token.substr(0, token.find(':')));
    std::optional<std::string> value = NamedField(source, name);
    if (!value && IsModifier(name)) {
        modifiers.Add(token);
        return "";
    }
    if (!value) value = CharacterOfCode(token);
    if (!value) value = Condition(source, name);
    if (!value) return std::nullopt;
    return modifiers.ApplyTo(ShapeValue(std::move(*value), token));
}

}  // namespace

std::vector<std::string> EventFieldNames() {
    std::vector<std::string> names;
    std::transform(std::begin(kFields), std::end(kFields), std::back_inserter(names),
                   [](const cField& field) { return std::string(field.name); });
    names.insert(names.end(), {"T0", "T1", "T2", "T3", "T4", "T5"});
    return names;
}

std::string cEventText::ExpandEventText(const cVigrelRecieverAlarm& alarm, std::string_view text,
                                        std::string_view extraText) const {
    const cSource source{m_Settings, m_Texts, m_Ini, m_Forms, alarm, extraText};
    const std::int16_t status = source.Event().m_Status;
    const std::string expanded = ExpandConditionalForms(
        status == StatusMessage ? source.Event().GetCondition(ConditionText) : text, status);
    cTextScan scan(expanded, '[', ']');
    cModifiers modifiers;
    while (!scan.AtEnd()) {
        const auto value = scan.AtBrackets() ? ExpandToken(source, scan.Inside(), modifiers) : std::nullopt;
        if (value) {
            scan.Replace(*value);
        } else {
            scan.Keep();
        }
    }
    return scan.Take();
}

}  // namespace vigrel
