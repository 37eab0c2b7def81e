#include <algorithm>

#include "common/text.h"
#include "link/sender_table.h"
#include "receiver-check/checks.h"
#include "receiver-check/values.h"

namespace vigrel {
namespace {

struct cEntry {
    std::string text, name;
    cPlace place;
};

class cSenderCheck {
  public:
    cSenderCheck(const cInstallation& installation, cFindings& findings)
        : m_Installation(installation), m_Findings(findings) {}

    void Run() {
        const std::size_t fitting = Read(kSenderBuffer).size();
        const std::vector<std::string> all = Read(m_Installation.Content().size() + 2);
        const std::vector<std::size_t> lines = LinesOf(all);
        // An empty one ends the table.
        for (std::size_t i = 0; i < all.size() && !all[i].empty(); ++i) {
            if (i == fitting) {
                m_Findings.Error("senders-dont-fit", PlaceOf(all[i], lines[i]),
                                 "section Senders fills more than " + std::to_string(kSenderBuffer) +
                                     " characters: this line and those behind it are not read");
                return;
            }
            if (!Sender(all[i], lines[i])) return;
        }
        if (m_Senders.size() == static_cast<std::size_t>(kMostSenders)) {
            m_Findings.Remark("senders-full", m_Senders.back().place,
                              "is the last sender that the table takes; a message says so at each start");
        }
    }

  private:
    std::vector<std::string> Read(std::size_t size) const {
        return ReadIniEntries(m_Installation.Files(), "Senders", size, m_Installation.IniPath()).entries;
    }

    // The lines on which the entries stand: in the order of the file, below the header. 0 where zero bytes
    // cut a line into entries.
    std::vector<std::size_t> LinesOf(const std::vector<std::string>& entries) const {
        const std::vector<std::string>& lines = m_Installation.Document().m_Lines;
        const cIniDocument::cSection* section = m_Installation.Document().Section("Senders");
        auto next = lines.begin() + static_cast<std::ptrdiff_t>(section == nullptr ? 0 : section->line);
        std::vector<std::size_t> numbers;
        for (const std::string& entry : entries) {
            const auto found = std::find(next, lines.end(), entry);
            if (found != lines.end()) next = found + 1;
            numbers.push_back(found == lines.end() ? 0 : static_cast<std::size_t>(next - lines.begin()));
        }
        return numbers;
    }

    static cPlace PlaceOf(const std::string& entry, std::size_t line) {
        const std::size_t equals = entry.find('=');
        const std::string value = equals == std::string::npos ? "" : entry.substr(equals + 1);
        return {std::string(kIniFile), line, "Senders", entry.substr(0, equals), value};
    }

    // False when the table is full.
    bool Sender(const std::string& entry, std::size_t line) {
        if (entry.find('=') == std::string::npos || Trim(entry).starts_with(';')) return true;
        const cPlace place = PlaceOf(entry, line);
        if (m_Senders.size() == static_cast<std::size_t>(kMostSenders)) {
            m_Findings.Error("senders-too-many", place,
                             "the table takes " + std::to_string(kMostSenders) +
                                 " senders: this one and those behind it are not supervised");
            return false;
        }
        Name(place);
        Minutes(place);
        m_Senders.push_back({entry, place.key, place});
        return true;
    }

    void Name(const cPlace& place) {
        const std::size_t first = place.key.find_first_not_of(" \t");
        if (first == std::string::npos) {
            m_Findings.Warning("sender-without-name", place, "names no sender");
            return;
        }
        if (first > 0 || place.key.find_last_not_of(" \t") + 1 < place.key.size()) {
            m_Findings.Warning("sender-blanks", place,
                               "the blanks around the name are part of it: \"" + place.key +
                                   "\" matches no sender that sends its name without them");
        }
        const auto same = std::find_if(m_Senders.begin(), m_Senders.end(), [&](const cEntry& sender) {
            return EqualsNoCase(sender.name, place.key);
        });
        if (same != m_Senders.end()) {
            m_Findings.Error("sender-repeated", place,
                             "stands in line " + std::to_string(same->place.line) +
                                 " already, which counts; this line's sender is never heard");
        }
    }

    void Minutes(const cPlace& place) {
        cSettingKey key;
        key.kind = eValueKind::Int16;
        key.high = 32767;
        cPlace minutes = place;
        const std::size_t second = minutes.value.find('=');
        if (second != std::string::npos) {
            m_Findings.Warning("sender-second-equals", place,
                               "what stands behind the second \"=\" is not read");
            minutes.value.resize(second);
        }
        if (Trim(minutes.value).empty()) {
            m_Findings.Warning("sender-without-minutes", place, "has no minutes and is not supervised");
        } else {
            CheckValue(key, eOverflow::EndsStart, minutes, m_Findings);
        }
    }

    const cInstallation& m_Installation;
    cFindings& m_Findings;
    std::vector<cEntry> m_Senders;
};

}  // namespace

void CheckSenders(const cInstallation& installation, cFindings& findings) {
    cSenderCheck(installation, findings).Run();
}

}  // namespace vigrel
