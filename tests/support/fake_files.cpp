#include "support/fake_files.h"

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
    return file;
}

bool cFakeFiles::FileExists(std::string_view path) const {
    return Find(path) != nullptr;
}

std::string cFakeFiles::ReadFile(std::string_view path) const {
    const cFile* file = Find(path);
    if (file == nullptr) Fail(eFailure::FileNotFound, "the file does not exist", path);
    if (file->unreadable) Fail(eFailure::PermissionDenied, "the file can't be read", path);
    return file->bytes;
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
    const auto name = m_Names.find(Fold(path));
    cFile& file = name == m_Names.end() ? Create(path) : m_Inodes.at(name->second);
    if (file.readOnly) Fail(eFailure::PermissionDenied, "the file is write-protected", path);
    file.modified = ++m_Clock;
    if (m_DiskFull) {
        file.bytes = bytes.substr(0, bytes.size() / 2);
        Fail(eFailure::DiskFull, "the disk is full", path);
    }
    file.bytes = bytes;
    if (sync) m_DurableBytes[file.inode] = bytes;
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
    m_Names.erase(Fold(path));
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
}

void cFakeFiles::SyncFolder(std::string_view folder) {
    Count("sync", folder);
    const std::string folded = FoldFolder(folder);
    const auto inside = [&](const std::string& path) { return FoldFolder(SplitPath(path).folder) == folded; };
    std::erase_if(m_DurableNames, [&](const auto& name) { return inside(name.first); });
    for (const auto& [path, inode] : m_Names) {
        if (!inside(path)) continue;
        m_DurableNames[path] = inode;
        m_DurableSpelling[inode] = m_Inodes.at(inode).path;
        // A name that survives without its bytes is an empty file.
        m_DurableBytes.try_emplace(inode);
    }
}

// Durable when it is done: at once, or, on a busy disk, when somebody waits.
class cFakeFiles::cSync : public cPendingSync {
  public:
    explicit cSync(cFakeFiles& files) : m_Files(files) {
        if (!m_Files.m_DiskIsBusy) cSync::Wait();
    }
    bool Done() const override { return m_Done; }
    bool Wait() override {
        if (!std::exchange(m_Done, true)) m_Files.SyncAll();
        return true;
    }

  private:
    cFakeFiles& m_Files;
    bool m_Done = false;
};

std::unique_ptr<cPendingSync> cFakeFiles::StartSync(std::string_view folder) {
    Count("sync all", folder);
    return std::make_unique<cSync>(*this);
}

void cFakeFiles::SyncAll() {
    for (const auto& [path, inode] : m_Names) m_DurableBytes[inode] = m_Inodes.at(inode).bytes;
    m_DurableNames = m_Names;
    for (const auto& [inode, file] : m_Inodes) m_DurableSpelling[inode] = file.path;
}

void cFakeFiles::MakeFolder(std::string_view path) {
    Count("mkdir", path);
    if (m_FolderReadOnly) Fail(eFailure::PermissionDenied, "the folder can't be written", path);
    if (!m_Folders.insert(FoldFolder(path)).second) Fail(eFailure::PathAccess, "the folder exists", path);
}

void cFakeFiles::SetNormalAttributes(std::string_view path) {
    Count("attributes", path);
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
    m_DurableNames[Fold(path)] = file.inode;
    m_DurableBytes[file.inode] = bytes;
    m_DurableSpelling[file.inode] = path;
}

void cFakeFiles::PutFolder(std::string_view path) {
    m_Folders.insert(FoldFolder(path));
}
bool cFakeFiles::HasFolder(std::string_view path) const {
    return m_Folders.contains(FoldFolder(path));
}

std::vector<std::string> cFakeFiles::AllPaths() const {
    std::vector<std::string> paths;
    for (const auto& [folded, inode] : m_Names) paths.push_back(m_Inodes.at(inode).path);
    return paths;
}

void cFakeFiles::Crash() {
    m_Names = m_DurableNames;
    std::map<std::int64_t, cFile> survivors;
    for (const auto& [path, inode] : m_Names) {
        cFile file = m_Inodes.at(inode);
        file.path = m_DurableSpelling[inode];
        file.bytes = m_DurableBytes[inode];
        survivors[inode] = std::move(file);
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
