#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace vigrel {

// Whether the path names an ordinary file: no folder, not hidden. A mask in the last part is true when
// anything matches. Never fails.
bool FileExists(const cFileReader& files, std::string_view path);

// A file being read line by line. A reader that is closed has no end to test; ReadLine at the end, or on a
// closed reader, throws cFailure.
class cLineReader {
  public:
    explicit cLineReader(std::string_view content);
    bool AtEnd() const;  // throws cFailure when the reader is closed
    std::string ReadLine();
    void Close() { m_Open = false; }

  private:
    std::vector<std::string> m_Lines;
    std::size_t m_Next = 0;
    bool m_Open = true;
};

// Whether the reader is at its end; true when that can't be told, so that a reading loop ends.
bool SafeEof(const cLineReader& reader);

// Copies each file of the source folder that the mask and extension match to the target folder under the
// target extension, unless a file of that name is there. A name is cut at its first ".". Both folders end in
// a separator. Failures are skipped.
void CopyMissingFiles(cFiles& files, std::string_view sourceFolder, std::string_view targetFolder,
                      std::string_view mask, std::string_view sourceExtension,
                      std::string_view targetExtension);

// Splits a path in front of its last separator: folder with its separator, name.
struct cPathParts {
    std::string folder, name;
};
cPathParts SplitPath(std::string_view path);

// Replaces a file as a whole: written to a temporary beside it, synced, renamed over it, and the folder
// synced. When the call returns the new content survives a crash; a crash before that leaves the old file or
// the new one, whole. On failure cFailure is thrown and the temporary is gone.
//
// The file is one that people set up: a link that they made leads to it still, and it keeps its mode and
// owner as far as the system lets us.
void ReplaceFile(cFiles& files, std::string_view path, std::string_view bytes);
// The same for a file that the program alone names and makes: there is nothing to keep, and nothing to look
// for.
void ReplaceOwnFile(cFiles& files, std::string_view path, std::string_view bytes);

// The temporary beside a file.
std::string TemporaryName(std::string_view path);
// The mask of temporaries that a crash can have left in a folder; no mask that the system reads matches them.
inline constexpr std::string_view kTemporaryMask = "*.$~";
// Removes them. Failures are skipped.
void RemoveTemporaries(cFiles& files, std::string_view folder);
// Removes the one that ReplaceFile would write for a file: beside it or, of a link, beside what the link
// leads to. No other name there, which may be somebody else's, and nothing where another user's link leads.
void RemoveTemporaryOf(cFiles& files, std::string_view path);
// The same for the links among the files of a folder that a mask matches.
void RemoveTemporariesOfLinks(cFiles& files, std::string_view folder, std::string_view mask);

}  // namespace vigrel
