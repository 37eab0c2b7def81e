#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// An INI file with the numbers of its lines, which readers of single keys don't keep. What is a header and
// what a key is decided by the procedures of common/ini.h.
class cIniDocument {
  public:
    struct cKey {
        std::size_t line = 0;
        std::string name;
        std::string value;       // as much of it as is read
        std::size_t length = 0;  // of the whole value
        bool first = true;       // of this name in its section
    };
    struct cLine {
        std::size_t line = 0;
        std::string text;
    };
    struct cSection {
        std::size_t line = 0;
        std::string name;
        std::string header;  // the line as it stands
        bool first = true;   // of this name
        std::vector<cKey> keys;
        std::vector<cLine> odd;  // neither key, comment nor empty
        // The key that counts.
        const cKey* Key(std::string_view keyName) const;

        std::map<std::string, std::size_t, std::less<>> firstKeys;  // index by upper-cased name
    };

    cIniDocument() = default;
    explicit cIniDocument(std::string_view content);

    // The first section of the name; none when there is none.
    const cSection* Section(std::string_view name) const;
    // The key that counts.
    const cKey* Key(std::string_view section, std::string_view name) const;

    cSection m_Before;  // what stands before the first header
    std::vector<cSection> m_Sections;
    std::vector<std::string> m_Lines;

  private:
    std::map<std::string, std::size_t, std::less<>> m_FirstSections;  // index by upper-cased name
};

}  // namespace vigrel
