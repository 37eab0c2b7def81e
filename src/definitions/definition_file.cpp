#include "definitions/definition_file.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/missing_file.h"
#include "common/numbers.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

// The longest texts and schedules that the records can hold stay below 5 MB.
constexpr std::int64_t kLargestDefinition = 8 << 20;
constexpr int kIdentities = 9990;
// By then nearly every number is taken, and what is left is found faster one by one.
constexpr int kRandomTries = 1000;
// No file is open while another is opened, so an open file always has the first number.
constexpr const char* kFileNumber = "1";

// The content of a definition file. A missing file is made, empty, and reads as empty.
std::string OpenDefinition(cFiles& files, std::string_view fileName) {
    if (IsMissing(files, fileName)) {
        files.WriteFile(fileName, "", false);
        return {};
    }
    const auto size = files.Stamp(fileName).size;
    if (size > kLargestDefinition) {
        throw cFailure(eFailure::InputOutput,
                       {Pattern("Reasons", "a file of %1 bytes is no definition"), {std::to_string(size)}});
    }
    return files.ReadFile(fileName);
}

std::int16_t InventIdentity(const cDefinitionServices& services, const cDefinitionKind& kind) {
    const auto isFree = [&](std::int16_t identity) {
        return IsMissing(services.files, DefinitionFileName(services, kind, identity));
    };
    for (int i = 0; i < kRandomTries; ++i) {
        const std::int16_t identity = ToInt16(1 + services.random.Next() * kIdentities);
        if (isFree(identity)) return identity;
    }
    for (std::int16_t identity = 1; identity <= kIdentities + 1; ++identity) {
        if (isFree(identity)) return identity;
    }
    throw cFailure(eFailure::DiskFull, Pattern("Reasons", "all numbers for new files are taken"));
}

using eNote = cDefinitionNote::eKind;

void Log(const cDefinitionServices& services, eNote kind, const cPhrase& line) {
    const cDefinitionNote note{kind, line};
    services.log.WriteLog(WithPathsInCodePage(line.English()));
    if (services.m_OnNote) services.m_OnNote(note);
}

void LogUpgrade(const cDefinitionServices& services, const cDefinitionKind& kind, const std::string& fileName,
                std::int16_t version) {
    Log(services, eNote::Upgraded,
        {Pattern("Reasons", "%1 '%2' (version %3 -> %4)"),
         {services.texts.GetText(kind.textUpgraded), fileName, std::to_string(version),
          std::to_string(kDefinitionVersion)}});
}

void LogUnknownVersion(const cDefinitionServices& services, const cDefinitionKind& kind,
                       const std::string& fileName, std::int16_t version) {
    const std::string name = kind.namesFileByNumber ? kFileNumber : fileName;
    Log(services, eNote::Failed,
        services.texts.GetText(TextUnknownVersion) + " '" + name + "' (" + std::to_string(version) + ") " +
            services.texts.GetText(kind.textUnknownVersion));
}

void LogFailure(const cDefinitionServices& services, eText text, const std::string& what,
                const cFailure& failure) {
    Log(services, eNote::Failed,
        {Pattern("Reasons", "%1 Err:%2"), {services.texts.GetText(text) + what, failure.Description()}});
}

std::string MaskOf(const cPathParts& parts) {
    return parts.name + "????.dat";
}

// Of a name that fits the mask; none for another name than that of a definition.
std::optional<std::int16_t> NumberIn(const std::string& name, const cPathParts& parts) {
    const std::string digits = name.substr(parts.name.size(), 4);
    if (digits.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
    return ToInt16(Val(digits));
}

// The numbers and names of the files of a kind, as the folder gives them.
std::vector<std::pair<std::int16_t, std::string>> NumberedNames(const cDefinitionServices& services,
                                                                const cDefinitionKind& kind) {
    const cPathParts parts = SplitPath(services.ini.FullPath(kind.folderAndStem));
    std::vector<std::pair<std::int16_t, std::string>> names;
    for (const std::string& name : services.files.ListFiles(parts.folder, MaskOf(parts))) {
        if (const auto number = NumberIn(name, parts)) names.emplace_back(*number, name);
    }
    return names;
}

// Folders, pipes, devices and links that lead nowhere, which have the name of a definition.
std::vector<cUnreadableFile> NoFiles(const cDefinitionServices& services, const cDefinitionKind& kind) {
    const cPathParts parts = SplitPath(services.ini.FullPath(kind.folderAndStem));
    std::vector<std::string> names = services.files.ListNames(parts.folder, MaskOf(parts));
    std::vector<std::string> files = services.files.ListFiles(parts.folder, MaskOf(parts));
    std::sort(names.begin(), names.end());
    std::sort(files.begin(), files.end());
    std::vector<std::string> others;
    std::set_difference(names.begin(), names.end(), files.begin(), files.end(), std::back_inserter(others));
    std::vector<cUnreadableFile> unreadable;
    for (const std::string& name : others) {
        if (!NumberIn(name, parts)) continue;
        // The look at it refuses what is no file before anything of it is opened, and says why.
        const std::string path = parts.folder + name;
        if (const auto failure = CatchFailure([&] { services.files.ReadFile(path); }))
            unreadable.push_back({path, failure->Description()});
    }
    return unreadable;
}

// All but the one of each number that can be opened.
std::vector<cUnreadableFile> DefinitionsWithTheSameNumber(const cDefinitionServices& services,
                                                          const cDefinitionKind& kind) {
    std::multimap<std::int16_t, std::string> names;
    for (auto& [identity, name] : NumberedNames(services, kind)) names.emplace(identity, std::move(name));
    std::vector<cUnreadableFile> others;
    for (auto first = names.begin(); first != names.end(); first = names.upper_bound(first->first)) {
        const std::string path = DefinitionFileName(services, kind, first->first);
        const cPathParts parts = SplitPath(path);
        // The exact name is the one that is opened; without it the first that the folder gives.
        const auto end = names.upper_bound(first->first);
        const auto exact =
            std::find_if(first, end, [&](const auto& each) { return each.second == parts.name; });
        const auto opened = exact == end ? first : exact;
        for (auto other = first; other != end; ++other) {
            if (other == opened) continue;
            others.push_back({parts.folder + other->second,
                              {Pattern("Reasons", "It has the same number as %1; rename one of them."),
                               {opened->second}}});
        }
    }
    return others;
}

void RequireComplete(const cBinaryReader& file) {
    if (file.Complete()) return;
    throw cFailure(eFailure::InputOutput, {Pattern("Reasons", "the file ends too early, at its byte %1"),
                                           {std::to_string(file.Size())}});
}

}  // namespace

std::string DefinitionFileName(const cDefinitionServices& services, const cDefinitionKind& kind,
                               std::int16_t diskIdentity) {
    return services.ini.FullPath(kind.folderAndStem) + LastDigits(std::to_string(diskIdentity), 4) + ".dat";
}

std::vector<std::int16_t> DefinitionIdentities(const cDefinitionServices& services,
                                               const cDefinitionKind& kind) {
    std::vector<std::int16_t> identities;
    for (const auto& [identity, name] : NumberedNames(services, kind)) identities.push_back(identity);
    std::sort(identities.begin(), identities.end());
    identities.erase(std::unique(identities.begin(), identities.end()), identities.end());
    return identities;
}

void RemoveDefinitionTemporaries(const cDefinitionServices& services, const cDefinitionKind& kind) {
    const cPathParts parts = SplitPath(services.ini.FullPath(kind.folderAndStem));
    RemoveTemporaries(services.files, parts.folder);
    RemoveTemporariesOfLinks(services.files, parts.folder, parts.name + "????.dat");
}

std::vector<cUnreadableFile> DefinitionsOutOfReach(const cDefinitionServices& services,
                                                   const cDefinitionKind& kind) {
    std::string folder = SplitPath(services.ini.FullPath(kind.folderAndStem)).folder;
    std::vector<cUnreadableFile> unreadable;
    const auto failure = CatchFailure([&] { unreadable = NoFiles(services, kind); });
    if (!failure) {
        for (cUnreadableFile& each : DefinitionsWithTheSameNumber(services, kind))
            unreadable.push_back(std::move(each));
        return unreadable;
    }
    folder.pop_back();
    return {{std::move(folder), failure->Description()}};
}

cPhrase ReasonNotLoaded(const cDefinitionServices& services, const cDefinitionKind& kind,
                        const std::string& fileName) {
    std::string content;
    if (const auto failure = CatchFailure([&] { content = OpenDefinition(services.files, fileName); })) {
        return failure->Description();
    }
    if (content.size() <= 1) {
        return {Pattern("Reasons", "The file has %1 bytes: it is empty."), {std::to_string(content.size())}};
    }
    const std::int16_t version = cBinaryReader(content).Int16();
    if (version >= kind.oldestVersion && version <= kDefinitionVersion) {
        return Pattern("Reasons", "The file is damaged: it ends too early or holds a value that is none.");
    }
    return {
        Pattern("Reasons", "The file's version is %1, not one of %2 to %3."),
        {std::to_string(version), std::to_string(kind.oldestVersion), std::to_string(kDefinitionVersion)}};
}

cLoadResult LoadDefinition(const cDefinitionServices& services, const cDefinitionKind& kind,
                           std::int16_t diskIdentity, std::int16_t& objectIdentity,
                           const std::function<void(cBinaryReader&, std::int16_t)>& readRecord) {
    const std::string fileName = DefinitionFileName(services, kind, diskIdentity);
    cLoadResult result;
    std::int16_t version = 0;
    const auto failure = CatchFailure([&] {
        const std::string content = OpenDefinition(services.files, fileName);
        if (content.size() <= 1) return;
        objectIdentity = diskIdentity;
        cBinaryReader file(content);
        version = file.Int16();
        if (version < kind.oldestVersion || version > kDefinitionVersion) {
            LogUnknownVersion(services, kind, fileName, version);
            return;
        }
        readRecord(file, version);
        RequireComplete(file);
        result.loaded = true;
    });
    if (failure) LogFailure(services, kind.textLoadFailed, " " + fileName, *failure);
    // A damaged file is not brought up: it stays as it is for whoever can repair it.
    result.outdated = result.loaded && version < kDefinitionVersion;
    if (result.outdated) LogUpgrade(services, kind, fileName, version);
    return result;
}

bool SaveDefinition(const cDefinitionServices& services, const cDefinitionKind& kind, std::int16_t& identity,
                    Boolean16& hasUpdatedIdentity, const std::function<void(cBinaryWriter&)>& writeRecord) {
    const bool isNew = identity < 0;
    hasUpdatedIdentity = isNew ? True16 : False16;
    const auto failure = CatchFailure([&] {
        if (isNew) identity = InventIdentity(services, kind);
        cBinaryWriter file;
        file.Int16(kDefinitionVersion);
        writeRecord(file);
        ReplaceFile(services.files, DefinitionFileName(services, kind, identity), file.Bytes());
    });
    if (!failure) return true;
    const std::string fileName = DefinitionFileName(services, kind, identity);
    LogFailure(services, kind.textSaveFailed, " " + fileName, *failure);
    if (isNew && !FileExists(services.files, fileName)) {
        identity = -1;
        hasUpdatedIdentity = False16;
    }
    return false;
}

void NoteNotUpgraded(const cDefinitionServices& services, const cDefinitionKind& kind,
                     std::int16_t identity) {
    if (!services.m_OnNote) return;
    services.m_OnNote({eNote::NotUpgraded, DefinitionFileName(services, kind, identity)});
}

std::size_t CheckedIndex(std::int16_t index, int count, const char* what) {
    if (index < 0 || index >= count) {
        throw cFailure(eFailure::OutOfBounds, std::string(what) + " " + std::to_string(index) +
                                                  " is not one of 0 to " + std::to_string(count - 1));
    }
    return static_cast<std::size_t>(index);
}

bool RemoveDefinition(const cDefinitionServices& services, const cDefinitionKind& kind, std::int16_t identity,
                      std::string_view name) {
    const std::string fileName = DefinitionFileName(services, kind, identity);
    const auto failure = CatchFailure([&] {
        services.files.RemoveFile(fileName);
        services.files.SyncFolder(SplitPath(fileName).folder);
    });
    const std::string what = " '" + std::string(name) + "' " + fileName;
    if (failure) {
        LogFailure(services, kind.textRemoveFailed, what, *failure);
    } else {
        Log(services, eNote::Removed, services.texts.GetText(kind.textRemoved) + what);
    }
    return !failure;
}

}  // namespace vigrel
