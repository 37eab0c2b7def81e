#include "signals/value_shape.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

std::string ApplyRange(std::string value, const std::string& range) {
    if (range.empty()) return value;
    std::int16_t from = 0;
    std::int16_t to = 0;
    SkipFailure([&] { from = ToInt16(Val(GetField(range, 0, "-"))); });
    SkipFailure([&] { to = ToInt16(Val(GetField(range, 1, "-"))); });
    to = std::max(from, to);
    return Mid(value, static_cast<std::size_t>(from) + 1, static_cast<std::size_t>(to - from) + 1);
}

std::string ApplyWidth(std::string value, const std::string& width) {
    if (width.empty()) return value;
    SkipFailure([&] {
        const std::int32_t characters = ToInt32(Val(width));
        if (characters < 0 || static_cast<std::size_t>(characters) > kLongestValue) {
            throw cFailure(eFailure::InvalidCall, "a width is out of range");
        }
        value.resize(static_cast<std::size_t>(characters), ' ');
    });
    return value;
}

// Position of the first occurrence, case apart; 0 for none that a position can tell.
std::int16_t FirstPosition(std::string_view value, std::string_view find) {
    const std::size_t found = ToUpper(value).find(ToUpper(find));
    std::int16_t position = 0;
    SkipFailure([&] { position = PositionAt(found); });
    return position;
}

std::string CutUntil(std::string value, std::string_view find, const std::string& offset) {
    std::int16_t position = FirstPosition(value, find);
    if (position == 0) return value;
    SkipFailure([&] { position = ToInt16(position + Val(offset) + static_cast<double>(find.size())); });
    return position > 0 ? Mid(value, static_cast<std::size_t>(position)) : value;
}

std::string CutFrom(std::string value, std::string_view find, const std::string& offset) {
    std::int16_t position = FirstPosition(value, find);
    if (position == 0) return value;
    SkipFailure([&] { position = ToInt16(position + Val(offset)); });
    return position > 0 ? Mid(value, 1, static_cast<std::size_t>(position - 1)) : "";
}

// How many rounds a replacement has: as long as the next occurrence, with what the rounds before it made of
// its position, lies within 16 bits, and the value stays as long as a value may be.
std::int64_t CountRounds(std::string_view value, std::string_view upperFind, std::size_t insertedSize) {
    const std::string upper = ToUpper(value);
    const auto growth = static_cast<std::int64_t>(insertedSize) - static_cast<std::int64_t>(upperFind.size());
    auto room = static_cast<std::int64_t>(kLongestValue) - static_cast<std::int64_t>(value.size());
    std::int64_t rounds = 0;
    for (std::size_t found = upper.find(upperFind); found != std::string::npos;
         found = upper.find(upperFind, found + upperFind.size())) {
        const std::int64_t position = static_cast<std::int64_t>(found) + 1 + rounds * growth;
        room -= growth;
        if (position > std::int64_t{kLastPosition} || (growth > 0 && room < 0)) break;
        ++rounds;
    }
    return rounds;
}

// Finds one text in another that is fed to it character by character and can be taken back.
class cPrefixMatcher {
  public:
    explicit cPrefixMatcher(std::string_view text) : m_Text(text), m_Fallback(text.size(), 0) {
        for (std::size_t i = 1; i < text.size(); ++i) m_Fallback[i] = Next(m_Fallback[i - 1], text[i]);
    }
    // How much of the text's beginning is matched when so much was, and one more character comes.
    std::size_t Next(std::size_t matched, char character) const {
        while (matched > 0 && m_Text[matched] != character) matched = m_Fallback[matched - 1];
        return m_Text[matched] == character ? matched + 1 : 0;
    }

  private:
    std::string_view m_Text;
    std::vector<std::size_t> m_Fallback;
};

// Replaces the first occurrence so many times over, each time in what the last time left, reading each
// character once: what is inserted goes back to what is still to be read, and what was read without an
// occurrence holds the beginning of one at most.
std::string ReplaceFirst(std::string_view value, std::string_view upperFind, std::string_view replacement,
                         std::int64_t rounds) {
    const cPrefixMatcher matcher(upperFind);
    std::string toRead(value.rbegin(), value.rend());  // its next character stands last
    std::string read;
    std::vector<std::size_t> matched;  // behind each character of read
    while (rounds > 0 && !toRead.empty()) {
        read.push_back(toRead.back());
        toRead.pop_back();
        matched.push_back(matcher.Next(matched.empty() ? 0 : matched.back(), ToUpper(read.back())));
        if (matched.back() < upperFind.size()) continue;
        read.resize(read.size() - upperFind.size());
        matched.resize(read.size());
        toRead.append(replacement.rbegin(), replacement.rend());
        --rounds;
    }
    return read.append(toRead.rbegin(), toRead.rend());
}

// Each round puts the replacement in place of the first occurrence in the whole value, what earlier rounds
// put in included. How many rounds there are is told by a search that passes over what a round put in: as
// many as the value had occurrences to begin with. So [R:a:xa] makes of "banana", in three rounds, "bxanana",
// "bxxanana" and "bxxxanana"; one replacement for each occurrence would give "bxanxanxa".
std::string Replace(std::string value, const std::string& find, const std::string& replacement) {
    // Case counts in this one comparison.
    if (replacement == find) return value;
    const std::string upperFind = ToUpper(find);
    const std::int64_t rounds = CountRounds(value, upperFind, replacement.size());
    return rounds == 0 ? value : ReplaceFirst(value, upperFind, replacement, rounds);
}

bool IsReplace(std::string_view name) {
    return name == "REPLACE" || name == "R";
}
bool IsCutFrom(std::string_view name) {
    return name == "CUTFROM" || name == "CF";
}
bool IsCutUntil(std::string_view name) {
    return name == "CUTUNTIL" || name == "CU";
}

}  // namespace

std::string ShapeValue(std::string value, std::string_view token) {
    value = ApplyRange(std::move(value), GetField(token, 1, ":"));
    return ApplyWidth(std::move(value), GetField(token, 2, ":"));
}

bool IsModifier(std::string_view name) {
    return IsReplace(name) || IsCutFrom(name) || IsCutUntil(name);
}

std::string ApplyModifier(std::string value, std::string_view modifier) {
    const std::string name = ToUpper(GetField(modifier, 0, ":"));
    const std::string find = GetField(modifier, 1, ":");
    const std::string argument = GetField(modifier, 2, ":");
    if (find.empty()) return value;
    if (IsReplace(name)) return Replace(std::move(value), find, argument);
    if (IsCutFrom(name)) return CutFrom(std::move(value), find, argument);
    if (IsCutUntil(name)) return CutUntil(std::move(value), find, argument);
    return value;
}

}  // namespace vigrel
