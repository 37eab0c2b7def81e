#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "categories/user_color.h"
#include "common/line_problem.h"
#include "platform/files.h"

namespace vigrel {

// The name of the list of colour rules, in the application folder (docs/formats/colour-rules.md).
inline constexpr std::string_view kColourRulesFile = "ColourRules.txt";

// One rule as people write it.
struct cColourRule {
    std::string m_TagFilter;       // a pattern of WildcardMatch
    std::string m_CategoryFilter;  // "5;7-9", "*": numbers and ranges, 0 to 255
    std::string m_AreaFilter;      // the same, 0 to 999
    std::string m_ForeColor;       // "red,green,blue", 0 to 255 each
    std::string m_BackColor;
    std::int32_t m_ZebraFade = 0;  // 0 to 255
    // What stands in front of the rule in the file: comments, empty lines, lines that were not understood.
    // They are kept when the list is saved.
    std::vector<std::string> m_LinesBefore;

    bool operator==(const cColourRule&) const = default;
};

// The first rule that matches, by position; nothing when none does.
std::optional<std::size_t> FirstMatch(const std::vector<cUserColor>& colors, std::string_view tag,
                                      std::int32_t category, std::int32_t area);

// The rule at work. Throws cFailure with a description for the user when a field is wrong.
cUserColor MakeUserColor(const cColourRule& rule);

// The list of rules of a station, in the order in which they are tried.
class cColourRules {
  public:
    // Replaces the list by that of a text and says which lines of it were skipped; and the text of the list.
    std::vector<cLineProblem> Parse(std::string_view text);
    std::string Text() const;
    // Replaces the list by that of a file and says which lines of it were skipped. A file that is missing
    // gives an empty list; one that can't be read says so too.
    std::vector<cLineProblem> Load(const cFileReader& files, std::string_view path);
    // Throws cFailure, also for a rule that is wrong; the old file stands then.
    void Save(cFiles& files, std::string_view path) const;

    // Removes a rule; the lines in front of it go to what follows.
    void Remove(std::size_t index);

    bool operator==(const cColourRules&) const = default;

    std::vector<cColourRule> m_Rules;
    std::vector<std::string> m_LinesAfter;  // what stands behind the last rule
};

}  // namespace vigrel
