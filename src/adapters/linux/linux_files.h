#pragma once

#include <sys/stat.h>

#include "adapters/linux/found_spellings.h"
#include "adapters/linux/held_file.h"
#include "platform/files.h"

namespace vigrel {

// cFiles over the operating system. Paths are those of common/path_text.h. A path without a leading separator
// is relative to the working folder.
class cLinuxFiles : public cFiles {
  public:
    // How the names of a path are found on the disk.
    enum class eNames { AnyCase, Exact };
    explicit cLinuxFiles(eNames names = eNames::AnyCase) : m_Names(names) {}

    bool FileExists(std::string_view path) const override;
    std::string ReadFile(std::string_view path) const override;
    void ReadFiles(const std::string& folder, const std::vector<std::string>& names,
                   const TakeContent& take) const override;
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override;
    cListing List(std::string_view folder, std::string_view mask) const override;
    std::vector<std::string> ListNames(std::string_view folder, std::string_view mask) const override;
    std::string Spelling(std::string_view path) const override;
    cStamp Stamp(std::string_view path) const override;
    void WriteFile(std::string_view path, std::string_view bytes, bool sync) override;
    void WriteFileLike(std::string_view path, std::string_view bytes, std::string_view like) override;
    void AppendFile(std::string_view path, std::string_view bytes) override;
    void RemoveFile(std::string_view path) override;
    void RenameFile(std::string_view from, std::string_view to) override;
    void SyncFolder(std::string_view folder) override;
    std::unique_ptr<cPendingSync> StartSync(std::string_view folder) override;
    void MakeFolder(std::string_view path) override;
    void SetNormalAttributes(std::string_view path) override;
    std::string LinkTarget(std::string_view path) const override;

  private:
    std::string Native(std::string_view path) const;
    // What a name stands for, as it is spelled on the disk, with its status; empty, and errno, when there is
    // nothing to look at.
    std::string LookFor(std::string_view path, struct stat& status) const;
    // Tries a call with the path as it is spelled, and, where nothing is there, once more as it is found; a
    // call is one that gives below 0 and errno for a failure. Most names are spelled as they stand, and a
    // search costs more than the call.
    template <class Call>
    int AsSpelledOrFound(std::string_view path, Call call) const;

    // For a call of the system with a folder and a name in it. Throws when the folder is a link that doesn't
    // count; the name lasts as long as the path.
    struct cPlace {
        int folder;
        const char* name;
    };
    cPlace PlaceOf(const std::string& native);
    bool HoldFolder(const std::string& folder);

    eNames m_Names;
    mutable cFoundSpellings m_Spellings;
    // The folder of what the program alone names, and what was appended to last.
    cHeldFile m_Folder, m_Appended;
};

}  // namespace vigrel
