#include "receiver-check/ini_document.h"

#include <algorithm>
#include <utility>

#include "common/ini.h"
#include "common/text.h"

namespace vigrel {
namespace {

template <class Items>
bool Has(const Items& items, std::string_view name) {
    return std::any_of(items.begin(), items.end(),
                       [&](const auto& item) { return EqualsNoCase(item.name, name); });
}

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
            const bool first = !Has(m_Sections, *name);
            m_Sections.push_back({number, std::move(*name), line, first, {}, {}});
            continue;
        }
        cSection& section = m_Sections.empty() ? m_Before : m_Sections.back();
        if (auto key = ReadIniKeyLine(line)) {
            const bool first = !Has(section.keys, key->key);
            section.keys.push_back({number, std::move(key->key), key->value.substr(0, kMostValueCharacters),
                                    key->value.size(), first});
        } else if (!IsEmptyOrComment(line)) {
            section.odd.push_back({number, line});
        }
    }
}

const cIniDocument::cSection* cIniDocument::Section(std::string_view name) const {
    const auto found = std::find_if(m_Sections.begin(), m_Sections.end(), [&](const cSection& section) {
        return EqualsNoCase(section.name, name);
    });
    return found == m_Sections.end() ? nullptr : &*found;
}

const cIniDocument::cKey* cIniDocument::Key(std::string_view section, std::string_view name) const {
    const cSection* found = Section(section);
    if (found == nullptr) return nullptr;
    const auto key = std::find_if(found->keys.begin(), found->keys.end(),
                                  [&](const cKey& k) { return EqualsNoCase(k.name, name); });
    return key == found->keys.end() ? nullptr : &*key;
}

}  // namespace vigrel
