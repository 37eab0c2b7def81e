#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <optional>

#include "adapters/linux/linux_files.h"
#include "common/code_page.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

bool Exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

// A folder held open, so that looking for many names in it walks the path to it once.
class cFolder {
  public:
    explicit cFolder(const std::string& path)
        : m_Descriptor(open(path.empty() ? "." : path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}
    ~cFolder() {
        if (m_Descriptor >= 0) close(m_Descriptor);
    }
    cFolder(const cFolder&) = delete;
    cFolder& operator=(const cFolder&) = delete;

    bool Has(const std::string& name) const {
        struct stat status {};
        return fstatat(m_Descriptor, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    }

  private:
    int m_Descriptor;
};

// Up to this many letters every spelling of a name is tried, which beats reading a folder of thousands of
// files.
constexpr std::size_t kMostLettersToTry = 4;

// The spelling of a name that differs only in case and exists, when the name has few letters: nullopt means
// that it has too many to try, an empty text that there is none. The name itself does not exist.
std::optional<std::string> TrySpellings(const std::string& folder, const std::string& name) {
    std::vector<std::size_t> letters;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (Code(name[i]) >= 0x80) return std::nullopt;
        if (ToUpper(name[i]) != ToLower(name[i])) letters.push_back(i);
    }
    if (letters.size() > kMostLettersToTry) return std::nullopt;
    if (letters.empty()) return std::string();
    const cFolder opened(folder);
    for (std::size_t choice = 0; choice < (std::size_t{1} << letters.size()); ++choice) {
        std::string spelling = name;
        for (std::size_t bit = 0; bit < letters.size(); ++bit) {
            char& letter = spelling[letters[bit]];
            letter = (choice >> bit & 1) != 0 ? ToUpper(letter) : ToLower(letter);
        }
        if (spelling != name && opened.Has(spelling)) return spelling;
    }
    return std::string();
}

std::string SearchFolder(const std::string& folder, const std::string& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.empty() ? "." : folder.c_str()),
                                                     closedir);
    if (!stream) return {};
    const std::string wanted = ToUpper(PathText(name));
    while (const dirent* entry = readdir(stream.get())) {
        if (ToUpper(PathText(entry->d_name)) == wanted) return entry->d_name;
    }
    return {};
}

// The spelling on disk of a name that does not exist as given, or the name itself when there is none.
std::string OtherSpelling(const std::string& folder, const std::string& name) {
    const auto tried = TrySpellings(folder, name);
    const std::string found = tried ? *tried : SearchFolder(folder, name);
    return found.empty() ? name : found;
}

// One part of a path as it is spelled on disk, or as given when there is no such name.
std::string Spelling(const std::string& folder, const std::string& name) {
    const bool asGiven = name.empty() || name == "." || name == ".." || Exists(folder + name);
    return asGiven ? name : OtherSpelling(folder, name);
}

}  // namespace

std::string SpelledPath(std::string_view path) {
    return PathBytes(path);
}

std::string NativePath(std::string_view path) {
    std::string rest = SpelledPath(path);
    if (Exists(rest)) return rest;
    // The usual case of a new file: only the last part is in question.
    const std::size_t last = rest.rfind('/') + 1;
    if (last > 0 && last < rest.size() && Exists(rest.substr(0, last))) {
        return rest.substr(0, last) + OtherSpelling(rest.substr(0, last), rest.substr(last));
    }
    std::string native;
    std::size_t from = 0;
    while (from < rest.size()) {
        const std::size_t end = rest.find('/', from);
        const std::string part = rest.substr(from, end == std::string::npos ? end : end - from);
        native += Spelling(native, part);
        if (end == std::string::npos) break;
        native += '/';
        from = end + 1;
    }
    return native;
}

}  // namespace vigrel
