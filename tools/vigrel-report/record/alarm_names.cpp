#include "vigrel-report/record/alarm_names.h"

#include <algorithm>

#include "common/code_page.h"

namespace vigrel::report {
namespace {

using Positions = std::vector<std::size_t>;

// Cuts that are looked at: a text made of nothing but brackets and slashes must not hold the reading up.
constexpr std::size_t kMostBrackets = 8, kMostSlashes = 12;

Positions Places(std::string_view text, std::string_view find) {
    Positions places;
    for (std::size_t at = text.find(find); at != std::string_view::npos; at = text.find(find, at + 1)) {
        places.push_back(at);
    }
    return places;
}

AlarmFields CutAt(std::string_view text, std::size_t bracket, const Positions& slashes, std::size_t first) {
    const auto part = [&](std::size_t begin, std::size_t end) {
        return std::string(text.substr(begin, end - begin));
    };
    return {part(0, bracket), part(bracket + 2, slashes[first]), part(slashes[first] + 1, slashes[first + 1]),
            part(slashes[first + 1] + 1, slashes[first + 2]),
            std::string(text.substr(slashes[first + 2] + 1))};
}

// The slashes behind a bracket.
Positions Behind(const Positions& slashes, std::size_t bracket) {
    Positions behind;
    for (const std::size_t slash : slashes) {
        if (slash > bracket && behind.size() < kMostSlashes) behind.push_back(slash);
    }
    return behind;
}

}  // namespace

std::uint32_t cNumbered::Number(std::string_view text) {
    if (const auto known = m_Numbers.find(text); known != m_Numbers.end()) return known->second;
    const auto added = m_Numbers.emplace(text, static_cast<std::uint32_t>(m_Texts.size())).first;
    m_Texts.push_back(&added->first);
    return added->second;
}

cCutAlarm CutAlarm(std::string_view body, const std::function<bool(std::string_view)>& isCategory) {
    const std::string_view text =
        body.substr(0, body.empty() ? 0 : body.size() - 1);  // without the last bracket
    const Positions brackets = Places(text, " ("), slashes = Places(text, "/");
    cCutAlarm likely{{std::string(text), "", "", "", ""}, false};
    int cuts = 0, known = 0;
    // A sender writes brackets into the first text rather than into the second, so the last one that fits
    // counts.
    for (std::size_t i = 0; i < std::min(brackets.size(), kMostBrackets) && known == 0; ++i) {
        const std::size_t bracket = brackets[brackets.size() - 1 - i];
        const Positions behind = Behind(slashes, bracket);
        for (std::size_t first = 0; first + 3 <= behind.size(); ++first) {
            AlarmFields fields = CutAt(text, bracket, behind, first);
            const bool isKnown = isCategory(fields[2]);
            if (isKnown ? known == 0 : cuts == 0) likely.fields = std::move(fields);
            known += isKnown ? 1 : 0;
            ++cuts;
        }
    }
    likely.certain = cuts == 1 || known == 1;
    return likely;
}

std::uint32_t cAlarmNames::Sender(std::string_view name) {
    const std::uint32_t number = m_Senders.Number(ToUpper(name));
    if (number == m_SenderNames.size()) m_SenderNames.emplace_back(name);
    return number;
}

void cAlarmNames::Learn(std::uint32_t body, const AlarmFields& fields) {
    if (m_Fields.size() <= body) m_Fields.resize(body + 1);
    if (!m_Fields[body]) m_Fields[body] = fields;
    LearnCategory(fields[2]);
}

void cAlarmNames::LearnCategory(std::string_view category) {
    m_Categories.insert(ToUpper(category));
}

const AlarmFields& cAlarmNames::Fields(std::uint32_t body) {
    if (m_Fields.size() <= body) m_Fields.resize(body + 1);
    if (!m_Fields[body]) {
        const auto isCategory = [this](std::string_view text) {
            return m_Categories.contains(ToUpper(text));
        };
        cCutAlarm cut = CutAlarm(BodyText(body), isCategory);
        m_Uncertain += cut.certain ? 0 : 1;
        m_Fields[body] = std::move(cut.fields);
    }
    return *m_Fields[body];
}

std::uint32_t cAlarmNames::SourceOf(std::uint32_t sender, std::uint32_t body) {
    const std::uint64_t pair = (std::uint64_t{sender} << 32) | body;
    if (const auto known = m_SourceOfPair.find(pair); known != m_SourceOfPair.end()) return known->second;
    const AlarmFields& fields = Fields(body);
    std::string key = std::to_string(sender);
    for (std::size_t i = 0; i < 3; ++i) key += '\0' + fields[i];
    const std::uint32_t source = m_SourceKeys.Number(key);
    if (source == m_Sources.size()) m_Sources.push_back({sender, fields[0], fields[1], fields[2]});
    m_SourceOfPair.emplace(pair, source);
    return source;
}

}  // namespace vigrel::report
