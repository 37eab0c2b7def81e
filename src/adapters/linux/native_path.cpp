#include "adapters/linux/native_path.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>
#include <vector>

#include "adapters/linux/file_failure.h"
#include "adapters/linux/file_handle.h"
#include "common/code_page.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

bool Exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

// What a name must stand for, itself or by a link, to count before others that differ in case only: a file at
// the end of a path (S_IFREG), a folder in front of it (S_IFDIR). Anybody can put something else beside it.
bool IsOfKind(const std::string& path, mode_t kind) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == kind;
}

// For what stops every look into a folder for a while. Who must not read one, by its rights, has to spell its
// names as they are.
void FailWhenPassing(const std::string& folder) {
    if (errno == EMFILE || errno == ENFILE || errno == ENOMEM || errno == EIO) FailByErrno(PathText(folder));
}

// A folder held open, so that looking for many names in it walks the path to it once.
class cFolder {
  public:
    explicit cFolder(const std::string& path)
        : m_Folder(open(path.empty() ? "." : path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
        if (!m_Folder) FailWhenPassing(path);
    }

    bool Has(const std::string& name) const {
        struct stat status {};
        return fstatat(m_Folder.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    }

  private:
    cFileHandle m_Folder;
};

// Up to this many letters every spelling of a name is tried, which beats reading a folder of thousands of
// files.
constexpr std::size_t kMostLettersToTry = 4;

// Hands on the other spellings of a name in ASCII, as long as take says false. False when it has too many
// letters to try them all.
template <class Take>
bool TrySpellings(const std::string& name, Take take) {
    std::vector<std::size_t> letters;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (Code(name[i]) >= 0x80) return false;
        if (ToUpper(name[i]) != ToLower(name[i])) letters.push_back(i);
    }
    if (letters.size() > kMostLettersToTry) return false;
    for (std::size_t choice = 0; choice < (std::size_t{1} << letters.size()); ++choice) {
        std::string spelling = name;
        for (std::size_t bit = 0; bit < letters.size(); ++bit) {
            char& letter = spelling[letters[bit]];
            letter = (choice >> bit & 1) != 0 ? ToUpper(letter) : ToLower(letter);
        }
        if (spelling != name && take(spelling)) return true;
    }
    return true;
}

template <class Take>
void SearchFolder(const std::string& folder, const std::string& name, Take take) {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.empty() ? "." : folder.c_str()),
                                                     closedir);
    if (!stream) return FailWhenPassing(folder);
    const std::string wanted = ToUpper(PathText(name));
    errno = 0;
    while (const dirent* entry = readdir(stream.get())) {
        if (name != entry->d_name && ToUpper(PathText(entry->d_name)) == wanted && take(entry->d_name))
            return;
        errno = 0;
    }
    FailWhenPassing(folder);
}

// Another spelling of a name that is on the disk: the first of the kind; else the first at all; else empty.
std::string OtherSpelling(const std::string& folder, const std::string& name, mode_t kind) {
    std::string first;
    std::string ofKind;
    const auto take = [&](const std::string& spelling) {
        if (first.empty()) first = spelling;
        if (IsOfKind(folder + spelling, kind)) ofKind = spelling;
        return !ofKind.empty();
    };
    const cFolder opened(folder);
    const auto takeExisting = [&](const std::string& spelling) {
        return opened.Has(spelling) && take(spelling);
    };
    if (!TrySpellings(name, takeExisting)) SearchFolder(folder, name, take);
    return ofKind.empty() ? first : ofKind;
}

// One part of a path as it is spelled on disk, or as given when there is no such name.
std::string Spelling(const std::string& folder, const std::string& name, mode_t kind) {
    if (name.empty() || name == "." || name == ".." || IsOfKind(folder + name, kind)) return name;
    const std::string other = OtherSpelling(folder, name, kind);
    const bool better = !other.empty() && (IsOfKind(folder + other, kind) || !Exists(folder + name));
    return better ? other : name;
}

}  // namespace

std::string SpelledPath(std::string_view path) {
    return PathBytes(path);
}

std::string NativePath(std::string_view path) {
    std::string rest = SpelledPath(path);
    if (IsOfKind(rest, S_IFREG)) return rest;
    // The usual case of a new file: only the last part is in question.
    const std::size_t last = rest.rfind('/') + 1;
    if (last > 0 && Exists(rest.substr(0, last))) {
        return rest.substr(0, last) + Spelling(rest.substr(0, last), rest.substr(last), S_IFREG);
    }
    std::string native;
    std::size_t from = 0;
    while (from < rest.size()) {
        const std::size_t end = rest.find('/', from);
        const std::string part = rest.substr(from, end == std::string::npos ? end : end - from);
        native += Spelling(native, part, end == std::string::npos ? S_IFREG : S_IFDIR);
        if (end == std::string::npos) break;
        native += '/';
        from = end + 1;
    }
    return native;
}

}  // namespace vigrel
