#include "adapters/linux/linux_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <memory>
#include <thread>
#include <utility>

#include "adapters/linux/file_failure.h"
#include "adapters/linux/file_handle.h"
#include "adapters/linux/file_times.h"
#include "adapters/linux/folder_entries.h"
#include "adapters/linux/links.h"
#include "adapters/linux/native_path.h"
#include "adapters/linux/open_file.h"
#include "adapters/linux/read_ahead.h"
#include "adapters/linux/start_thread.h"
#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

// Also where a file stands in the way of a folder: that can have another spelling.
bool IsMissing(int error) {
    return error == ENOENT || error == ENOTDIR;
}

// As the umask allows.
constexpr mode_t kFileMode = 0666, kFolderMode = 0777;

int OpenFolder(const std::string& native) {
    return open(native.c_str(), O_RDONLY | O_DIRECTORY | kNeverWait);
}

// Waits for the disk in a thread of its own, which touches nothing but the folder that it was given.
class cSyncThread : public cPendingSync {
  public:
    explicit cSyncThread(cFileHandle folder)
        : m_Folder(std::move(folder)), m_Thread(StartThread([this] {
              m_Synced = syncfs(m_Folder.Get()) == 0;
              m_Done = true;
          })) {}
    ~cSyncThread() override { cSyncThread::Wait(); }
    bool Done() const override { return m_Done; }
    bool Wait() override {
        if (m_Thread.joinable()) m_Thread.join();
        return m_Synced;
    }

  private:
    cFileHandle m_Folder;
    std::atomic<bool> m_Synced{false}, m_Done{false};
    std::thread m_Thread;  // behind what it uses
};

// What follows the folder; lasts as long as the path.
const char* NameIn(const std::string& native) {
    return native.c_str() + native.rfind('/') + 1;
}

// Only what WriteFile makes anew is taken away.
void ClearName(int folder, const char* name, std::string_view path) {
    struct stat status {};
    if (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0) return;
    if (!S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode)) FailAsNoFile(path, WhyNoFile(status));
    if (unlinkat(folder, name, 0) != 0) FailByErrno(path);
}

// A file that nobody else has made, so that nobody else holds it open or has chosen where it lies.
cOpenFile OpenNew(std::string_view path, int folder, const char* name) {
    const auto open = [&] {
        return openat(folder, name, O_WRONLY | O_CREAT | O_EXCL | kNeverWait, kFileMode);
    };
    int descriptor = open();
    if (descriptor < 0 && errno == EEXIST) {
        ClearName(folder, name, path);
        descriptor = open();
    }
    return {path, descriptor};
}

}  // namespace

std::string cLinuxFiles::Native(std::string_view path) const {
    return m_Names == eNames::Exact ? SpelledPath(path) : NativePath(path);
}

template <class Call>
int cLinuxFiles::AsSpelledOrFound(std::string_view path, Call call) const {
    const int result = call(SpelledPath(path));
    if (result >= 0 || !IsMissing(errno) || m_Names == eNames::Exact) return result;
    return call(NativePath(path));
}

std::string cLinuxFiles::Spelling(std::string_view path) const {
    return PathText(NativePath(path));
}

std::string cLinuxFiles::LookFor(std::string_view path, struct stat& status) const {
    std::string spelled = SpelledPath(path);
    const auto leads = [&status](const std::string& native) { return stat(native.c_str(), &status) == 0; };
    if (m_Names == eNames::Exact) return leads(spelled) ? spelled : "";
    std::string native = m_Spellings.Recall(spelled);
    if (!native.empty() && leads(native)) return native;
    if (leads(spelled) && S_ISREG(status.st_mode)) return spelled;
    native = m_Spellings.Search(path);
    return leads(native) ? native : "";
}

bool cLinuxFiles::FileExists(std::string_view path) const {
    struct stat status {};
    bool found = false;
    SkipFailure([&] { found = !LookFor(path, status).empty(); });
    return found && S_ISREG(status.st_mode);
}

std::string cLinuxFiles::ReadFile(std::string_view path) const {
    std::string native = SpelledPath(path);
    // Before it is opened: that alone can set off a device. Not so what the program itself has made.
    if (m_Names == eNames::AnyCase) {
        struct stat status {};
        native = LookFor(path, status);
        if (native.empty()) FailByErrno(path);
        if (const char* reason = WhyNoFile(status)) FailAsNoFile(path, reason);
    }
    return cOpenFile(path, open(native.c_str(), O_RDONLY | kNeverWait)).ReadAll();
}

void cLinuxFiles::ReadFiles(const std::string& folder, const std::vector<std::string>& names,
                            const TakeContent& take) const {
    // Who has a folder's names has them as they are spelled there.
    const cLinuxFiles exact(eNames::Exact);
    const std::string there = m_Names == eNames::Exact ? folder : Spelling(folder);
    // Threads for a few files take longer than the files.
    constexpr std::size_t kFew = 500;
    if (names.size() <= kFew) return exact.cFiles::ReadFiles(there, names, take);
    ReadAhead(exact, there, names, take);
}

std::vector<std::string> cLinuxFiles::ListFiles(std::string_view folder, std::string_view mask) const {
    std::vector<std::string> names;
    SkipFailure([&] {
        ForEachEntry(NativePath(folder), mask, [&](int opened, const dirent& entry, std::string name) {
            if (IsRegular(opened, entry)) names.push_back(std::move(name));
        });
    });
    return names;
}

cFileReader::cListing cLinuxFiles::List(std::string_view folder, std::string_view mask) const {
    cListing listing;
    const auto take = [&](int opened, const dirent& entry, std::string name) {
        std::string reason = WhyUnreadable(opened, entry.d_name);
        if (reason.empty()) {
            listing.names.push_back(std::move(name));
        } else {
            listing.unreadable.push_back({std::move(name), std::move(reason)});
        }
    };
    if (const auto failure = CatchFailure([&] { ForEachEntry(NativePath(folder), mask, take); }))
        listing.problem = failure->what();
    return listing;
}

std::vector<std::string> cLinuxFiles::ListNames(std::string_view folder, std::string_view mask) const {
    std::vector<std::string> names;
    const auto take = [&](int, const dirent&, std::string name) { names.push_back(std::move(name)); };
    ForEachEntry(NativePath(folder), mask, take);
    return names;
}

cFileReader::cStamp cLinuxFiles::Stamp(std::string_view path) const {
    struct stat status {};
    bool found = false;
    SkipFailure([&] { found = !LookFor(path, status).empty(); });
    if (!found) return {};
    return {static_cast<std::int64_t>(status.st_dev),
            static_cast<std::int64_t>(status.st_ino),
            status.st_size,
            Nanoseconds(status.st_mtim),
            Nanoseconds(status.st_ctim),
            IsSettled(status)};
}

void cLinuxFiles::WriteFile(std::string_view path, std::string_view bytes, bool sync) {
    const std::string native = Native(path);
    const cPlace place = PlaceOf(native);
    cOpenFile file = OpenNew(path, place.folder, place.name);
    file.Write(bytes);
    if (sync) file.Sync();
    file.Close();
}

void cLinuxFiles::WriteFileLike(std::string_view path, std::string_view bytes, std::string_view like) {
    const std::string native = Native(path);
    const cPlace place = PlaceOf(native);
    cOpenFile file = OpenNew(path, place.folder, place.name);
    file.Write(bytes);
    file.TakeAttributes(Native(like));
    file.Sync();
    file.Close();
}

void cLinuxFiles::AppendFile(std::string_view path, std::string_view bytes) {
    constexpr int kAppend = O_WRONLY | O_APPEND | O_NOFOLLOW | kNeverWait;
    std::string native = SpelledPath(path);
    if (m_Appended.IsAt(native)) return WriteAll(m_Appended.Descriptor(), bytes, path);
    RequireOwnFolder(native);
    int descriptor = open(native.c_str(), kAppend);
    if (descriptor < 0 && IsMissing(errno)) {
        native = Native(path);
        RequireOwnFolder(native);
        descriptor = open(native.c_str(), kAppend | O_CREAT, kFileMode);
    }
    cOpenFile file(path, descriptor);
    file.Write(bytes);
    if (!IsShared(descriptor)) m_Appended.Hold(native, descriptor);
    file.Close();
}

bool cLinuxFiles::HoldFolder(const std::string& folder) {
    if (folder.empty()) return false;
    if (m_Folder.IsAt(folder)) return true;
    const cFileHandle opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | kNeverWait));
    if (opened) m_Folder.Hold(folder, opened.Get());
    return opened && m_Folder.IsAt(folder);
}

cLinuxFiles::cPlace cLinuxFiles::PlaceOf(const std::string& native) {
    if (m_Names == eNames::Exact && HoldFolder(FolderOf(native)))
        return {m_Folder.Descriptor(), NameIn(native)};
    RequireOwnFolder(native);
    return {AT_FDCWD, native.c_str()};
}

void cLinuxFiles::RemoveFile(std::string_view path) {
    const auto remove = [this](const std::string& native) {
        const cPlace place = PlaceOf(native);
        return unlinkat(place.folder, place.name, 0);
    };
    if (AsSpelledOrFound(path, remove) != 0) FailByErrno(path);
    m_Appended.LookAgain();
}

void cLinuxFiles::RenameFile(std::string_view from, std::string_view to) {
    const std::string source = Native(from);
    const std::string target = Native(to);
    const cPlace place = PlaceOf(source);
    const bool isBeside = FolderOf(source) == FolderOf(target);
    if (!isBeside) RequireOwnFolder(target);
    const bool isHeld = isBeside && place.folder == m_Folder.Descriptor();
    const cPlace newPlace = isHeld ? cPlace{place.folder, NameIn(target)} : cPlace{AT_FDCWD, target.c_str()};
    if (renameat(place.folder, place.name, newPlace.folder, newPlace.name) != 0) FailByErrno(to);
    m_Appended.LookAgain();
}

void cLinuxFiles::SyncFolder(std::string_view folder) {
    const std::string native = SpelledPath(folder);
    if (m_Names == eNames::Exact && HoldFolder(FolderOf(native + '/'))) {
        if (fsync(m_Folder.Descriptor()) != 0) FailByErrno(folder);
        return;
    }
    cOpenFile(folder, AsSpelledOrFound(folder, OpenFolder)).Sync();
}

std::unique_ptr<cPendingSync> cLinuxFiles::StartSync(std::string_view folder) {
    cFileHandle opened(AsSpelledOrFound(folder, OpenFolder));
    if (!opened) FailByErrno(folder);
    return std::make_unique<cSyncThread>(std::move(opened));
}

void cLinuxFiles::MakeFolder(std::string_view path) {
    if (mkdir(NativePath(path).c_str(), kFolderMode) != 0) FailByErrno(path);
}

void cLinuxFiles::SetNormalAttributes(std::string_view path) {
    const std::string native = NativePath(path);
    RequireOwnFolder(native);
    const cFileHandle file(open(native.c_str(), O_RDONLY | O_NOFOLLOW | kNeverWait));
    struct stat status {};
    if (!file || fstat(file.Get(), &status) != 0 || fchmod(file.Get(), status.st_mode | S_IWUSR) != 0)
        FailByErrno(path);
}

std::string cLinuxFiles::LinkTarget(std::string_view path) const {
    const std::string native = NativePath(path);
    std::string target = FollowLinks(native);
    return target == native ? std::string(path) : PathText(target);
}

}  // namespace vigrel
