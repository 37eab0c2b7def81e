#include "receiver-check/ini_document.h"

#include <utility>

#include "common/code_page.h"
#include "common/ini.h"
#include "common/text.h"

namespace vigrel {
namespace {

bool IsEmptyOrComment(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first == std::string_view::npos || line[first] == ';';
}

}  // namespace

cIniDocument::cIniDocument(std::string_view content) : m_Lines(SplitLines(content)) {
    std::size_t number = 0;
    for (const std::string& line : m_Lines) {
        ++number;
        if (auto name = IniHeaderName(line)) {
            const bool first = m_FirstSections.try_emplace(ToUpper(*name), m_Sections.size()).second;
            m_Sections.push_back({number, std::move(*name), line, first, {}, {}, {}});
            continue;
        }
        cSection& section = m_Sections.empty() ? m_Before : m_Sections.back();
        if (auto key = ReadIniKeyLine(line)) {
            const bool first = section.firstKeys.try_emplace(ToUpper(key->key), section.keys.size()).second;
            section.keys.push_back({number, std::move(key->key), key->value.substr(0, kMostValueCharacters),
                                    key->value.size(), first});
        } else if (!IsEmptyOrComment(line)) {
            section.odd.push_back({number, line});
        }
    }
}

const cIniDocument::cSection* cIniDocument::Section(std::string_view name) const {
    const auto found = m_FirstSections.find(ToUpper(name));
    return found == m_FirstSections.end() ? nullptr : &m_Sections[found->second];
}

const cIniDocument::cKey* cIniDocument::cSection::Key(std::string_view keyName) const {
    const auto found = firstKeys.find(ToUpper(keyName));
    return found == firstKeys.end() ? nullptr : &keys[found->second];
}

const cIniDocument::cKey* cIniDocument::Key(std::string_view section, std::string_view name) const {
    const cSection* found = Section(section);
    return found == nullptr ? nullptr : found->Key(name);
}

}  // namespace vigrel
