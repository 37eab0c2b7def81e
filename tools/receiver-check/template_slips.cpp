#include "receiver-check/template_slips.h"

#include <algorithm>
#include <set>

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/text.h"
#include "events/alarm.h"
#include "receiver-check/names.h"
#include "signals/conditional_forms.h"
#include "signals/event_text.h"
#include "signals/value_shape.h"

namespace vigrel {
namespace {

const std::vector<std::string> kWords{"ACTIVE", "INACTIVE", "ACKED", "MESSAGE"};
constexpr std::size_t kShown = 24;  // characters of a template in a message

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text.substr(0, kShown)) + (text.size() > kShown ? "..." : "") + "\"";
}

bool AreDigits(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

class cSlips {
  public:
    void Add(const std::string& name, const std::string& message) {
        if (m_Told.insert(message).second) m_All.push_back({name, message});
    }
    std::vector<cTemplateSlip> m_All;

  private:
    std::set<std::string> m_Told;  // the same slip shows in the text of several states
};

// The pairs of one kind of brackets as the receiver finds them: an opening one that another follows before
// its partner is plain text. An outer pair of plain ones around a field is meant to be seen.
class cBrackets {
  public:
    cBrackets(std::string_view text, char open, char close) : m_Text(text), m_Open(open), m_Close(close) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == m_Open) {
                i = Opening(i);
            } else if (text[i] == m_Close) {
                m_Plain.empty() ? m_Unopened.push_back(i) : m_Plain.pop_back();
            }
        }
    }
    std::vector<std::string_view> m_Inside;  // of the pairs that count
    std::vector<std::size_t> m_Outer;        // every opening one that is plain text
    std::vector<std::size_t> m_Plain;        // those of them without a partner
    std::vector<std::size_t> m_Unopened;     // closing ones without a partner

  private:
    // The place of the last character that belongs to what opens here.
    std::size_t Opening(std::size_t place) {
        const std::size_t close = m_Text.find(m_Close, place + 1), next = m_Text.find(m_Open, place + 1);
        if (close == std::string_view::npos || next < close) {
            m_Outer.push_back(place);
            m_Plain.push_back(place);
            return place;
        }
        m_Inside.push_back(m_Text.substr(place + 1, close - place - 1));
        return close;
    }
    std::string_view m_Text;
    char m_Open, m_Close;
};

// The field that stands, or nearly stands, behind a bracket.
std::string FieldMeant(std::string_view rest) {
    const std::string name = ToUpper(Trim(rest.substr(0, rest.find_first_of("[]{}"))));
    for (const std::string& field : EventFieldNames()) {
        if (field == name) return "; is \"[" + field + "]\" meant?";
    }
    return MeantPerhaps(name, EventFieldNames());
}

void TellPartners(std::string_view text, const cBrackets& brackets, char open, char close, cSlips& slips) {
    for (const std::size_t place : brackets.m_Plain) {
        slips.Add("template-bracket", Quoted(text.substr(place)) + " has a \"" + open + "\" without \"" +
                                          close + "\", which is plain text" +
                                          (open == '[' ? FieldMeant(text.substr(place + 1)) : ""));
    }
    for (const std::size_t place : brackets.m_Unopened) {
        slips.Add("template-bracket", Quoted(text.substr(0, place + 1)) + " ends in a \"" + close +
                                          "\" without \"" + open + "\", which is plain text");
    }
}

bool BeginsWithWord(std::string_view text) {
    return std::any_of(kWords.begin(), kWords.end(), [&](const std::string& word) {
        return ToUpper(text.substr(0, word.size() + 1)) == word + "?";
    });
}

bool IsOneOf(const std::vector<std::string>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), ToUpper(name)) != names.end();
}

// A form without "?" is plain text, which may be meant, unless it begins as a form does or holds a field.
void CheckPlainForm(const std::string& form, cSlips& slips) {
    if (IsOneOf(kWords, form.substr(0, form.find_first_of(" :;,=|")))) {
        slips.Add("template-form", Quoted("{" + form + "}") + " has no \"?\" and is plain text");
    } else if (IsOneOf(EventFieldNames(), Trim(form.substr(0, form.find(':'))))) {
        slips.Add("template-form",
                  Quoted("{" + form + "}") + " is plain text; is \"[" + Trim(form) + "]\" meant?");
    }
}

void CheckForm(const std::string& form, cSlips& slips) {
    const std::size_t mark = form.find('?');
    if (mark == std::string::npos) return CheckPlainForm(form, slips);
    const std::string word = form.substr(0, mark);
    if (IsOneOf(kWords, word)) return;
    slips.Add("template-form", Quoted("{" + form + "}") +
                                   " is removed with its text: the word isn't one of ACTIVE, INACTIVE, "
                                   "ACKED, MESSAGE" +
                                   MeantPerhaps(Trim(word), kWords));
}

void FindSlipsOfForms(std::string_view text, cSlips& slips) {
    const cBrackets brackets(text, '{', '}');
    for (const std::string_view form : brackets.m_Inside) CheckForm(std::string(form), slips);
    for (const std::size_t place : brackets.m_Outer) {
        const bool closes = text.find('}', place) != std::string_view::npos;
        if (!closes || !BeginsWithWord(text.substr(place + 1))) continue;
        slips.Add("template-form",
                  Quoted(text.substr(place)) + ": forms don't nest; only the inner one is one");
    }
    TellPartners(text, brackets, '{', '}', slips);
}

// What is told of a name when it is no field, modifier, or code of a character; nothing when all is well.
void CheckName(const std::string& token, const std::string& name, cSlips& slips) {
    const auto fields = EventFieldNames();
    if (std::find(fields.begin(), fields.end(), name) != fields.end()) return;
    if (IsNumeric(token) && Val(token) >= 1 && Val(token) <= 255) return;
    const std::string shown = "\"[" + token.substr(0, kShown) + "]\"";
    if (!name.starts_with('T')) {
        slips.Add("template-field",
                  shown + " is no field and stays as it is written" + MeantPerhaps(Trim(name), fields));
    } else if (name.size() == 2 && name[1] >= '0' && name[1] <= '9') {
        slips.Add("template-field", shown + " is no text and stays as it is written: there are T0 to T5");
    } else if (name != "T") {
        slips.Add("template-field", shown + " is read as a text of the alarm, by the number behind the T" +
                                        MeantPerhaps(name, fields));
    }
}

void CheckShape(const std::string& token, cSlips& slips) {
    const std::vector<std::string> parts = SplitAt(token, ':');
    if (IsNumeric(token) || parts.size() < 2) return;
    const std::vector<std::string> range = SplitAt(parts[1], '-');
    const bool numbers = std::all_of(range.begin(), range.end(), AreDigits) && range.size() <= 2;
    const bool width = parts.size() < 3 || AreDigits(parts[2]);
    if (numbers && width) return;
    slips.Add("template-range", "\"[" + token.substr(0, kShown) +
                                    "]\": behind the name stand a range such as 0-9 and a width, as in "
                                    "[T0:0-9:10]; dates and times follow DateFormat and TimeFormat");
}

void FindSlipsOfFields(std::string_view text, cSlips& slips) {
    const cBrackets brackets(text, '[', ']');
    std::string modifier;
    for (const std::string_view inside : brackets.m_Inside) {
        const std::string token(inside), name = ToUpper(token.substr(0, token.find(':')));
        if (IsModifier(name)) {
            modifier = token;
            if (GetField(token, 1, ":").empty()) {
                slips.Add("template-modifier", "\"[" + token + "]\" looks for nothing and does nothing");
            }
            continue;
        }
        modifier.clear();
        CheckName(token, name, slips);
        CheckShape(token, slips);
    }
    if (!modifier.empty()) {
        slips.Add("template-modifier", "\"[" + modifier + "]\" has no field behind it to work on");
    }
    TellPartners(text, brackets, '[', ']', slips);
}

}  // namespace

std::vector<cTemplateSlip> TemplateSlips(std::string_view text) {
    cSlips slips;
    if (text.find("\\n") != std::string_view::npos) {
        slips.Add("template-line", "\"\\n\" is plain text; a new line is \"[13][10]\"");
    }
    FindSlipsOfForms(text, slips);
    for (const std::int16_t status : {StatusActive, StatusInactive, StatusAcked}) {
        FindSlipsOfFields(ExpandConditionalForms(text, status), slips);
    }
    return slips.m_All;
}

}  // namespace vigrel
