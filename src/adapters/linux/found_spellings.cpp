#include "adapters/linux/found_spellings.h"

#include "adapters/linux/file_times.h"
#include "adapters/linux/links.h"
#include "adapters/linux/native_path.h"

namespace vigrel {
namespace {

// No program asks for more such files again and again.
constexpr std::size_t kMost = 100;

bool Look(const std::string& folder, struct stat& status) {
    return stat(folder.empty() ? "." : folder.c_str(), &status) == 0;
}

bool IsUnchanged(const struct stat& folder, const struct stat& before) {
    return folder.st_dev == before.st_dev && folder.st_ino == before.st_ino &&
           Nanoseconds(folder.st_mtim) == Nanoseconds(before.st_mtim) &&
           Nanoseconds(folder.st_ctim) == Nanoseconds(before.st_ctim);
}

}  // namespace

std::string cFoundSpellings::Recall(const std::string& spelled) const {
    const auto found = m_Found.find(spelled);
    if (found == m_Found.end()) return {};
    struct stat folder {};
    return Look(FolderOf(spelled), folder) && IsUnchanged(folder, found->second.folder) ? found->second.native
                                                                                        : "";
}

std::string cFoundSpellings::Search(std::string_view path) {
    const std::string spelled = SpelledPath(path), folder = FolderOf(spelled);
    // Before the search: what comes meanwhile makes the folder another one.
    struct stat before {};
    const bool settled = Look(folder, before) && IsSettled(before);
    std::string native = NativePath(path);
    m_Found.erase(spelled);
    if (!settled || native == spelled || FolderOf(native) != folder) return native;
    if (m_Found.size() == kMost) m_Found.clear();
    m_Found.insert({spelled, {native, before}});
    return native;
}

}  // namespace vigrel
