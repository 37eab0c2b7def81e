#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "campaigns/monkey/shared_files.h"

namespace vigrel::campaign {

// Another program that works on the files of a page, and a judge of what becomes of its work. Whatever it
// writes carries a sign that the editor's user can't type: what the editor saves over it without asking has
// to carry the sign on.
class cOthers {
  public:
    // What is handed in must outlive the object.
    cOthers(testing::cEditorBench& bench, const std::string& page, std::function<int(int limit)> below);

    // Changes, damages, removes or adds a file.
    void Work();
    // Writes anew what is missing or damaged.
    void Mend();
    // The user has answered a question in such a way that the editor may replace or remove the file that it
    // is about.
    void NoteConsent(const QString& question);
    // Looks at the files after something that the user did. Throws when work of this program was lost in a
    // file that no consent since the last look was about.
    void Judge();

  private:
    struct cSeen {
        std::optional<std::string> bytes;  // none: no such file
        bool isTheirs = false;             // the last word
    };
    void Sign(const cSharedFile& file);
    std::optional<std::string> OnDisk(const std::string& path) const;
    static bool IsLost(const cSharedFile& file, const cSeen& seen, const std::optional<std::string>& now);

    testing::cEditorBench& m_Bench;
    cStationDefinitions m_Station;
    std::vector<cSharedFile> m_Files;
    std::function<int(int)> m_Below;
    int m_Signs = 0;
    std::map<std::string, cSeen> m_Seen;  // by path
    std::set<std::string> m_Consents;     // paths
};

}  // namespace vigrel::campaign
