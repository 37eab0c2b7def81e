#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <optional>

#include "adapters/linux/files.h"
#include "common/code_page.h"
#include "common/text.h"

namespace vigrel {
namespace {

bool Exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

// Up to this many letters every spelling of a name is tried, which beats reading a folder of thousands of
// files.
constexpr std::size_t kMostLettersToTry = 4;

// The spelling of a name that differs only in case and exists, when the name has few letters: nullopt means
// that it has too many to try, an empty text that there is none.
std::optional<std::string> TrySpellings(const std::string& folder, const std::string& name) {
    std::vector<std::size_t> letters;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (Code(name[i]) >= 0x80) return std::nullopt;
        if (ToUpper(name[i]) != ToLower(name[i])) letters.push_back(i);
    }
    if (letters.size() > kMostLettersToTry) return std::nullopt;
    for (std::size_t choice = 0; choice < (std::size_t{1} << letters.size()); ++choice) {
        std::string spelling = name;
        for (std::size_t bit = 0; bit < letters.size(); ++bit) {
            char& letter = spelling[letters[bit]];
            letter = (choice >> bit & 1) != 0 ? ToUpper(letter) : ToLower(letter);
        }
        if (Exists(folder + spelling)) return spelling;
    }
    return std::string();
}

std::string SearchFolder(const std::string& folder, const std::string& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.empty() ? "." : folder.c_str()),
                                                     closedir);
    if (!stream) return {};
    const std::string wanted = ToUpper(Utf8ToCodePage(name));
    while (const dirent* entry = readdir(stream.get())) {
        if (ToUpper(Utf8ToCodePage(entry->d_name)) == wanted) return entry->d_name;
    }
    return {};
}

// One part of a path as it is spelled on disk, or as given when there is no such name.
std::string Spelling(const std::string& folder, const std::string& name) {
    if (name.empty() || name == "." || name == ".." || Exists(folder + name)) return name;
    const auto tried = TrySpellings(folder, name);
    const std::string found = tried ? *tried : SearchFolder(folder, name);
    return found.empty() ? name : found;
}

}  // namespace

std::string NativePath(std::string_view path) {
    std::string rest = CodePageToUtf8(path);
    for (char& c : rest) {
        if (c == '\\') c = '/';
    }
    if (Exists(rest)) return rest;
    // The usual case of a new file: only the last part is in question.
    std::string native;
    std::size_t from = rest.rfind('/') + 1;
    if (from > 0 && Exists(rest.substr(0, from))) {
        native = rest.substr(0, from);
    } else {
        from = 0;
    }
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
