#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "platform/files.h"

namespace vigrel::testing {

// A file system in memory that keeps apart what was written and what would survive a crash.
//
// Folders: "C:\App\" style or "/app/" style paths alike; names are compared by upper case. Every mutating
// call counts one; a test makes call number n fail, fills the disk, or takes the power away.
class cFakeFiles : public cFiles {
  public:
    // --- cFiles
    bool FileExists(std::string_view path) const override;
    std::string ReadFile(std::string_view path) const override;
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override;
    cListing List(std::string_view folder, std::string_view mask) const override;
    std::vector<std::string> ListNames(std::string_view folder, std::string_view mask) const override;
    std::string Spelling(std::string_view path) const override;
    cStamp Stamp(std::string_view path) const override;
    void WriteFile(std::string_view path, std::string_view bytes, bool sync) override;
    void WriteFileLike(std::string_view path, std::string_view bytes, std::string_view) override {
        WriteFile(path, bytes, true);
    }
    void AppendFile(std::string_view path, std::string_view bytes) override;
    void RemoveFile(std::string_view path) override;
    void RenameFile(std::string_view from, std::string_view to) override;
    void SyncFolder(std::string_view folder) override;
    std::unique_ptr<cPendingSync> StartSync(std::string_view folder) override;
    void MakeFolder(std::string_view path) override;
    void SetNormalAttributes(std::string_view path) override;
    std::string LinkTarget(std::string_view path) const override;

    // --- for tests
    // Puts a durable file in place, with its folders.
    void Put(std::string_view path, std::string_view bytes);
    void PutFolder(std::string_view path);
    bool HasFolder(std::string_view path) const;
    // Every path with its spelling, sorted.
    std::vector<std::string> AllPaths() const;
    // What a power failure makes of a change that no sync has made durable. A torn content is its first half,
    // a zeroed one has its length; a name is there or it is not.
    enum class eFate { Lost, Kept, Torn, Zeroed };
    // How many such changes there are: first those of names, in the order in which they were made, then the
    // contents.
    std::size_t UnsyncedCount() const;
    // Back to what would be on the disk after a power failure. Each change that was not synced meets its fate
    // by itself, since a disk takes them in any order; those behind the fates' end are lost. So is a folder
    // whose name was not synced, with all that is in it.
    void Crash(const std::vector<eFate>& fates = {});
    // Forgets what no name leads to any more, so that long runs cost no memory.
    void DropUnreachable();
    void SetReadOnly(std::string_view path, bool readOnly);
    void SetUnreadable(std::string_view path, bool unreadable);
    // What List gives of the folder as unreadable, as far as the mask fits.
    std::map<std::string, std::vector<cUnreadable>> m_Unreadable;
    // Why a folder can't be listed, which is empty then.
    std::map<std::string, std::string> m_FolderProblems;
    // Where links lead that stand in place of files; an empty target is that of a link which is not followed.
    std::map<std::string, std::string> m_Links;

    int m_Calls = 0;                // mutating calls so far
    int m_FailCall = -1;            // the call of this number (from 0) fails; -1: none
    bool m_ListsBackwards = false;  // folders give their names in any order
    bool m_DiskFull = false;        // writes fail, leaving a partial file
    bool m_FolderReadOnly = false;  // creating, renaming and removing fails
    std::function<void(std::string_view operation, std::string_view path)> m_OnCall;
    std::function<void(std::string_view path)> m_OnRead;  // others at work, once its bytes were taken
    bool m_DiskIsBusy = false;  // a pending sync is not done until somebody waits for it

  private:
    struct cFile {
        std::string path;  // with its spelling
        std::string bytes;
        std::int64_t inode = 0, modified = 0;
        bool readOnly = false, unreadable = false;
    };
    // A name that was given or taken away, or both in one step.
    struct cNameChange {
        std::string removed, made;  // folded paths, empty for none
        std::string spelling;       // of the one that was made
        std::int64_t inode = 0;
        std::int64_t when = 0;
    };
    struct cDurableName {
        std::int64_t inode = 0;
        std::string spelling;
    };
    class cSync;
    void Change(cNameChange change);
    void Unlink(std::string folded);
    static void Apply(const cNameChange& change, std::map<std::string, cDurableName>& names);
    // Those of the changes of names that are wanted become durable.
    void MakeDurable(const std::function<bool(const cNameChange&)>& wanted);
    void MakeDurable(std::int64_t inode, std::string_view bytes);
    // The files that a name can still lead to, and of these those whose content is not durable.
    std::set<std::int64_t> Reachable() const;
    std::vector<std::int64_t> UnsyncedContents() const;
    void Count(std::string_view operation, std::string_view path);
    const cFile* Find(std::string_view path) const;
    cFile& Create(std::string_view path);

    std::map<std::string, std::int64_t> m_Names;  // folded path -> inode; what programs see
    std::map<std::string, cDurableName> m_DurableNames;
    std::vector<cNameChange> m_Changes;  // of names, that are not durable
    std::map<std::int64_t, cFile> m_Inodes;
    std::map<std::int64_t, std::string> m_DurableBytes;
    std::map<std::int64_t, std::int64_t> m_SyncedAt;  // inode -> when its bytes were synced last
    std::set<std::string> m_Folders, m_DurableFolders;
    std::int64_t m_NextInode = 1, m_Clock = 1;
};

// Whether a name fits a mask of "?" and "*", without regard to case.
bool FitsMask(std::string_view name, std::string_view mask);

}  // namespace vigrel::testing
