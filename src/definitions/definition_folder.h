#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/missing_file.h"
#include "definitions/definition_file.h"
#include "definitions/profile.h"
#include "definitions/receiver.h"

namespace vigrel {

// The name by which people know a definition.
inline const std::string& NameOf(const cReceiver& receiver) {
    return receiver.m_ReceiverName;
}
inline const std::string& NameOf(const cProfile& profile) {
    return profile.GetName();
}
inline void Rename(cReceiver& receiver, const std::string& name) {
    receiver.m_ReceiverName = name;
}
inline void Rename(cProfile& profile, const std::string& name) {
    profile.SetName(name);
}
// What a new one needs to be saved.
inline void Prepare(cReceiver&) {}
inline void Prepare(cProfile& profile) {
    profile.m_TimeSchedule = std::make_unique<cTimeSchedule>();
    profile.m_TimeSchedule->SetDefaultPeriod();
}

// What other programs did to the file of a definition since it was read or written here.
enum class eFileState { Unchanged, Changed, Gone };

// All definitions of one kind of an application folder, loaded, edited and not yet saved ones among them.
// Positions count from 0 and stay the same until a definition is removed. What goes wrong with a file is told
// by the note of the services.
template <class Definition>
class cDefinitionFolder {
  public:
    explicit cDefinitionFolder(const cDefinitionServices& services) : m_Services(services) {}

    // Replaces all by what the folder holds, in the order of the identities. A file that can't be loaded is
    // left out, and out of reach of everything here. What a crash left of a save is taken away.
    void Load() {
        m_Entries.clear();
        m_NotLoaded.clear();
        RemoveDefinitionTemporaries(m_Services, Definition::kKind);
        LoadNew();
    }
    using Held = std::function<bool(std::size_t position)>;
    // A definition that others changed, or one that has gone with its file, as it was before.
    using Taken = std::function<void(std::size_t position, std::unique_ptr<Definition> before, bool isGone)>;
    // Takes up what other programs did: files that are new, and changed and removed files of definitions that
    // are not held. Begins with the last position, so that those that are told of are still right; what is
    // new comes last. Whether anything was taken up.
    bool Rescan(const Held& isHeld, const Taken& onTaken = nullptr) {
        bool changed = false;
        for (std::size_t i = m_Entries.size(); i-- > 0;) {
            if (!IsNews(i) || isHeld(i)) continue;
            changed = (IsGone(i) ? LetGo(i, onTaken) : ReadAgain(i, onTaken)) || changed;
        }
        return LoadNew() || changed;
    }
    // Whether Rescan would take up anything.
    bool HasNews(const Held& isHeld) const {
        for (std::size_t i = 0; i < m_Entries.size(); ++i) {
            if (IsNews(i) && !isHeld(i)) return true;
        }
        if (HaveUnreadableChanged()) return true;
        const std::vector<std::int16_t> identities = DefinitionIdentities(m_Services, Definition::kKind);
        return std::any_of(identities.begin(), identities.end(), [this](std::int16_t identity) {
            return !Holds(identity) && !m_NotLoaded.contains(PathOf(identity));
        });
    }
    // Who edits the folder takes up by itself what others did to it, at its own pace and with what it holds.
    // The last one that says so counts, as long as it keeps the function.
    using TakeUp = std::function<void()>;
    void SetEditor(const std::shared_ptr<const TakeUp>& takeUp) { m_Editor = takeUp; }
    // For who only looks: brings the definitions up to what the folder holds, but for what an editor holds.
    void LookAgain() {
        if (const auto takeUp = m_Editor.lock()) return (*takeUp)();
        Rescan([](std::size_t) { return false; });
    }
    // Adds a new one, unsaved; its position.
    std::size_t Add(const std::string& name) {
        auto definition = std::make_unique<Definition>(m_Services);
        Rename(*definition, name);
        Prepare(*definition);
        m_Entries.push_back({std::move(definition), {}, {}});
        return m_Entries.size() - 1;
    }
    // Adds a copy with a name of its own, unsaved; its position.
    std::size_t AddCopy(std::size_t position, const std::string& name) {
        auto definition = CopyOf(position);
        Rename(*definition, name);
        m_Entries.push_back({std::move(definition), {}, {}});
        return m_Entries.size() - 1;
    }
    // Adds an unsaved copy of what the file of one holds now; none when it can't be read.
    std::optional<std::size_t> AddFromFile(std::size_t position) {
        const auto file = InFile(position);
        if (!file) return std::nullopt;
        auto definition = std::make_unique<Definition>(m_Services);
        definition->CopyFrom(*file);
        Rename(*definition, FreeName(NameOf(*file)));
        m_Entries.push_back({std::move(definition), {}, {}});
        return m_Entries.size() - 1;
    }
    // What the file of one holds now; none when it has none that can be read.
    std::unique_ptr<Definition> InFile(std::size_t position) const {
        auto file = std::make_unique<Definition>(m_Services);
        // A load would make the missing file anew, empty.
        if (!HasFile(position) || !file->LoadFromDisk(At(position).m_DiskIdentity)) return nullptr;
        return file;
    }
    // Writes one, and reads it back as the file has it.
    bool Save(std::size_t position) {
        Definition& definition = At(position);
        cFileReader::cStamp stamp;
        if (!definition.SaveToDisk() || !Read(definition, definition.m_DiskIdentity, stamp)) return false;
        m_Entries[position].stamp = stamp;
        return true;
    }
    // Takes one away, with its file when it has one. False, and it stays, when the file can't be removed.
    bool Remove(std::size_t position) {
        if (HasFile(position) && !At(position).RemoveFromDisk()) return false;
        m_Entries.erase(m_Entries.begin() + static_cast<std::ptrdiff_t>(position));
        return true;
    }
    // Gives up the changes of one: back to its file, or away when it has none. False when its file is gone or
    // can no longer be read; it keeps its changes then.
    bool Revert(std::size_t position) {
        if (At(position).m_DiskIdentity < 0) return Remove(position);
        auto again = std::make_unique<Definition>(m_Services);
        cFileReader::cStamp stamp;
        if (!HasFile(position) || !Read(*again, At(position).m_DiskIdentity, stamp)) return false;
        m_Entries[position] = {std::move(again), stamp, {}};
        return true;
    }

    // --- undo
    std::unique_ptr<Definition> CopyOf(std::size_t position) const {
        auto definition = std::make_unique<Definition>(m_Services);
        definition->CopyFrom(At(position));
        return definition;
    }
    // The bytes of the file of one; none when it has none that can be read.
    std::optional<std::string> FileOf(std::size_t position) const {
        std::optional<std::string> bytes;
        if (!HasFile(position)) return bytes;
        SkipFailure([&] { bytes = m_Services.files.ReadFile(PathOf(At(position))); });
        return bytes;
    }
    // Brings one back to its position, with its file when that had been there. False when it comes back
    // unsaved instead: the file's name is taken meanwhile, or it can't be written. One whose file was gone
    // already has its number again, as long as nobody else has it.
    bool BringBack(std::size_t position, const Definition& content, std::int16_t identity,
                   const std::optional<std::string>& file) {
        auto definition = std::make_unique<Definition>(m_Services);
        cFileReader::cStamp stamp;
        const bool asFile = file && WriteBack(identity, *file) && Read(*definition, identity, stamp);
        definition->CopyFrom(content);
        if (!file && identity >= 0 && !Holds(identity) && IsMissing(m_Services.files, PathOf(identity))) {
            definition->m_DiskIdentity = identity;
        }
        cEntry entry{std::move(definition), {}, {}};
        if (asFile) entry.stamp = stamp;
        m_Entries.insert(m_Entries.begin() + static_cast<std::ptrdiff_t>(position), std::move(entry));
        return asFile || !file;
    }

    bool HasChanges() const {
        return std::any_of(m_Entries.begin(), m_Entries.end(), [](const cEntry& entry) {
            return entry.definition->HasChangedSinceLastLoadFromDisk();
        });
    }
    // A name that none has yet: the wish itself, or with " 2", " 3" ... behind it.
    std::string FreeName(const std::string& wish) const {
        std::string name = wish;
        for (int i = 2; HasName(name); ++i) name = wish + " " + std::to_string(i);
        return name;
    }

    std::size_t Count() const { return m_Entries.size(); }
    Definition& At(std::size_t position) { return *m_Entries.at(position).definition; }
    const Definition& At(std::size_t position) const { return *m_Entries.at(position).definition; }
    eFileState StateOfFile(std::size_t position) const {
        if (At(position).m_DiskIdentity < 0) return eFileState::Unchanged;
        const cFileReader::cStamp now = StampOf(At(position));
        if (now.size < 0) return eFileState::Gone;
        return now == m_Entries[position].stamp ? eFileState::Unchanged : eFileState::Changed;
    }
    // The files that could not be loaded.
    const std::vector<cUnreadableFile>& Unreadable() const { return m_Unreadable; }

  private:
    struct cEntry {
        std::unique_ptr<Definition> definition;
        cFileReader::cStamp stamp;   // of its file, as it was read or written last
        cFileReader::cStamp seen{};  // of a file that was changed by others and looked at
    };

    struct cNotLoaded {
        cFileReader::cStamp stamp;
        cPhrase reason;
    };

    // For certain, not only at a look that failed.
    bool IsGone(std::size_t position) const {
        return StateOfFile(position) == eFileState::Gone && IsMissing(m_Services.files, PathOf(At(position)));
    }
    bool IsNews(std::size_t position) const {
        return IsGone(position) || (StateOfFile(position) == eFileState::Changed &&
                                    m_Entries[position].seen != StampOf(At(position)));
    }
    bool LetGo(std::size_t position, const Taken& onTaken) {
        auto before = std::move(m_Entries[position].definition);
        m_Entries.erase(m_Entries.begin() + static_cast<std::ptrdiff_t>(position));
        if (onTaken) onTaken(position, std::move(before), true);
        return true;
    }
    bool ReadAgain(std::size_t position, const Taken& onTaken) {
        const cFileReader::cStamp stamp = StampOf(At(position));
        auto before = CopyOf(position);
        const bool taken = Revert(position);
        // Told once: what can't be read stays as it was read before.
        m_Entries[position].seen = stamp;
        if (taken && onTaken) onTaken(position, std::move(before), false);
        return taken;
    }
    bool HasName(const std::string& name) const {
        return std::any_of(m_Entries.begin(), m_Entries.end(),
                           [&](const cEntry& entry) { return NameOf(*entry.definition) == name; });
    }
    bool Holds(std::int16_t identity) const {
        return std::any_of(m_Entries.begin(), m_Entries.end(), [identity](const cEntry& entry) {
            return entry.definition->m_DiskIdentity == identity;
        });
    }
    // With what it is allowed to whom: that, too, decides whether it can be read.
    static bool IsSame(const cFileReader::cStamp& a, const cFileReader::cStamp& b) {
        return a == b && a.changedNs == b.changedNs;
    }
    // Mended, removed, or one of two with one number by now; or the folder is.
    bool HaveUnreadableChanged() const {
        return std::any_of(m_NotLoaded.begin(), m_NotLoaded.end(),
                           [this](const auto& each) {
                               return !IsSame(each.second.stamp, m_Services.files.Stamp(each.first));
                           }) ||
               DefinitionsOutOfReach(m_Services, Definition::kKind) != m_OutOfReach;
    }
    std::string PathOf(std::int16_t identity) const {
        return DefinitionFileName(m_Services, Definition::kKind, identity);
    }
    std::string PathOf(const Definition& definition) const { return PathOf(definition.m_DiskIdentity); }
    cFileReader::cStamp StampOf(const Definition& definition) const {
        return m_Services.files.Stamp(PathOf(definition));
    }
    bool HasFile(std::size_t position) const {
        return At(position).m_DiskIdentity >= 0 && FileExists(m_Services.files, PathOf(At(position)));
    }
    bool WriteBack(std::int16_t identity, const std::string& bytes) const {
        const std::string path = PathOf(identity);
        if (FileExists(m_Services.files, path)) return false;
        return !CatchFailure([&] { ReplaceFile(m_Services.files, path, bytes); });
    }
    // Whether a definition came in that was not held yet.
    bool LoadNew() {
        const std::size_t before = m_Entries.size();
        const auto known = std::exchange(m_NotLoaded, {});
        m_OutOfReach = DefinitionsOutOfReach(m_Services, Definition::kKind);
        for (const std::int16_t identity : DefinitionIdentities(m_Services, Definition::kKind)) {
            if (Holds(identity)) continue;
            const auto former = known.find(PathOf(identity));
            // Told once.
            if (former != known.end() &&
                IsSame(former->second.stamp, m_Services.files.Stamp(former->first))) {
                m_NotLoaded.insert(*former);
            } else {
                Load(identity);
            }
        }
        m_Unreadable = m_OutOfReach;
        for (const auto& [path, file] : m_NotLoaded) m_Unreadable.push_back({path, file.reason});
        return m_Entries.size() != before;
    }
    // Gives the stamp of before: who writes the file meanwhile is seen. Bringing it up to the current version
    // writes it, too, and then it is read again.
    bool Read(Definition& definition, std::int16_t identity, cFileReader::cStamp& stamp) const {
        const std::string path = PathOf(identity);
        for (int i = 0; i < 2; ++i) {
            stamp = m_Services.files.Stamp(path);
            if (!definition.LoadFromDisk(identity)) return false;
            if (stamp == m_Services.files.Stamp(path)) break;
        }
        return true;
    }
    void Load(std::int16_t identity) {
        const std::string path = PathOf(identity);
        cFileReader::cStamp stamp;
        auto definition = std::make_unique<Definition>(m_Services);
        if (Read(*definition, identity, stamp)) {
            m_Entries.push_back({std::move(definition), stamp, {}});
        } else {
            m_NotLoaded.emplace(path,
                                cNotLoaded{stamp, ReasonNotLoaded(m_Services, Definition::kKind, path)});
        }
    }

    const cDefinitionServices& m_Services;
    std::vector<cEntry> m_Entries;
    std::map<std::string, cNotLoaded> m_NotLoaded;  // by path
    std::vector<cUnreadableFile> m_OutOfReach;
    std::vector<cUnreadableFile> m_Unreadable;  // both
    std::weak_ptr<const TakeUp> m_Editor;
};

using cReceiverFolder = cDefinitionFolder<cReceiver>;
using cProfileFolder = cDefinitionFolder<cProfile>;

}  // namespace vigrel
