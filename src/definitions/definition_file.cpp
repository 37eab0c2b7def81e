#include "definitions/definition_file.h"

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"

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
    const auto size = files.Stamp(fileName).size;
    if (size < 0) {
        files.WriteFile(fileName, "", false);
        return {};
    }
    if (size > kLargestDefinition) {
        throw cFailure(eFailure::InputOutput,
                       "a file of " + std::to_string(size) + " bytes is no definition");
    }
    return files.ReadFile(fileName);
}

std::int16_t InventIdentity(const cDefinitionServices& services, const cDefinitionKind& kind) {
    const auto isFree = [&](std::int16_t identity) {
        return !FileExists(services.files, DefinitionFileName(services, kind, identity));
    };
    for (int i = 0; i < kRandomTries; ++i) {
        const std::int16_t identity = ToInt16(1 + services.random.Next() * kIdentities);
        if (isFree(identity)) return identity;
    }
    for (std::int16_t identity = 1; identity <= kIdentities + 1; ++identity) {
        if (isFree(identity)) return identity;
    }
    throw cFailure(eFailure::DiskFull, "all numbers for new files are taken");
}

// One definition file being read, and what the log is told of it.
class cLoading {
  public:
    cLoading(const cDefinitionServices& services, const cDefinitionKind& kind, std::string fileName)
        : m_Services(services), m_Kind(kind), m_FileName(std::move(fileName)) {}

    void LogUpgrade(std::int16_t version) {
        Log(m_Kind.textUpgraded, " '" + m_FileName + "' (version " + std::to_string(version) + " -> " +
                                     std::to_string(kDefinitionVersion) + ")");
    }
    void LogUnknownVersion(std::int16_t version) {
        const std::string name = m_Kind.namesFileByNumber ? kFileNumber : m_FileName;
        Log(803, " '" + name + "' (" + std::to_string(version) + ") " +
                     m_Services.texts.GetText(m_Kind.textUnknownVersion));
    }
    void LogFailure(const cFailure& failure) {
        Log(m_Kind.textLoadFailed, " " + m_FileName + " Err:" + failure.what());
    }

  private:
    void Log(std::int32_t text, const std::string& rest) {
        m_Services.log.WriteLog(m_Services.texts.GetText(text) + rest);
    }
    const cDefinitionServices& m_Services;
    const cDefinitionKind& m_Kind;
    std::string m_FileName;
};

void RequireComplete(const cBinaryReader& file) {
    if (file.Complete()) return;
    throw cFailure(eFailure::InputOutput,
                   "the file ends too early, at its byte " + std::to_string(file.Size()));
}

}  // namespace

std::string DefinitionFileName(const cDefinitionServices& services, const cDefinitionKind& kind,
                               std::int16_t diskIdentity) {
    const std::string digits = "0000" + std::to_string(diskIdentity);
    return services.ini.FullPath(kind.folderAndStem) + digits.substr(digits.size() - 4) + ".dat";
}

cLoadResult LoadDefinition(const cDefinitionServices& services, const cDefinitionKind& kind,
                           std::int16_t diskIdentity, std::int16_t& objectIdentity,
                           const std::function<void(cBinaryReader&, std::int16_t)>& readRecord) {
    const std::string fileName = DefinitionFileName(services, kind, diskIdentity);
    cLoading loading(services, kind, fileName);
    cLoadResult result;
    std::int16_t version = 0;
    const auto failure = CatchFailure([&] {
        const std::string content = OpenDefinition(services.files, fileName);
        if (content.size() <= 1) return;
        objectIdentity = diskIdentity;
        cBinaryReader file(content);
        version = file.Int16();
        if (version < kind.oldestVersion || version > kDefinitionVersion) {
            loading.LogUnknownVersion(version);
            return;
        }
        readRecord(file, version);
        RequireComplete(file);
        result.loaded = true;
    });
    if (failure) loading.LogFailure(*failure);
    // A damaged file is not brought up: it stays as it is for whoever can repair it.
    result.outdated = result.loaded && version < kDefinitionVersion;
    if (result.outdated) loading.LogUpgrade(version);
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
    services.log.WriteLog(services.texts.GetText(kind.textSaveFailed) + " " + fileName +
                          " Err:" + failure->what());
    if (isNew && !FileExists(services.files, fileName)) {
        identity = -1;
        hasUpdatedIdentity = False16;
    }
    return false;
}

bool RemoveDefinition(const cDefinitionServices& services, const cDefinitionKind& kind, std::int16_t identity,
                      std::string_view name) {
    const std::string fileName = DefinitionFileName(services, kind, identity);
    const auto failure = CatchFailure([&] {
        services.files.RemoveFile(fileName);
        services.files.SyncFolder(SplitPath(fileName).folder);
    });
    std::string line = services.texts.GetText(failure ? kind.textRemoveFailed : kind.textRemoved) + " '" +
                       std::string(name) + "' " + fileName;
    if (failure) line += std::string(" Err:") + failure->what();
    services.log.WriteLog(line);
    return !failure;
}

}  // namespace vigrel
