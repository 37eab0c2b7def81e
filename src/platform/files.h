#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// The file system as the system sees it.
//
// Paths are in the system's code page and may use "\" or "/" as separator. Every existing name is found
// without regard to case, component by component; when several names differ only in case, the exact one is
// preferred. A new name is created with the spelling that was given.
//
// For files that the program alone names there are cFiles of exact names: each name is taken as it is
// spelled, and no search for another spelling costs anything. The folder's own spelling is asked for once.
//
// Unless a method says otherwise, a failure is thrown as cFailure (common/failure.h) with a number of
// eFailure and a description that names the path and the reason; nothing is changed then, except that a
// failed write may leave a partial file.
class cFileReader {
  public:
    virtual ~cFileReader() = default;
    virtual bool FileExists(std::string_view path) const = 0;  // a regular file; false on any failure
    virtual std::string ReadFile(std::string_view path) const = 0;
    // Reads many files of a folder (with its separator), by the names that its listing gave, and hands on
    // each content, in the order of the names, as ReadFile gives it; a failure of one ends it. take gets the
    // index of the name.
    using TakeContent = std::function<void(std::size_t index, std::string content)>;
    virtual void ReadFiles(const std::string& folder, const std::vector<std::string>& names,
                           const TakeContent& take) const {
        for (std::size_t i = 0; i < names.size(); ++i) take(i, ReadFile(folder + names[i]));
    }
    // Names (not paths) of the regular files of a folder that match the mask, in the order in which the
    // folder gives them. In a mask "?" stands for any one character and "*" for any run; case plays no part.
    // Hidden names (with a leading dot) are not listed. An unreadable or missing folder is an empty list.
    virtual std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const = 0;

    // An entry that is no ordinary file, is larger than any file of the system, or must not be read by us. It
    // must not keep the others away.
    struct cUnreadable {
        std::string name, reason;
    };
    // What of a folder matches the mask, with what can't be read of it: for folders whose files must not be
    // missed.
    struct cListing {
        std::vector<std::string> names;  // of the others, as ListFiles gives them
        std::vector<cUnreadable> unreadable;
        // The folder, and why it can't be listed, or not to its end; empty when it can, and for a folder that
        // is not there.
        std::string problem;
    };
    virtual cListing List(std::string_view folder, std::string_view mask) const = 0;
    // All of those names in one row, whatever can be read of them, for who tells of each file as it is read:
    // that costs no look at any. Throws when the folder can't be listed.
    virtual std::vector<std::string> ListNames(std::string_view folder, std::string_view mask) const = 0;
    // The path as it is spelled on the disk; as it is given where nothing of that name is there. Throws when
    // that can't be found out.
    virtual std::string Spelling(std::string_view path) const = 0;

    // Identifies the content of a file without reading it: changes whenever the file is replaced or written.
    struct cStamp {
        std::int64_t device = 0, inode = 0, size = -1, modifiedNs = 0;
        // When anything of the file changed last, its content or its attributes.
        std::int64_t changedNs = 0;
        // False while the last change is so fresh that another one could carry the same times.
        bool settled = true;
        bool operator==(const cStamp& other) const {
            return device == other.device && inode == other.inode && size == other.size &&
                   modifiedNs == other.modifiedNs;
        }
        // Whether a file of this stamp that now has the other one certainly holds what it held.
        bool StillHolds(const cStamp& now) const {
            return settled && *this == now && changedNs == now.changedNs;
        }
    };
    // size -1 for a file that doesn't exist. Does not fail.
    virtual cStamp Stamp(std::string_view path) const = 0;
};

// A wait for the disk that goes on beside the program. Its end waits for it.
class cPendingSync {
  public:
    virtual ~cPendingSync() = default;
    virtual bool Done() const = 0;
    // Waits until it is done; whether everything is durable then.
    virtual bool Wait() = 0;
};

// A file is not written, removed or renamed in a folder that is a link which somebody planted who has no say
// over where it lies (PermissionDenied).
class cFiles : public cFileReader {
  public:
    // Makes the file anew, in place of a file or a link of that name: nothing that stood there is written
    // through. With sync the bytes are on the disk before the call returns.
    virtual void WriteFile(std::string_view path, std::string_view bytes, bool sync) = 0;
    // The same with sync. The file gets the mode, the owner and the attributes of another one, as far as the
    // system lets us and never opening it to more users than the other; nothing when the other does not
    // exist.
    virtual void WriteFileLike(std::string_view path, std::string_view bytes, std::string_view like) = 0;
    // Creates the file when it is missing. A link of that name is a failure.
    virtual void AppendFile(std::string_view path, std::string_view bytes) = 0;
    virtual void RemoveFile(std::string_view path) = 0;
    // Replaces an existing target in one step: at any moment the target is the old file or the new one,
    // whole.
    virtual void RenameFile(std::string_view from, std::string_view to) = 0;
    // Makes the names in the folder (creations, renames, removals) durable.
    virtual void SyncFolder(std::string_view folder) = 0;
    // Begins to make everything durable that was written so far to the file system of the folder, and does so
    // beside the program.
    virtual std::unique_ptr<cPendingSync> StartSync(std::string_view folder) = 0;
    virtual void MakeFolder(std::string_view path) = 0;  // a failure when it exists already
    // Takes a write protection away from a file.
    virtual void SetNormalAttributes(std::string_view path) = 0;
    // The path of the file that a name leads to by links; the path itself when it is no link. A link that
    // somebody planted who has no say over the folder is a failure (PermissionDenied).
    virtual std::string LinkTarget(std::string_view path) const = 0;
};

}  // namespace vigrel
