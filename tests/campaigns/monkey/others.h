#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "editor_ui/editor_bench.h"

namespace vigrel::campaign {

// Another program that works on the definitions of the same station, and a judge of what becomes of its work.
// Whatever it writes carries a sign that the editor's user can't type, in a field that he leaves alone: what
// the editor saves over it without asking has to carry the sign on.
class cOthers {
  public:
    // What is handed in must outlive the object.
    cOthers(testing::cEditorBench& bench, bool profiles, std::function<int(int limit)> below);

    // Changes, damages, removes or adds a file.
    void Work();
    // Looks at the files after something that the user did, with as many questions answered. Throws when more
    // work of this program was lost than was asked about.
    void Judge(int questions);
    // The object name of the field that carries the sign.
    const char* Field() const { return m_Profiles ? "Text_Condition_5" : "Text_ParallellNumbers"; }

  private:
    struct cSeen {
        std::optional<std::string> bytes;  // none: no such file
        bool isTheirs = false;
    };
    std::string PathOf(int number) const;
    void Sign(int number);
    std::optional<std::string> OnDisk(const std::string& path) const;
    bool IsLost(const cSeen& seen, const std::optional<std::string>& now) const;

    testing::cEditorBench& m_Bench;
    // With a log and notes of its own.
    cStationDefinitions m_Station;
    bool m_Profiles;
    std::function<int(int)> m_Below;
    int m_Signs = 0;
    std::map<std::string, cSeen> m_Seen;  // by path
};

}  // namespace vigrel::campaign
