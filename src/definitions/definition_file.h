#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "common/binary.h"
#include "common/ini.h"
#include "common/log.h"
#include "common/phrase.h"
#include "common/texts.h"
#include "definitions/receiver_types.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/random.h"

namespace vigrel {

// A line that was logged about a definition file, for programs that show it too.
struct cDefinitionNote {
    // NotUpgraded follows Upgraded when the file could not be written anew and stays as it was.
    enum class eKind { Upgraded, NotUpgraded, Removed, Failed };
    eKind kind;
    cPhrase line;  // the log has it in English
};

// What receivers and profiles ask of their surroundings. It outlives them.
struct cDefinitionServices {
    cFiles& files;
    const cClock& clock;
    cRandom& random;
    const cTexts& texts;
    cLog& log;
    const cIniReader& ini;
    const cReceiverTypes& receiverTypes;
    // Whether "@" in the name of a profile parts a parent from its child.
    bool m_ProfileNesting = false;
    std::function<void(const cDefinitionNote&)> m_OnNote = nullptr;
};

// A definition is a file of its own: a 16-bit version, then the record of that version. This is the version
// that is written, and behind its record stands room for fields to come.
constexpr std::int16_t kDefinitionVersion = 5;
constexpr std::size_t kDefinitionFiller = 2048;

// What the kinds of definitions differ in on disk: where their files lie, and the numbers of their log texts.
struct cDefinitionKind {
    std::string_view folderAndStem;  // below the application folder: "Receivers\Receiver_"
    std::int16_t oldestVersion;
    eText textUpgraded, textUnknownVersion, textLoadFailed, textSaveFailed, textRemoved, textRemoveFailed;
    // Whether the log line about an unknown version names the open file by its number, not by its name.
    bool namesFileByNumber;
};

// Folder and stem, the last four digits of the identity, ".dat".
std::string DefinitionFileName(const cDefinitionServices& services, const cDefinitionKind& kind,
                               std::int16_t diskIdentity);

// None of the following throws: a failure is a line in the log and a false result.

// The identities of the files of a kind that lie in their folder, in rising order. Other names are left out.
std::vector<std::int16_t> DefinitionIdentities(const cDefinitionServices& services,
                                               const cDefinitionKind& kind);
// Files of a folder that were not loaded, and why, for people.
struct cUnreadableFile {
    std::string path;
    cPhrase reason;
    bool operator==(const cUnreadableFile&) const = default;
};
// What is not even looked at: a folder that can't be listed, what has the name of a file and is none, and
// names that differ in case only from another one with the same number: only one of them can be opened.
std::vector<cUnreadableFile> DefinitionsOutOfReach(const cDefinitionServices& services,
                                                   const cDefinitionKind& kind);
// Why a file can't be loaded.
cPhrase ReasonNotLoaded(const cDefinitionServices& services, const cDefinitionKind& kind,
                        const std::string& fileName);

// Takes away what a crash left of a save in the folder of a kind, and where the links in it lead.
void RemoveDefinitionTemporaries(const cDefinitionServices& services, const cDefinitionKind& kind);

struct cLoadResult {
    bool loaded = false;
    bool outdated = false;  // the file is of an older version and is to be saved again
};
// Reads one file: readRecord takes the record of a version from behind the version number and throws cFailure
// for what it can't read. A missing file is made, empty; an empty one isn't loaded. The object's identity is
// set as soon as there is something to read.
cLoadResult LoadDefinition(const cDefinitionServices& services, const cDefinitionKind& kind,
                           std::int16_t diskIdentity, std::int16_t& objectIdentity,
                           const std::function<void(cBinaryReader&, std::int16_t version)>& readRecord);

// Writes one file: the current version and what writeRecord adds. A negative identity is replaced by a random
// one whose file doesn't exist, and hasUpdatedIdentity says so. The old file stands until the new one is
// whole. When the first save of an object fails, the object stays without an identity, so that its number
// can't be taken by two.
bool SaveDefinition(const cDefinitionServices& services, const cDefinitionKind& kind, std::int16_t& identity,
                    Boolean16& hasUpdatedIdentity, const std::function<void(cBinaryWriter&)>& writeRecord);

// Tells, without a line of the log of its own, that an upgraded file could not be written.
void NoteNotUpgraded(const cDefinitionServices& services, const cDefinitionKind& kind, std::int16_t identity);

// Loads and saves an object that is kept in such a file. A file of an older version is saved in the current
// one at once. What was loaded or saved last is the object's original from then on.
template <class Definition>
bool LoadObject(const cDefinitionServices& services, Definition& object, std::int16_t diskIdentity,
                const std::function<void(cBinaryReader&, std::int16_t version)>& readRecord) {
    const cLoadResult result =
        LoadDefinition(services, Definition::kKind, diskIdentity, object.m_DiskIdentity, readRecord);
    if (result.outdated && !object.SaveToDisk()) NoteNotUpgraded(services, Definition::kKind, diskIdentity);
    object.RememberOriginalSettings();
    return result.loaded;
}
template <class Definition>
bool SaveObject(const cDefinitionServices& services, Definition& object,
                const std::function<void(cBinaryWriter&)>& writeRecord) {
    const bool saved = SaveDefinition(services, Definition::kKind, object.m_DiskIdentity,
                                      object.m_HasUpdatedDiskIdentity, writeRecord);
    if (saved) object.RememberOriginalSettings();
    return saved;
}

// An index of a definition's own arrays; throws cFailure (OutOfBounds) that says what has none of that
// number.
std::size_t CheckedIndex(std::int16_t index, int count, const char* what);

bool RemoveDefinition(const cDefinitionServices& services, const cDefinitionKind& kind, std::int16_t identity,
                      std::string_view name);

}  // namespace vigrel
