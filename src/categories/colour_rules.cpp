#include "categories/colour_rules.h"

#include <algorithm>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/kept_lines.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::int32_t kLastCategory = 255, kLastArea = 999, kLastPart = 255;
constexpr int kFields = 6;

[[noreturn]] void Refuse(const cPhrase& description) {
    throw cFailure(eFailure::InvalidCall, description);
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(Trim(text.substr(0, end)));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

// A whole number written in digits alone.
std::int32_t NumberFromText(const std::string& text, std::int32_t last, const cPhrase& what) {
    const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    if (!digits || text.size() > 6 || Val(text) > last) {
        Refuse({Pattern("Reasons", "%1: \"%2\" is not a number from 0 to %3"),
                {what, text, std::to_string(last)}});
    }
    return ToInt32(Val(text));
}

void CheckItem(const std::string& item, std::int32_t last, const cPhrase& what) {
    if (item == "*") return;
    const std::size_t dash = item.find('-');
    const std::int32_t from = NumberFromText(Trim(item.substr(0, dash)), last, what);
    if (dash == std::string::npos) return;
    if (NumberFromText(Trim(item.substr(dash + 1)), last, what) < from) {
        Refuse({Pattern("Reasons", "%1: the range \"%2\" ends before it begins"), {what, item}});
    }
}

// The filter as the setters of cUserColor take it: every item, also a single one, with a ";" behind it.
std::string CheckedFilter(const std::string& filter, std::int32_t last, const cPhrase& what) {
    std::vector<std::string> items = Split(filter, ';');
    // A ";" at the end ends the last item.
    if (items.size() > 1 && items.back().empty()) items.pop_back();
    std::string checked;
    for (const std::string& item : items) {
        CheckItem(item, last, what);
        checked += item + ";";
    }
    return checked;
}

void CheckColour(const std::string& colour, const cPhrase& what) {
    const std::vector<std::string> parts = Split(colour, ',');
    if (parts.size() != 3) {
        Refuse({Pattern("Reasons", "%1: \"%2\" is not red,green,blue"), {what, colour}});
    }
    for (const std::string& part : parts) NumberFromText(part, kLastPart, what);
}

cColourRule RuleFromLine(std::string_view line) {
    const std::vector<std::string> fields = Split(line, '|');
    if (fields.size() != kFields) {
        Refuse({Pattern("Reasons",
                        "a rule has six fields (tag | categories | areas | text colour | background | "
                        "fade), this line has %1"),
                {std::to_string(fields.size())}});
    }
    cColourRule rule;
    rule.m_TagFilter = fields[0];
    rule.m_CategoryFilter = fields[1];
    rule.m_AreaFilter = fields[2];
    rule.m_ForeColor = fields[3];
    rule.m_BackColor = fields[4];
    // Of several faults the one furthest left is told.
    MakeUserColor(rule);
    rule.m_ZebraFade = NumberFromText(fields[5], kLastPart, Pattern("Reasons", "fade"));
    return rule;
}

std::string LineFromRule(const cColourRule& rule) {
    return rule.m_TagFilter + " | " + rule.m_CategoryFilter + " | " + rule.m_AreaFilter + " | " +
           rule.m_ForeColor + " | " + rule.m_BackColor + " | " + std::to_string(rule.m_ZebraFade);
}

}  // namespace

cUserColor MakeUserColor(const cColourRule& rule) {
    if (rule.m_TagFilter.empty()) Refuse(Pattern("Reasons", "tag: it is empty; \"*\" stands for every tag"));
    if (rule.m_TagFilter.find_first_of("|\r\n") != std::string::npos)
        Refuse(Pattern("Reasons", "tag: it must not hold \"|\""));
    if (rule.m_TagFilter[0] == '#')
        Refuse(Pattern("Reasons", "tag: it must not begin with \"#\"; write \"?\" for it"));
    cUserColor color;
    color.SetTagFilter(rule.m_TagFilter);
    color.SetCategoryFilter(
        CheckedFilter(rule.m_CategoryFilter, kLastCategory, Pattern("Reasons", "categories")));
    color.SetAreaFilter(CheckedFilter(rule.m_AreaFilter, kLastArea, Pattern("Reasons", "areas")));
    color.m_AreaFilter = rule.m_AreaFilter;
    CheckColour(rule.m_ForeColor, Pattern("Reasons", "text colour"));
    CheckColour(rule.m_BackColor, Pattern("Reasons", "background"));
    if (rule.m_ZebraFade < 0 || rule.m_ZebraFade > kLastPart)
        Refuse(Pattern("Reasons", "fade: it is not a number from 0 to 255"));
    color.SetForeColor(rule.m_ForeColor);
    color.SetBackColor(rule.m_BackColor, rule.m_ZebraFade);
    return color;
}

std::optional<std::size_t> FirstMatch(const std::vector<cUserColor>& colors, std::string_view tag,
                                      std::int32_t category, std::int32_t area) {
    const auto match = std::find_if(colors.begin(), colors.end(), [&](const cUserColor& color) {
        return color.IsMatching(tag, category, area) != False16;
    });
    if (match == colors.end()) return std::nullopt;
    return static_cast<std::size_t>(match - colors.begin());
}

std::vector<cLineProblem> cColourRules::Parse(std::string_view text) {
    return ParseKeptLines(text, RuleFromLine, m_Rules, m_LinesAfter);
}

std::string cColourRules::Text() const {
    return TextOfKeptLines(m_Rules, LineFromRule, m_LinesAfter);
}

std::vector<cLineProblem> cColourRules::Load(const cFileReader& files, std::string_view path) {
    return LoadLines(files, path, *this);
}

void cColourRules::Save(cFiles& files, std::string_view path) const {
    for (const cColourRule& rule : m_Rules) MakeUserColor(rule);
    ReplaceFile(files, path, Text());
}

void cColourRules::Remove(std::size_t index) {
    RemoveKeptEntry(index, m_Rules, m_LinesAfter);
}

}  // namespace vigrel
