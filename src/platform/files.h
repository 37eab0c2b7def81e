#pragma once

#include <cstdint>
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
// Unless a method says otherwise, a failure is thrown as cFailure (common/failure.h) with a number of
// eFailure and a description that names the path and the reason; nothing is changed then, except that a
// failed write may leave a partial file.
class cFileReader {
  public:
    virtual ~cFileReader() = default;
    virtual bool FileExists(std::string_view path) const = 0;  // a regular file; false on any failure
    virtual std::string ReadFile(std::string_view path) const = 0;
    // Names (not paths) of the regular files of a folder that match the mask, in the order in which the
    // folder gives them. In a mask "?" stands for any one character and "*" for any run; case plays no part.
    // Hidden names (with a leading dot) are not listed. An unreadable or missing folder is an empty list.
    virtual std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const = 0;

    // What else of a folder matches the mask: what is no ordinary file, is larger than any file of the
    // system, or must not be read by us. Such an entry must not keep the others away.
    struct cUnreadable {
        std::string name, reason;
    };
    virtual std::vector<cUnreadable> ListUnreadable(std::string_view folder, std::string_view mask) const = 0;

    // Identifies the content of a file without reading it: changes whenever the file is replaced or written.
    struct cStamp {
        std::int64_t device = 0, inode = 0, size = -1, modifiedNs = 0;
        bool operator==(const cStamp&) const = default;
    };
    // size -1 for a file that doesn't exist. Does not fail.
    virtual cStamp Stamp(std::string_view path) const = 0;
};

class cFiles : public cFileReader {
  public:
    // Makes the file anew, in place of a file or a link of that name: nothing that stood there is written
    // through. With sync the bytes are on the disk before the call returns.
    virtual void WriteFile(std::string_view path, std::string_view bytes, bool sync) = 0;
    // Creates the file when it is missing. A link of that name is a failure.
    virtual void AppendFile(std::string_view path, std::string_view bytes) = 0;
    virtual void RemoveFile(std::string_view path) = 0;
    // Replaces an existing target in one step: at any moment the target is the old file or the new one,
    // whole.
    virtual void RenameFile(std::string_view from, std::string_view to) = 0;
    // Makes the names in the folder (creations, renames, removals) durable.
    virtual void SyncFolder(std::string_view folder) = 0;
    // Makes everything durable that was written so far to the file system of the folder.
    virtual void SyncFileSystem(std::string_view folder) = 0;
    virtual void MakeFolder(std::string_view path) = 0;  // a failure when it exists already
    // Takes a write protection away from a file.
    virtual void SetNormalAttributes(std::string_view path) = 0;
    // The path of the file that a name leads to by links; the path itself when it is no link. A link that
    // somebody planted who has no say over the folder is a failure (PermissionDenied).
    virtual std::string LinkTarget(std::string_view path) const = 0;
    // Gives a file the mode and owner of another, as far as the system lets us and never opening it to more
    // users than the other; nothing when the other does not exist. Does not fail.
    virtual void CopyAttributes(std::string_view from, std::string_view to) = 0;
};

}  // namespace vigrel
