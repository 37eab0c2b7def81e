#include "support/fake_files.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"

namespace vigrel::testing {
namespace {

std::string Fold(std::string_view path) {
    std::string folded = ToUpper(path);
    for (char& c : folded) {
        if (c == '/') c = '\\';
    }
    return folded;
}

std::string FoldFolder(std::string_view path) {
    std::string folded = Fold(path);
    if (!folded.empty() && folded.back() != '\\') folded += '\\';
    return folded;
}

[[noreturn]] void Fail(eFailure number, std::string_view what, std::string_view path) {
    throw cFailure(number, std::string(path) + ": " + std::string(what));
}

}  // namespace

bool FitsMask(std::string_view name, std::string_view mask) {
    if (mask.empty()) return name.empty();
    if (mask[0] == '*') {
        return FitsMask(name, mask.substr(1)) || (!name.empty() && FitsMask(name.substr(1), mask));
    }
    if (name.empty()) return false;
    return (mask[0] == '?' || ToUpper(mask[0]) == ToUpper(name[0])) &&
           FitsMask(name.substr(1), mask.substr(1));
}

void cFakeFiles::Count(std::string_view operation, std::string_view path) {
    if (m_OnCall) m_OnCall(operation, path);
    if (m_Calls++ == m_FailCall) Fail(eFailure::InputOutput, "made to fail", path);
}

const cFakeFiles::cFile* cFakeFiles::Find(std::string_view path) const {
    const auto name = m_Names.find(Fold(path));
    return name == m_Names.end() ? nullptr : &m_Inodes.at(name->second);
}

cFakeFiles::cFile& cFakeFiles::Create(std::string_view path) {
    if (!m_Folders.contains(FoldFolder(SplitPath(path).folder))) {
        Fail(eFailure::PathAccess, "the folder does not exist", path);
    }
    if (m_FolderReadOnly) Fail(eFailure::PermissionDenied, "the folder can't be written", path);
    const std::int64_t inode = m_NextInode++;
    m_Names[Fold(path)] = inode;
    cFile& file = m_Inodes[inode];
    file.path = path;
    file.inode = inode;
    Change({"", Fold(path), file.path, inode});
    return file;
}

void cFakeFiles::Change(cNameChange change) {
    change.when = ++m_Clock;
    m_Changes.push_back(std::move(change));
}

// By value: the name can be that of the entry that goes.
void cFakeFiles::Unlink(std::string folded) {
    m_Names.erase(folded);
    Change({std::move(folded), "", "", 0});
}

void cFakeFiles::Apply(const cNameChange& change, std::map<std::string, cDurableName>& names) {
    names.erase(change.removed);
    if (!change.made.empty()) names[change.made] = {change.inode, change.spelling};
}

void cFakeFiles::MakeDurable(const std::function<bool(const cNameChange&)>& wanted) {
    for (const cNameChange& change : m_Changes) {
        if (!wanted(change)) continue;
        Apply(change, m_DurableNames);
        // A name that survives without its bytes is an empty file.
        if (change.inode != 0) m_DurableBytes.try_emplace(change.inode);
    }
    std::erase_if(m_Changes, wanted);
}

void cFakeFiles::MakeDurable(std::int64_t inode, std::string_view bytes) {
    m_DurableBytes[inode] = bytes;
    m_SyncedAt[inode] = ++m_Clock;
}

bool cFakeFiles::FileExists(std::string_view path) const {
    return Find(path) != nullptr;
}

std::string cFakeFiles::ReadFile(std::string_view path) const {
    const cFile* file = Find(path);
    if (file == nullptr) Fail(eFailure::FileNotFound, "the file does not exist", path);
    if (file->unreadable) Fail(eFailure::PermissionDenied, "the file can't be read", path);
    std::string bytes = file->bytes;
    if (m_OnRead) m_OnRead(path);
    return bytes;
}

std::vector<std::string> cFakeFiles::ListFiles(std::string_view folder, std::string_view mask) const {
    std::vector<std::string> names;
    if (m_FolderProblems.contains(std::string(folder))) return names;
    for (const auto& [folded, inode] : m_Names) {
        const cPathParts parts = SplitPath(m_Inodes.at(inode).path);
        if (FoldFolder(parts.folder) == FoldFolder(folder) && parts.name[0] != '.' &&
            FitsMask(parts.name, mask)) {
            names.push_back(parts.name);
        }
    }
    if (m_ListsBackwards) std::reverse(names.begin(), names.end());
    return names;
}

cFileReader::cListing cFakeFiles::List(std::string_view folder, std::string_view mask) const {
    cListing listing{ListFiles(folder, mask), {}, ""};
    if (const auto problem = m_FolderProblems.find(std::string(folder)); problem != m_FolderProblems.end())
        listing.problem = problem->second;
    const auto found = m_Unreadable.find(std::string(folder));
    if (found == m_Unreadable.end()) return listing;
    for (const cUnreadable& entry : found->second) {
        if (!FitsMask(entry.name, mask)) continue;
        std::erase(listing.names, entry.name);
        listing.unreadable.push_back(entry);
    }
    return listing;
}

std::vector<std::string> cFakeFiles::ListNames(std::string_view folder, std::string_view mask) const {
    auto [names, unreadable, problem] = List(folder, mask);
    if (!problem.empty()) throw cFailure(eFailure::PathAccess, problem);
    for (cUnreadable& entry : unreadable) names.push_back(std::move(entry.name));
    return names;
}

std::string cFakeFiles::Spelling(std::string_view path) const {
    const cFile* file = Find(path);
    return file == nullptr ? std::string(path) : file->path;
}

cFileReader::cStamp cFakeFiles::Stamp(std::string_view path) const {
    const cFile* file = Find(path);
    if (file == nullptr) return {};
    return {1, file->inode, static_cast<std::int64_t>(file->bytes.size()), file->modified, file->modified};
}

void cFakeFiles::WriteFile(std::string_view path, std::string_view bytes, bool sync) {
    Count("write", path);
    if (const auto name = m_Names.find(Fold(path)); name != m_Names.end()) {
        if (m_Inodes.at(name->second).readOnly || m_FolderReadOnly)
            Fail(eFailure::PermissionDenied, "the file is write-protected", path);
        path = m_Inodes.at(name->second).path;
        Unlink(name->first);
    }
    cFile& file = Create(path);
    file.modified = ++m_Clock;
    if (m_DiskFull) {
        file.bytes = bytes.substr(0, bytes.size() / 2);
        Fail(eFailure::DiskFull, "the disk is full", path);
    }
    file.bytes = bytes;
    if (sync) MakeDurable(file.inode, bytes);
}

void cFakeFiles::AppendFile(std::string_view path, std::string_view bytes) {
    Count("append", path);
    const auto name = m_Names.find(Fold(path));
    cFile& file = name == m_Names.end() ? Create(path) : m_Inodes.at(name->second);
    if (m_DiskFull) Fail(eFailure::DiskFull, "the disk is full", path);
    if (file.readOnly) Fail(eFailure::PermissionDenied, "the file is write-protected", path);
    file.modified = ++m_Clock;
    file.bytes += bytes;
}

void cFakeFiles::RemoveFile(std::string_view path) {
    Count("remove", path);
    const cFile* file = Find(path);
    if (file == nullptr) Fail(eFailure::FileNotFound, "the file does not exist", path);
    if (file->readOnly || m_FolderReadOnly)
        Fail(eFailure::PermissionDenied, "the file can't be removed", path);
    Unlink(Fold(path));
}

void cFakeFiles::RenameFile(std::string_view from, std::string_view to) {
    Count("rename", from);
    const auto name = m_Names.find(Fold(from));
    if (name == m_Names.end()) Fail(eFailure::FileNotFound, "the file does not exist", from);
    if (m_FolderReadOnly) Fail(eFailure::PermissionDenied, "the folder can't be written", from);
    const std::int64_t inode = name->second;
    m_Names.erase(name);
    m_Names[Fold(to)] = inode;
    m_Inodes.at(inode).path = to;
    Change({Fold(from), Fold(to), std::string(to), inode});
}

void cFakeFiles::SyncFolder(std::string_view folder) {
    Count("sync", folder);
    const std::string folded = FoldFolder(folder);
    const auto inside = [&](const std::string& path) { return FoldFolder(SplitPath(path).folder) == folded; };
    MakeDurable([&](const cNameChange& change) { return inside(change.removed) || inside(change.made); });
    for (const std::string& made : m_Folders) {
        if (inside(made.substr(0, made.size() - 1))) m_DurableFolders.insert(made);
    }
}

// What was there when it began is durable when it is done: at once, or, on a busy disk, when somebody waits.
class cFakeFiles::cSync : public cPendingSync {
  public:
    explicit cSync(cFakeFiles& files) : m_Files(files), m_Begun(files.m_Clock), m_Folders(files.m_Folders) {
        for (const std::int64_t inode : files.UnsyncedContents())
            m_Contents[inode] = files.m_Inodes.at(inode).bytes;
        if (!m_Files.m_DiskIsBusy) cSync::Wait();
    }
    bool Done() const override { return m_Done; }
    bool Wait() override {
        if (std::exchange(m_Done, true)) return true;
        for (const auto& [inode, bytes] : m_Contents) {
            if (m_Files.m_SyncedAt[inode] <= m_Begun) m_Files.MakeDurable(inode, bytes);
        }
        m_Files.MakeDurable([this](const cNameChange& change) { return change.when <= m_Begun; });
        m_Files.m_DurableFolders.insert(m_Folders.begin(), m_Folders.end());
        return true;
    }

  private:
    cFakeFiles& m_Files;
    std::int64_t m_Begun;
    std::map<std::int64_t, std::string> m_Contents;
    std::set<std::string> m_Folders;
    bool m_Done = false;
};

std::unique_ptr<cPendingSync> cFakeFiles::StartSync(std::string_view folder) {
    Count("sync all", folder);
    return std::make_unique<cSync>(*this);
}

void cFakeFiles::MakeFolder(std::string_view path) {
    Count("mkdir", path);
    if (m_FolderReadOnly) Fail(eFailure::PermissionDenied, "the folder can't be written", path);
    if (!m_Folders.insert(FoldFolder(path)).second) Fail(eFailure::PathAccess, "the folder exists", path);
}

void cFakeFiles::SetNormalAttributes(std::string_view path) {
    Count("attributes", path);
    if (Find(path) == nullptr) Fail(eFailure::FileNotFound, "the file does not exist", path);
    SetReadOnly(path, false);
}

std::string cFakeFiles::LinkTarget(std::string_view path) const {
    const auto link = m_Links.find(std::string(path));
    if (link == m_Links.end()) return std::string(path);
    if (link->second.empty()) Fail(eFailure::PermissionDenied, "the link is not followed", path);
    return link->second;
}

void cFakeFiles::Put(std::string_view path, std::string_view bytes) {
    PutFolder(SplitPath(path).folder);
    const auto name = m_Names.find(Fold(path));
    cFile& file = name == m_Names.end() ? Create(path) : m_Inodes.at(name->second);
    file.bytes = bytes;
    file.modified = ++m_Clock;
    MakeDurable([&](const cNameChange& change) { return change.made == Fold(path); });
    m_DurableNames[Fold(path)] = {file.inode, file.path};
    MakeDurable(file.inode, bytes);
}

void cFakeFiles::PutFolder(std::string_view path) {
    m_Folders.insert(FoldFolder(path));
    m_DurableFolders.insert(FoldFolder(path));
}
bool cFakeFiles::HasFolder(std::string_view path) const {
    return m_Folders.contains(FoldFolder(path));
}

std::vector<std::string> cFakeFiles::AllPaths() const {
    std::vector<std::string> paths;
    for (const auto& [folded, inode] : m_Names) paths.push_back(m_Inodes.at(inode).path);
    return paths;
}

std::set<std::int64_t> cFakeFiles::Reachable() const {
    std::set<std::int64_t> reachable;
    for (const auto& [path, inode] : m_Names) reachable.insert(inode);
    for (const auto& [path, name] : m_DurableNames) reachable.insert(name.inode);
    for (const cNameChange& change : m_Changes) {
        if (change.inode != 0) reachable.insert(change.inode);
    }
    return reachable;
}

void cFakeFiles::DropUnreachable() {
    const std::set<std::int64_t> reachable = Reachable();
    const auto isGone = [&](const auto& entry) { return !reachable.contains(entry.first); };
    std::erase_if(m_Inodes, isGone);
    std::erase_if(m_DurableBytes, isGone);
    std::erase_if(m_SyncedAt, isGone);
}

std::vector<std::int64_t> cFakeFiles::UnsyncedContents() const {
    const std::set<std::int64_t> reachable = Reachable();
    std::vector<std::int64_t> unsynced;
    std::copy_if(reachable.begin(), reachable.end(), std::back_inserter(unsynced),
                 [this](std::int64_t inode) {
                     const auto durable = m_DurableBytes.find(inode);
                     return durable == m_DurableBytes.end() || durable->second != m_Inodes.at(inode).bytes;
                 });
    return unsynced;
}

std::size_t cFakeFiles::UnsyncedCount() const {
    return m_Changes.size() + UnsyncedContents().size();
}

void cFakeFiles::Crash(const std::vector<eFate>& fates) {
    const auto fateOf = [&](std::size_t i) { return i < fates.size() ? fates[i] : eFate::Lost; };
    const std::vector<std::int64_t> contents = UnsyncedContents();
    for (std::size_t i = 0; i < contents.size(); ++i) {
        const std::string& bytes = m_Inodes.at(contents[i]).bytes;
        const eFate fate = fateOf(m_Changes.size() + i);
        if (fate == eFate::Kept) m_DurableBytes[contents[i]] = bytes;
        if (fate == eFate::Torn) m_DurableBytes[contents[i]] = bytes.substr(0, bytes.size() / 2);
        if (fate == eFate::Zeroed) m_DurableBytes[contents[i]] = std::string(bytes.size(), '\0');
    }
    for (std::size_t i = 0; i < m_Changes.size(); ++i) {
        if (fateOf(i) != eFate::Lost) Apply(m_Changes[i], m_DurableNames);
    }
    m_Changes.clear();
    m_Folders = m_DurableFolders;
    std::erase_if(m_DurableNames, [this](const auto& name) {
        return !m_Folders.contains(FoldFolder(SplitPath(name.first).folder));
    });
    m_Names.clear();
    std::map<std::int64_t, cFile> survivors;
    for (const auto& [path, name] : m_DurableNames) {
        m_Names[path] = name.inode;
        cFile file = m_Inodes.at(name.inode);
        file.path = name.spelling;
        file.bytes = m_DurableBytes[name.inode];
        survivors[name.inode] = std::move(file);
    }
    m_Inodes = std::move(survivors);
}

void cFakeFiles::SetReadOnly(std::string_view path, bool readOnly) {
    m_Inodes.at(m_Names.at(Fold(path))).readOnly = readOnly;
}

void cFakeFiles::SetUnreadable(std::string_view path, bool unreadable) {
    m_Inodes.at(m_Names.at(Fold(path))).unreadable = unreadable;
}

}  // namespace vigrel::testing
