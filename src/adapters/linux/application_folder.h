#pragma once

#include <optional>
#include <string>

#include "platform/files.h"

namespace vigrel {

// What decides where the application folder is.
struct cFolderHints {
    std::optional<std::string> variable;  // VIGREL_APPLICATION_PATH, when set and not empty
    std::string programFolder;            // where the running program lies
    std::string userDataFolder;           // such as ~/.local/share
};
// Reads them from the process's surroundings. Paths as in common/path_text.h.
cFolderHints ReadFolderHints();

// The application folder, with a trailing backslash: the variable's; else the program's own folder when that
// holds "Templates" or a VigrelReceiver.INI and can be written (a portable installation); else
// "VigrelReceiver" under the user's data folder.
std::string FindApplicationFolder(const cFolderHints& hints);

// The portable installation that the programs lie in, where that can't be written, such as on a read-only
// medium, and another folder is the application folder; else empty.
std::string FormerFolder(const cFolderHints& hints);

// What to tell a user whose programs lie in a portable installation that can't be written, such as on a
// read-only medium: why the application folder is another one, and which. Nothing otherwise.
std::optional<std::string> WhyElsewhere(const cFolderHints& hints);

// Where the templates and texts of the installation lie: beside the program (build folder, portable
// installation) or under the usual prefix; empty when they are nowhere.
std::string FindInstalledFolder(const std::string& programFolder);

// The reason, with the file's name, for which the configuration in the folder can't be read: it must not be
// taken for one that says nothing. Nothing when it can, or when there is none.
std::optional<std::string> WhyNoConfiguration(const cFiles& files, const std::string& applicationPath);

// Makes the folder with all folders above it. Throws cFailure, with the name and the reason, when there is no
// folder to start in (it can't be made, or not be read).
void MakeApplicationFolder(const std::string& applicationPath);

// Makes the folder, and copies to it each installed file (templates, texts, sounds)
// that it doesn't hold; before these the configuration, texts and sounds of a former folder, where there is
// one (no alarms, no logs, no programs). Nothing is ever overwritten. A file that can't be copied is skipped:
// the start-up tells of what is missing. True when it was no application folder before.
bool FillApplicationFolder(cFiles& files, const std::string& applicationPath,
                           const std::string& installedFolder, const std::string& formerFolder = "");

}  // namespace vigrel
