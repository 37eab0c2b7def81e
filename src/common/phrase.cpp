#include "common/phrase.h"

#include <utility>

namespace vigrel {

cPhrase::cPhrase(const cPattern& pattern, std::vector<cPhrase> values)
    : m_Pattern(pattern), m_Values(std::move(values)) {}

cPhrase cPhrase::OfSystem(const cPattern& pattern, std::string text) {
    cPhrase phrase(pattern);
    phrase.m_Text = std::move(text);
    return phrase;
}

// In one run, so that a value that looks like a place stays as it is.
std::string cPhrase::Told(const Words& words) const {
    if (m_Pattern.english == nullptr || (!words && !m_Text.empty())) return m_Text;
    const std::string said = words ? words(m_Pattern) : m_Pattern.english;
    std::string told;
    for (std::size_t i = 0; i < said.size(); ++i) {
        const char digit = said[i] == '%' && i + 1 < said.size() ? said[i + 1] : '\0';
        const auto value = static_cast<std::size_t>(digit - '1');
        if (digit < '1' || value >= m_Values.size()) {
            told += said[i];
            continue;
        }
        told += m_Values[value].Told(words);
        ++i;
    }
    return told;
}

}  // namespace vigrel
