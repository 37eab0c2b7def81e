#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace vigrel {

enum class eSeverity {
    Remark,   // worth a look; may be meant
    Warning,  // a setting doesn't do what it says
    Error     // the station doesn't start or receive, or alarms stay unseen, unheard or unsupervised
};

// Where something is. Text in the code page; line 0: the file as a whole.
struct cPlace {
    std::string file;  // relative to the application folder; empty: the machine
    std::size_t line = 0;
    std::string section, key, value;

    bool operator==(const cPlace&) const = default;
};

struct cFinding {
    eSeverity severity = eSeverity::Remark;
    std::string name;  // of the kind of finding, for scripts: "flag-not-0-or-1"
    cPlace place;
    std::string message;  // for the installer
};

class cFindings {
  public:
    void Error(std::string name, cPlace place, std::string message) {
        Add(eSeverity::Error, std::move(name), std::move(place), std::move(message));
    }
    void Warning(std::string name, cPlace place, std::string message) {
        Add(eSeverity::Warning, std::move(name), std::move(place), std::move(message));
    }
    void Remark(std::string name, cPlace place, std::string message) {
        Add(eSeverity::Remark, std::move(name), std::move(place), std::move(message));
    }
    void Add(eSeverity severity, std::string name, cPlace place, std::string message) {
        m_All.push_back({severity, std::move(name), std::move(place), std::move(message)});
    }
    std::size_t Count(eSeverity severity) const {
        std::size_t count = 0;
        for (const cFinding& finding : m_All) count += finding.severity == severity ? 1 : 0;
        return count;
    }

    std::vector<cFinding> m_All;
};

}  // namespace vigrel
